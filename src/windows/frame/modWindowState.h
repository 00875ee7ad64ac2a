// How windows remember their size, and where a new child of the main window is put.
#pragma once

#include <QPoint>
#include <QString>

namespace neb {

class Form;
class clsSettings;

// What a window remembers, in a section of the settings file named after it. Sizes in twips.
struct WindowMemory {
    QString Section;
    int DefaultHeight;
    int DefaultWidth = 0;  // 0: the width is not remembered, nor is the window state
};

void RestoreWindow(Form& Window, const WindowMemory& Memory);
// Writes nothing of a minimised window and only the state of a maximised one.
void SaveWindow(const Form& Window, const WindowMemory& Memory);
// Writes what a window that closes remembers of itself. The settings often lie with the albums, so
// nothing is written of a database that may not be changed; and a file that cannot be written must
// not keep the window open.
void SaveMemory(clsSettings& Settings);

// The place for a new child window, in twips from the frame's corner. Mode 1: one step down and
// right of the outermost visible children, each way by itself. Else: the first free step.
QPoint ChildPlace(const Form& Window, int Mode);
void PositionMDIChild(Form& Window, int Mode);
// Before the others, where a question is asked about it.
void BringToFront(const Form& Window);

}  // namespace neb
