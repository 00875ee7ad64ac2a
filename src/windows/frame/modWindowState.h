// How windows remember their size, place and state, and where a new child of the main window is
// put.
#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

QT_BEGIN_NAMESPACE
class QMdiArea;
class QWidget;
QT_END_NAMESPACE

namespace neb {

class Form;
class clsSettings;

// What a window remembers, in a section of the settings file named after it. Sizes in twips: the
// least at which it opens before the user has given it one.
struct WindowMemory {
    QString Section;
    int DefaultHeight;
    int DefaultWidth = 0;  // 0: that with which it was designed
};

// The size and the state; of a window that is no child of the main window the place as well, unless
// it is on another screen than the window below it.
void RestoreWindow(Form& Window, const WindowMemory& Memory);
// Writes nothing of a minimised window and only the state of a maximised one.
void SaveWindow(const Form& Window, const WindowMemory& Memory);
// The same for the main window, which keeps the size that it has where nothing is remembered.
void RestoreMainWindow(QWidget& Window);
void SaveMainWindow(const QWidget& Window);
// Writes what a window that closes remembers of itself. The settings often lie with the albums, so
// nothing is written beside those that may not be changed; and a file that cannot be written must
// not keep the window open.
void SaveMemory(clsSettings& Settings);
// A window at a place of the screen that it has remembered, in pixels, brought inside the screen.
void PlaceOnScreen(QWidget& Window, const QPoint& Place);

// The place for a new child window, in twips from the frame's corner. Mode 1: one step of 330 (more
// where titles are higher) down and right of the outermost visible children, each way by itself.
// Else: the first free step. Minimised children do not count.
QPoint ChildPlace(const Form& Window, int Mode);
void PositionMDIChild(Form& Window, int Mode);
// Where it was last, else in the cascade: as a whole in the room that is seen. In the cascade as
// well when a child stands there already.
void PlaceChild(Form& Window);
// What is seen of the main window's area, but for the bars of the minimised children.
QRect VisibleRoom(const QMdiArea& Area);
// Before the others, where a question is asked about it.
void BringToFront(const Form& Window);

}  // namespace neb
