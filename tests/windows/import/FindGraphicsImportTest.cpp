// Find Graphics from the import windows: what was found comes in like the pictures of a directory.
#include <QSet>
#include <ctime>

#include "FindGraphicsHarness.h"
#include "controls/fields/ToolBar.h"
#include "harness/ByTheClock.h"
#include "harness/WithoutPrivileges.h"
#include "windows/import/frmQuickShow.h"

namespace neb {
namespace {

using namespace harness;

class FindGraphicsImport : public FindGraphics {
  protected:
    FindGraphicsImport() {
        MakePicture(Pics / u"x/b.jpg"_s, 40, 30);
        MakePicture(Pics / u"x/c.png"_s, 40, 30);
        MakePicture(Pics / u"y/a.bmp"_s, 40, 30);
        WriteFile(Pics / u"y/bad.jpg"_s, "no picture");
    }
    // Opens Find Graphics by the tool, lets it search, and lets Do choose and close.
    static void Find(QWidget& From, std::function<void(frmFindGraphics&)> Do) {
        WhenOpen<frmFindGraphics>([Do](frmFindGraphics& Finder) {
            Press(Finder, "cmdSearch");
            Do(Finder);
        });
        In<ToolBar>(From, "abrMenu").Tool(u"mnuFindGraphics"_s)->trigger();
    }
    static void ImportAll(frmFindGraphics& Finder) {
        In<FlexGrid>(Finder, "flxResults").selectAll();
        Press(Finder, "cmdImport");
    }
    const QString DiscardQuestion =
        u"Do you want to discard the remaining non-selected graphics?"_s;
};

TEST_F(FindGraphicsImport, BringsInWhatCanBeDecodedInTheOrderOfTheRows) {
    const auto Filter = ShowFilter(MakeAlbum(u"Garden"_s), Pics / u"x"_s);
    Press(*Filter, "cmdMoveRightAll");
    Boxes.Expect(u"1 picture could not be read."_s);
    Find(*Filter, &ImportAll);
    EXPECT_EQ("b,c,a", CaptionsOf(NonSelected(*Filter)));
    EXPECT_EQ(Pics / u"y/a.bmp"_s, NonSelected(*Filter).TextMatrix(2, ImportForm::ColPath));
    EXPECT_FALSE(NonSelected(*Filter).ShownPicture(2, ImportForm::ColPicture).Picture.isNull());
    EXPECT_TRUE(In<QPushButton>(*Filter, "cmdMoveRightAll").isEnabled());
    Drop(*Filter);
}

TEST_F(FindGraphicsImport, EntersTheFoundPicturesInTheAlbum) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    const auto Filter = ShowFilter(AlbumID, {});
    Find(*Filter, [](frmFindGraphics& Finder) {
        In<FlexGrid>(Finder, "flxResults").SelectRow(1);
        Press(Finder, "cmdImport");
    });
    EXPECT_EQ("c", CaptionsOf(NonSelected(*Filter)));
    Press(*Filter, "cmdMoveRightAll");
    Boxes.Expect(u"1 slides successfully imported."_s);
    Press(*Filter, "cmdImport");
    EXPECT_EQ(1U, Engine.GetAlbum(AlbumID)->Slides.size());
    EXPECT_FALSE(Filter->IsLoaded());
}

// Ended by hand, and with a directory on the way that may not be read.
TEST_F(FindGraphicsImport, BringsInWhatASearchHasFoundThatDidNotComeToItsEnd) {
    MakePicture(Pics / u"z/last.jpg"_s, 40, 30);
    MakeDirs(Pics / u"locked"_s);
    Lock(u"locked"_s);
    const auto Filter = ShowFilter(MakeAlbum(u"Garden"_s), {});
    WhenOpen<frmFindGraphics>([](frmFindGraphics& Finder) {
        SetDoEventsHook([&Finder, Done = false]() mutable {
            if (Done || In<FlexGrid>(Finder, "flxResults").Rows() < 2) return;
            Done = true;
            Press(Finder, "cmdCancel");
        });
        {
            const WithoutPrivileges User;
            Press(Finder, "cmdSearch");
        }
        SetDoEventsHook({});
        EXPECT_EQ("2 Results", In<QLabel>(Finder, "lblResults").text().toStdString());
        EXPECT_EQ("1 folder was passed over.",
                  In<QLabel>(Finder, "lblPassedOver").text().toStdString());
        ImportAll(Finder);
    });
    In<ToolBar>(*Filter, "abrMenu").Tool(u"mnuFindGraphics"_s)->trigger();
    EXPECT_EQ("b,c", CaptionsOf(NonSelected(*Filter)));
    Press(*Filter, "cmdMoveRightAll");
    Boxes.Expect(u"2 slides successfully imported."_s);
    Press(*Filter, "cmdImport");
    EXPECT_EQ(2U, Engine.Albums[0]->Slides.size());
}

TEST_F(FindGraphicsImport, AsksFirstWhetherTheRemainingOnesGo) {
    const auto Filter = ShowFilter(MakeAlbum(u"Garden"_s), Pics / u"x"_s);
    Boxes.Expect(DiscardQuestion, u"Discard Confirmation"_s, BoxAnswer::No);
    Find(*Filter, [](frmFindGraphics& Finder) { Press(Finder, "cmdClose"); });
    EXPECT_EQ("b,c", CaptionsOf(NonSelected(*Filter)));
    Boxes.Expect(DiscardQuestion, u"Discard Confirmation"_s, BoxAnswer::Yes);
    Boxes.Expect(u"1 picture could not be read."_s);
    Find(*Filter, &ImportAll);
    EXPECT_EQ("b,c,a", CaptionsOf(NonSelected(*Filter)));
    Filter->Unload();
}

TEST_F(FindGraphicsImport, WorksInQuickShowThatHasReadNothingYet) {
    const auto Show = NewForm<frmQuickShow>();
    ShowActive(*Show);
    Boxes.Expect(u"1 picture could not be read."_s);
    Find(*Show, &ImportAll);
    EXPECT_EQ("b,c,a", CaptionsOf(NonSelected(*Show)));
    EXPECT_EQ("", In<QLineEdit>(*Show, "txtName").text().toStdString());
    Show->Unload();
}

TEST_F(FindGraphicsImport, StopsReadingWhenTheUserAborts) {
    const auto Filter = ShowFilter(MakeAlbum(u"Garden"_s), {});
    Boxes.Expect(AbortQuestion, BoxAnswer::Yes);
    AtReadValue(1, [] { Open<frmLoading>()->close(); });
    Find(*Filter, &ImportAll);
    EXPECT_EQ("b", CaptionsOf(NonSelected(*Filter)));
    Filter->Unload();
}

// The longest work of the window's own thread between two yields, in milliseconds of its processor
// time: what else runs on the machine does not count.
class LongestStep {
  public:
    LongestStep() {
        SetDoEventsHook([this] { Look(); });
    }
    ~LongestStep() { SetDoEventsHook({}); }
    double Milliseconds() const { return mLongest; }
    std::function<void()> OnYield;

  private:
    static double Now() {
        timespec Time = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &Time);
        return double(Time.tv_sec) * 1000 + double(Time.tv_nsec) / 1e6;
    }
    void Look() {
        if (mLast > 0) mLongest = std::max(mLongest, Now() - mLast);
        if (OnYield) OnYield();
        mLast = Now();
    }
    double mLast = 0, mLongest = 0;
};

TEST_F(FindGraphicsImport, ShowsHowFarItIsAndAnswersWhileManyAreRead) {
    harness::GoByTheClock();
    DeleteTree(Pics / u"y"_s);
    MakePicture(Pics / u"many/0.jpg"_s, 40, 30);
    const QByteArray Picture = ReadFile(Pics / u"many/0.jpg"_s);
    for (int I = 1; I < 498; ++I) WriteFile(Pics / u"many/%1.jpg"_s.arg(I), Picture);
    const auto Filter = ShowFilter(MakeAlbum(u"Garden"_s), {});
    QSet<QString> Titles;
    QSet<int> Values;
    LongestStep Longest;
    Longest.OnYield = [&] {
        const auto* Loading = Open<frmLoading>();
        if (!Loading) return;
        Titles << Loading->windowTitle();
        Values << Loading->pgbLoadingProgress()->value();
        EXPECT_TRUE(In<QPushButton>(*Loading, "cmdStop").isEnabled());
    };
    Find(*Filter, &ImportAll);
    EXPECT_EQ(500, NonSelected(*Filter).Rows());
    EXPECT_EQ(QSet<QString>({u"Reading Slides ..."_s, u"Loading Slides ..."_s}), Titles);
    EXPECT_EQ(501, Values.size());
    EXPECT_LT(Longest.Milliseconds(), 100);
    Press(*Filter, "cmdMoveRightAll");
    EXPECT_EQ(500, Selected(*Filter).Rows());
    Drop(*Filter);
}

// A medium that goes between the search and the reading must not be asked for each of them.
TEST_F(FindGraphicsImport, AnswersThoughAllThatWasFoundHasGone) {
    harness::GoByTheClock();
    MakeDirs(Pics / u"many"_s);
    for (int I = 0; I < 500; ++I) WriteFile(Pics / u"many/%1.jpg"_s.arg(I), "x");
    const auto Filter = ShowFilter(MakeAlbum(u"Garden"_s), {});
    std::optional<LongestStep> Longest;
    Boxes.Expect(u"1 picture could not be read."_s);
    Find(*Filter, [&](frmFindGraphics& Finder) {
        DeleteTree(Pics / u"many"_s);
        ImportAll(Finder);
        Longest.emplace();
    });
    EXPECT_EQ(503, NonSelected(*Filter).Rows()) << "those that have gone are told at the import";
    EXPECT_LT(Longest->Milliseconds(), 100);
    Longest.reset();
    Filter->Unload();
}

// Only the files that the user selected come in.
TEST_F(FindGraphicsImport, TakesAFoundNameForAFileThoughADirectoryHasTakenItsPlace) {
    const auto Filter = ShowFilter(MakeAlbum(u"Garden"_s), {});
    Find(*Filter, [&](frmFindGraphics& Finder) {
        In<FlexGrid>(Finder, "flxResults").SelectRow(0);
        DeleteFile(Pics / u"x/b.jpg"_s);
        MakePicture(Pics / u"x/b.jpg/inner.png"_s);
        Press(Finder, "cmdImport");
    });
    EXPECT_EQ("b", CaptionsOf(NonSelected(*Filter)));
    EXPECT_TRUE(NonSelected(*Filter).ShownPicture(0, ImportForm::ColPicture).Picture.isNull());
    Press(*Filter, "cmdMoveRightAll");
    Boxes.Expect(u"0 slides successfully imported.\n1 slides discarded."_s);
    Press(*Filter, "cmdImport");
    EXPECT_EQ("b", CaptionsOf(Selected(*Filter)));
    Drop(*Filter);
}

TEST_F(FindGraphicsImport, FollowsTheImportWindowThatIsClosedMeanwhile) {
    const auto Filter = ShowFilter(MakeAlbum(u"Garden"_s), {});
    Find(*Filter, [Filter](frmFindGraphics& Finder) {
        Filter->Unload();
        ImportAll(Finder);
    });
    EXPECT_FALSE(Filter->IsLoaded());
    EXPECT_EQ(0, NonSelected(*Filter).Rows());
}

// Content and date of every file below a folder.
QStringList Record(const QString& Dir) {
    QStringList Lines;
    for (const DirEntry& Entry : ListDir(Dir)) {
        const QString Path = Dir + Entry.Name;
        if (Entry.IsFolder)
            Lines << Path << Record(Path + u'/');
        else
            Lines << Path + FileTime(Path)->toString(Qt::ISODateWithMs) +
                         QString::fromLatin1(ReadFile(Path).toBase64());
    }
    return Lines;
}

TEST_F(FindGraphicsImport, ShowsEverythingAndChangesNothingInAReadOnlyDatabase) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    ReadOnlyDB = true;
    const QStringList Before = Record(Db.Path()) + Record(Pics.Path());
    const auto Filter = ShowFilter(AlbumID, {});
    Boxes.Expect(u"1 picture could not be read."_s);
    Find(*Filter, &ImportAll);
    EXPECT_EQ("b,c,a", CaptionsOf(NonSelected(*Filter)));
    for (const char* Button : {"cmdMoveRightAll", "cmdImport"})
        EXPECT_FALSE(In<QPushButton>(*Filter, Button).isEnabled()) << Button;
    Filter->Unload();
    EXPECT_EQ(Before, Record(Db.Path()) + Record(Pics.Path()));
}

}  // namespace
}  // namespace neb
