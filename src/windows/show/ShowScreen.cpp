#include "windows/show/ShowScreen.h"

#include <QApplication>
#include <QMainWindow>
#include <QPointer>
#include <QScreen>
#include <QWidget>

#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"

namespace neb {
namespace {

// The screen of the main window, else of the window in use, else the first one; null on a desktop
// without any screen.
QScreen* ProgramScreen() {
    for (const QWidget* Window : QApplication::topLevelWidgets())
        if (qobject_cast<const QMainWindow*>(Window) && Window->isVisible())
            return Window->screen();
    const QWidget* Active = QApplication::activeWindow();
    return Active ? Active->screen() : QGuiApplication::primaryScreen();
}

}  // namespace

// It goes with the application.
ScreenWatch::ScreenWatch() : QObject(qGuiApp), Screens(&QGuiApplication::screens) {
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &ScreenWatch::Follow);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &ScreenWatch::ChangedSoon);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &ScreenWatch::ChangedSoon);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &ScreenWatch::ChangedSoon);
    for (QScreen* Each : QGuiApplication::screens()) Follow(Each);
}

void ScreenWatch::Follow(QScreen* Screen) {
    connect(Screen, &QScreen::geometryChanged, this, &ScreenWatch::ChangedSoon);
}

// A desktop changes several things at a time, and moves the windows itself before it is done.
void ScreenWatch::ChangedSoon() {
    if (std::exchange(mToldSoon, true)) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            mToldSoon = false;
            Q_EMIT Changed();
        },
        Qt::QueuedConnection);
}

ScreenWatch& TheScreens() {
    static QPointer<ScreenWatch> Watch;
    if (!Watch) Watch = new ScreenWatch;
    return *Watch;
}

std::vector<DesktopScreen> ScreensThere() {
    std::vector<DesktopScreen> There;
    for (const QScreen* Each : TheScreens().Screens())
        There.push_back(
            {Each->name(), Each->model().trimmed(), Each->size() * Each->devicePixelRatio()});
    return There;
}

QScreen* ShowScreen() {
    const QList<QScreen*> All = TheScreens().Screens();
    const int Own = static_cast<int>(All.indexOf(ProgramScreen()));
    const QString Choice = ReadText(OpenSettings(), Setting::ShowScreen);
    return All.value(ChosenScreen(Choice, ScreensThere(), std::max(0, Own)));
}

bool FillsScreen(const QWidget& Window, const QScreen& Screen) {
    return Window.screen() == &Screen && Window.geometry() == Screen.geometry();
}

// A desktop without a window manager takes the size from the window itself; one with such takes a
// window that fills a screen to another one only when it has stopped to fill the first.
void FillScreen(QWidget& Window, QScreen* Screen) {
    if (Window.isVisible())
        Window.setWindowState(Qt::WindowNoState);
    else
        Window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    if (Screen) {
        Window.setScreen(Screen);
        Window.setGeometry(Screen->geometry());
    }
    Window.setWindowState(Qt::WindowFullScreen);
}

}  // namespace neb
