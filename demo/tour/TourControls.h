// What a user does with the program's windows, for the steps of the tour: find a window and its
// controls, press, type, choose from a list, click on a cell. A control that is not there, or that
// did not take what was done with it, is a Fault.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include "controls/forms/Form.h"
#include "controls/grid/FlexGrid.h"
#include "support/Fault.h"

namespace neb::demo {

// The visible window of a kind that was opened last; null when there is none.
template <class Window>
Window* Open() {
    const auto Forms = LoadedForms();
    for (auto Each = Forms.rbegin(); Each != Forms.rend(); ++Each)
        if (auto* Found = dynamic_cast<Window*>(Each->get()); Found && Found->isVisible())
            return Found;
    return nullptr;
}

template <class Window>
std::function<bool()> IsOpen() {
    return [] { return Open<Window>() != nullptr; };
}

template <class Window>
std::function<bool()> IsClosed() {
    return [] { return Open<Window>() == nullptr; };
}

template <class Window>
Window& Opened() {
    if (Window* Found = Open<Window>()) return *Found;
    throw Fault(QStringLiteral("%1 is not open").arg(Window::staticMetaObject.className()));
}

template <class Control>
Control& Inside(const QWidget& Window, const char* Name) {
    if (auto* Found = Window.findChild<Control*>(QString::fromLatin1(Name))) return *Found;
    throw Fault(QStringLiteral("%1 has no %2").arg(Window.objectName(), QLatin1String(Name)));
}

template <class Control, class Window>
Control& In(const char* Name) {
    return Inside<Control>(Opened<Window>(), Name);
}

// A button that is off cannot be pressed.
void PressButton(const QWidget& Window, const char* Name);

template <class Window>
std::function<void()> Press(const char* Name) {
    return [Name] { PressButton(Opened<Window>(), Name); };
}

void PressTool(const QWidget& Window, const char* Name);

// The keys of a window's menu work while it is in front, a moment after a box over it has gone.
std::function<bool()> IsInFront(const QWidget& Window);
std::function<void()> Keys(QWidget& Window, Qt::Key Key, Qt::KeyboardModifiers With = {});

// In place of what stands there.
void Type(QLineEdit& Field, const QString& Text);
// Opens the list and goes by the keyboard to the entry that ends so.
void Choose(QComboBox& List, const QString& Entry);
// Into the window's field for a directory, with Return.
void TypeDirectory(const QWidget& Window, const QString& Directory);
// The window has counted the pictures of the directory, and there are some.
bool PicturesAreCounted(const QWidget& Window);
// Into the file dialog that is open, with Return.
void TypeFileName(const QString& Path);
bool FileDialogIsOpen();
// Before it is, its field does not keep a whole path that is typed into it.
bool FileDialogIsInFront();

// Rows and columns from 0; a row is found by the text in a column.
int RowWith(const FlexGrid& Grid, int Col, const QString& Text);
void ClickCell(FlexGrid& Grid, int Row, int Col, Qt::KeyboardModifiers Keys = {});
void DoubleClickCell(FlexGrid& Grid, int Row, int Col);
void TypeInCell(FlexGrid& Grid, int Row, int Col, const QString& Text);
// From the list of a cell, and the button in a cell.
void ChooseInCell(FlexGrid& Grid, int Row, int Col, const QString& Entry);
void PressCellButton(FlexGrid& Grid, int Row, int Col);

QMenu* OpenMenu();  // null when none is
std::function<bool()> MenuIsOpen();
// The key for an entry of the menu that is open.
std::function<void()> MenuKey(Qt::Key Key);

}  // namespace neb::demo
