// The running program's ear for further starts on the same database, which hand over what they were
// to open and end. The program's entry has one.
#pragma once

#include <QLocalServer>
#include <functional>

#include "program/opening/HandOver.h"

QT_BEGIN_NAMESPACE
class QLocalSocket;
QT_END_NAMESPACE

namespace neb {

class InstanceServer : public QObject {
    Q_OBJECT

  public:
    // False: it cannot be taken any more, and the other start is to help itself.
    using Take = std::function<bool(const HandOver& What)>;

    // For who has the lock of the database: a socket that a crash has left there is replaced. Where
    // none can be made there is no hand-over, and further starts are refused.
    InstanceServer(const QString& Database, Take Taken);

    bool IsListening() const { return mServer.isListening(); }

  private:
    void Accept();
    void Read(QLocalSocket& From);
    void Answer(QLocalSocket& To, const std::optional<HandOver>& Asked);

    QLocalServer mServer;
    Take mTake;
};

}  // namespace neb
