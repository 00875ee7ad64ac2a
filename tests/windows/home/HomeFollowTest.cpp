// The home follows what other windows do, keeps what the user has chosen and typed, and reads no
// more than what is seen.
#include <QScrollBar>
#include <QSignalSpy>
#include <QThread>
#include <atomic>
#include <filesystem>

#include "HomeRig.h"
#include "harness/HangingFiles.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/lists/ScreenPicture.h"

namespace neb {
namespace {

using namespace harness;

class HomeFollows : public HomeRig {
  protected:
    // How the cover of a card is known by now; nullptr: not at all.
    const CardPictures::Known* Cover(const QString& Name) {
        return View().Pictures().Of(View().Cards().Card(RowOf(Name)));
    }
    bool AwaitCovers(int Count) {
        return QTest::qWaitFor([&] {
            return View().Pictures().ReadSoFar() >= Count && !View().Pictures().IsReading();
        });
    }
    static void Do(Answer<Announcement> Made) { EXPECT_TRUE(Made); }
};

// Covers on a medium that hangs.
class HomeOnSlowMedium : public HomeFollows {
  protected:
    HomeOnSlowMedium() {
        SetScreenReader([Files = Files, Begun = Begun](const QString& File, QSize) {
            ++*Begun;
            Files->Pass(File);
            QImage Read(40, 30, QImage::Format_RGB32);
            Read.fill(Qt::red);
            return Read;
        });
    }
    ~HomeOnSlowMedium() override {
        Files->GoOnAll();
        SetScreenReader({});
    }
    void Hang(std::int32_t AlbumID) {
        Files->Hang(SlidePath(Engine.DBPath(), AlbumID, FileStem(1) + u".JPG"_s));
    }

    std::shared_ptr<HangingFiles> Files = std::make_shared<HangingFiles>();
    std::shared_ptr<std::atomic<int>> Begun = std::make_shared<std::atomic<int>>(0);
};

TEST_F(HomeOnSlowMedium, ACoverIsReadOnceAtATimeHoweverOftenItsAlbumChanges) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"a"_s});
    Hang(Garden);
    Open();
    ASSERT_TRUE(QTest::qWaitFor([&] { return *Begun == 1; }));
    for (int I = 0; I < 10; ++I) {
        Do(Changes(Engine).SaveCaption(Garden, 1, u"caption %1"_s.arg(I)));
        QTest::qWait(40);
    }
    EXPECT_EQ(1, *Begun);
    Files->GoOnAll();
    ASSERT_TRUE(AwaitCovers(2));
    EXPECT_EQ(2, *Begun) << "once more, as it has changed since";
}

TEST_F(HomeOnSlowMedium, CoversThatHangHoldUpNoOther) {
    const int Hanging = std::clamp(QThread::idealThreadCount() - 1, 1, 4);
    for (int I = 0; I < Hanging; ++I) Hang(AddAlbum(u"Album %1"_s.arg(I), {u"a"_s}));
    AddAlbum(u"Sea"_s, {u"a"_s});
    Open();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Cover(u"Sea"_s) != nullptr; }, 6000));
    EXPECT_EQ(nullptr, Cover(u"Album 0"_s));
}

TEST_F(HomeFollows, AnAlbumThatIsChangedBearsTheDateOfToday) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"a"_s, u"b"_s});
    const auto LongAgo =
        std::filesystem::file_time_type::clock::now() - std::chrono::hours(24 * 90);
    const QString Folder = AlbumFolder(Engine.DBPath(), Garden);
    for (const auto& Each : std::filesystem::recursive_directory_iterator(Folder.toStdString()))
        std::filesystem::last_write_time(Each, LongAgo);
    std::filesystem::last_write_time(Folder.toStdString(), LongAgo);
    Open();
    ASSERT_TRUE(AwaitCovers(1));
    ASSERT_LT(Cover(u"Garden"_s)->Changed->date(), QDate::currentDate().addDays(-80));
    Do(Changes(Engine).SaveCaption(Garden, 2, u"not the cover"_s));
    Settle();
    EXPECT_EQ(QDate::currentDate(), Cover(u"Garden"_s)->Changed->date());
}

TEST_F(HomeFollows, TheCoverOfTheShowThatWasLeftIsReadAnew) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"a"_s});
    LeaveShowAt(Garden, AddShow(Garden, u"Walk"_s), 1);
    Open();
    const auto Blue = [this] {
        const QPixmap Shown = In<QLabel>(*Page, "lblLeftCover").pixmap();
        return Shown.isNull() ? -1 : Shown.toImage().pixelColor(5, 5).blue();
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return Blue() >= 0 && Blue() < 50; }));
    MakePicture(SlidesFolder(Engine.DBPath(), Garden) + FileStem(1) + u".jpg"_s, 80, 60, Qt::blue);
    Do(Changes(Engine).SaveCaption(Garden, 1, u"turned"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Blue() > 200; }, 2000)) << Blue();
}

TEST_F(HomeFollows, ASearchGoesOnAmongShowsThatHaveGoneAndOfWhichNobodyHasTold) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"a"_s});
    AddShow(Garden, u"Walk"_s);
    Open();
    Type(u"wal"_s);
    ASSERT_EQ("Walk", Shown());
    Engine.GetAlbum(Garden)->SlideShows.clear();
    Type(u"k"_s);
    EXPECT_EQ(0, View().Cards().rowCount());
}

TEST_F(HomeFollows, EachEventIsFollowedAndTheChoiceStays) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"rose"_s, u"tulip"_s});
    const auto Sea = AddAlbum(u"Sea"_s, {u"boat"_s});
    Open();
    Click(u"Sea"_s);
    Changes Door(Engine);
    Do(Door.MakeAlbum(u"Attic"_s));
    Settle();
    EXPECT_EQ("Attic|Garden|Sea", Shown());
    EXPECT_EQ("Sea", Chosen());
    Do(Door.RenameAlbum(Garden, u"Zoo"_s));
    Settle();
    EXPECT_EQ("Attic|Sea|Zoo", Shown());
    EXPECT_EQ("Sea", Chosen());
    clsNEBSlideShow Show;
    Show.SlideShowName = u"Waves"_s;
    Do(Door.SaveShow(Sea, std::move(Show)));
    Settle();
    EXPECT_EQ("Attic|Sea|Waves|Zoo", Shown());
    EXPECT_EQ("Album Sea, 1 slide, 1 slide show",
              View().Cards().index(1).data(Qt::AccessibleTextRole).toString().toStdString());
    Do(Door.DeleteSlide(Garden, 1));
    Settle();
    EXPECT_EQ("Album Zoo, 1 slide",
              View().Cards().index(3).data(Qt::AccessibleTextRole).toString().toStdString());
    Do(Door.DeleteShow(Sea, 1));
    Do(Door.DeleteAlbum(Sea));
    Settle();
    EXPECT_EQ("Attic|Zoo", Shown());
    EXPECT_NE("", Chosen()) << "another card is in hand now";
}

TEST_F(HomeFollows, ASearchIsRenewedAndStaysTyped) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"rose"_s, u"tulip"_s});
    Open();
    Type(u"rose"_s);
    EXPECT_EQ("rose", Shown());
    Changes Door(Engine);
    Do(Door.SaveCaption(Garden, 2, u"a second rose"_s));
    Settle();
    EXPECT_EQ("rose|a second rose", Shown());
    EXPECT_EQ("rose", Field().text().toStdString());
    EXPECT_EQ("rose", Chosen());
    EXPECT_EQ(&Field(), Page->focusWidget());
}

TEST_F(HomeFollows, AThousandChangesAreFollowedAFewTimes) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"rose"_s});
    Open();
    const QSignalSpy Renewals(&View().Cards(), &HomeCards::dataChanged);
    for (int I = 0; I < 1000; ++I) {
        Do(Changes(Engine).SaveSlide(Garden, {.SlideText = u"slide %1"_s.arg(I)}));
        if (I % 100 == 0) QCoreApplication::processEvents();
    }
    Settle();
    EXPECT_GE(Renewals.size(), 1);
    EXPECT_LE(Renewals.size(), 30) << "ten a second at most";
    EXPECT_EQ("Album Garden, 1,001 slides",
              View().Cards().index(0).data(Qt::AccessibleTextRole).toString().toStdString());
}

TEST_F(HomeFollows, TheScrolledPlaceStays) {
    for (int I = 0; I < 60; ++I) AddAlbum(u"Album %1"_s.arg(I));
    Open();
    View().verticalScrollBar()->setValue(View().verticalScrollBar()->maximum() / 2);
    const int Place = View().verticalScrollBar()->value();
    ASSERT_GT(Place, 100);
    Do(Changes(Engine).RenameAlbum(60, u"Album 59 and more"_s));
    Settle();
    EXPECT_EQ(Place, View().verticalScrollBar()->value());
    EXPECT_EQ("Album 0", Chosen());
}

TEST_F(HomeFollows, CoversAreReadForWhatIsInViewAlone) {
    for (int I = 0; I < 60; ++I) AddAlbum(u"Album %1"_s.arg(I), {u"a"_s});
    Open();
    const int Seen = static_cast<int>(View().InView().size());
    ASSERT_GT(Seen, 5);
    ASSERT_LT(Seen, 40);
    ASSERT_TRUE(AwaitCovers(Seen));
    QTest::qWait(100);
    EXPECT_EQ(Seen, View().Pictures().ReadSoFar());
    View().verticalScrollBar()->setValue(View().verticalScrollBar()->maximum());
    QCoreApplication::processEvents();
    const int More = static_cast<int>(View().InView().size());
    ASSERT_TRUE(AwaitCovers(Seen + More));
    QTest::qWait(100);
    EXPECT_EQ(Seen + More, View().Pictures().ReadSoFar()) << "what was passed by is not read";
}

TEST_F(HomeFollows, NothingIsReadWhileTheHomeIsNotSeen) {
    AddAlbum(u"Garden"_s, {u"a"_s});
    Open();
    ASSERT_TRUE(AwaitCovers(1));
    DoubleClick(u"Garden"_s);
    const int Before = View().Pictures().ReadSoFar();
    Do(Changes(Engine).SaveSlide(1, {.SlideText = u"b"_s}));
    Settle();
    EXPECT_EQ(Before, View().Pictures().ReadSoFar());
}

TEST_F(HomeFollows, ACoverHasTheProportionsOfItsPictureAndAllPixelsOfTheScreen) {
    AddAlbum(u"Tall"_s, {u"a"_s}, {600, 1200});
    AddAlbum(u"Wide"_s, {u"a"_s}, {1600, 400});
    AddAlbum(u"Small"_s, {u"a"_s}, {30, 20});
    AddAlbum(u"None"_s);
    Open();
    ASSERT_TRUE(AwaitCovers(4));
    const QImage Tall = Cover(u"Tall"_s)->Cover, Wide = Cover(u"Wide"_s)->Cover;
    EXPECT_NEAR(2.0, 1.0 * Tall.height() / Tall.width(), 0.05);
    EXPECT_NEAR(4.0, 1.0 * Wide.width() / Wide.height(), 0.1);
    EXPECT_EQ(Cover(u"Wide"_s)->Box.width(), Wide.width());
    EXPECT_EQ(Cover(u"Tall"_s)->Box.height(), Tall.height());
    EXPECT_EQ(QSize(30, 20), Cover(u"Small"_s)->Cover.size());
    EXPECT_TRUE(Cover(u"None"_s)->Cover.isNull());
    EXPECT_TRUE(Cover(u"None"_s)->Changed) << "its folder is there";
}

TEST_F(HomeFollows, ACoverThatHasChangedIsReadAnewAndOthersAreNot) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"a"_s, u"b"_s});
    AddAlbum(u"Sea"_s, {u"a"_s});
    Open();
    ASSERT_TRUE(AwaitCovers(2));
    MakePicture(SlidesFolder(Engine.DBPath(), Garden) + FileStem(1) + u".jpg"_s, 80, 60, Qt::blue);
    Do(Changes(Engine).SaveCaption(Garden, 2, u"c"_s));
    Settle();
    QTest::qWait(100);
    EXPECT_EQ(2, View().Pictures().ReadSoFar()) << "slide 2 is not the cover";
    Do(Changes(Engine).SaveCaption(Garden, 1, u"d"_s));
    Settle();
    ASSERT_TRUE(AwaitCovers(3));
    EXPECT_EQ(3, View().Pictures().ReadSoFar());
    EXPECT_GT(Cover(u"Garden"_s)->Cover.pixelColor(5, 5).blue(), 200);
}

// Work is counted: a list of many costs no slide and no picture more than a list of few.
TEST_F(HomeFollows, FiveHundredAlbumsAreThereAtOnce) {
    for (int I = 0; I < 500; ++I) {
        std::int32_t AlbumID = 0;
        Engine.SaveAlbum(AlbumID, u"Album %1"_s.arg(I));
        auto& Slides = Engine.GetAlbum(AlbumID)->Slides;
        for (int S = 0; S < 200; ++S) Slides.push_back(std::make_unique<clsNEBSlide>());
    }
    QElapsedTimer Timer;
    Timer.start();
    Open();
    std::printf("home of 500 albums: %lld ms\n", static_cast<long long>(Timer.elapsed()));
    EXPECT_EQ("500 albums", Summary().toStdString());
    const size_t Seen = View().InView().size();
    EXPECT_LT(Seen, 40U);
    QTest::qWaitFor([&] { return !View().Pictures().IsReading(); });
    EXPECT_EQ(static_cast<int>(Seen), View().Pictures().ReadSoFar());
    Key(Qt::Key_End);
    EXPECT_EQ("Album 499", Chosen());
    EXPECT_TRUE(View().viewport()->rect().contains(View().visualRect(View().currentIndex())));
}

TEST_F(HomeFollows, WhatIsShownOfAShowThatIsGoneIsNotThereToBeOpened) {
    const auto Garden = AddAlbum(u"Garden"_s, {u"a"_s});
    Open();
    Type(u"garden"_s);
    Engine.DeleteAlbum(Garden);  // and nobody has told yet
    Key(Qt::Key_Return);
    EXPECT_TRUE(List().isVisible());
    EXPECT_FALSE(Page->Album());
}

}  // namespace
}  // namespace neb
