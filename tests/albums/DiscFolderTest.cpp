// A folder for a disc: what comes into it, that it is whole and can be checked with the host's own
// tool, and that nothing is left of one that could not be written.
#include "DiscRig.h"
#include "albums/transfer/OtherDatabase.h"
#include "settings/SettingKeys.h"
#include "settings/clsSettings.h"
#include "settings/modNEBSlideShow.h"

namespace neb {
namespace {

using namespace harness;
using End = TransferResult::End;

class DiscFolder : public ::testing::Test {
  protected:
    ~DiscFolder() override {
        SetHostWatcher({});
        DocumentsPath.clear();
        DBPathCache.clear();
    }
    DiscResult Write(const DiscContents& What, const DiscDesk& Desk = {}) {
        return WriteDiscFolder(Source.Engine, What, Dir, Desk);
    }
    static QStringList Names(const QString& Folder) {
        QStringList All;
        for (const DirEntry& Each : ListDir(Folder)) All << Each.Name;
        return All;
    }
    clsSettings Settings() const {
        clsSettings Found;
        Found.SetFileName(Dir + u"QLM.ini"_s);
        Found.Load();
        return Found;
    }
    // Refused with one box of this beginning, and nothing has come of it.
    void ExpectRefused(const DiscResult& Result, const QString& Beginning) {
        EXPECT_EQ(End::Refused, Result.Is);
        ASSERT_EQ(1u, Result.Boxes.size());
        EXPECT_TRUE(Result.Boxes[0].Text.startsWith(Beginning))
            << Result.Boxes[0].Text.toStdString();
    }

    TempFolder Db, Out;
    DiscSource Source{Db.Path()};
    const QString Dir = Out / u"new/disc/"_s;
};

TEST_F(DiscFolder, HoldsWholeAlbumsWithTheirNamesAndShows) {
    const DiscResult Result = Write(Source.All());
    ASSERT_TRUE(Result);
    EXPECT_EQ(
        "Garden: rose elm pond; Walk=Walk1@rose Walk2@elm +0; "
        "Spring=Spring2@elm Spring3@pond Spring2@elm +1 | Sea: wave",
        ContentsOf(Dir));
    EXPECT_EQ(Dir, Result.Dir);
    clsDBEngine Written;
    Written.SetDBPath(Dir);
    Written.InitializeDB(Recovery::InMemory);
    const clsNEBAlbum& Album = *Written.Albums[0];
    EXPECT_EQ(ReadFile(SlidesFolder(Db.Path(), Source.Garden) + u"00000002.jpg"_s),
              ReadFile(SlidesFolder(Dir, Album.AlbumID) + Album.Slides[1]->SlideLoc));
    EXPECT_EQ("wind", ReadFile(SlidesFolder(Dir, Album.AlbumID) + Album.Slides[1]->SoundTrackLoc));
    EXPECT_EQ("birds", ReadFile(SoundTracksFolder(Dir, Album.AlbumID) +
                                Album.SlideShows[1]->SoundTracks[0]->SoundTrackLoc));
}

TEST_F(DiscFolder, HoldsShowsWithoutTheRestOfTheirAlbumInOneOfItsName) {
    ASSERT_TRUE(Write({{Source.Garden, {Source.Spring}}}));
    EXPECT_EQ("Garden: elm pond; Spring=Spring2@elm Spring3@pond Spring2@elm +1", ContentsOf(Dir));
    const DiscResult Both = WriteDiscFolder(
        Source.Engine, {{Source.Garden, {Source.Walk, Source.Spring}}}, Out / u"both"_s);
    ASSERT_TRUE(Both);
    EXPECT_EQ(
        "Garden: rose elm pond; Walk=Walk1@rose Walk2@elm +0; "
        "Spring=Spring2@elm Spring3@pond Spring2@elm +1",
        ContentsOf(Both.Dir));
}

TEST_F(DiscFolder, IsWholeAndNothingElseLiesInIt) {
    const DiscResult Result = Write(Source.All());
    EXPECT_EQ(
        "Albums Albums.dat EffectStats.dat NextIDs.dat Properties.dat QLM.ini README.txt "
        "Slides.dat SlideShowDetails.dat SlideShows.dat SlideShowSoundTracks.dat Sums.sha256",
        Names(Dir).join(u' ').toStdString());
    EXPECT_TRUE(IsReadOnly(Dir + u"NextIDs.dat"_s));
    EXPECT_FALSE(IsReadOnly(Dir + u"Albums.dat"_s));
    EXPECT_EQ(0, Sha256Sum(Dir));
    const auto Findings = CheckSums(Dir);
    ASSERT_TRUE(Findings);
    EXPECT_TRUE(Findings->empty());
    const auto Lines = ReadFile(Dir + u"Sums.sha256"_s).trimmed().split('\n');
    EXPECT_EQ(Result.Files, Lines.size());
    EXPECT_EQ(11 - 1 + 4 * 2 + 2 + 2, Lines.size())
        << "records, texts, pictures, sounds, and the albums' own lists";
    EXPECT_GT(Result.Bytes, FileSize(Dir + u"README.txt"_s));
}

TEST_F(DiscFolder, ADamagedFileIsFoundByTheHostsOwnTool) {
    ASSERT_TRUE(Write({{Source.Sea}}));
    WriteFile(SlidesFolder(Dir, 1) + u"00000001.jpg"_s, "bad");
    EXPECT_NE(0, Sha256Sum(Dir));
}

TEST_F(DiscFolder, ItsFirstShowIsTheActiveOne) {
    ASSERT_TRUE(Write({{Source.Sea}, {Source.Garden}}));
    clsDBEngine Written;
    Written.SetDBPath(Dir);
    Written.InitializeDB(Recovery::InMemory);
    const std::int32_t AlbumID = ReadNumber(Settings(), Setting::ActiveAlbum);
    const std::int32_t ShowID = ReadNumber(Settings(), Setting::ActiveSlideShow);
    ASSERT_TRUE(Written.GetAlbum(AlbumID));
    EXPECT_EQ(u"Garden"_s, Written.GetAlbum(AlbumID)->AlbumName);
    ASSERT_TRUE(Written.GetAlbum(AlbumID)->GetSlideShow(ShowID));
    EXPECT_EQ(u"Spring"_s, Written.GetAlbum(AlbumID)->GetSlideShow(ShowID)->SlideShowName)
        << "the first by name";
}

TEST_F(DiscFolder, WithoutAShowThereIsNothingToPlayAndNoSettings) {
    ASSERT_TRUE(Write({{Source.Sea}}));
    EXPECT_FALSE(FileExists(Dir + u"QLM.ini"_s));
    EXPECT_EQ(0, Sha256Sum(Dir));
}

TEST_F(DiscFolder, TheReadmeNamesWhatIsInItAndHowItIsPlayedAndChecked) {
    ASSERT_TRUE(Write(Source.All()));
    const QString Text = QString::fromUtf8(ReadFile(Dir + u"README.txt"_s));
    for (const QString& Each :
         {u"  Garden (3 slides)\n    - Spring\n    - Walk\n"_s, u"  Sea (1 slide)\n"_s,
          u"neb-slide-show --documents <this folder>"_s, u"sha256sum -c Sums.sha256"_s,
          u"nebctl check --files ."_s, u"Import/Export, Check a Disc..."_s, u"JPEG"_s})
        EXPECT_TRUE(Text.contains(Each)) << Each.toStdString() << "\n" << Text.toStdString();
}

TEST_F(DiscFolder, OpensAsADatabaseWhereItLiesAndIsLeftAsItWas) {
    ASSERT_TRUE(Write(Source.All()));
    const QStringList Before = Everything(Dir);
    SetDocumentsPath(Dir);
    EXPECT_EQ(Dir, DBPath());
    EXPECT_EQ(Dir, SettingsDir());
    clsSettings Mine = OpenSettings();
    EXPECT_GT(ReadNumber(Mine, Setting::ActiveSlideShow), 0);
    PutNumber(Mine, Setting::ActiveSlideShow, 77);
    Mine.Save();
    EXPECT_EQ(77, ReadNumber(OpenSettings(), Setting::ActiveSlideShow)) << "for this visit";
    EXPECT_EQ("", Differences(Before, Everything(Dir)));
    SetDocumentsPath(Dir);
    EXPECT_NE(77, ReadNumber(OpenSettings(), Setting::ActiveSlideShow));
    SetDocumentsPath(Out.Path());
    EXPECT_EQ(Out / u"NEB/NEB Slide Show/"_s, DBPath());
}

TEST_F(DiscFolder, TheSourceStaysAsItWas) {
    const QStringList Before = Everything(Db.Path());
    ASSERT_TRUE(Write(Source.All()));
    EXPECT_EQ("", Differences(Before, Everything(Db.Path())));
}

TEST_F(DiscFolder, AFolderThatIsNotEmptyIsRefusedByNameAndLeftAlone) {
    MakeDirs(Dir);
    WriteFile(Dir + u".hidden"_s, "mine");
    const QStringList Before = Everything(Out.Path());
    ExpectRefused(Write(Source.All()), u"The folder %1 is not empty."_s.arg(Dir.chopped(1)));
    EXPECT_EQ("", Differences(Before, Everything(Out.Path())));
}

// The program was killed, or the power failed, while it was being written.
TEST_F(DiscFolder, OneThatWasNotFinishedIsBegunAnew) {
    MakeDirs(Dir + u"Albums/1/Slides"_s);
    WriteFile(Dir + u"Albums/1/Slides/00000009.JPG"_s, "half");
    WriteFile(Dir + u"NextIDs.dat"_s, "old");
    WriteFile(Dir + u"Sums.sha256.new"_s, {});
    ASSERT_TRUE(Write(Source.All()));
    EXPECT_FALSE(FileExists(Dir + u"Albums/1/Slides/00000009.JPG"_s));
    EXPECT_FALSE(FileExists(Dir + u"Sums.sha256.new"_s));
    EXPECT_EQ(0, Sha256Sum(Dir));
    WriteFile(Dir + u"Sums.sha256.new"_s, {});
    ExpectRefused(Write(Source.All()), u"The folder "_s + Dir.chopped(1) + u" is not empty."_s);
}

TEST_F(DiscFolder, AFileOrAPlaceAmongTheAlbumsIsRefused) {
    WriteFile(Out / u"file"_s, "x");
    ExpectRefused(WriteDiscFolder(Source.Engine, Source.All(), Out / u"file"_s),
                  (Out / u"file"_s) + u" is a file"_s);
    const QStringList Before = Everything(Db.Path());
    for (const QString& Place : {u"disc"_s, u"Albums/9"_s, u""_s})
        ExpectRefused(WriteDiscFolder(Source.Engine, Source.All(), Db / Place), u"The folder "_s);
    EXPECT_EQ("", Differences(Before, Everything(Db.Path())));
}

TEST_F(DiscFolder, AlbumsWhoseNamesDifferInCaseAloneBothComeIn) {
    Source.AddSlide(Source.MakeAlbum(u"GARDEN"_s), u"gnome"_s, Qt::gray);
    const DiscResult Result = Write({{Source.Garden, {Source.Walk}}, {3}});
    ASSERT_TRUE(Result);
    EXPECT_EQ("Garden: rose elm; Walk=Walk1@rose Walk2@elm +0 | GARDEN (2): gnome",
              ContentsOf(Dir));
}

TEST_F(DiscFolder, AlbumsAndCaptionsOfEveryScriptComeInWhole) {
    const auto Summer = Source.MakeAlbum(u"Лето"_s), Other = Source.MakeAlbum(u"Лёто"_s);
    Source.AddSlide(Summer, u"茶"_s, Qt::gray);
    Source.AddSlide(Other, u"酒 "_s.repeated(90), Qt::gray);
    ASSERT_TRUE(Write({{Summer}, {Other}}));
    EXPECT_EQ(u"Лето: 茶 | Лёто: %1"_s.arg(u"酒 "_s.repeated(90)).toStdString(), ContentsOf(Dir));
}

TEST_F(DiscFolder, ANumberBehindALongNameCutsNoLetterInTwo) {
    for (const QChar Letter : {u'x', u'X'})
        Source.AddSlide(Source.MakeAlbum(QString(75, Letter) + u"🌹🌹"_s), u"s"_s, Qt::gray);
    const DiscResult Result = Write({{3}, {4}});
    ASSERT_TRUE(Result);
    EXPECT_EQ((QString(75, u'x') + u"🌹🌹: s | "_s + QString(75, u'X') + u" (2): s"_s).toStdString(),
              ContentsOf(Dir));
}

TEST_F(DiscFolder, AnAlbumThatHasGoneIsRefusedAndNothingStays) {
    ExpectRefused(Write({{Source.Sea}, {99}}), u"Failed to load the source album."_s);
    EXPECT_FALSE(FolderExists(Out / u"new"_s)) << "and what was made above it goes, too";
}

TEST_F(DiscFolder, MissingPicturesAreAskedAboutAndNoLeavesNothing) {
    DeleteFile(SlidesFolder(Db.Path(), Source.Garden) + u"00000001.jpg"_s);
    QStringList Asked;
    DiscDesk Desk;
    bool GoOn = false;
    Desk.GoOnWithout = [&](const QStringList& Missing) {
        Asked << Missing;
        return GoOn;
    };
    EXPECT_EQ(End::Stopped, Write(Source.All(), Desk).Is);
    EXPECT_EQ(QStringList(SlidesFolder(Db.Path(), Source.Garden) + u"00000001.jpg"_s), Asked);
    EXPECT_FALSE(FolderExists(Out / u"new"_s));
    GoOn = true;
    ASSERT_TRUE(Write(Source.All(), Desk));
    EXPECT_EQ(0, Sha256Sum(Dir));
}

TEST_F(DiscFolder, WhatIsMissingInAllOfItIsAskedAboutOnce) {
    DeleteFile(SlidesFolder(Db.Path(), Source.Garden) + u"00000001.jpg"_s);
    DeleteMask(SlidesFolder(Db.Path(), Source.Sea) + u"*.jpg"_s);
    DeleteMask(SoundTracksFolder(Db.Path(), Source.Garden) + u"*.*"_s);
    std::vector<qsizetype> Asked;
    DiscDesk Desk;
    Desk.GoOnWithout = [&](const QStringList& Missing) {
        Asked.push_back(Missing.size());
        return true;
    };
    ASSERT_TRUE(Write(Source.All(), Desk));
    EXPECT_EQ(std::vector<qsizetype>{3}, Asked);
}

// The whole is told as one: it never goes back, and ends at all of it.
TEST_F(DiscFolder, TellsHowFarTheWholeIs) {
    std::vector<int> Percents;
    QStringList Texts;
    DiscDesk Desk;
    Desk.Progress = [&](const DiscProgress& Now) {
        Percents.push_back(Now.Percent());
        Texts << Now.Text(0);
        return true;
    };
    ASSERT_TRUE(Write(Source.All(), Desk));
    EXPECT_TRUE(std::is_sorted(Percents.begin(), Percents.end()));
    EXPECT_EQ(100, Percents.back());
    EXPECT_TRUE(Texts.front().startsWith(u"Looking"_s));
    EXPECT_FALSE(Texts.filter(u" of 4, "_s).filter(u"picture "_s).isEmpty())
        << Texts.join(u'\n').toStdString();
    EXPECT_TRUE(Texts.back().startsWith(u"check sums: file "_s)) << Texts.back().toStdString();
}

TEST_F(DiscFolder, StoppedAtAnyMomentItLeavesNothing) {
    bool Finished = false;
    for (int At = 0; !Finished; ++At) {
        ASSERT_LT(At, 2000);
        if (At % 2) MakeDirs(Dir);  // once there and empty, once not there at all
        int Left = At;
        DiscDesk Desk;
        Desk.Progress = [&](const DiscProgress&) { return Left-- > 0; };
        const DiscResult Result = Write(Source.All(), Desk);
        Finished = static_cast<bool>(Result);
        if (Finished) break;
        EXPECT_EQ(End::Stopped, Result.Is);
        EXPECT_EQ(At % 2 == 1, FolderExists(Dir)) << At;
        EXPECT_TRUE(ListDir(Dir).empty()) << At;
        EXPECT_EQ(At % 2 == 1, FolderExists(Out / u"new"_s));
        DeleteTree(Out / u"new"_s);
    }
    EXPECT_EQ(0, Sha256Sum(Dir));
}

TEST_F(DiscFolder, ADiskThatIsFullAtAnyMomentLeavesNothing) {
    MakeDirs(Dir);
    const QStringList Before = Everything(Out.Path());
    const QStringList Theirs = Everything(Db.Path());
    bool Finished = false;
    int Faults = 0;
    for (int At = 0; !Finished; At += At < 12 ? 1 : 5) {
        ASSERT_LT(At, 500);
        std::atomic<int> Left = At;
        SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
            const bool Needs = Step != HostStep::Delete && Step != HostStep::Protect;
            if (!Needs || !Path.startsWith(Out.Path())) return;
            if (Left-- <= 0) throw Fault(u"no space left on device"_s, Path);
        });
        try {
            Finished = static_cast<bool>(Write(Source.All()));
        } catch (const Fault&) {
            ++Faults;
        }
        SetHostWatcher({});
        if (Finished) break;
        EXPECT_EQ(Before.size(), Everything(Out.Path()).size()) << At;
        EXPECT_TRUE(ListDir(Dir).empty()) << At;
    }
    EXPECT_GT(Faults, 20);
    EXPECT_EQ("", Differences(Theirs, Everything(Db.Path())));
    EXPECT_EQ(0, Sha256Sum(Dir));
}

TEST_F(DiscFolder, AMediumThatKnowsNoPermissionsIsWrittenAllTheSame) {
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Protect) throw Fault(u"Operation not permitted"_s, Path);
    });
    ASSERT_TRUE(Write({{Source.Sea}}));
    EXPECT_FALSE(IsReadOnly(Dir + u"NextIDs.dat"_s));
    EXPECT_EQ(0, Sha256Sum(Dir));
}

TEST_F(DiscFolder, WhatIsChosenIsCounted) {
    EXPECT_EQ("2 albums, 2 slide shows, 4 slides",
              CountDisc(Source.Engine, Source.All()).Text().toStdString());
    EXPECT_EQ("1 album, 1 slide show, 2 slides",
              CountDisc(Source.Engine, {{Source.Garden, {Source.Spring}}}).Text().toStdString());
    EXPECT_EQ("0 albums, 0 slide shows, 0 slides",
              CountDisc(Source.Engine, {}).Text().toStdString());
}

}  // namespace
}  // namespace neb
