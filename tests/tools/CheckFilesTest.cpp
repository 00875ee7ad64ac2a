// nebctl check --files and nebctl adopt: what lies in the albums' folders, read to the last byte.
#include <gtest/gtest.h>
#include <QBuffer>
#include <QImage>
#include <QProcess>

#include "albums/modImport.h"
#include "db/AlbumSums.h"
#include "db/Fixtures.h"
#include "db/modAlbumFiles.h"
#include "db/modDatabaseLock.h"
#include "pictures/ImgX.h"
#include "support/Fault.h"
#include "tools/ToolRun.h"

namespace neb {
namespace {

using namespace harness;

QByteArray Picture(Qt::GlobalColor Colour, const char* Format = "PNG") {
    QImage Image(40, 30, QImage::Format_RGB32);
    Image.fill(Colour);
    QByteArray Bytes;
    QBuffer Buffer(&Bytes);
    Buffer.open(QIODevice::WriteOnly);
    Image.save(&Buffer, Format);
    return Bytes;
}

// What lies below a directory, by path; the lock aside.
std::map<QString, QByteArray> TreeOf(const QString& Dir) {
    std::map<QString, QByteArray> All;
    for (const DirEntry& Entry : ListDir(Dir)) {
        const QString Path = Dir + Entry.Name;
        if (Entry.IsFolder)
            All.merge(TreeOf(Path + u'/'));
        else if (Entry.Name != u"InUse.lock")
            All[Path] = ReadFile(Path);
    }
    return All;
}

class CheckFiles : public ::testing::Test {
  protected:
    CheckFiles() {
        const auto Engine = OpenEngine(Dir.Path());
        Changes Door(*Engine);
        EXPECT_TRUE(NewAlbum(Door, *Engine, u"Garden"_s));
        for (const Qt::GlobalColor Each : {Qt::red, Qt::green, Qt::blue})
            EXPECT_TRUE(EnterPicture(Door, *Engine, 1,
                                     {u"Rose"_s, [Each] { return Picture(Each, "JPG"); },
                                      QImage(72, 72, QImage::Format_RGB32)}));
        Engine->FinalizeDB();
    }
    ~CheckFiles() override { SetHostWatcher({}); }
    ToolRun Check() { return Tool({u"check"_s, u"--files"_s, Dir.Path()}); }
    QByteArray List() { return ReadFile(AlbumSumsPath(Album)); }
    // Clean, and with this list behind it.
    void ExpectMended(const QByteArray& Wanted) {
        const ToolRun Run = Check();
        EXPECT_EQ("", Run.Out);
        EXPECT_EQ(ExitDone, Run.Code);
        EXPECT_EQ(Wanted, List());
        EXPECT_FALSE(FileExists(AlbumSumsPath(Album) + u".new"_s));
    }
    QString Slide(int Number, const char* Ending = ".jpg") {
        return Slides + FileStem(Number) + QLatin1String(Ending);
    }

    TempFolder Dir;
    const QString Album = AlbumFolder(Dir.Path(), 1), Slides = SlidesFolder(Dir.Path(), 1);
};

TEST_F(CheckFiles, WhatWasImportedIsAsItWasStored) {
    const QByteArray Before = List();
    EXPECT_EQ(6, Before.count('\n'));
    ExpectMended(Before);
    EXPECT_EQ("", Check().Err);
}

TEST_F(CheckFiles, EachKindOfDamageIsNamed) {
    QByteArray Changed = ReadFile(Slide(1));
    Changed[Changed.size() / 2] = static_cast<char>(Changed[Changed.size() / 2] ^ 1);
    WriteFile(Slide(1), Changed);
    WriteFile(Slide(2), {});
    DeleteFile(Slide(3));
    WriteFile(Slides + u"stray.jpg"_s, "x");
    const QByteArray Before = List();
    const ToolRun Run = Check();
    EXPECT_EQ(ExitFound, Run.Code);
    EXPECT_EQ((u"the picture of slide 3 in album 1 is missing: "_s + Slides + u"00000003.JPG\n"_s +
               u"no record names the file "_s + Slides + u"stray.jpg\n"_s +
               u"changed: the picture of slide 1 in the album \"Garden\": "_s + Slide(1) + u'\n' +
               u"empty: the picture of slide 2 in the album \"Garden\": "_s + Slide(2) + u'\n')
                  .toStdString(),
              Run.Out);
    EXPECT_EQ(Before, List()) << "what the files were is not forgotten";
    EXPECT_EQ(Run.Out, Check().Out);
}

TEST_F(CheckFiles, AnAlbumOfEarlierVersionsGetsItsListByTheFirstCheck) {
    const QByteArray Before = List();
    DeleteFile(AlbumSumsPath(Album));
    const ToolRun First = Check();
    EXPECT_EQ("", First.Out);
    EXPECT_EQ(ExitDone, First.Code);
    EXPECT_EQ("1 album had no check sums and could not be compared; from now on they are kept.\n",
              First.Err);
    EXPECT_EQ(Before, List()) << "that which it would have had";
    WriteFile(Slide(1), "rotten");
    EXPECT_EQ(ExitFound, Check().Code);
}

TEST_F(CheckFiles, OfTwoLinesTheOneThatMatchesIsRight) {
    const QByteArray Before = List();
    const QByteArray Other = SumLine({u"Slides/00000001.jpg"_s, SumOfBytes("other")});
    WriteFile(AlbumSumsPath(Album), Before + Other);
    ExpectMended(Before);
    WriteFile(AlbumSumsPath(Album), Other + Before);
    Check();
    EXPECT_EQ(0, List().count(Other));
    EXPECT_EQ(6, List().count('\n'));
}

TEST_F(CheckFiles, AReplacementThatWasCutShortAtAnyStepIsNoDamage) {
    for (int Step = 1;; ++Step) {
        int Count = 0;
        SetHostWatcher([&](HostStep, const QString& Path, qint64&) {
            if (++Count >= Step) throw Fault(u"cut"_s, Path);
        });
        const auto New = "content " + QByteArray::number(Step);
        try {
            StoreAnew(Slide(1), New);
        } catch (const Fault&) {
        }
        SetHostWatcher({});
        const ToolRun Run = Check();
        EXPECT_EQ("", Run.Out) << "step " << Step;
        EXPECT_EQ(ExitDone, Run.Code);
        if (Count < Step) break;
        EXPECT_LT(Step, 20);
    }
}

TEST_F(CheckFiles, ADeletionThatWasCutShortAtAnyStepIsNoDamageOfTheOthers) {
    for (int Step = 1; Step < 20; ++Step) {
        const QString Path = Slides + u"notes%1.txt"_s.arg(Step);
        StoreNew(Path, "text");
        int Count = 0;
        SetHostWatcher([&](HostStep, const QString& At, qint64&) {
            if (++Count >= Step) throw Fault(u"cut"_s, At);
        });
        DropStored({Path});
        SetHostWatcher({});
        DeleteFile(Path);
        const ToolRun Run = Check();
        EXPECT_EQ("", Run.Out) << "step " << Step;
        EXPECT_EQ(6u, SumsIn(List()).size());
        if (Count < Step) break;
    }
}

TEST_F(CheckFiles, ADamagedThumbnailIsMadeAnewOfItsPicture) {
    const QByteArray Before = ReadFile(Slide(1, "Small.bmp"));
    for (const QByteArray& Damaged :
         {QByteArray(), QByteArray("no picture"), QByteArray(5000, 'B')}) {
        WriteFile(Slide(1, "Small.bmp"), Damaged);
        const ToolRun Run = Check();
        EXPECT_EQ("", Run.Out);
        EXPECT_EQ(ThumbnailBmp(MakeThumbnail(Slide(1))), ReadFile(Slide(1, "Small.bmp")));
        EXPECT_EQ("", Check().Out);
    }
    EXPECT_NE(Before, ReadFile(Slide(1, "Small.bmp"))) << "it was black";
    WriteFile(Slide(1), "no picture");
    WriteFile(Slide(1, "Small.bmp"), "no picture either");
    EXPECT_EQ((u"changed: the picture of slide 1 in the album \"Garden\": "_s + Slide(1) +
               u"\nchanged: the thumbnail of slide 1 in the album \"Garden\": "_s +
               Slide(1, "Small.bmp") + u'\n')
                  .toStdString(),
              Check().Out);
    InstanceLock Lock(DatabaseLockPath(Dir.Path()));
    ASSERT_TRUE(Lock.TryLock());
    WriteFile(Slide(2, "Small.bmp"), "no picture either");
    EXPECT_NE(std::string::npos, Check().Out.find("the thumbnail of slide 2 in the album"));
}

TEST_F(CheckFiles, HalfALineAndLinesOfNothingAreMendedInSilence) {
    const QByteArray Before = List();
    WriteFile(AlbumSumsPath(Album), Before + "7692c3ad35");
    ExpectMended(Before);
    WriteFile(AlbumSumsPath(Album),
              "# a remark\n" + SumLine({u"Slides/00000009.jpg"_s, SumOfBytes("gone")}) + Before);
    ExpectMended(Before);
    // the last line has not reached the disk
    WriteFile(AlbumSumsPath(Album), Before.left(Before.lastIndexOf('\n', -2) + 1));
    ExpectMended(Before);
    WriteFile(AlbumSumsPath(Album), {});
    ExpectMended(Before);
    WriteFile(Slide(9) + u".new"_s, "half a pict");
    ExpectMended(Before);
}

// What a save that was cut short has put by is none of the user's business; a copy of his own is.
TEST_F(CheckFiles, TheFileInWhosePlaceAnotherLiesIsNoStrayOne) {
    WriteFile(Slide(1) + u".old"_s, "before");
    EXPECT_EQ("", Check().Out);
    EXPECT_EQ("", Tool({u"check"_s, Dir.Path()}).Out);
    WriteFile(Slide(9) + u".old"_s, "before");
    EXPECT_NE(std::string::npos, Check().Out.find("00000009.jpg.old"));
    EXPECT_EQ(std::string::npos, Check().Out.find("00000001.jpg.old"));
    EXPECT_NE(std::string::npos, Tool({u"check"_s, Dir.Path()}).Out.find("00000009.jpg.old"));
}

TEST_F(CheckFiles, AListInUseOrOfAReadOnlyDatabaseIsLeftAlone) {
    DeleteFile(AlbumSumsPath(Album));
    {
        InstanceLock Lock(DatabaseLockPath(Dir.Path()));
        ASSERT_TRUE(Lock.TryLock());
        const ToolRun Run = Check();
        EXPECT_EQ(ExitDone, Run.Code);
        EXPECT_EQ("1 album had no check sums and could not be compared.\n", Run.Err);
        EXPECT_FALSE(FileExists(AlbumSumsPath(Album)));
    }
    SetReadOnly(Dir / "NextIDs.dat");
    const auto Before = TreeOf(Dir.Path());
    EXPECT_EQ("1 album had no check sums and could not be compared.\n", Check().Err);
    EXPECT_EQ(Before, TreeOf(Dir.Path()));
}

TEST_F(CheckFiles, ChangesThatASessionLeftBehindCount) {
    {
        const auto Engine = OpenEngine(Dir.Path());
        Engine->KeepSession();
        Changes Door(*Engine);
        ASSERT_TRUE(EnterPicture(
            Door, *Engine, 1,
            {u"Late"_s, [] { return Picture(Qt::gray); }, QImage(72, 72, QImage::Format_RGB32)}));
    }
    EXPECT_EQ(
        "a session did not come to its end; the next start of the program will bring back 1 "
        "change\n",
        Check().Out);
}

// ------------------------------------------------------------------------------------------- adopt

class Adopt : public CheckFiles {
  protected:
    ToolRun Run() { return Tool({u"adopt"_s, Dir.Path()}); }
    // The records of slides are lost, one or all.
    void Lose(const std::vector<std::int32_t>& SlideIDs) {
        const auto Engine = OpenEngine(Dir.Path());
        for (const std::int32_t Each : SlideIDs) Engine->Albums[0]->TakeSlide(Each);
        Engine->FinalizeDB();
    }
    std::string Slides1() {
        QStringList All;
        const auto Engine = OpenEngine(Dir.Path());
        for (const auto& Each : Engine->Albums[0]->Slides)
            All << u"%1 %2 %3"_s.arg(Each->SlideID).arg(Each->SlideLoc, Each->SlideText);
        return All.join(u'|').toStdString();
    }
};

TEST_F(Adopt, NothingIsDoneWhereEveryPictureHasItsSlide) {
    const auto Before = TreeOf(Dir.Path());
    const ToolRun Result = Run();
    EXPECT_EQ(ExitDone, Result.Code);
    EXPECT_EQ("Every picture in " + Dir.Path().toStdString() + " belongs to a slide.\n",
              Result.Out);
    EXPECT_EQ(Before, TreeOf(Dir.Path()));
}

TEST_F(Adopt, ALostSlideComesBackUnderItsNumberSoThatShowsFindIt) {
    Lose({2});
    const QByteArray Bytes = ReadFile(Slide(2)), Before = List();
    const ToolRun Result = Run();
    EXPECT_EQ(ExitDone, Result.Code) << Result.Err;
    EXPECT_EQ((Slide(2) + u": slide 2 of the album \"Garden\", \"Recovered picture 1\"\n"
                          "1 picture adopted.\n"_s)
                  .toStdString(),
              Result.Out);
    EXPECT_EQ("1 00000001.JPG Rose|3 00000003.JPG Rose|2 00000002.jpg Recovered picture 1",
              Slides1());
    EXPECT_EQ(Bytes, ReadFile(Slide(2)));
    const ToolRun Checked = Check();
    EXPECT_EQ("", Checked.Out);
    EXPECT_EQ(6u, SumsIn(List()).size());
}

TEST_F(Adopt, APictureOfNoNumberGetsTheNextOne) {
    WriteFile(Slides + u"Käthe.png"_s, Picture(Qt::cyan));
    WriteFile(Slides + u"00000002.png"_s, Picture(Qt::yellow));  // slide 2 has another picture
    ASSERT_EQ(ExitDone, Run().Code);
    EXPECT_EQ(
        "1 00000001.JPG Rose|2 00000002.JPG Rose|3 00000003.JPG Rose|"
        "4 00000004.png Recovered picture 1|5 00000005.png Recovered picture 2",
        Slides1());
    EXPECT_EQ(Picture(Qt::yellow), ReadFile(Slide(4, ".png")));
    EXPECT_FALSE(FileExists(Slides + u"Käthe.png"_s));
    EXPECT_TRUE(FileExists(Slide(5, "Small.bmp")));
    EXPECT_EQ("", Check().Out);
}

TEST_F(Adopt, PicturesOfAnAlbumWithoutRecordComeIntoOneOfTheirOwn) {
    const QString Lost = SlidesFolder(Dir.Path(), 7);
    MakeDirs(Lost);
    WriteFile(Lost + u"00000002.jpg"_s, Picture(Qt::red));
    WriteFile(Lost + u"00000040.jpg"_s, Picture(Qt::red));
    const ToolRun Result = Run();
    EXPECT_EQ(ExitDone, Result.Code);
    EXPECT_TRUE(QString::fromStdString(Result.Out)
                    .startsWith(u"There is no record of album 7; its pictures come into the album "
                                "\"Recovered pictures\".\n"_s))
        << Result.Out;
    const auto Engine = OpenEngine(Dir.Path());
    ASSERT_EQ(2u, Engine->Albums.size());
    const clsNEBAlbum& Made = *Engine->Albums[1];
    EXPECT_EQ(u"Recovered pictures", Made.AlbumName);
    ASSERT_EQ(2u, Made.Slides.size());
    EXPECT_EQ(41, Made.Slides[0]->SlideID) << "2 is taken, and new numbers are above all others";
    EXPECT_EQ(40, Made.Slides[1]->SlideID);
    EXPECT_EQ(42, Engine->NextSlideID);
    EXPECT_TRUE(ListDir(Lost).empty());
    WriteFile(Lost + u"00000041.jpg"_s, Picture(Qt::red));
    ASSERT_EQ(ExitDone, Run().Code);
    EXPECT_EQ(2u, OpenEngine(Dir.Path())->Albums.size()) << "into the same again";
}

TEST_F(Adopt, WhatIsNoPictureStaysAndWhatCannotBeReadIsNamed) {
    const auto Put = [&](const char* Name, const QByteArray& Bytes) {
        WriteFile(Slides + QLatin1String(Name), Bytes);
    };
    Put("notes.txt", "text");
    Put("00000009Small.bmp", ThumbnailBmp(QImage(72, 72, QImage::Format_RGB32)));
    Put("00000009.wav", "sound");
    Put("00000008.jpg.new", Picture(Qt::red));
    const auto Before = TreeOf(Dir.Path());
    EXPECT_EQ(ExitDone, Run().Code);
    EXPECT_EQ(Before, TreeOf(Dir.Path()));
    Put("00000010.jpg", "no picture");
    Put("00000011.jpg", Picture(Qt::red, "JPG").left(300));
    Put("00000012.jpg", {});
    Put("picture", Picture(Qt::red));  // without an ending, by its content
    const ToolRun Result = Run();
    EXPECT_EQ(ExitFound, Result.Code);
    for (const char* Name : {"00000010.jpg", "00000011.jpg", "00000012.jpg"}) {
        EXPECT_NE(std::string::npos, Result.Err.find("left where it is: " +
                                                     (Slides + QLatin1String(Name)).toStdString()))
            << Result.Err;
        EXPECT_TRUE(FileExists(Slides + QLatin1String(Name)));
    }
    EXPECT_NE(std::string::npos, Result.Out.find("1 picture adopted."));
    EXPECT_EQ("no picture", ReadFile(Slides + u"00000010.jpg"_s));
}

TEST_F(Adopt, ALostSlideThatHasChangedByItselfIsStillCalledChanged) {
    Lose({2});
    WriteFile(Slide(2), Picture(Qt::black, "JPG"));
    ASSERT_EQ(ExitDone, Run().Code);
    EXPECT_TRUE(
        QString::fromStdString(Check().Out).startsWith(u"changed: the picture of slide 2 "));
}

TEST_F(Adopt, AFullDiskKeepsWhatWasDoneUntilThen) {
    WriteFile(Slides + u"a.png"_s, Picture(Qt::cyan));
    WriteFile(Slides + u"b.png"_s, Picture(Qt::yellow));
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.endsWith(u"00000005.png.new"_s))
            throw Fault(u"The disk is full."_s, Path);
    });
    const ToolRun Result = Run();
    SetHostWatcher({});
    EXPECT_EQ(ExitFailed, Result.Code);
    EXPECT_TRUE(FileExists(Slides + u"b.png"_s));
    EXPECT_TRUE(FileExists(Slide(4, ".png")));
    EXPECT_FALSE(FileExists(Slides + u"a.png"_s));
    EXPECT_EQ(4u, OpenEngine(Dir.Path())->Albums[0]->Slides.size());
    EXPECT_EQ(ExitDone, Run().Code);
    EXPECT_EQ(5u, OpenEngine(Dir.Path())->Albums[0]->Slides.size());
    EXPECT_EQ("", Check().Out);
}

TEST_F(Adopt, ADatabaseInUseOrReadOnlyOrWithoutCountersIsLeftAlone) {
    Lose({2});
    const auto Refused = [&](const char* Why) {
        const auto Before = TreeOf(Dir.Path());
        const ToolRun Result = Run();
        EXPECT_EQ(ExitFailed, Result.Code) << Why;
        EXPECT_NE(std::string::npos, Result.Err.find(Why)) << Result.Err;
        EXPECT_EQ(Before, TreeOf(Dir.Path())) << Why;
    };
    {
        InstanceLock Lock(DatabaseLockPath(Dir.Path()));
        ASSERT_TRUE(Lock.TryLock());
        Refused("in use");
    }
    SetReadOnly(Dir / "NextIDs.dat");
    Refused("read-only");
    DeleteFile(Dir / "NextIDs.dat");
    EXPECT_EQ(ExitFailed, Run().Code);
    EXPECT_EQ(ExitFailed, Tool({u"adopt"_s}).Code);
    EXPECT_EQ(ExitFailed, Tool({u"adopt"_s, Dir.Path(), u"more"_s}).Code);
}

}  // namespace
}  // namespace neb
