// The screen that shows and the speed test fill, and the word that screens have come or gone.
#pragma once

#include <QList>
#include <QObject>
#include <functional>

#include "show/ScreenChoice.h"

QT_BEGIN_NAMESPACE
class QScreen;
class QWidget;
QT_END_NAMESPACE

namespace neb {

class ScreenWatch : public QObject {
    Q_OBJECT
  public:
    ScreenWatch();
    // The screens that are there; a test puts its own list in the place of the desktop's.
    std::function<QList<QScreen*>()> Screens;

  Q_SIGNALS:
    // One came, went or changed its size; told once for what happens at a time.
    void Changed();

  private:
    void Follow(QScreen* Screen);
    void ChangedSoon();

    bool mToldSoon = false;
};

ScreenWatch& TheScreens();

std::vector<DesktopScreen> ScreensThere();
// The one that preferences have chosen, else the program's; null on a desktop without any screen.
QScreen* ShowScreen();
// Whether a window fills a screen already, and has it do so. The first time before it is shown.
bool FillsScreen(const QWidget& Window, const QScreen& Screen);
void FillScreen(QWidget& Window, QScreen* Screen);

}  // namespace neb
