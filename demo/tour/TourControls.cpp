#include "TourControls.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFileDialog>

#include "controls/fields/ToolBar.h"

namespace neb::demo {
namespace {

constexpr int FromRight = 8;  // pixels: inside the button of a cell

const FlexGrid& Shown(const FlexGrid& Grid) {
    if (Grid.isVisible()) return Grid;
    throw Fault(QStringLiteral("%1 is not to be seen").arg(Grid.objectName()));
}

QPoint PlaceOf(FlexGrid& Grid, int Row, int Col) {
    const QModelIndex Cell = Shown(Grid).model()->index(Row, Col);
    if (!Cell.isValid())
        throw Fault(QStringLiteral("%1 has no row %2").arg(Grid.objectName()).arg(Row));
    Grid.scrollTo(Cell);
    return Grid.visualRect(Cell).center();
}

// The open editor of a cell; those that were closed go in their own time.
template <class Editor>
Editor& OpenEditor(const FlexGrid& Grid) {
    const auto Editors = Grid.findChildren<Editor*>();
    if (!Grid.IsEditing() || Editors.isEmpty())
        throw Fault(QStringLiteral("no cell of %1 is being edited").arg(Grid.objectName()));
    return *Editors.back();
}

void ExpectText(const QString& Where, const QString& Text, const QString& Found) {
    if (Found != Text)
        throw Fault(QStringLiteral("%1 says \"%2\", not \"%3\"").arg(Where, Found, Text));
}

void EnterText(QLineEdit& Field, const QString& Text) {
    Field.selectAll();
    QTest::keyClicks(&Field, Text);
    ExpectText(Field.objectName(), Text, Field.text());
}

}  // namespace

void PressButton(const QWidget& Window, const char* Name) {
    auto& Button = Inside<QPushButton>(Window, Name);
    if (!Button.isEnabled())
        throw Fault(QStringLiteral("%1 cannot be pressed").arg(Button.objectName()));
    QTest::mouseClick(&Button, Qt::LeftButton);
}

void PressTool(const QWidget& Window, const char* Name) {
    auto& Bar = Inside<ToolBar>(Window, "abrMenu");
    if (!Bar.IsToolEnabled(QString::fromLatin1(Name)))
        throw Fault(QStringLiteral("%1 cannot be pressed").arg(QLatin1String(Name)));
    QTest::mouseClick(Bar.widgetForAction(Bar.Tool(QString::fromLatin1(Name))), Qt::LeftButton);
}

std::function<bool()> IsInFront(const QWidget& Window) {
    return [&Window] { return Window.isVisible() && Window.isActiveWindow(); };
}

std::function<void()> Keys(QWidget& Window, Qt::Key Key, Qt::KeyboardModifiers With) {
    return [&Window, Key, With] { QTest::keyClick(&Window, Key, With); };
}

void Type(QLineEdit& Field, const QString& Text) {
    Field.setFocus();
    EnterText(Field, Text);
}

void Choose(QComboBox& List, const QString& Entry) {
    const int Row = List.findText(Entry, Qt::MatchEndsWith);  // behind its number
    if (Row < 0) throw Fault(QStringLiteral("%1 has no %2").arg(List.objectName(), Entry));
    List.setFocus();
    QTest::keyClick(&List, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(List.view(), Qt::Key_Home);
    for (int I = 0; I < Row; ++I) QTest::keyClick(List.view(), Qt::Key_Down);
    ExpectText(List.objectName(), List.itemText(Row),
               List.view()->currentIndex().data().toString());
    QTest::keyClick(List.view(), Qt::Key_Return);
}

void TypeDirectory(const QWidget& Window, const QString& Directory) {
    auto* Field = Inside<QWidget>(Window, "Dir1").findChild<QLineEdit*>();
    if (!Field) throw Fault(QStringLiteral("no directory can be typed"));
    Type(*Field, Directory);
    QTest::keyClick(Field, Qt::Key_Return);
}

bool PicturesAreCounted(const QWidget& Window) {
    const QString Text = Inside<QLabel>(Window, "lblDirSummary").text();
    return Text.endsWith(QStringLiteral("detected.")) && !Text.startsWith(QStringLiteral("0 "));
}

bool FileDialogIsOpen() {
    return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) != nullptr;
}

bool FileDialogIsInFront() {
    return FileDialogIsOpen() && QApplication::activeModalWidget()->isActiveWindow();
}

void TypeFileName(const QString& Path) {
    if (!FileDialogIsOpen()) throw Fault(QStringLiteral("no file is asked for"));
    auto& Field = Inside<QLineEdit>(*QApplication::activeModalWidget(), "fileNameEdit");
    Type(Field, Path);
    QTest::keyClick(&Field, Qt::Key_Return);
}

int RowWith(const FlexGrid& Grid, int Col, const QString& Text) {
    for (int Row = 0; Row < Grid.Rows(); ++Row)
        if (Grid.TextMatrix(Row, Col) == Text) return Row;
    throw Fault(QStringLiteral("%1 has no %2").arg(Grid.objectName(), Text));
}

void ClickCell(FlexGrid& Grid, int Row, int Col, Qt::KeyboardModifiers Keys) {
    QTest::mouseClick(Grid.viewport(), Qt::LeftButton, Keys, PlaceOf(Grid, Row, Col));
}

void DoubleClickCell(FlexGrid& Grid, int Row, int Col) {
    ClickCell(Grid, Row, Col);
    QTest::mouseDClick(Grid.viewport(), Qt::LeftButton, {}, PlaceOf(Grid, Row, Col));
}

// A click on a selected row would open the editor by itself, a moment later.
void TypeInCell(FlexGrid& Grid, int Row, int Col, const QString& Text) {
    if (Grid.IsSelected(Row)) ClickCell(Grid, Row > 0 ? Row - 1 : Row + 1, Col);
    ClickCell(Grid, Row, Col);
    if (!Grid.IsEditing()) QTest::keyClick(&Grid, Qt::Key_F2);
    auto& Field = OpenEditor<QLineEdit>(Grid);
    EnterText(Field, Text);
    QTest::keyClick(&Field, Qt::Key_Return);
}

void ChooseInCell(FlexGrid& Grid, int Row, int Col, const QString& Entry) {
    ClickCell(Grid, Row, Col);
    if (!Grid.IsEditing()) QTest::keyClick(&Grid, Qt::Key_F2);
    auto& List = OpenEditor<QComboBox>(Grid);
    QTest::keyClicks(&List, Entry);
    QTest::keyClick(&List, Qt::Key_Return);
    ExpectText(Grid.objectName(), Entry, Grid.TextMatrix(Row, Col));
}

void PressCellButton(FlexGrid& Grid, int Row, int Col) {
    const QPoint Middle = PlaceOf(Grid, Row, Col);
    const int Right = Grid.visualRect(Grid.model()->index(Row, Col)).right();
    QTest::mouseClick(Grid.viewport(), Qt::LeftButton, {}, {Right - FromRight, Middle.y()});
}

QMenu* OpenMenu() {
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

std::function<bool()> MenuIsOpen() {
    return [] { return OpenMenu() != nullptr; };
}

std::function<void()> MenuKey(Qt::Key Key) {
    return [Key] { QTest::keyClick(OpenMenu(), Key); };
}

}  // namespace neb::demo
