// The files of a transfer: those with unusual names and places, those that are missing or cannot be
// read; transfers that are stopped, or break off, or find the destination changed meanwhile.
#include "TransferRig.h"
#include "db/SongNames.h"
#include "harness/WithoutPrivileges.h"

namespace neb::harness {
namespace {

class TransferFiles : public TransferRig {
  protected:
    StatedTransfer ToNew(std::int32_t SrcAlbumID) {
        return {.SrcAlbumID = SrcAlbumID, .NewAlbumName = u"Arrived"_s};
    }
    StatedTransfer OverTown() {
        return {.SrcAlbumID = GardenID,
                .DstAlbumID = TownID,
                .Replace = true,
                .NewAlbumName = u"Town"_s};
    }
    TransferResult Export(const StatedTransfer& What, const TransferDesk& Desk = {}) {
        return ExpectDone(Own.Engine, Other.Engine, What, Desk);
    }
    // A file outside both databases.
    QString Outside(const QString& Name) {
        WriteFile(Elsewhere / Name, "outside " + Name.toUtf8());
        return Elsewhere / Name;
    }
    QString GardenFile(const QString& InAlbum) {
        return AlbumFolder(Own.Dir(), GardenID) + InAlbum;
    }
    // Answers the one question, and keeps what it was about.
    TransferDesk Asked(bool Answer) {
        return {.GoOnWithout = [this, Answer](const QStringList& Missing) {
            Questions << Missing;
            return Answer;
        }};
    }

    TempFolder Elsewhere;
    QList<QStringList> Questions;
};

// ---------------------------------------------------------------------- unusual names and places

TEST_F(TransferFiles, APictureOutsideTheDatabaseIsTakenIn) {
    WriteFile(Elsewhere / u"photo.pngSmall.bmp"_s, "not its thumbnail");
    WriteFile(Elsewhere / u"photoSmall.bmp"_s, "its thumbnail");
    clsNEBSlide& Slide = SlideAt(Own.Engine, GardenID, 0);
    Slide.SlideLoc = Outside(u"photo.png"_s);
    Slide.SoundTrackLoc = Outside(u"voice.mp3"_s);
    const TransferResult Result = Export(ToNew(GardenID));
    const clsNEBSlide& Arrived = SlideAt(Other.Engine, Result.DstAlbumID, 0);
    EXPECT_EQ(FileStem(Arrived.SlideID) + u".png"_s, Arrived.SlideLoc);
    EXPECT_EQ(FileStem(Arrived.SlideID) + u".mp3"_s, Arrived.SoundTrackLoc);
}

TEST_F(TransferFiles, ASoundTrackOutsideTheDatabaseIsTakenIn) {
    clsNEBSlideShow& Show = Own.AddShow(GardenID, u"Far"_s, 0, {});
    Show.SaveSoundTrack(2, Outside(u"song.no.1.WAV"_s), 1, 2, false, true, false);
    Export(ToNew(GardenID));
}

TEST_F(TransferFiles, SongsKeepTheirNames) {
    clsNEBSlideShow& Show = Own.AddShow(GardenID, u"Far"_s, 0, {});
    Show.SaveSoundTrack(1, Outside(u"Sonata.wav"_s), 1, 1, false, false, false);
    Show.SaveSoundTrack(2, u"00000077_2.mp3"_s, 2, 2, false, false, false);
    WriteFile(GardenFile(u"SoundTracks/00000077_2.mp3"_s), "waltz");
    KeepSongNames(GardenFile({}), {{u"00000077_2.mp3"_s, 5, u"Walzer.mp3"_s}});
    const TransferResult Result = Export(ToNew(GardenID));
    const QString There = AlbumFolder(Other.Dir(), Result.DstAlbumID);
    const std::int32_t ShowID = ShowNamed(Other.Engine, Result.DstAlbumID, u"Far"_s);
    std::string Names;
    for (const auto& Track :
         Other.Engine.GetAlbum(Result.DstAlbumID)->GetSlideShow(ShowID)->SoundTracks)
        Names += SongNames::Of(There)
                     .NameOf(Track->SoundTrackLoc,
                             FileSize(There + u"SoundTracks/"_s + Track->SoundTrackLoc))
                     .toStdString() +
                 "|";
    EXPECT_EQ("Sonata.wav|Walzer.mp3|", Names);
}

TEST_F(TransferFiles, ASlideWithoutAPictureStaysOne) {
    clsNEBSlide& Slide = SlideAt(Own.Engine, GardenID, 1);
    Slide.SlideLoc.clear();
    const TransferResult Result = Export(ToNew(GardenID));
    EXPECT_EQ(QString(), SlideAt(Other.Engine, Result.DstAlbumID, 1).SlideLoc);
}

TEST_F(TransferFiles, ATrackWithoutASoundStaysOne) {
    clsNEBSlideShow& Show = Own.AddShow(GardenID, u"Far"_s, 0, {});
    Show.SaveSoundTrack(1, {}, 1, 2, true, false, true);
    Own.AddTrack(GardenID, Show, 3, u".mp3"_s);
    const TransferResult Result = Export(ToNew(GardenID));
    ASSERT_TRUE(Result);
    const std::int32_t ShowID = ShowNamed(Other.Engine, Result.DstAlbumID, u"Far"_s);
    const auto& Tracks =
        Other.Engine.GetAlbum(Result.DstAlbumID)->GetSlideShow(ShowID)->SoundTracks;
    ASSERT_EQ(2U, Tracks.size());
    EXPECT_EQ(u""_s, Tracks[0]->SoundTrackLoc);
    EXPECT_TRUE(Tracks[0]->Repeat && Tracks[0]->Fade);
}

TEST_F(TransferFiles, APictureWithoutAnEndingArrivesWithoutOne) {
    clsNEBSlide& Slide = SlideAt(Own.Engine, GardenID, 2);
    Slide.SlideLoc = u"plain"_s;
    Own.PutFile(GardenID, u"Slides/plain"_s);
    ASSERT_FALSE(GardenFile(u"Slides/plain"_s).contains(u'.'));
    const TransferResult Result = Export(ToNew(GardenID));
    const QString Stem = SlidesFolder(Other.Dir(), Result.DstAlbumID) +
                         FileStem(SlideAt(Other.Engine, Result.DstAlbumID, 2).SlideID);
    EXPECT_EQ(ReadFile(GardenFile(u"Slides/00000002Small.bmp"_s)), ReadFile(Stem + u"Small.bmp"_s))
        << "the thumbnail of the picture before";
}

TEST_F(TransferFiles, NeitherTheFirstOfAllHasAThumbnailThen) {
    SlideAt(Own.Engine, GardenID, 0).SlideLoc = u"plain"_s;
    Own.PutFile(GardenID, u"Slides/plain"_s);
    Export(ToNew(GardenID));
}

TEST_F(TransferFiles, NamesInAnotherCaseThanTheFileAreFound) {
    clsNEBSlide& Slide = SlideAt(Own.Engine, GardenID, 0);
    Slide.SlideLoc = u"PiCTURE.jPeG"_s;
    Own.PutFile(GardenID, u"Slides/picture.JPEG"_s);
    Own.PutFile(GardenID, u"Slides/PICTURESMALL.BMP"_s);
    Slide.SoundTrackLoc = u"VOICE.WAV"_s;
    Own.PutFile(GardenID, u"Slides/voice.wav"_s);
    Export(ToNew(GardenID));
}

TEST_F(TransferFiles, StrayFilesStayWhereAlbumsAreJoinedAndGoWhereOneIsReplaced) {
    for (const char* Each : {"Slides/notes.txt", "Slides/.hidden", "SoundTracks/no ending",
                             "SoundTracks/00000099_1.mp3"})
        Other.PutFile(TownID, QLatin1String(Each));
    MakeDirs(SlidesFolder(Other.Dir(), TownID) + u"deeper"_s);
    Other.PutFile(TownID, u"Slides/deeper/kept.jpg"_s);
    StatedTransfer Joined = OverTown();
    Joined.Replace = false;
    Export(Joined);
    Export(OverTown());
}

TEST_F(TransferFiles, NoNewPictureTakesTheNumberOfAStrayFile) {
    const QString Next = u"Slides/"_s + FileStem(Other.Engine.NextSlideID);
    for (const char* Each : {".jpg", "Small.bmp", ".bmp", ".WAV"})
        Other.PutFile(TownID, Next + QLatin1String(Each));
    StatedTransfer Joined = OverTown();
    Joined.Replace = false;
    Export(Joined);
}

TEST_F(TransferFiles, NorThoseOfSeveralInARow) {
    for (std::int32_t I = 0; I < 3; ++I)
        Other.PutFile(TownID, u"Slides/"_s + FileStem(Other.Engine.NextSlideID + I) + u".jpg"_s);
    StatedTransfer Joined = OverTown();
    Joined.Replace = false;
    Export(Joined);
}

TEST_F(TransferFiles, AFolderWithPicturesOfALostAlbumIsNotUsed) {
    Other.PutFile(TownID, u"Slides/x"_s);
    MakeDirs(SlidesFolder(Other.Dir(), 3));
    Other.PutFile(3, u"Slides/left.jpg"_s);
    Export(ToNew(GardenID));
}

// What goes must not go before what comes has been read.
TEST_F(TransferFiles, APictureInTheFolderThatIsEmptiedArrives) {
    clsNEBSlide& Slide = SlideAt(Own.Engine, GardenID, 0);
    const clsNEBSlide& There = SlideAt(Own.Engine, SeaID, 0);
    Slide.SlideLoc = SlidesFolder(Own.Dir(), SeaID) + There.SlideLoc;
    ExpectDone(
        Own.Engine, Own.Engine,
        {.SrcAlbumID = GardenID, .DstAlbumID = SeaID, .Replace = true, .NewAlbumName = u"Sea"_s});
}

// Damage that was done before is not taken for the picture itself.
TEST_F(TransferFiles, APictureThatHadChangedByItselfIsRecognisedBehindTheTransfer) {
    WriteFile(GardenFile(u"Slides/00000001.jpg"_s), "rotten");
    const TransferResult Result = Transfer(Own.Engine, Other.Engine, ToNew(GardenID), Asked(true));
    ASSERT_TRUE(Result);
    const DatabaseState After = ReadDatabase(Other.Dir());
    ASSERT_EQ(1u, After.Irregular.size());
    EXPECT_EQ(u"no right check sum of Albums/%1/Slides/%2.JPG"_s.arg(Result.DstAlbumID)
                  .arg(FileStem(SlideAt(Other.Engine, Result.DstAlbumID, 0).SlideID)),
              After.Irregular[0]);
}

TEST_F(TransferFiles, AnAlbumOfEarlierVersionsHasNoListBehindATransferEither) {
    const std::int32_t Sea = Other.AddFilledAlbum(u"Sea"_s);
    StatedTransfer Joined = OverTown();
    Joined.DstAlbumID = Sea;
    Joined.Replace = false;
    Export(Joined);
    EXPECT_FALSE(FileExists(AlbumSumsPath(AlbumFolder(Other.Dir(), Sea))));
    const TransferResult Made = Export(ToNew(GardenID));
    EXPECT_TRUE(FileExists(AlbumSumsPath(AlbumFolder(Other.Dir(), Made.DstAlbumID))));
}

// ------------------------------------------------------------------------ missing and unreadable

TEST_F(TransferFiles, MissingFilesAreAskedAboutOnceAndNoChangesNothing) {
    QFile::remove(GardenFile(u"Slides/00000001.jpg"_s));
    QFile::remove(GardenFile(u"Slides/00000002.wav"_s));
    QFile::remove(GardenFile(u"SoundTracks/00000001_3.wav"_s));
    for (const StatedTransfer& Each : {ToNew(GardenID), OverTown()}) {
        const Untouched Both(Own.Engine, Other.Engine);
        Questions.clear();
        const TransferResult Result = Transfer(Own.Engine, Other.Engine, Each, Asked(false));
        EXPECT_EQ(TransferResult::End::Stopped, Result.Is);
        EXPECT_TRUE(Result.Boxes.empty());
        ASSERT_EQ(1, Questions.size());
        EXPECT_EQ(
            (QStringList{GardenFile(u"Slides/00000001.JPG"_s), GardenFile(u"Slides/00000002.wav"_s),
                         GardenFile(u"SoundTracks/00000001_3.wav"_s)}),
            Questions[0]);
        Both.Expect();
    }
}

TEST_F(TransferFiles, WithNobodyToAskMissingFilesStopIt) {
    QFile::remove(GardenFile(u"SoundTracks/00000001_3.wav"_s));
    const Untouched Both(Own.Engine, Other.Engine);
    EXPECT_EQ(TransferResult::End::Stopped, Transfer(Own.Engine, Other.Engine, ToNew(GardenID)).Is);
    Both.Expect();
}

TEST_F(TransferFiles, ItGoesOnWithoutThem) {
    QFile::remove(GardenFile(u"Slides/00000001.jpg"_s));
    QFile::remove(GardenFile(u"Slides/00000002.wav"_s));
    QFile::remove(GardenFile(u"SoundTracks/00000001_3.wav"_s));
    for (StatedTransfer Each : {ToNew(GardenID), OverTown()}) {
        Each.WithoutMissing = true;
        const TransferResult Result = Export(Each, Asked(true));
        const clsNEBAlbum& Album = *Other.Engine.GetAlbum(Result.DstAlbumID);
        EXPECT_EQ(QString(), Album.Slides[0]->SlideLoc);
        EXPECT_EQ(QString(), Album.Slides[1]->SoundTrackLoc);
        EXPECT_EQ(1U, Album.SlideShows[0]->SoundTracks.size());
    }
    EXPECT_EQ(2, Questions.size());
}

TEST_F(TransferFiles, AlsoWhereAShowIsReplaced) {
    QFile::remove(GardenFile(u"Slides/00000001.jpg"_s));
    QFile::remove(GardenFile(u"SoundTracks/00000001_1.mp3"_s));
    Export({.SrcAlbumID = GardenID,
            .SrcSlideShowID = 1,
            .DstAlbumID = TownID,
            .DstSlideShowID = ShowNamed(Other.Engine, TownID, u"Town walk"_s),
            .NewAlbumName = u"Town"_s,
            .NewSlideShowName = u"Tour"_s,
            .WithoutMissing = true},
           Asked(true));
}

TEST_F(TransferFiles, AMissingThumbnailIsNotAskedAbout) {
    QFile::remove(GardenFile(u"Slides/00000001Small.bmp"_s));
    Export(ToNew(GardenID), Asked(false));
    EXPECT_TRUE(Questions.isEmpty());
}

TEST_F(TransferFiles, AFolderInThePlaceOfAPictureIsAMissingOne) {
    QFile::remove(GardenFile(u"Slides/00000004.jpg"_s));
    QDir().mkdir(GardenFile(u"Slides/00000004.jpg"_s));
    StatedTransfer What = ToNew(GardenID);
    What.WithoutMissing = true;
    Own.Engine.FinalizeDB();
    const DatabaseState Before = ReadDatabase(Other.Dir()), Source = ReadDatabase(Own.Dir());
    ASSERT_TRUE(Transfer(Own.Engine, Other.Engine, What, Asked(true)));
    Other.Engine.FinalizeDB();
    EXPECT_EQ(1, Questions.size());
    EXPECT_EQ("", CheckTransfer(Source, Before, ReadDatabase(Other.Dir()), What));
}

TEST_F(TransferFiles, AnUnreadableFileIsAskedAboutLikeAMissingOne) {
    const QString Picture = GardenFile(u"Slides/00000001.jpg"_s);
    for (const MemoryFolder* Each : {&OwnFolder, &OtherFolder}) {
        QDirIterator Walk(Each->Path(), QDir::AllEntries | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
        for (QString Path = Each->Path(); !Path.isEmpty();
             Path = Walk.hasNext() ? Walk.next() : QString())
            QFile::setPermissions(Path, QFileDevice::Permissions(0x7777));
    }
    QFile::setPermissions(Picture, QFileDevice::Permissions());
    TransferResult Result;
    {
        const WithoutPrivileges AsSomebody;
        if (QFile(Picture).open(QIODevice::ReadOnly)) GTEST_SKIP() << "everything can be read here";
        Result = Transfer(Own.Engine, Other.Engine, ToNew(GardenID), Asked(false));
    }
    EXPECT_EQ(TransferResult::End::Stopped, Result.Is);
    EXPECT_EQ((QList<QStringList>{{GardenFile(u"Slides/00000001.JPG"_s)}}), Questions);
}

TEST_F(TransferFiles, AReadOnlyDestinationIsToldBeforeAnythingStarts) {
    QFile::setPermissions(OtherFolder / u"NextIDs.dat"_s, QFileDevice::ReadOwner);
    ExpectRefused(Own.Engine, Other.Engine, OverTown(),
                  "information|Read-Only Database|The database in\n" + Other.Dir().toStdString() +
                      "\nis read-only.",
                  Asked(true));
    EXPECT_TRUE(Questions.isEmpty());
}

// ------------------------------------------------------------------------------ stopped, broken
// off

TEST_F(TransferFiles, AStopAtAnyCallLeavesBothAsTheyWere) {
    for (const StatedTransfer& Each : {ToNew(GardenID), OverTown()}) {
        const Untouched Both(Own.Engine, Other.Engine);
        for (int Call = 1;; ++Call) {
            int Calls = 0;
            bool CanStop = true;
            const TransferDesk Desk{.Progress = [&](const TransferProgress& Now) {
                CanStop = Now.At != TransferProgress::Stage::Writing;
                return ++Calls != Call || !CanStop;
            }};
            const TransferResult Result = Transfer(Own.Engine, Other.Engine, Each, Desk);
            if (Result.Is == TransferResult::End::Done) break;
            EXPECT_EQ(TransferResult::End::Stopped, Result.Is);
            Both.Expect("stopped at call " + std::to_string(Call));
            ASSERT_LT(Call, 1000);
            ASSERT_FALSE(HasFailure());
        }
    }
}

TEST_F(TransferFiles, ItTellsHowFarItIs) {
    std::vector<TransferProgress> All;
    Export(ToNew(GardenID), {.Progress = [&](const TransferProgress& Now) {
               All.push_back(Now);
               return true;
           }});
    using enum TransferProgress::Stage;
    ASSERT_GE(All.size(), 3U);
    EXPECT_EQ(Looking, All.front().At);
    EXPECT_EQ(Writing, All.back().At);
    const auto Last = std::find_if(All.rbegin(), All.rend(),
                                   [](const TransferProgress& Each) { return Each.At == Copying; });
    ASSERT_NE(Last, All.rend());
    EXPECT_EQ(4, Last->OfPictures);
    EXPECT_EQ(4, Last->Pictures);
    EXPECT_EQ(Last->OfBytes, Last->Bytes);
    EXPECT_GT(Last->OfBytes, 0);
}

TEST_F(TransferFiles, AFaultFromTheOneWhoWatchesLeavesBothAsTheyWere) {
    const Untouched Both(Own.Engine, Other.Engine);
    int Calls = 0;
    const TransferDesk Desk{.Progress = [&](const TransferProgress& Now) -> bool {
        if (Now.At == TransferProgress::Stage::Copying && ++Calls == 1) throw Fault(u"box"_s);
        return true;
    }};
    EXPECT_THROW(Transfer(Own.Engine, Other.Engine, OverTown(), Desk), Fault);
    Both.Expect();
}

}  // namespace
}  // namespace neb::harness
