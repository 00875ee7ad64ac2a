// What is planned for the sound files of a show, without touching them; and what is left of them
// when a save fails, or ends, at any of its steps.
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <csignal>

#include "ShowRig.h"
#include "albums/TrackPlan.h"
#include "db/SongNames.h"

namespace neb::harness {
namespace {

class Plan : public ShowRig {
  protected:
    QString Folder() { return SoundTracksFolder(Engine.DBPath(), AlbumID); }
    void Put(const QString& Name) { WriteFile(Folder() + Name, Name.toUtf8()); }
    // "copies / names / deletions", each path as its name alone.
    std::string Planned(const std::vector<ShowTrack>& Tracks, const std::vector<QString>& Stored) {
        const TrackPlan Made = PlanTracks(Folder(), 7, Tracks, Stored);
        QStringList Copies, Names, Deletions;
        for (const auto& Each : Made.Copies)
            Copies << GetFileName(Each.From) + u'>' + GetFileName(Each.To);
        for (const QString& Each : Made.Names) Names << Each;
        for (const QString& Each : Made.Deletions) Deletions << GetFileName(Each);
        return (Copies.join(u' ') + u" / "_s + Names.join(u' ') + u" / "_s + Deletions.join(u' '))
            .toStdString();
    }
    ShowTrack Row(const QString& File) { return NewTrack(1, 1, File); }
};

TEST_F(Plan, TouchesNothing) {
    Put(u"00000007_1.mp3"_s);
    const std::string Before = TrackFiles();
    EXPECT_EQ("a.mp3>00000007_1.mp3 / 00000007_1.mp3 / 00000007_5.mp3",
              Planned({Row(MakeSound(u"a.mp3"_s))}, {u"00000007_1.mp3"_s, u"00000007_5.mp3"_s}));
    EXPECT_EQ(Before, TrackFiles());
}

TEST_F(Plan, NumbersEachNewFileByItsRow) {
    EXPECT_EQ("a.mp3>00000007_1.mp3 b>00000007_3 / 00000007_1.mp3  00000007_3 / ",
              Planned({Row(MakeSound(u"a.mp3"_s)), {}, Row(MakeSound(u"b"_s))}, {}));
}

TEST_F(Plan, LeavesRowsAloneThatAreNotFilled) {
    ShowTrack Open = Row(MakeSound(u"a.mp3"_s));
    Open.SlideSeqEnd.reset();
    EXPECT_EQ((" / " + Open.SoundTrackLoc + u" / 00000007_1.mp3"_s).toStdString(),
              Planned({Open}, {u"00000007_1.mp3"_s}));
}

TEST_F(Plan, KeepsAFileThatAnotherRowPlaysUnderTheNextNumberThatIsFree) {
    Put(u"00000007_1.mp3"_s);
    Put(u"00000007_100.MP3"_s);
    EXPECT_EQ(
        "00000007_1.mp3>00000007_101.mp3 a.mp3>00000007_1.mp3 / "
        "00000007_1.mp3 00000007_101.mp3 00000007_101.mp3 / ",
        Planned({Row(MakeSound(u"a.mp3"_s)), Row(u"00000007_1.MP3"_s), Row(u"00000007_1.mp3"_s)},
                {u"00000007_1.mp3"_s}));
}

TEST_F(Plan, KeepsTwoDisplacedFilesApart) {
    Put(u"00000007_1.mp3"_s);
    Put(u"00000007_2.mp3"_s);
    EXPECT_EQ(
        "00000007_1.mp3>00000007_100.mp3 00000007_2.mp3>00000007_101.mp3 a.mp3>00000007_1.mp3 "
        "b.mp3>00000007_2.mp3 / 00000007_1.mp3 00000007_2.mp3 00000007_100.mp3 00000007_101.mp3 / ",
        Planned({Row(MakeSound(u"a.mp3"_s)), Row(MakeSound(u"b.mp3"_s)), Row(u"00000007_1.mp3"_s),
                 Row(u"00000007_2.mp3"_s)},
                {u"00000007_1.mp3"_s, u"00000007_2.mp3"_s}));
}

TEST_F(Plan, DoesNotCopyAFileOntoItselfNorDeleteWhatLiesElsewhere) {
    Put(u"00000007_1.mp3"_s);
    EXPECT_EQ(" / 00000007_1.mp3 / ", Planned({Row(Folder() + u"00000007_1.mp3"_s)},
                                              {u"00000007_1.MP3"_s, u"/music/x.mp3"_s, u""_s}));
}

// What songs were called is entered behind the record, into a file in the album's folder: a name is
// not worth a show.
bool IsOfSongNames(HostStep Step, const QString& Path) {
    return Path.contains(QLatin1String(SongNamesFile)) ||
           (Step == HostStep::SyncDir && !Path.contains(u"SoundTracks"_s));
}

// A show of four tracks, stored, in which two files are to be replaced, one is displaced and still
// played, one is new, and one goes.
class TrackFault : public ShowRig {
  protected:
    TrackFault() {
        Content = NewShow(8);
        Content.Tracks = {
            NewTrack(1, 1, MakeSound(u"a.mp3"_s)), NewTrack(2, 2, MakeSound(u"b.wav"_s)),
            NewTrack(3, 3, MakeSound(u"c.mp3"_s)), NewTrack(4, 4, MakeSound(u"d.mp3"_s))};
        Save(Content);
        Content.Name = u"Run"_s;
        Content.Slides.pop_back();
        Content.Tracks[4 - 1] = NewTrack(4, 4, Content.Tracks[0].SoundTrackLoc);
        Content.Tracks[0].SoundTrackLoc = MakeSound(u"new a.mp3"_s);
        Content.Tracks[1].SoundTrackLoc = MakeSound(u"new b.wav"_s);
        Content.Tracks[2].SoundTrackLoc = MakeSound(u"new c.mp3"_s);
        Content.Tracks.push_back(NewTrack(5, 5, MakeSound(u"e.mp3"_s)));
        Before = State();
    }
    std::string State() {
        return Album().GetSlideShow(1)->SlideShowName.toStdString() + ' ' + StoredDetails(1) + ' ' +
               StoredTracks(1) + ' ' + TrackFiles();
    }
    void ExpectSaved() {
        EXPECT_EQ(
            "1:1-1 00000001_1.mp3|2:2-2 00000001_2.wav|3:3-3 00000001_3.mp3|4:4-4 "
            "00000001_100.mp3|5:5-5 00000001_5.mp3",
            StoredTracks(1));
        EXPECT_EQ(
            "00000001_1.mp3=new a.mp3 00000001_100.mp3=a.mp3 00000001_2.wav=new b.wav "
            "00000001_3.mp3=new c.mp3 00000001_5.mp3=e.mp3",
            TrackFiles());
    }
    ShowContent Content;
    std::string Before;
};

TEST_F(TrackFault, AtAnyStepLeavesTheShowAndItsFilesAsTheyWere) {
    const ShowContent Composed = Content;
    for (int Number = 1;; ++Number) {
        ASSERT_LT(Number, 200);
        int Left = Number;
        bool Failed = false;
        SetHostWatcher([&](HostStep Step, const QString& Path, qint64& Length) {
            if (Step == HostStep::Delete || IsOfSongNames(Step, Path) || --Left != 0) return;
            Failed = true;
            if (Step != HostStep::Write) throw Fault(u"No."_s, Path);
            Length /= 2;  // the disk is full
        });
        try {
            EXPECT_TRUE(WriteShow(Content, Engine));
        } catch (const Fault&) {
            EXPECT_TRUE(Failed);
        }
        SetHostWatcher({});
        if (!Failed) break;
        ASSERT_EQ(Before, State()) << "step " << Number;
        EXPECT_TRUE(Composed.Tracks == Content.Tracks) << "step " << Number;
    }
    ExpectSaved();
}

TEST_F(TrackFault, AListOfSongNamesThatCannotBeWrittenLeavesTheShowSaved) {
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (IsOfSongNames(Step, Path)) throw Fault(u"No."_s, Path);
    });
    EXPECT_TRUE(WriteShow(Content, Engine));
    SetHostWatcher({});
    ExpectSaved();
}

TEST_F(TrackFault, FilesAndTheirNamesAreFlushedBeforeTheRecordNamesThem) {
    QStringList Steps;
    SetHostWatcher([&](HostStep Step, const QString&, qint64&) {
        if (Step == HostStep::Sync) Steps << u"file"_s;
        if (Step == HostStep::Rename) Steps << u"name"_s;
        if (Step == HostStep::SyncDir) Steps << u"folder"_s;
    });
    Engine.Listeners.Noted = [&](const Change&) { Steps << u"record"_s; };
    Save(Content);
    Engine.Listeners.Noted = {};
    const qsizetype Record = Steps.indexOf(u"record"_s);
    ASSERT_GT(Record, 2);
    EXPECT_EQ("folder", Steps[Record - 1].toStdString());
    EXPECT_EQ("name", Steps[Record - 2].toStdString());
    EXPECT_LT(Steps.lastIndexOf(u"file"_s), Steps.lastIndexOf(u"name"_s));
}

TEST_F(TrackFault, ASourceThatIsMissingLeavesTheShowAndItsFilesAsTheyWere) {
    for (const size_t Row : {0u, 1u, 2u, 4u}) {
        const QString File = Content.Tracks[Row].SoundTrackLoc;
        const QByteArray Bytes = ReadFile(File);
        DeleteFile(File);
        EXPECT_THROW((void)WriteShow(Content, Engine), Fault);
        EXPECT_EQ(Before, State()) << Row;
        WriteFile(File, Bytes);
    }
    Save(Content);
    ExpectSaved();
}

// A sound that has gone bad is just what somebody replaces, be it one or several at once.
TEST_F(TrackFault, StoredSoundsThatCannotBeReadAreReplacedAllTheSame) {
    const QString Folder = SoundTracksFolder(Engine.DBPath(), AlbumID);
    for (const QString& Name : {u"00000001_1.mp3"_s, u"00000001_2.wav"_s}) {
        DeleteFile(Folder + Name);
        ASSERT_TRUE(QFile::link(u"/nowhere/gone"_s, Folder + Name));
    }
    Content.Tracks[3] = {};
    Save(Content);
    EXPECT_EQ("new a.mp3", ReadFile(Folder + u"00000001_1.mp3"_s).toStdString());
    EXPECT_EQ("new b.wav", ReadFile(Folder + u"00000001_2.wav"_s).toStdString());
    EXPECT_EQ(std::string::npos, TrackFiles().find(".old"));
}

// Records that were on the disk at that moment name the files by which the show was played: they
// are there and whole.
class TrackKill : public TrackFault {
  protected:
    // False when the save got to its end before that step, of those of one kind or of all.
    bool KilledAt(int Number, std::optional<HostStep> Only = {}) {
        PutOldFiles();
        const pid_t Child = ::fork();
        if (Child == 0) {
            SetHostWatcher(
                [Left = Number, Only](HostStep Step, const QString& Path, qint64&) mutable {
                    if (IsOfSongNames(Step, Path) || Only.value_or(Step) != Step) return;
                    if (--Left == 0) ::kill(::getpid(), SIGKILL);
                });
            ::_exit(WriteShow(Content, Engine) ? 0 : 1);
        }
        int Status = 0;
        ::waitpid(Child, &Status, 0);
        EXPECT_TRUE(WIFSIGNALED(Status) || WEXITSTATUS(Status) == 0);
        return WIFSIGNALED(Status);
    }
    // How many of the three files have been replaced; each is the old or the new one.
    int Replaced() {
        int Count = 0;
        for (const char* Each : {"a.mp3", "b.wav", "c.mp3"}) {
            const QByteArray Now = ReadFile(PathOf(Each));
            EXPECT_TRUE(Now == Each || Now == QByteArray("new ") + Each) << Now.toStdString();
            Count += Now != Each;
        }
        return Count;
    }

  private:
    QString PathOf(const char* Name) {
        return SoundTracksFolder(Engine.DBPath(), AlbumID) +
               u"00000001_%1%2"_s.arg(Name[0] - 'a' + 1).arg(QLatin1String(Name + 1));
    }
    void PutOldFiles() {
        DeleteFilesIn(SoundTracksFolder(Engine.DBPath(), AlbumID));
        for (const char* Each : {"a.mp3", "b.wav", "c.mp3", "d.mp3"}) WriteFile(PathOf(Each), Each);
    }
};

TEST_F(TrackKill, AtAnyStepLeavesEachFileThatTheStoredShowPlays) {
    int Most = 0;
    for (int Number = 1; KilledAt(Number); ++Number) {
        const int Now = Replaced();
        EXPECT_GE(Now, Most) << "step " << Number;
        Most = Now;
        ASSERT_LT(Number, 200);
    }
    EXPECT_EQ(3, Most);
    EXPECT_EQ(3, Replaced());
}

TEST_F(TrackKill, WhileAnythingIsCopiedLeavesTheOldFiles) {
    int Number = 1;
    for (; KilledAt(Number, HostStep::Write); ++Number) {
        EXPECT_EQ(0, Replaced()) << "write " << Number;
        ASSERT_LT(Number, 200);
    }
    EXPECT_GT(Number, 5) << "each file is written";
    EXPECT_EQ(3, Replaced());
}

}  // namespace
}  // namespace neb::harness
