// The pointer over the words before a field, or over a heading, brings up what they mean.
#include "controls/fields/LabelTips.h"

#include <gtest/gtest.h>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolTip>

#include "controls/grid/FlexGrid.h"
#include "controls/grid/HeaderTips.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

// What comes up where the pointer rests.
std::string TipAt(QWidget& Of, QPoint Place) {
    QToolTip::hideText();
    QHelpEvent Rests(QEvent::ToolTip, Place, Of.mapToGlobal(Place));
    QCoreApplication::sendEvent(&Of, &Rests);
    return QToolTip::text().toStdString();
}

TEST(LabelTips, ALabelExplainsItsFieldAlsoWhenTheTipChanges) {
    QWidget Window;
    auto* Field = new QLineEdit(&Window);
    auto* Named = new QLabel(u"Progression"_s, &Window);
    auto* Own = new QLabel(u"Own"_s, &Window);
    Named->setBuddy(Field);
    Own->setBuddy(Field);
    Own->setToolTip(u"Its own"_s);
    GiveLabelsTips(Window);
    Window.show();
    Field->setToolTip(u"How slides follow each other"_s);
    EXPECT_EQ("How slides follow each other", TipAt(*Named, {2, 2}));
    Field->setToolTip(u"Another"_s);
    EXPECT_EQ("Another", TipAt(*Named, {2, 2}));
    EXPECT_EQ("Its own", TipAt(*Own, {2, 2}));
    QToolTip::hideText();
}

TEST(HeaderTips, AHeadingExplainsItsColumn) {
    FlexGrid Grid;
    Grid.SetCols(2);
    for (int Col : {0, 1}) Grid.SetColumn(Col, {.Width = 60, .Heading = u"Seq"_s});
    SetHeaderTips(Grid, {u"The first"_s, u"The second"_s});
    Grid.resize(300, 200);
    Grid.show();
    QWidget& Header = *Grid.horizontalHeader()->viewport();
    EXPECT_EQ("The first", TipAt(Header, {10, 5}));
    EXPECT_EQ("The second", TipAt(Header, {Grid.horizontalHeader()->sectionSize(0) + 10, 5}));
    QToolTip::hideText();
}

}  // namespace
}  // namespace neb
