#include "CutFinder.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QMenu>
#include <QProgressBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QStatusBar>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QTabBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>

namespace neb::harness {
namespace {

using namespace Qt::StringLiterals;

constexpr int ShortList = 6;  // rows

QString Words(QSize Size) {
    return u"%1x%2"_s.arg(Size.width()).arg(Size.height());
}

// Empty when Needed fits into what the control has.
QString Needs(const QWidget& Control, QSize Needed) {
    const QSize Has = Control.size();
    if (Needed.width() <= Has.width() && Needed.height() <= Has.height()) return {};
    return u"needs %1, has %2"_s.arg(Words(Needed), Words(Has));
}

QString OfLabel(const QLabel& Label) {
    if (Label.text().isEmpty()) return {};
    if (!Label.wordWrap()) return Needs(Label, Label.sizeHint());
    return Needs(Label, {0, Label.heightForWidth(Label.width())});
}

// An entry is read where it stands; lists of names that users give open wider.
QString OfChoice(const QComboBox& Box) {
    if (const QString Low = Needs(Box, {0, Box.sizeHint().height()}); !Low.isEmpty()) return Low;
    QStyleOptionComboBox Look;
    Look.initFrom(&Box);
    Look.subControls = QStyle::SC_All;
    const int Room =
        Box.style()
            ->subControlRect(QStyle::CC_ComboBox, &Look, QStyle::SC_ComboBoxEditField, &Box)
            .width();
    QStringList Texts{Box.placeholderText()};
    for (int I = 0; I < Box.count(); ++I) Texts.append(Box.itemText(I));
    for (const QString& Each : Texts)
        if (Box.fontMetrics().horizontalAdvance(Each) > Room)
            return u"shows not all of \"%1\""_s.arg(Each);
    return {};
}

QString OfField(const QLineEdit& Field) {
    if (qobject_cast<const QComboBox*>(Field.parentWidget()) ||
        qobject_cast<const QAbstractSpinBox*>(Field.parentWidget()))
        return {};
    if (const QString Low = Needs(Field, {0, Field.sizeHint().height()}); !Low.isEmpty())
        return Low;
    const int Room =
        Field.width() - Field.sizeHint().width() + 17 * Field.fontMetrics().horizontalAdvance(u'x');
    if (Field.fontMetrics().horizontalAdvance(Field.placeholderText()) > Room)
        return u"shows not all of \"%1\""_s.arg(Field.placeholderText());
    return {};
}

QString OfHeader(const QHeaderView& Header) {
    if (Header.orientation() != Qt::Horizontal) return {};
    if (Header.height() < Header.sizeHint().height())
        return u"is %1 high of %2"_s.arg(Header.height()).arg(Header.sizeHint().height());
    for (int I = 0; I < Header.count(); ++I)
        if (!Header.isSectionHidden(I) && Header.sectionSize(I) < Header.sectionSizeHint(I))
            return u"column %1 \"%2\" is %3 wide of %4"_s.arg(I)
                .arg(Header.model()->headerData(I, Qt::Horizontal).toString())
                .arg(Header.sectionSize(I))
                .arg(Header.sectionSizeHint(I));
    return {};
}

// Rows high enough for their letters; without a scroll bar, all columns in view.
QString OfTable(const QTableView& Table) {
    const int Row = Table.verticalHeader()->defaultSectionSize();
    if (Row < Table.fontMetrics().height()) return u"has rows %1 high"_s.arg(Row);
    const int Wide = Table.horizontalHeader()->length(), Room = Table.viewport()->width();
    if (Table.horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff && Wide > Room)
        return u"has columns of %1 in %2"_s.arg(Wide).arg(Room);
    const int High = Table.verticalHeader()->length();
    if (Table.verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff &&
        High > Table.viewport()->height())
        return u"has rows of %1 in %2"_s.arg(High).arg(Table.viewport()->height());
    if (Table.viewport()->height() < Row) return u"has no room for one row"_s;
    return {};
}

// Short lists are seen whole.
QString OfList(const QListWidget& List) {
    if (List.count() == 0) return {};
    const int Row = List.sizeHintForRow(0), Room = List.viewport()->height();
    if (Room < Row) return u"has no room for one row"_s;
    const int End = List.visualItemRect(List.item(List.count() - 1)).bottom();
    const int Start = List.visualItemRect(List.item(0)).top();
    if (End > Room && End - Start <= ShortList * Row)
        return u"is %1 high of %2"_s.arg(Room).arg(End - Start);
    return {};
}

QString OfBar(const QToolBar& Bar) {
    const auto* More = Bar.findChild<QToolButton*>(u"qt_toolbar_ext_button"_s);
    for (QAction* Each : Bar.actions()) {
        const QWidget* Button = Bar.widgetForAction(Each);
        const bool Seen = Button && Button->isVisible() && Bar.rect().contains(Button->geometry());
        if (Each->isVisible() && !Seen && !(More && More->isVisible()))
            return u"has no place for \"%1\""_s.arg(Each->text());
    }
    return {};
}

QString OfTabs(const QTabBar& Tabs) {
    return Tabs.usesScrollButtons() ? QString() : Needs(Tabs, Tabs.sizeHint());
}

QString OfControl(const QWidget& Control) {
    if (auto* Label = qobject_cast<const QLabel*>(&Control)) return OfLabel(*Label);
    if (auto* Box = qobject_cast<const QComboBox*>(&Control)) return OfChoice(*Box);
    if (auto* Field = qobject_cast<const QLineEdit*>(&Control)) return OfField(*Field);
    if (auto* Header = qobject_cast<const QHeaderView*>(&Control)) return OfHeader(*Header);
    if (auto* Table = qobject_cast<const QTableView*>(&Control)) return OfTable(*Table);
    if (auto* List = qobject_cast<const QListWidget*>(&Control)) return OfList(*List);
    if (auto* Bar = qobject_cast<const QToolBar*>(&Control)) return OfBar(*Bar);
    if (auto* Tabs = qobject_cast<const QTabBar*>(&Control)) return OfTabs(*Tabs);
    if (qobject_cast<const QAbstractButton*>(&Control)) return Needs(Control, Control.sizeHint());
    if (qobject_cast<const QGroupBox*>(&Control) || qobject_cast<const QProgressBar*>(&Control) ||
        qobject_cast<const QAbstractSpinBox*>(&Control) || qobject_cast<const QSlider*>(&Control))
        return Needs(Control, Control.minimumSizeHint());
    return {};
}

// Pieces that the toolkit puts inside its own controls, and scrolls there.
bool IsPartOfToolkit(const QWidget& Control) {
    const QByteArray Class = Control.metaObject()->className();
    return Control.objectName().startsWith(u"qt_") || Class.contains("Private") ||
           qobject_cast<const QLineEdit*>(Control.parentWidget()) ||
           Class.contains("QTableCornerButton") || Class.contains("QScrollBar") ||
           Class.contains("QMdi") || Control.isWindow();
}

// Where it lies in what moves it into view: the content of a scrolling area, else the window.
QString OutsideOf(const QWidget& Control, const QWidget& Window) {
    const QWidget* Room = &Window;
    for (const QWidget* Up = Control.parentWidget(); Up && Up != &Window; Up = Up->parentWidget())
        if (auto* Area = qobject_cast<const QScrollArea*>(Up->parentWidget()->parentWidget());
            Area && Area->widget() == Up) {
            Room = Up;
            break;
        }
    const QRect Place(Control.mapTo(Room, QPoint()), Control.size());
    if (Room->rect().contains(Place)) return {};
    return u"lies outside its window"_s;
}

// What a scrolling area shows a part of.
bool IsContent(const QWidget& Control) {
    const QWidget* View = Control.parentWidget();
    const auto* Area = View ? qobject_cast<const QScrollArea*>(View->parentWidget()) : nullptr;
    return Area && Area->widget() == &Control;
}

QString NameOf(const QWidget& Control) {
    const QString Own = Control.objectName();
    if (!Own.isEmpty() || !Control.parentWidget()) return Own;
    return NameOf(*Control.parentWidget()) + u'/' +
           QLatin1String(Control.metaObject()->className());
}

bool IsInView(const QWidget& Control, const QWidget& Window) {
    for (const QWidget* Up = &Control; Up != &Window; Up = Up->parentWidget())
        if (Up->isHidden() || Up->isWindow() || IsPartOfToolkit(*Up)) {
            const bool Passes = Up->objectName().startsWith(u"qt_scrollarea_viewport") ||
                                Up->objectName().startsWith(u"qt_spinbox");
            if (!Passes) return false;
        }
    return true;
}

QString OfWindow(const QWidget& Window) {
    const auto* Frame = qobject_cast<const QMdiSubWindow*>(Window.parentWidget());
    if (!Frame) {
        const QRect Room = Window.screen()->availableGeometry();
        const int Title =
            Window.isMaximized() ? 0 : Window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
        const QRect Place(Window.pos(), Window.size() + QSize(0, Title));
        if (Place.width() > Room.width() || Place.height() > Room.height())
            return u"is %1 on a screen of %2"_s.arg(Words(Place.size()), Words(Room.size()));
        return {};
    }
    const QSize Room = Frame->parentWidget()->size();
    if (Frame->width() > Room.width() || Frame->height() > Room.height())
        return u"is %1 in a room of %2"_s.arg(Words(Frame->size()), Words(Room));
    if (Window.y() < Frame->fontMetrics().height()) return u"has a title that is cut"_s;
    return {};
}

// No wider than the screen, opened beside its header.
QString OfMenu(const QMenu& Menu) {
    const int Room = Menu.screen()->availableGeometry().width();
    const int Wide = Menu.sizeHint().width();
    return Wide > Room ? u"is %1 wide on a screen of %2"_s.arg(Wide).arg(Room) : QString();
}

// What the bar says of the entry that the pointer is at.
QString OfTip(const QAction& Entry, const QStatusBar& Bar) {
    const int Wide = Bar.fontMetrics().horizontalAdvance(Entry.statusTip());
    return Wide > Bar.width() ? u"needs %1 for its tip, has %2"_s.arg(Wide).arg(Bar.width())
                              : QString();
}

}  // namespace

QStringList CutsIn(const QWidget& Window) {
    QStringList Found;
    const auto Note = [&](const QString& Name, const QString& What) {
        if (!What.isEmpty()) Found.append(Name + u' ' + What);
    };
    Note(Window.objectName(), OfWindow(Window));
    for (const QWidget* Each : Window.findChildren<QWidget*>()) {
        if (!IsInView(*Each, Window)) continue;
        Note(NameOf(*Each), OfControl(*Each));
        if (!IsContent(*Each)) Note(NameOf(*Each), OutsideOf(*Each, Window));
    }
    for (const QMenu* Each : Window.findChildren<QMenu*>()) Note(NameOf(*Each), OfMenu(*Each));
    if (const auto* Bar = Window.findChild<QStatusBar*>())
        for (const QAction* Each : Window.findChildren<QAction*>())
            Note(Each->objectName(), OfTip(*Each, *Bar));
    return Found;
}

}  // namespace neb::harness
