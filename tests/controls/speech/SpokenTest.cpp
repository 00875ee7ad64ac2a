// What screen readers are told of lists to choose from, of pictures, lists, pages and notices.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStatusBar>
#include <QTextBrowser>

#include "controls/grid/FlexGrid.h"
#include "controls/picture/PictureView.h"
#include "controls/picture/XShow.h"
#include "controls/speech/SpokenNotice.h"
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

TEST(SpokenList, IsDescribedByATipThatComesLate) {
    FlexGrid Grid;
    Grid.ensurePolished();
    Grid.SetCols(1);
    Grid.SetEmptyText(u"No tracks yet."_s);
    Grid.setToolTip(u"The sounds of the show"_s);
    Grid.AddItem();
    EXPECT_EQ("The sounds of the show", Grid.accessibleDescription().toStdString());
}

TEST(SpokenList, SaysWhatItsColumnsAreWithoutHeadingsForTheEye) {
    FlexGrid Grid;
    Grid.SetCols(2);
    Grid.SetColumn(0, {.Kind = FlexKind::Picture});
    Grid.SetColumn(1, {.IsCaption = true});
    EXPECT_EQ("Picture", Told(Grid).tableInterface()->columnDescription(0).toStdString());
    EXPECT_EQ("Caption", Told(Grid).tableInterface()->columnDescription(1).toStdString());
    EXPECT_TRUE(Grid.horizontalHeader()->isHidden());
    Grid.SetColumn(1, {.IsCaption = true, .Heading = u"Caption then"_s});
    EXPECT_EQ("", Told(Grid).tableInterface()->columnDescription(0).toStdString());
    EXPECT_EQ("Caption then", Told(Grid).tableInterface()->columnDescription(1).toStdString());
}

class SpokenPage : public ::testing::Test {
  protected:
    SpokenPage() {
        mPage.setHtml(u"<p>Albums and <a href='a'>shows</a></p><p>Films</p>"_s);
        mPage.show();
    }
    QAccessibleTextInterface& Its() { return *Told(mPage).textInterface(); }
    QTextBrowser mPage;
};

TEST_F(SpokenPage, IsADocumentWithItsText) {
    EXPECT_EQ(QAccessible::Document, Told(mPage).role());
    EXPECT_TRUE(Told(mPage).state().readOnly);
    EXPECT_EQ(0, Told(mPage).childCount());
    EXPECT_EQ("Albums and shows\nFilms", Its().text(0, -1).toStdString());
    EXPECT_EQ(22, Its().characterCount());
    EXPECT_EQ("shows", Its().text(11, 16).toStdString());
}

TEST_F(SpokenPage, IsReadPlaceByPlace) {
    const QRect There = Its().characterRect(17);
    EXPECT_GT(There.top(), Its().characterRect(3).top()) << "in the second line";
    EXPECT_EQ(17, Its().offsetAtPoint(There.center()));
    Its().setCursorPosition(4);
    EXPECT_EQ(4, Its().cursorPosition());
    Its().addSelection(0, 6);
    int From = -1, To = -1;
    Its().selection(0, &From, &To);
    EXPECT_EQ((std::pair{0, 6}), (std::pair{From, To}));
    Its().removeSelection(0);
    EXPECT_EQ(0, Its().selectionCount());
    Its().setCursorPosition(1000);
    EXPECT_EQ(22, Its().cursorPosition()) << "there is no more";
}

TEST(SpokenNotice, IsANotificationForAsLongAsTheStatusBarHasIt) {
    QStatusBar Bar;
    SpokenNotice Notice(Bar);
    Bar.show();
    EXPECT_FALSE(Notice.isVisible());
    Bar.showMessage(u"Nothing to take back."_s);
    Notice.Say(u"Nothing to take back."_s);
    EXPECT_EQ(QAccessible::Notification, Told(Notice).role());
    EXPECT_EQ("Nothing to take back.", Told(Notice).text(QAccessible::Name).toStdString());
    EXPECT_TRUE(Notice.isVisible());
    Bar.clearMessage();
    EXPECT_FALSE(Notice.isVisible());
}

}  // namespace
}  // namespace neb
