// The home: the first day, what is listed, what is found, and what is done with it by mouse and
// keyboard.
#include "HomeRig.h"

#include <QAccessible>
#include <QScrollBar>

#include "windows/compose/frmSlideShowDBM.h"
#include "windows/import/frmNewAlbumWzd1.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/transfer/frmAlbumImport.h"

namespace neb {
namespace {

using namespace harness;

class TheHome : public HomeRig {};

TEST_F(TheHome, AFreshDatabaseOffersWhatToBeginWithAndTheKeysAreThere) {
    Open();
    EXPECT_FALSE(View().isVisible());
    EXPECT_FALSE(Field().isVisible());
    const auto Buttons = Page->findChildren<BigButton*>();
    ASSERT_EQ(3, Buttons.size());
    for (const BigButton* Each : Buttons) {
        EXPECT_TRUE(Each->isVisible());
        EXPECT_FALSE(Each->accessibleDescription().isEmpty());
        EXPECT_TRUE(Page->rect().contains(QRect(Each->mapTo(Page.get(), QPoint()), Each->size())));
    }
    EXPECT_EQ(Buttons[0], Page->focusWidget());
    int Wanted = 0;
    QObject::connect(Page.get(), &HomePage::QuickShowWanted, [&] { ++Wanted; });
    Key(Qt::Key_Return);
    EXPECT_EQ(1, Wanted);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Buttons[1], Page->focusWidget());
    bool Opened = false;
    WhenOpen<frmNewAlbumWzd1>([&](frmNewAlbumWzd1& Wizard) {
        Opened = true;
        Wizard.Unload();
    });
    QTest::mouseClick(Buttons[1], Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_TRUE(Opened);
    QTest::mouseClick(Buttons[2], Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_TRUE(harness::Open<frmAlbumImport>());
}

TEST_F(TheHome, AnEmptyDatabaseThatCannotBeWrittenOffersNothingThatWouldFail) {
    ReadOnlyDB = true;
    Open();
    for (const BigButton* Each : Page->findChildren<BigButton*>()) EXPECT_FALSE(Each->isVisible());
    EXPECT_TRUE(In<QLabel>(*Page, "lblDrop").text().contains(u"cannot be written"_s));
}

TEST_F(TheHome, TheFirstAlbumEndsTheFirstDay) {
    Open();
    { auto Made = Changes(Engine).MakeAlbum(u"Garden"_s); }
    Settle();
    EXPECT_TRUE(View().isVisible());
    EXPECT_FALSE(In<BigButton>(*Page, "cmdBeginQuickShow").isVisible());
    EXPECT_EQ("Garden", Shown());
    EXPECT_EQ(&View(), Page->focusWidget()) << "the keys were at a button that has gone";
    EXPECT_TRUE(Page->findChild<QToolButton*>(u"cmdBeginAlbum"_s)->isVisible());
    { auto Gone = Changes(Engine).DeleteAlbum(1); }
    Settle();
    EXPECT_TRUE(In<BigButton>(*Page, "cmdBeginQuickShow").isVisible());
}

TEST_F(TheHome, AlbumsAndTheirShowsAreListedWithTheirNumbers) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"rose"_s, u"tulip"_s});
    AddShow(Garden, u"Walk"_s);
    AddAlbum(u"Attic"_s, {u"box"_s});
    Open();
    EXPECT_EQ("Attic|Garden|Walk", Shown());
    EXPECT_EQ("2 albums, 1 slide show", Summary().toStdString());
    EXPECT_EQ("Attic", Chosen());
    QAccessibleInterface* Face = QAccessible::queryAccessibleInterface(&View());
    EXPECT_EQ("Album Garden, 2 slides, 1 slide show",
              Face->child(1)->text(QAccessible::Name).toStdString());
    EXPECT_EQ("Slide show Walk of Garden, 2 slides",
              Face->child(2)->text(QAccessible::Name).toStdString());
    EXPECT_EQ("Album Attic, 1 slide", Face->child(0)->text(QAccessible::Name).toStdString());
}

TEST_F(TheHome, TypingFindsAndEscLeadsBack) {
    AddAlbum(u"Garden"_s, {u"Röslein"_s, u"tulip"_s});
    AddAlbum(u"Sea"_s, {u"boat"_s, u"rosy sky"_s});
    Open();
    EXPECT_EQ(&View(), Page->focusWidget());
    Type(u"ros"_s);
    EXPECT_EQ(&Field(), Page->focusWidget()) << "a letter in the list begins a search";
    EXPECT_EQ("Röslein|rosy sky", Shown());
    EXPECT_EQ("2 slides", Summary().toStdString());
    EXPECT_EQ("Röslein", Chosen());
    Type(u"xx"_s);
    EXPECT_EQ("", Shown());
    EXPECT_EQ("", Chosen());
    Key(Qt::Key_Return);  // nothing is there to open
    Key(Qt::Key_Escape);
    EXPECT_EQ("Garden|Sea", Shown());
    EXPECT_EQ(&View(), Page->focusWidget());
    Key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(&Field(), Page->focusWidget());
    Type(u"sea"_s);
    Key(Qt::Key_Down);
    EXPECT_EQ(&View(), Page->focusWidget());
    Key(Qt::Key_Escape);
    EXPECT_EQ("Garden|Sea", Shown());
}

TEST_F(TheHome, AnEmptySearchSaysSo) {
    AddAlbum(u"Garden"_s);
    Open();
    const QImage Before = View().viewport()->grab().toImage();
    Type(u"zzz"_s);
    const QImage After = View().viewport()->grab().toImage();
    int Written = 0;
    for (int Y = 0; Y < 80; ++Y)
        for (int X = 0; X < After.width(); ++X) Written += After.pixel(X, Y) != After.pixel(0, 0);
    EXPECT_GT(Written, 200) << "a line of words";
}

TEST_F(TheHome, EnterAndDoubleClickOpenAnAlbumAndItIsLeftAgain) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"rose"_s});
    const auto Sea = AddAlbum(u"Sea"_s, {u"boat"_s});
    Open();
    DoubleClick(u"Sea"_s);
    ASSERT_TRUE(Page->Album());
    EXPECT_EQ(Sea, Page->Album()->AlbumID());
    EXPECT_TRUE(Page->Album()->isVisible());
    EXPECT_FALSE(List().isVisible());
    Q_EMIT Page->Album()->Left();
    EXPECT_TRUE(List().isVisible());
    EXPECT_EQ(&View(), Page->focusWidget());
    EXPECT_EQ("Sea", Chosen()) << "the choice is where it was";
    Key(Qt::Key_Left);
    Key(Qt::Key_Return);
    EXPECT_EQ(Garden, Page->Album()->AlbumID());
}

TEST_F(TheHome, EnterOnAFoundSlideOpensItsAlbum) {
    AddAlbum(u"Garden"_s, {u"rose"_s});
    const auto Sea = AddAlbum(u"Sea"_s, {u"boat"_s, u"gull"_s});
    Open();
    Type(u"gull"_s);
    Key(Qt::Key_Return);
    ASSERT_TRUE(Page->Album());
    EXPECT_EQ(Sea, Page->Album()->AlbumID());
    Q_EMIT Page->Album()->Left();
    EXPECT_EQ("gull", Shown()) << "what was typed is still there";
}

TEST_F(TheHome, AnAlbumThatIsLookedThroughIsLeftWhenItIsDeleted) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"rose"_s});
    AddAlbum(u"Sea"_s);
    Open();
    DoubleClick(u"Garden"_s);
    { auto Gone = Changes(Engine).DeleteAlbum(Garden); }
    EXPECT_TRUE(List().isVisible());
    Settle();
    EXPECT_EQ("Sea", Shown());
    EXPECT_EQ(&View(), Page->focusWidget());
}

TEST_F(TheHome, EnterOnAShowPlaysIt) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"rose"_s});
    AddShow(Garden, u"Walk"_s);
    Open();
    bool Played = false;
    WhenOpen<frmSlideShowProjector>([&](frmSlideShowProjector& Show) {
        Played = true;
        QTest::keyClick(&Show, Qt::Key_Escape);
    });
    Click(u"Walk"_s);
    Key(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Played; }));
}

TEST_F(TheHome, TheShowThatWasLeftSaysWhereItGoesOn) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"a"_s, u"b"_s, u"c"_s});
    const auto Show = AddShow(Garden, u"Walk"_s);
    Open();
    EXPECT_FALSE(In<QPushButton>(*Page, "cmdLeftPlay").isVisible());
    LeaveShowAt(Garden, Show, 2);
    Page->Fill();
    EXPECT_TRUE(In<QPushButton>(*Page, "cmdLeftPlay").isVisible());
    EXPECT_EQ("Walk", In<QLabel>(*Page, "lblLeftName").text().toStdString());
    EXPECT_EQ("Goes on at slide 2 of 3", In<QLabel>(*Page, "lblLeftWhere").text().toStdString());
    Type(u"a"_s);
    EXPECT_FALSE(In<QPushButton>(*Page, "cmdLeftPlay").isVisible()) << "while one searches";
    Key(Qt::Key_Escape);
    EXPECT_TRUE(In<QPushButton>(*Page, "cmdLeftPlay").isVisible());
    { auto Gone = Changes(Engine).DeleteShow(Garden, Show); }
    Settle();
    EXPECT_FALSE(In<QPushButton>(*Page, "cmdLeftPlay").isVisible());
}

TEST_F(TheHome, AShowThatIsPlayedBeforeAnyIsActiveBecomesTheActiveOne) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"a"_s, u"b"_s, u"c"_s});
    const auto Walk = AddShow(Garden, u"Walk"_s), Zoo = AddShow(Garden, u"Zoo"_s);
    Open();
    const auto ActiveAfter = [&](const QString& Played) {
        bool Left = false;
        WhenOpen<frmSlideShowProjector>([&](frmSlideShowProjector& Show) {
            Left = true;
            QTest::keyClick(&Show, Qt::Key_Escape);
        });
        Click(Played);
        Key(Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Left; })) << Played.toStdString();
        return ReadNumber(OpenSettings(), Setting::ActiveSlideShow);
    };
    EXPECT_EQ(Walk, ActiveAfter(u"Walk"_s));
    EXPECT_EQ(Walk, ActiveAfter(u"Zoo"_s)) << "the one that is active stays so";
    { auto Gone = Changes(Engine).DeleteShow(Garden, Walk); }
    Settle();
    EXPECT_EQ(Zoo, ActiveAfter(u"Zoo"_s)) << "one that has gone gives way";
}

TEST_F(TheHome, LooksAgainWhereAShowWasLeftWhenItsWindowIsBack) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"a"_s, u"b"_s, u"c"_s});
    const auto Show = AddShow(Garden, u"Walk"_s);
    Open();
    LeaveShowAt(Garden, Show, 2);
    QWidget Before;
    Before.show();
    EXPECT_TRUE(harness::AwaitActive(Before));
    Page->window()->activateWindow();
    EXPECT_TRUE(harness::AwaitActive(*Page->window()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return In<QPushButton>(*Page, "cmdLeftPlay").isVisible(); }));
}

TEST_F(TheHome, PlayGoesOnWhereTheShowWasLeft) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"a"_s, u"b"_s, u"c"_s});
    LeaveShowAt(Garden, AddShow(Garden, u"Walk"_s), 3);
    Open();
    std::int32_t At = 0;
    WhenOpen<frmSlideShowProjector>(
        [&](frmSlideShowProjector& Show) {
            At = CurrentSlideSeq;
            QTest::keyClick(&Show, Qt::Key_Escape);
        },
        [] { return CurrentSlideSeq > 0; });
    Press(*Page, "cmdLeftPlay");
    EXPECT_TRUE(QTest::qWaitFor([&] { return At == 3; })) << At;
}

TEST_F(TheHome, TheKeysReachEverythingInTheOrderOfThePage) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"a"_s});
    LeaveShowAt(Garden, AddShow(Garden, u"Walk"_s), 1);
    Open();
    Key(Qt::Key_F, Qt::ControlModifier);
    QStringList Order;
    for (int I = 0; I < 6; ++I) {
        Order << Page->focusWidget()->objectName();
        Key(Qt::Key_Tab);
    }
    EXPECT_EQ("txtHomeSearch cmdBeginQuickShow cmdBeginAlbum cmdBeginImport cmdLeftPlay lstHome",
              Order.join(u' ').toStdString());
}

TEST_F(TheHome, EverythingHasANameAndATip) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"a"_s});
    LeaveShowAt(Garden, AddShow(Garden, u"Walk"_s), 1);
    Open();
    for (const char* Each : {"cmdBeginQuickShow", "cmdBeginAlbum", "cmdBeginImport"}) {
        const auto& Button = *Page->findChild<QToolButton*>(QLatin1String(Each));
        EXPECT_FALSE(Button.text().isEmpty() || Button.toolTip().isEmpty()) << Each;
        EXPECT_TRUE(Button.focusPolicy() & Qt::TabFocus) << Each;
    }
    const auto& Play = In<QPushButton>(*Page, "cmdLeftPlay");
    EXPECT_EQ("Play Walk. Goes on at slide 1 of 1", Play.accessibleName().toStdString());
    EXPECT_FALSE(Play.toolTip().isEmpty());
    EXPECT_FALSE(Field().accessibleName().isEmpty() || Field().toolTip().isEmpty());
    EXPECT_EQ("Albums and slide shows", View().accessibleName().toStdString());
}

TEST_F(TheHome, TakesNoKeysFromTheWindowsBeforeIt) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"a"_s});
    LeaveShowAt(Garden, AddShow(Garden, u"Walk"_s), 1);
    Open();
    for (const auto* Each : Page->findChildren<QAbstractButton*>())
        EXPECT_TRUE(Each->shortcut().isEmpty()) << Each->objectName().toStdString();
}

TEST_F(TheHome, CardsFollowTheFontAndNothingIsCut) {
    AddAlbum(u"Garden"_s, {u"a"_s});
    Open();
    for (const int Points : {9, 20}) {
        QFont Font = Page->font();
        Font.setPointSize(Points);
        Page->setFont(Font);
        QTest::qWait(20);
        const QSize Card = View().gridSize();
        const QFontMetrics Metrics(View().font());
        EXPECT_GE(Card.width(), 20 * Metrics.averageCharWidth()) << Points;
        EXPECT_GE(Card.height(), Card.width() / 2 + 4 * Metrics.height()) << Points;
        EXPECT_LE(Card.width(), View().viewport()->width());
        for (const QWidget* Each : Page->findChildren<QToolButton*>()) {
            if (!Each->objectName().startsWith(u"cmdBegin"_s)) continue;
            EXPECT_GE(Each->width(), Each->sizeHint().width()) << Points;
        }
    }
}

}  // namespace
}  // namespace neb
