#include "support/Services.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <functional>

namespace neb {
namespace {

class SystemClock : public Clock {
  public:
    SystemClock() { mTimer.start(); }
    QDateTime Now() const override { return QDateTime::currentDateTime(); }
    double Ticks() const override { return static_cast<double>(mTimer.nsecsElapsed()) / 1e6; }

  private:
    QElapsedTimer mTimer;
};

std::function<void()>& DoEventsHook() {
    static std::function<void()> Hook;
    return Hook;
}

BoxAnswer ShowOrWarn(const BoxRequest& Request) {
    if (MessageBoxes* Boxes = TheServices().Boxes) return Boxes->Show(Request);
    qWarning("%s", qPrintable(Request.Text));
    return AnswerOfClosing(Request.Buttons);
}

}  // namespace

BoxAnswer AnswerOfClosing(BoxButtons Buttons) {
    if (Buttons == BoxButtons::Ok) return BoxAnswer::Ok;
    return Buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Cancel;
}

double Clock::Timer() const {
    return Now().time().msecsSinceStartOfDay() / 1000.0;
}

Services& TheServices() {
    static SystemClock DefaultClock;
    static Services Instance{.Time = &DefaultClock};
    return Instance;
}

BoxAnswer MsgBox(const QString& Text, const QString& Title, BoxIcon Icon, BoxButtons Buttons) {
    return ShowOrWarn({Text, Title, Icon, Buttons});
}

bool AskYesNo(const QString& Text, const QString& Title, BoxAnswer Default) {
    return ShowOrWarn({Text, Title, BoxIcon::Question, BoxButtons::YesNo, Default}) ==
           BoxAnswer::Yes;
}

BoxAnswer AskSave(const QString& Text, const QString& Title) {
    constexpr auto Buttons = BoxButtons::SaveDiscardCancel;
    return ShowOrWarn({Text, Title, BoxIcon::Question, Buttons, AnswerOfClosing(Buttons)});
}

void DoEvents() {
    if (QCoreApplication::instance()) QCoreApplication::processEvents();
    if (DoEventsHook()) DoEventsHook()();
}

void DoEventsButInput() {
    if (QCoreApplication::instance())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (DoEventsHook()) DoEventsHook()();
}

void SetDoEventsHook(std::function<void()> Hook) {
    DoEventsHook() = std::move(Hook);
}

}  // namespace neb
