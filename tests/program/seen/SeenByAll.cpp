#include "SeenByAll.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTextBlock>
#include <QTextEdit>

#include "controls/fields/HintColour.h"

namespace neb::harness {
namespace {

using namespace Qt::StringLiterals;

constexpr double Enough = 4.5, EnoughOfLines = 2;
constexpr int Fine = 3;        // so that strokes have their own colour in their middle
constexpr int LeastDots = 12;  // of a colour that is a text's, and not an edge's

struct Words {
    QString Text;
    QRect Place;  // in their widget
};

QString WordsOf(const QWidget& Of) {
    if (const auto* Label = qobject_cast<const QLabel*>(&Of)) return Label->text();
    if (const auto* Button = qobject_cast<const QAbstractButton*>(&Of)) return Button->text();
    if (const auto* Field = qobject_cast<const QLineEdit*>(&Of))
        return Field->text().isEmpty() ? Field->placeholderText() : Field->text();
    const auto* Box = qobject_cast<const QComboBox*>(&Of);
    if (!Box) return {};
    return Box->currentText().isEmpty() ? Box->placeholderText() : Box->currentText();
}

std::vector<Words> TabsOf(const QTabBar& Bar) {
    std::vector<Words> All;
    for (int I = 0; I < Bar.count(); ++I)
        if (Bar.isTabEnabled(I)) All.push_back({Bar.tabText(I), Bar.tabRect(I)});
    return All;
}

std::vector<Words> EntriesOf(const QMenuBar& Bar) {
    std::vector<Words> All;
    for (QAction* Each : Bar.actions())
        if (Each->isEnabled()) All.push_back({Each->text(), Bar.actionGeometry(Each)});
    return All;
}

std::vector<Words> CellsOf(const QAbstractItemView& List) {
    std::vector<Words> All;
    const QAbstractItemModel* Model = List.model();
    const QModelIndex Root = List.rootIndex();
    for (int Row = 0; Model && Row < Model->rowCount(Root); ++Row)
        for (int Column = 0; Column < Model->columnCount(Root); ++Column) {
            const QModelIndex At = Model->index(Row, Column, Root);
            const QRect Place = List.visualRect(At) & List.viewport()->rect();
            const bool IsCut = Place.height() < List.visualRect(At).height();
            if (!Place.isEmpty() && !IsCut && At.flags() & Qt::ItemIsEnabled)
                All.push_back({At.data().toString(),
                               Place.translated(List.viewport()->mapTo(&List, QPoint()))});
        }
    return All;
}

Words TitleOf(const QGroupBox& Box) {
    QStyleOptionGroupBox Its;
    Its.initFrom(&Box);
    Its.text = Box.title();
    Its.subControls = QStyle::SC_GroupBoxLabel;
    return {Box.title(),
            Box.style()->subControlRect(QStyle::CC_GroupBox, &Its, QStyle::SC_GroupBoxLabel, &Box)};
}

std::vector<Words> AllWordsOf(const QWidget& Of) {
    if (const auto* Tabs = qobject_cast<const QTabBar*>(&Of)) return TabsOf(*Tabs);
    if (const auto* Menu = qobject_cast<const QMenuBar*>(&Of)) return EntriesOf(*Menu);
    if (const auto* List = qobject_cast<const QAbstractItemView*>(&Of)) return CellsOf(*List);
    if (const auto* Box = qobject_cast<const QGroupBox*>(&Of)) return {TitleOf(*Box)};
    return {{WordsOf(Of), Of.rect()}};
}

bool IsSeenWhole(const QWidget& Of) {
    return Of.isVisible() && Of.visibleRegion().boundingRect() == Of.rect();
}

QImage Painted(QWidget& Window) {
    QImage Made(Window.size() * Fine, QImage::Format_RGB32);
    Made.setDevicePixelRatio(Fine);
    Made.fill(Window.palette().color(QPalette::Window));
    Window.render(&Made);
    return Made;
}

const QRgb* LineOf(const QImage& Of, int Y) {
    return reinterpret_cast<const QRgb*>(Of.constScanLine(Y));
}

QHash<QRgb, int> DotsIn(const QImage& Of, const QRect& Place) {
    QHash<QRgb, int> Dots;
    const QRect Room = QRect(Place.topLeft() * Fine, Place.size() * Fine) & Of.rect();
    for (int Y = Room.top(); Y <= Room.bottom(); ++Y) {
        const QRgb* Row = LineOf(Of, Y) + Room.left();
        for (int X = 0, Start = 0; X < Room.width(); ++X) {  // most dots are as their neighbours
            if (X + 1 < Room.width() && Row[X + 1] == Row[X]) continue;
            Dots[Row[X]] += X + 1 - Start;
            Start = X + 1;
        }
    }
    return Dots;
}

// Between the ground, of which there is most, and what stands out from it most.
double ContrastIn(const QImage& Of, const QRect& Place) {
    const QHash<QRgb, int> Dots = DotsIn(Of, Place);
    QRgb Ground = 0;
    for (auto Each = Dots.cbegin(); Each != Dots.cend(); ++Each)
        if (*Each > Dots.value(Ground)) Ground = Each.key();
    double Most = 1;
    for (auto Each = Dots.cbegin(); Each != Dots.cend(); ++Each)
        if (*Each >= LeastDots) Most = std::max(Most, Contrast(QColor(Each.key()), QColor(Ground)));
    return Most;
}

QString NameOf(const QWidget& Of) {
    return Of.objectName() + u" ("_s + QString::fromLatin1(Of.metaObject()->className()) + u')';
}

QString Faint(const QWidget& Of, const QString& Text, double Is) {
    return u"%1 \"%2\" has a contrast of %3"_s.arg(NameOf(Of), Text.left(40)).arg(Is, 0, 'f', 2);
}

// A page has many colours: those that its text has are known.
QStringList FaintOnPage(const QTextEdit& Page) {
    QStringList Found;
    const QColor Ground = Page.palette().color(QPalette::Base);
    for (QTextBlock Block = Page.document()->begin(); Block.isValid(); Block = Block.next())
        for (auto Each = Block.begin(); !Each.atEnd(); ++Each) {
            const QTextCharFormat Its = Each.fragment().charFormat();
            if (Its.foreground().style() == Qt::NoBrush) continue;
            const double Is = Contrast(
                Its.foreground().color(),
                Its.background().style() == Qt::NoBrush ? Ground : Its.background().color());
            if (Is < Enough) Found << Faint(Page, Each.fragment().text(), Is);
        }
    return Found;
}

QStringList FaintIn(const QWidget& Of, const QPoint& Corner, const QImage& Whole) {
    QStringList Found;
    for (const Words& Each : AllWordsOf(Of)) {
        if (Each.Text.trimmed().isEmpty()) continue;
        const double Is = ContrastIn(Whole, Each.Place.translated(Corner));
        if (Is < Enough) Found << Faint(Of, Each.Text, Is);
    }
    return Found;
}

QList<QWidget*> StopsIn(QWidget& Window) {
    QList<QWidget*> Stops;
    for (QWidget* Each : Window.findChildren<QWidget*>())
        if ((Each->focusPolicy() & Qt::TabFocus) && !Each->focusProxy() && Each->isEnabled() &&
            IsSeenWhole(*Each))
            Stops << Each;
    return Stops;
}

QImage WithFocusOn(QWidget& Window, QWidget& Control, const QWidget& Shown) {
    Control.setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    return Window.grab({Shown.mapTo(&Window, QPoint()), Shown.size()})
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

// How many dots are lighter or darker by so much that anybody sees it.
int SeenChanges(const QImage& From, const QImage& To) {
    int Count = 0;
    for (int Y = 0; Y < From.height(); ++Y) {
        const QRgb* Was = LineOf(From, Y);
        const QRgb* Is = LineOf(To, Y);
        for (int X = 0; X < From.width(); ++X)
            if (Was[X] != Is[X] && Contrast(QColor(Was[X]), QColor(Is[X])) >= EnoughOfLines)
                ++Count;
    }
    return Count;
}

}  // namespace

QStringList FaintTextsIn(QWidget& Window) {
    QStringList Found;
    const QImage Whole = Painted(Window);
    for (const QWidget* Each : Window.findChildren<QWidget*>()) {
        if (!Each->isEnabled() || !IsSeenWhole(*Each)) continue;
        Found += FaintIn(*Each, Each->mapTo(&Window, QPoint()), Whole);
        if (const auto* Page = qobject_cast<const QTextEdit*>(Each)) Found += FaintOnPage(*Page);
    }
    return Found;
}

QStringList UnseenFocusIn(QWidget& Window) {
    QStringList Found;
    const QList<QWidget*> Stops = StopsIn(Window);
    if (Stops.size() < 2) return Found;
    Window.window()->setAttribute(Qt::WA_KeyboardFocusChange);  // as the first Tab does
    for (QWidget* Each : Stops) {
        QWidget* Other = Each == Stops.first() ? Stops.last() : Stops.first();
        const QImage With = WithFocusOn(Window, *Each, *Each);
        if (QApplication::focusWidget() != Each) continue;  // it hands the keys on
        if (SeenChanges(With, WithFocusOn(Window, *Other, *Each)) < LeastDots)
            Found << NameOf(*Each);
    }
    return Found;
}

}  // namespace neb::harness
