#include "windows/frame/modWindowState.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>

#include "controls/forms/TestForm.h"
#include "controls/forms/modTwips.h"
#include "harness/TempFolder.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

using namespace neb;
using namespace neb::harness;

namespace {

const WindowMemory Manager{QStringLiteral("frmSlideDBM"), 7200, 7815};
const WindowMemory FixedWidth{QStringLiteral("frmQuickShow"), 6540};

struct WindowStateTest : ::testing::Test {
    TempFolder Documents;
    QMainWindow Main;
    QMdiArea* Area = new QMdiArea;
    NoFormsLeft Clean;

    void SetUp() override {
        SetDocumentsPath(Documents.Path());
        Main.setCentralWidget(Area);
        Main.resize(1200, 900);
        Main.show();
        Settle();
    }
    void TearDown() override {
        SetHostWatcher({});
        DBPathCache.clear();
        DocumentsPath.clear();
    }

    // A child in its frame, loaded and shown as the menu does it.
    std::shared_ptr<TestForm> Open(const WindowMemory& Memory) {
        const auto Window = NewForm<TestForm>();
        TestForm* Raw = Window.get();
        Window->OnLoad = [Raw, Memory] { RestoreWindow(*Raw, Memory); };
        Window->OnUnload = [Raw, Memory] {
            SaveWindow(*Raw, Memory);
            return true;
        };
        Window->setObjectName(Memory.Section);
        Area->addSubWindow(Raw);
        Window->Load();
        PlaceChild(*Window);
        Window->ShowModeless();
        Settle();
        return Window;
    }
    std::shared_ptr<TestForm> ChildAt(int TopTwips, int LeftTwips) {
        const auto Window = NewForm<TestForm>();
        QMdiSubWindow* Frame = Area->addSubWindow(Window.get());
        Window->ShowModeless();
        Frame->move(ToPixels(LeftTwips), ToPixels(TopTwips));
        return Window;
    }
    static QMdiSubWindow& FrameOf(const std::shared_ptr<TestForm>& Window) {
        return *qobject_cast<QMdiSubWindow*>(Window->parentWidget());
    }
    static QString Stored(const WindowMemory& Memory, const char* Key) {
        return OpenSettings().GetValue(Memory.Section, QString::fromLatin1(Key),
                                       QStringLiteral("(none)"));
    }
    static void Store(const WindowMemory& Memory, const char* Key, const QString& Value) {
        clsSettings Settings = OpenSettings();
        Settings.PutValue(Memory.Section, QString::fromLatin1(Key), Value);
        Settings.Save();
    }
    static void StorePlace(const WindowMemory& Memory, int Left, int Top) {
        for (const auto& [Key, Pixels] : {std::pair("Left", Left), std::pair("Top", Top),
                                          std::pair("Width", 600), std::pair("Height", 500)})
            Store(Memory, Key, QString::number(ToTwips(Pixels)));
    }
    QPoint Place(int Mode) const {
        const auto Fresh = NewForm<TestForm>();
        return ChildPlace(*Fresh, Mode);
    }
};

}  // namespace

TEST_F(WindowStateTest, WithNoOtherChildANewOneOpensAtTheCorner) {
    EXPECT_EQ(QPoint(0, 0), Place(1));
    EXPECT_EQ(QPoint(0, 0), Place(0));
    const auto Window = Open(Manager);
    EXPECT_EQ(QPoint(0, 0), FrameOf(Window).pos());
}

TEST_F(WindowStateTest, PlacingAnActiveChildLeavesItsSizeAlone) {
    const auto Window = NewForm<TestForm>();
    QMdiSubWindow* Frame = Area->addSubWindow(Window.get());
    Window->Load();
    Frame->setWindowState(Qt::WindowActive);  // as after a modal window has closed
    Frame->resize(700, 500);
    PositionMDIChild(*Window, 1);
    Window->ShowModeless();
    Settle();
    EXPECT_EQ(QSize(700, 500), Frame->size());
}

TEST_F(WindowStateTest, TheCascadeTakesTopAndLeftFromTheOutermostEachByItself) {
    const auto One = ChildAt(330, 0), Two = ChildAt(0, 990);
    EXPECT_EQ(QPoint(1320, 660), Place(1));
    const auto Three = ChildAt(330, 990);
    EXPECT_EQ(QPoint(1320, 660), Place(1)) << "left 1320, top 660";
}

TEST_F(WindowStateTest, TheCascadeGoesOnStepByStep) {
    const auto One = Open(Manager), Two = Open(Manager), Three = Open(Manager);
    EXPECT_EQ(QPoint(22, 22), FrameOf(Two).pos());
    EXPECT_EQ(QPoint(44, 44), FrameOf(Three).pos());
}

TEST_F(WindowStateTest, AHiddenChildDoesNotCount) {
    const auto One = ChildAt(330, 990);
    FrameOf(One).hide();
    EXPECT_EQ(QPoint(0, 0), Place(1));
    EXPECT_EQ(QPoint(0, 0), Place(0));
}

TEST_F(WindowStateTest, TheFormItselfAndFormsOutsideTheFrameDoNotCount) {
    const auto One = ChildAt(330, 990);
    EXPECT_EQ(QPoint(0, 0), ChildPlace(*One, 1));
    const auto Outside = NewForm<TestForm>();
    Outside->ShowModeless();
    Outside->move(500, 500);
    EXPECT_EQ(QPoint(0, 0), ChildPlace(*One, 1));
}

TEST_F(WindowStateTest, AChildBeyondTheUpperLeftEdgeCountsAsNone) {
    const auto One = ChildAt(-450, 300);
    EXPECT_EQ(QPoint(630, 0), Place(1));
}

TEST_F(WindowStateTest, TheOtherModeTakesTheFirstFreeStep) {
    const auto One = ChildAt(0, 0);
    EXPECT_EQ(QPoint(330, 330), Place(2));
    const auto Two = ChildAt(660, 660);
    EXPECT_EQ(QPoint(330, 330), Place(2));
    const auto Three = ChildAt(330, 330);
    EXPECT_EQ(QPoint(990, 990), Place(2));
}

TEST_F(WindowStateTest, APlaceIsTakenOnlyWithinNinetyTwipsOnBothAxes) {
    const auto Near = ChildAt(75, 75);
    EXPECT_EQ(QPoint(330, 330), Place(2));
    FrameOf(Near).move(ToPixels(90), ToPixels(75));
    EXPECT_EQ(QPoint(0, 0), Place(2));
    FrameOf(Near).move(ToPixels(75), ToPixels(90));
    EXPECT_EQ(QPoint(0, 0), Place(2));
}

TEST_F(WindowStateTest, OpensAtLeastWithTheDefaultSizeOfItsKind) {
    Area->hide();  // no room is known
    const auto Plain = Open({QStringLiteral("frmPrintPreview"), 7200, 7815});
    EXPECT_EQ(QSize(521, 480), FrameOf(Plain).size());
    const QSize Size = FrameOf(Open(Manager)).size();
    EXPECT_GE(Size.width(), 521);
    EXPECT_GE(Size.height(), 480);
}

TEST_F(WindowStateTest, WritesPlaceSizeAndStateInTwips) {
    const auto Window = Open(Manager);
    FrameOf(Window).setGeometry(20, 30, 500, 410);
    EXPECT_TRUE(Window->Unload());
    EXPECT_EQ(u"0", Stored(Manager, "WindowState"));
    EXPECT_EQ(u"6150", Stored(Manager, "Height"));
    EXPECT_EQ(u"7500", Stored(Manager, "Width"));
    EXPECT_EQ(u"300", Stored(Manager, "Left"));
    EXPECT_EQ(u"450", Stored(Manager, "Top"));
}

TEST_F(WindowStateTest, TheKindsWithAWidthOfTheirOwnRememberItToo) {
    auto Window = Open(FixedWidth);
    FrameOf(Window).setGeometry(20, 30, 500, 410);
    EXPECT_TRUE(Window->Unload());
    for (const auto& [Key, Twips] :
         {std::pair("Height", u"6150"), std::pair("Left", u"300"), std::pair("Top", u"450"),
          std::pair("Width", u"7500"), std::pair("WindowState", u"0")})
        EXPECT_EQ(Twips, Stored(FixedWidth, Key)) << Key;
    Settle();
    Window = Open(FixedWidth);
    EXPECT_EQ(QRect(20, 30, 500, 410), FrameOf(Window).geometry());
}

TEST_F(WindowStateTest, TheOldPlaceIsTakenAgain) {
    StorePlace(Manager, 200, 100);
    EXPECT_EQ(QPoint(200, 100), FrameOf(Open(Manager)).pos());
}

TEST_F(WindowStateTest, APlaceOutsideTheRoomIsBroughtInside) {
    const QSize Room = Area->viewport()->size();
    for (const auto& [Left, Top, Expected] :
         {std::tuple(-200, -30, QPoint(0, 0)), std::tuple(6000, 5, QPoint(Room.width() - 600, 5)),
          std::tuple(5, 6000, QPoint(5, Room.height() - 500))}) {
        StorePlace(Manager, Left, Top);
        const auto Window = Open(Manager);
        EXPECT_EQ(QRect(Expected, QSize(600, 500)), FrameOf(Window).geometry());
        Window->OnUnload = {};
        Window->Unload();
        Settle();
    }
}

TEST_F(WindowStateTest, ASecondOneOfAKindStandsInTheCascade) {
    StorePlace(FixedWidth, 200, 100);
    const auto One = Open(FixedWidth), Two = Open(FixedWidth);
    EXPECT_EQ(QPoint(200, 100), FrameOf(One).pos());
    EXPECT_EQ(QPoint(222, 122), FrameOf(Two).pos());
}

TEST_F(WindowStateTest, WhereAnotherStandsAlreadyItStandsInTheCascade) {
    const auto Other = ChildAt(1500, 3000);
    StorePlace(Manager, 200, 105);
    EXPECT_EQ(QPoint(222, 122), FrameOf(Open(Manager)).pos());
}

TEST_F(WindowStateTest, AWindowOfTheCascadeEndsInsideTheRoom) {
    const QRect Room = Area->viewport()->rect();
    std::vector<std::shared_ptr<TestForm>> All;
    for (int I = 0; I < 40; ++I) {
        All.push_back(Open(FixedWidth));
        EXPECT_TRUE(Room.contains(FrameOf(All.back()).geometry())) << I;
        EXPECT_GE(FrameOf(All.back()).height(), 436) << I;
    }
}

TEST_F(WindowStateTest, AMinimisedOneDoesNotCountAndItsBarStaysFree) {
    const auto Other = Open(FixedWidth);
    FrameOf(Other).showMinimized();
    Settle();
    const int Bar = FrameOf(Other).geometry().top();
    ASSERT_GT(Bar, Area->height() / 2);
    const auto Window = Open({QStringLiteral("frmSlideMgrBulk"), 90000});
    EXPECT_EQ(QPoint(0, 0), FrameOf(Window).pos());
    EXPECT_LT(FrameOf(Window).geometry().bottom(), Bar);
}

TEST_F(WindowStateTest, AWindowWithLinesOpensHigherThanItIsAtLeast) {
    const QSize Room = Area->viewport()->size();
    const QSize Lines = FrameOf(Open(FixedWidth)).size();
    EXPECT_EQ(Room.height() - 44, Lines.height());
    EXPECT_LE(Lines.width(), Room.width() - 44);
}

TEST_F(WindowStateTest, AMaximisedWindowComesBackMaximisedWithItsOldNormalSize) {
    auto Window = Open(Manager);
    FrameOf(Window).resize(500, 410);
    EXPECT_TRUE(Window->Unload());
    Window = Open(Manager);
    FrameOf(Window).showMaximized();
    Settle();
    EXPECT_TRUE(Window->Unload());
    EXPECT_EQ(u"2", Stored(Manager, "WindowState"));
    EXPECT_EQ(u"6150", Stored(Manager, "Height"));
    EXPECT_EQ(u"7500", Stored(Manager, "Width"));
    Settle();
    Window = Open(Manager);
    EXPECT_TRUE(FrameOf(Window).isMaximized());
    EXPECT_EQ(Area->viewport()->rect(), FrameOf(Window).geometry()) << "fills the main window";
    FrameOf(Window).showNormal();
    Settle();
    EXPECT_EQ(QSize(500, 410), FrameOf(Window).size());
    EXPECT_EQ(QPoint(0, 0), FrameOf(Window).pos());
}

TEST_F(WindowStateTest, AMaximisedWindowBesideOthersIsNotShiftedByTheCascade) {
    const auto Other = ChildAt(330, 330);
    Store(Manager, "WindowState", QStringLiteral("2"));
    const auto Window = Open(Manager);
    EXPECT_TRUE(FrameOf(Window).isMaximized());
    EXPECT_EQ(Area->viewport()->rect(), FrameOf(Window).geometry());
    FrameOf(Window).showNormal();
    Settle();
    EXPECT_EQ(QPoint(44, 44), FrameOf(Window).pos());
    EXPECT_TRUE(Area->viewport()->rect().contains(FrameOf(Window).geometry()));
}

TEST_F(WindowStateTest, AMinimisedWindowLeavesAllTheValuesAsTheyWere) {
    auto Window = Open(Manager);
    FrameOf(Window).resize(500, 410);
    EXPECT_TRUE(Window->Unload());
    const QByteArray Before = ReadFile(OpenSettings().FileName());
    Window = Open(Manager);
    FrameOf(Window).showMinimized();
    Settle();
    ASSERT_TRUE(FrameOf(Window).isMinimized());
    EXPECT_TRUE(Window->Unload());
    EXPECT_EQ(Before, ReadFile(OpenSettings().FileName()));
}

TEST_F(WindowStateTest, AStoredMinimisedStateIsNotApplied) {
    Store(Manager, "WindowState", QStringLiteral("1"));
    const auto Window = Open(Manager);
    EXPECT_FALSE(FrameOf(Window).isMinimized());
    EXPECT_FALSE(FrameOf(Window).isMaximized());
}

TEST_F(WindowStateTest, ValuesThatAreNoSizesOpenTheWindowWithItsDefault) {
    for (const char* Value : {"abc", "", "-4000", "0", "1e300", "nan", "-1e300"}) {
        Store(Manager, "Height", QString::fromLatin1(Value));
        Store(Manager, "Width", QString::fromLatin1(Value));
        Store(Manager, "WindowState", QString::fromLatin1(Value));
        const auto Window = Open(Manager);
        const QSize Size = FrameOf(Window).size();
        EXPECT_GE(Size.height(), 480) << Value;
        EXPECT_GE(Size.width(), 521) << Value;
        EXPECT_LE(Size.height(), Main.screen()->availableSize().height()) << Value;
        Window->OnUnload = {};
        Window->Unload();
        Settle();
    }
}

TEST_F(WindowStateTest, ASizeBeyondTheRoomIsCutToIt) {
    Store(Manager, "Height", QStringLiteral("90000"));
    Store(Manager, "Width", QStringLiteral("90000.5"));
    const auto Window = Open(Manager);
    EXPECT_EQ(Area->viewport()->size(), FrameOf(Window).size());
}

TEST_F(WindowStateTest, FractionsOfATwipAreRead) {
    Store(Manager, "Height", QStringLiteral("6000.5"));
    EXPECT_EQ(400, FrameOf(Open(Manager)).height());
}

TEST_F(WindowStateTest, AWindowOfItsOwnRemembersItsSizeToo) {
    const WindowMemory Popup{QStringLiteral("frmPicturePopup"), 6675, 7260};
    const auto Window = NewForm<TestForm>();
    Window->Load();
    RestoreWindow(*Window, Popup);
    EXPECT_GE(Window->width(), 484);
    EXPECT_GE(Window->height(), 445);
    EXPECT_TRUE(Main.screen()->availableGeometry().contains(Window->geometry()));
    Window->ShowModeless();
    Window->resize(600, 420);
    SaveWindow(*Window, Popup);
    EXPECT_EQ(u"6300", Stored(Popup, "Height"));
    EXPECT_EQ(u"9000", Stored(Popup, "Width"));
    Window->showMaximized();
    Settle();
    SaveWindow(*Window, Popup);
    EXPECT_EQ(u"2", Stored(Popup, "WindowState"));
    EXPECT_EQ(u"6300", Stored(Popup, "Height"));
}

TEST_F(WindowStateTest, OtherSettingsInTheFileStay) {
    clsSettings Settings = OpenSettings();
    Settings.PutValue({}, QStringLiteral("Timeout"), QStringLiteral("12"));
    Settings.Save();
    EXPECT_TRUE(Open(Manager)->Unload());
    EXPECT_EQ(u"12", OpenSettings().GetValue({}, QStringLiteral("Timeout"), {}));
}
