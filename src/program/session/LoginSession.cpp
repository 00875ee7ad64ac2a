#include "program/session/LoginSession.h"

#include <QApplication>
#include <QRegularExpression>
#include <QSessionManager>

#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

QString NameOf(const QString& ID, const QString& Key) {
    static const QRegularExpression Strange(QStringLiteral("[^A-Za-z0-9-]"));
    QString Name = ID + u'-' + Key;
    return Name.remove(Strange);
}

}  // namespace

QString SessionFile(const QString& ID, const QString& Key) {
    return OwnPath() + QStringLiteral("Sessions/") + NameOf(ID, Key) + QStringLiteral(".json");
}

LoginSession::LoginSession(SessionWishes Wishes, QString Documents)
    : mWishes(std::move(Wishes)), mDocuments(std::move(Documents)) {
    connect(
        qApp, &QGuiApplication::commitDataRequest, this,
        [this](QSessionManager& Manager) { CommitData(Manager); }, Qt::DirectConnection);
    connect(
        qApp, &QGuiApplication::saveStateRequest, this,
        [this](QSessionManager& Manager) { SaveState(Manager); }, Qt::DirectConnection);
    qApp->installEventFilter(this);
}

void LoginSession::Restore() {
    if (!qApp->isSessionRestored()) return;
    const QString Path = SessionFile(qApp->sessionId(), qApp->sessionKey());
    try {
        if (FileExists(Path)) OpenAgain(mWishes.Places, Unpacked(ReadFile(Path), DBPath()));
    } catch (const Fault&) {
        // the program is there, if not its windows
    }
}

// Where nobody can be asked, everything waits for the end itself, which asks as best it can; what
// is not stored of the records stands in their journal.
void LoginSession::CommitData(QSessionManager& Manager) {
    if (!Manager.allowsInteraction()) return;
    const bool Agreed = mWishes.AgreeToEnd();
    Manager.release();
    if (!Agreed) Manager.cancel();
}

void LoginSession::SaveState(QSessionManager& Manager) {
    const QString Path = SessionFile(Manager.sessionId(), Manager.sessionKey());
    try {
        MakeDirs(OwnPath() + QStringLiteral("Sessions"));
        ReplaceFile(Path, Packed(WindowsOpenIn(mWishes.Places), DBPath()));
    } catch (const Fault&) {
        // it is started again without its windows then
    }
    QStringList Again{QCoreApplication::applicationFilePath()};
    if (!mDocuments.isEmpty()) Again << QStringLiteral("--documents") << AbsolutePath(mDocuments);
    Again << QStringLiteral("-session") << Manager.sessionId() + u'_' + Manager.sessionKey();
    Manager.setRestartHint(QSessionManager::RestartIfRunning);
    Manager.setRestartCommand(Again);
    Manager.setDiscardCommand({QStringLiteral("rm"), QStringLiteral("-f"), Path});
}

// The session ends, and asks nobody any more: the same as when the system ends the program. Where
// the user works on it has not ended after all.
bool LoginSession::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() == QEvent::KeyPress || Event->type() == QEvent::MouseButtonPress)
        mWishes.GoOn();
    if (Watched != qApp || Event->type() != QEvent::Quit || !mWishes.IsUp()) return false;
    mWishes.Close();
    return true;
}

}  // namespace neb
