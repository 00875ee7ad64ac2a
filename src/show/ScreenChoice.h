// Which screen shows fill, as preferences say it: the program's own, the largest, or one by its
// name. Without a window; windows/show/ShowScreen asks it about the screens that are there.
#pragma once

#include <QSize>
#include <QString>
#include <vector>

namespace neb {

struct DesktopScreen {
    QString Name;   // of the socket, such as "HDMI-1"
    QString Model;  // of the device behind it; often empty
    QSize Pixels;
};

// What the settings hold: nothing for the program's own screen, this word for the largest one, else
// ScreenKey of a screen.
inline const QString LargestScreen = QStringLiteral("Largest");
QString ScreenKey(const DesktopScreen& Screen);
// What a user reads of it: "HDMI-1, Acer X152H (1920 x 1080)".
QString ScreenTitle(const DesktopScreen& Screen);
// The name and model in a key, for a screen that is not there: "HDMI-1, Acer X152H".
QString TitleOfKey(const QString& Key);

// The place of the chosen one among those that are there. A device is found at another socket, too,
// and another device at the socket that was chosen; Own, the program's, stands in for one that is
// not there, and comes first among the largest. -1 only where Own is.
int ChosenScreen(const QString& Choice, const std::vector<DesktopScreen>& There, int Own);

}  // namespace neb
