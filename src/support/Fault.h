// The one exception of the program: something went wrong that no routine can mend by itself
// (disk full, no permission, a picture that cannot be read). Whoever can go on catches it;
// what nobody catches is shown by the event loop in a box, and the program stays usable.
#pragma once

#include <QString>
#include <exception>

namespace neb {

class Fault : public std::exception {
  public:
    // What: a sentence for the user. File: the file it happened to, empty when none.
    // Number: a number that a caller can tell cases apart by, 0 when none.
    explicit Fault(QString What, QString File = {}, quint32 Number = 0);

    const QString& What() const { return mWhat; }
    const QString& File() const { return mFile; }
    quint32 Number() const { return mNumber; }
    // The sentence and, on a line of its own, the file as it can be read: for a message box.
    QString Text() const;
    const char* what() const noexcept override { return mUtf8.constData(); }

  private:
    QString mWhat;
    QString mFile;
    quint32 mNumber;
    QByteArray mUtf8;
};

}  // namespace neb
