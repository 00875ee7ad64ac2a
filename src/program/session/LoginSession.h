// The desktop's session, where the desktop manages one: at its end the program asks about work that
// is not saved, as its own end does, and says how it is started again; started so, it opens the
// windows that were open. Without a session manager nothing happens here.
#pragma once

#include <QObject>
#include <functional>

#include "program/session/OpenWindows.h"

QT_BEGIN_NAMESPACE
class QSessionManager;
QT_END_NAMESPACE

namespace neb {

// What the session wants of the program.
struct SessionWishes {
    WindowPlaces Places;
    // Asks about work that is not saved; true: the end that follows asks no more.
    std::function<bool()> AgreeToEnd;
    std::function<void()> GoOn;   // it does after all
    std::function<bool()> IsUp;   // whether there is anything to end
    std::function<void()> Close;  // as soon as that can be done
};

class LoginSession : public QObject {
  public:
    // Documents: as the program was started with, or empty.
    LoginSession(SessionWishes Wishes, QString Documents);
    // Opens what was open, where the program was started for that.
    void Restore();

  protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    void CommitData(QSessionManager& Manager);
    void SaveState(QSessionManager& Manager);

    const SessionWishes mWishes;
    const QString mDocuments;
};

// Where the windows of a session are written down, by its names at the session manager.
QString SessionFile(const QString& ID, const QString& Key);

}  // namespace neb
