// Takes the user's own words out of texts that leave his computer: the names of his albums, shows
// and pictures, his own, and whatever looks like a path, a file or an address. For the report that
// Help, Copy Report makes.
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace neb {

class clsDBEngine;

class PrivateWords {
  public:
    // Names: in any order, of any length; empty ones and those without a letter or digit count not.
    explicit PrivateWords(const QStringList& Names);

    // The text with "(a name)" for each of the names that stands in it as whole words, whatever is
    // between them and however they are written, large or small.
    QString WithoutNames(const QString& Text) const;
    // The same of one line that anybody may have written: "(a path)" for a path up to the end of
    // the line, but for the system's reason behind it, "(a file)" for a file with the words before
    // it, "(an address)", and "(a name)" for what stands in quotes.
    QString WithoutAll(const QString& Line) const;

  private:
    QHash<QString, QList<QStringList>> mNames;  // by their first word
};

// Every name and caption that the user has given in the albums, and the names of their files.
QStringList NamesIn(const clsDBEngine& Engine);

}  // namespace neb
