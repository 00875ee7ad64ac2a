// What screen readers are told of lists to choose from, of pictures, of lists.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "controls/grid/FlexGrid.h"
#include "controls/picture/PictureView.h"
#include "controls/picture/XShow.h"
#include "controls/speech/SpokenRole.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

QAccessibleInterface& Told(QWidget& Of) {
    return *QAccessible::queryAccessibleInterface(&Of);
}

TEST(SpokenComboBox, IsCalledByItsNameAndHasItsChoiceAsText) {
    QComboBox Box;
    Box.addItems({u"Red"_s, u"Green"_s});
    Box.setAccessibleName(u"Colour"_s);
    QAccessibleInterface& Is = Told(Box);
    EXPECT_EQ(QAccessible::ComboBox, Is.role());
    EXPECT_EQ("Colour", Is.text(QAccessible::Name).toStdString());
    Box.setCurrentIndex(1);
    EXPECT_EQ("Green", Is.text(QAccessible::Value).toStdString());
    ASSERT_TRUE(Is.textInterface());
    EXPECT_EQ("Green", Is.textInterface()->text(0, -1).toStdString());
    EXPECT_EQ("ree", Is.textInterface()->text(1, 4).toStdString());
    EXPECT_EQ(5, Is.textInterface()->characterCount());
}

TEST(SpokenComboBox, IsCalledByTheLabelBesideIt) {
    QWidget Window;
    QLabel Label(u"&Album"_s, &Window);
    QComboBox Box(&Window);
    Label.setBuddy(&Box);
    EXPECT_EQ("Album", Told(Box).text(QAccessible::Name).toStdString());
    EXPECT_FALSE(Told(Box).relations().isEmpty());
}

TEST(SpokenComboBox, HasItsListAndWhatIsTypedInIt) {
    QComboBox Box;
    Box.addItem(u"Red"_s);
    EXPECT_EQ(1, Told(Box).childCount());
    EXPECT_EQ(nullptr, Told(Box).child(1));
    EXPECT_TRUE(Told(Box).state().collapsed);
    QComboBox Typed;
    Typed.setEditable(true);
    ASSERT_EQ(2, Told(Typed).childCount());
    EXPECT_EQ(Typed.lineEdit(), Told(Typed).child(1)->object());
    EXPECT_EQ(1, Told(Typed).indexOfChild(Told(Typed).child(1)));
    EXPECT_EQ(nullptr, Told(Typed).textInterface()) << "the field has it";
}

TEST(SpokenComboBox, OpensAndClosesWhenItIsPressed) {
    QComboBox Box;
    Box.addItem(u"Red"_s);
    Box.show();
    Told(Box).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(Told(Box).state().expanded);
    Told(Box).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(Told(Box).state().collapsed);
}

TEST(SpokenRole, TellsPicturesAsWhatTheyAre) {
    PictureView View;
    XShow Show;
    EXPECT_EQ(QAccessible::Graphic, Told(View).role());
    EXPECT_EQ(QAccessible::Graphic, Told(Show).role());
}

TEST(SpokenRole, CountsThoughSomebodyHasAskedBefore) {
    QWidget Window;
    EXPECT_EQ(QAccessible::Client, Told(Window).role());
    SpeakAs(Window, QAccessible::Chart);
    EXPECT_EQ(QAccessible::Chart, Told(Window).role());
}

TEST(SpokenList, IsDescribedByItsToolTipUnlessItIsDescribed) {
    QListWidget Plain, Described;
    Plain.setToolTip(u"What is chosen"_s);
    Described.setToolTip(u"What is chosen"_s);
    Described.setAccessibleDescription(u"All that is chosen"_s);
    Plain.ensurePolished();
    Described.ensurePolished();
    EXPECT_EQ("What is chosen", Told(Plain).text(QAccessible::Description).toStdString());
    EXPECT_EQ("All that is chosen", Told(Described).text(QAccessible::Description).toStdString());
}

TEST(SpokenList, SaysWhatItIsForAgainOnceItIsNotEmptyAnyMore) {
    FlexGrid Grid;
    Grid.SetCols(1);
    Grid.setToolTip(u"Slides of the album"_s);
    Grid.SetEmptyText(u"No slides yet."_s);
    EXPECT_EQ("No slides yet.", Grid.accessibleDescription().toStdString());
    Grid.AddItem();
    EXPECT_EQ("Slides of the album", Grid.accessibleDescription().toStdString());
    Grid.RemoveItem(0);
    EXPECT_EQ("No slides yet.", Grid.accessibleDescription().toStdString());
}

}  // namespace
}  // namespace neb
