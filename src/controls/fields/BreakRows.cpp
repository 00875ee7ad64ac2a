#include "controls/fields/BreakRows.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QLabel>
#include <algorithm>

namespace neb {
namespace {

// Nothing in it takes up height of its own accord.
bool IsRow(const QBoxLayout& Of) {
    return Of.direction() == QBoxLayout::LeftToRight &&
           !Of.expandingDirections().testFlag(Qt::Vertical);
}

bool MayBreakBefore(const QBoxLayout& Row, int Item) {
    if (Row.itemAt(Item)->spacerItem()) return true;
    const auto* Before = qobject_cast<const QLabel*>(Row.itemAt(Item - 1)->widget());
    return !Before || !Before->buddy();
}

// The last place before which all fits into Width; 0 where there is none.
int BreakOf(const QBoxLayout& Row, int Width) {
    int Used = 0, AtGroup = 0, AtItem = 0;
    for (int I = 0; I < Row.count(); ++I) {
        if (I > 0 && Used <= Width && MayBreakBefore(Row, I))
            (Row.itemAt(I)->spacerItem() ? AtGroup : AtItem) = I;
        Used += Row.itemAt(I)->minimumSize().width() + (I > 0 ? Row.spacing() : 0);
    }
    return AtGroup > 0 ? AtGroup : AtItem;
}

void MoveRest(QBoxLayout& Row, int From, QBoxLayout& To) {
    while (Row.count() > From) {
        const int Stretch = Row.stretch(From);
        QLayoutItem* Item = Row.takeAt(From);
        if (QLayout* Inner = Item->layout())
            To.addLayout(Inner);
        else
            To.addItem(Item);
        To.setStretch(To.count() - 1, Stretch);
    }
    // a gap that parted two groups begins no row
    if (To.count() > 0 && To.itemAt(0)->spacerItem()) delete To.takeAt(0);
}

void Break(QBoxLayout& Row, int Width) {
    auto* Above = qobject_cast<QBoxLayout*>(Row.parent());
    const int At = Above && IsRow(Row) ? BreakOf(Row, Width) : 0;
    if (At == 0) return;
    auto* Rest = new QHBoxLayout;
    MoveRest(Row, At, *Rest);
    Rest->addStretch();
    auto* Both = new QVBoxLayout;
    const int Place = Above->indexOf(&Row);
    Above->removeItem(&Row);
    Row.setParent(nullptr);
    Both->addLayout(&Row);
    Both->addLayout(Rest);
    Above->insertLayout(Place, Both);
    if (Rest->minimumSize().width() > Width) Break(*Rest, Width);
}

// Boxes to tick do not break their words by themselves: at the blank that is nearest to the middle
// of the longest line.
void BreakWords(QAbstractButton& Of) {
    QStringList Lines = Of.text().split(u'\n');
    const auto Longest = std::max_element(
        Lines.begin(), Lines.end(),
        [](const QString& One, const QString& Other) { return One.size() < Other.size(); });
    const qsizetype After = Longest->indexOf(u' ', Longest->size() / 2);
    if (After < 0) return;
    (*Longest)[After] = u'\n';
    Of.setText(Lines.join(u'\n'));
}

}  // namespace

void BreakRows(QLayout& In, int Width) {
    const QMargins Edges = In.contentsMargins();
    const int Room = Width - Edges.left() - Edges.right();
    for (QAbstractButton* Each : In.parentWidget()->findChildren<QAbstractButton*>())
        if (Each->sizeHint().width() > Room * 9 / 10) BreakWords(*Each);
    auto* Outermost = qobject_cast<QBoxLayout*>(&In);
    if (Outermost && In.minimumSize().width() > Width)
        Outermost->setDirection(QBoxLayout::TopToBottom);
    for (QBoxLayout* Each : In.findChildren<QBoxLayout*>())
        if (Each->minimumSize().width() > Room) Break(*Each, Room);
}

}  // namespace neb
