#include "db/recovery/DatabaseHealth.h"

#include <algorithm>

#include "db/modAlbumFiles.h"
#include "db/records/Generations.h"
#include "db/records/RecordSums.h"
#include "db/records/SessionJournal.h"
#include "db/records/WordsFile.h"
#include "support/Fault.h"
#include "support/Grouped.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesAccess.h"

namespace neb {
namespace {

QString NameOf(RecordFile File) {
    return QLatin1String(RecordFileName(File));
}

// These came later than the others, and their records may be none.
bool IsOptional(RecordFile File) {
    return File == RecordFile::Properties || File == RecordFile::EffectStats;
}

bool HoldsFiles(const QString& Folder) {
    return !ListMask(Folder + QStringLiteral("*.*")).isEmpty();
}

// Whether any album has a file in this folder of it.
bool AnyAlbumHolds(const QString& DBPath, QString (*FolderOf)(const QString&, std::int32_t)) {
    for (const DirEntry& Entry : ListDir(DBPath + QStringLiteral("Albums/"))) {
        const std::int32_t AlbumID = Entry.IsFolder ? Entry.Name.toInt() : 0;
        if (AlbumID > 0 && HoldsFiles(FolderOf(DBPath, AlbumID))) return true;
    }
    return false;
}

class HealthLook {
  public:
    explicit HealthLook(const QString& DBPath) : mDBPath(DBPath) {}

    DatabaseHealth Run() {
        if (!CanListFolder()) return mFound;
        LookAtFiles();
        mGoesOn = IsToBeFinished();
        LookAtWords();
        mInAlbums = NumbersInAlbums(mDBPath);
        mRecords = Survey();
        SetFree();
        mFound.LacksRecords = !mFound.IsSound();
        if (!mGoesOn) Judge();
        return mFound;
    }

  private:
    void Say(const QString& Sentence) { mFound.Wrong << Sentence; }
    const FileFound& In(RecordFile File) const { return mFiles[static_cast<size_t>(File)]; }
    bool Is(RecordFile File, FileFound::State State) const { return In(File).Is == State; }
    bool IsEmpty(RecordFile File) const {
        return Is(File, FileFound::State::Whole) && mRecords.LiveIn(File) == 0;
    }

    bool CanListFolder() {
        std::error_code Error;
        ListDir(mDBPath, Error);
        QString Why = WhyUnseen(mDBPath);
        if (Why.isEmpty() && Error && FolderExists(mDBPath))
            Why = QString::fromStdString(Error.message());
        if (!Why.isEmpty()) Say(tr("The folder %1 cannot be read: %2.").arg(mDBPath, Why));
        return Why.isEmpty();
    }

    void LookAtFiles() {
        for (const RecordFile File : AllRecordFiles) {
            FileFound Found = LookAtRecordFile(mDBPath, File);
            if (Found.Is == FileFound::State::NoFile)
                Say(tr("%1 is no file: %2.").arg(NameOf(File), Found.Why));
            if (Found.Is == FileFound::State::Unreadable)
                Say(QStringLiteral("%1: %2").arg(NameOf(File), Found.Why));
            if (!Found.Why.isEmpty()) mFound.Unusable.push_back(File);
            mFiles[static_cast<size_t>(File)] = std::move(Found);
        }
    }

    // A write that is to be brought to its end, or changes of a session that goes with the very
    // records that are there: they are as the program left them.
    bool IsToBeFinished() {
        if (!mFound.Unusable.empty()) return false;
        try {
            RecordImage Image;
            const bool Waits = ReadJournal(mDBPath, &Image) == JournalState::Whole;
            if (Waits) mJournal = std::move(Image);
            const FoundSession::State Session = LookForSession(mDBPath).Is;
            return Waits || Session == FoundSession::State::Goes;
        } catch (const Fault& Problem) {
            Say(Problem.Text().replace(u'\n', u' '));
            return false;
        }
    }

    // A write that is to be brought to its end has them, unless an earlier version began it.
    void LookAtWords() {
        if (mJournal && mJournal->Words) return;
        const QString Lost = WhatIsWrongWithWords();
        mFound.LacksWords = !Lost.isEmpty();
        if (mFound.LacksWords)
            Say(Lost + tr(" Captions and names in other scripts, or longer than their "
                          "records hold, are there as earlier albums in Backups have "
                          "them, or else in the closest letters."));
    }
    QString WhatIsWrongWithWords() {
        const QString Name = NameOf(RecordFile::Words),
                      Path = RecordPath(mDBPath, RecordFile::Words);
        if (!NameExists(Path) && WhyUnseen(Path).isEmpty())
            return HasLostWords(mDBPath) ? Name + tr(" is missing.") : QString();
        const QString Wrong = WhyNotUsable(Path);
        if (Wrong.isEmpty())
            return HasOtherWords(mDBPath)
                       ? Name + tr(" is not as it was written: something has changed it.")
                       : QString();
        mFound.Unusable.push_back(RecordFile::Words);
        return Name + Wrong;
    }
    // The end of a sentence; empty for what is sound.
    static QString WhyNotUsable(const QString& Path) {
        if (FolderExists(Path)) return tr(" is no file: it is a folder.");
        try {
            const WordsFound::State Is = WordsIn(ReadFile(Path)).Is;
            if (Is == WordsFound::State::Sound) return {};
            return Is == WordsFound::State::Later
                       ? tr(" was written by a later version of the program.")
                       : tr(" is damaged.");
        } catch (const Fault& Problem) {
            return tr(": The file cannot be read: %1.").arg(Problem.What());
        }
    }

    RecordSurvey Survey() {
        try {
            return SurveyRecords(mJournal ? RecordsInImage(*mJournal)
                                          : UsableRecords(mDBPath, mFound));
        } catch (const Fault& Problem) {
            Say(Problem.Text().replace(u'\n', u' '));
            return {};
        }
    }

    static std::int32_t Above(std::int32_t Next, std::int32_t Highest) {
        const std::int32_t Sane = Next >= 1 && Next <= MostNumbers ? Next : 1;
        return std::max(Sane, Highest + 1);
    }
    void SetFree() {
        const HighestNumbers All = HigherOf(mRecords.Highest, mInAlbums);
        const bool AreWhole = mJournal || Is(RecordFile::NextIDs, FileFound::State::Whole);
        const HighestNumbers Next = AreWhole ? mRecords.Next : HighestNumbers();
        mFound.Free = {Above(Next.AlbumID, All.AlbumID), Above(Next.SlideID, All.SlideID),
                       Above(Next.SlideShowID, All.SlideShowID)};
    }

    void Judge() {
        mNoted = CompareWithNoted(mDBPath);
        const bool AsWritten = mNoted.Is == NotedRecords::State::AsWritten;
        if (std::ranges::all_of(
                mFiles, [](const FileFound& Each) { return Each.Is == FileFound::State::Missing; }))
            return JudgeNone(AsWritten);
        if (!AsWritten) {
            JudgeFiles();
            JudgeEmptyOnes();
            mFound.LacksRecords = !mFound.IsSound();
            JudgeOwners();
        }
        JudgeCounters(AsWritten);
    }

    // Nothing at all is a new database, but not where pictures lie, or earlier states.
    void JudgeNone(bool AsWritten) {
        const bool HasNumbers = mFound.Free != IDCounters();
        mFound.IsNew = AsWritten || (!HasNumbers && ListGenerations(mDBPath).empty());
        if (mFound.IsNew) return;
        Say(HasNumbers ? tr("All files of records are missing, although pictures or "
                            "sounds lie in Albums.")
                       : tr("All files of records are missing, although there are "
                            "earlier albums in Backups."));
    }

    bool OthersHaveRecords(RecordFile File) const {
        return std::ranges::any_of(AllRecordFiles,
                                   [&](RecordFile Other) {
                                       return Other != File && Other != RecordFile::NextIDs &&
                                              In(Other).Length > 0;
                                   }) ||
               (File != RecordFile::NextIDs && mFound.Free != IDCounters()) ||
               (File == RecordFile::NextIDs && HighestInAll() > 0);
    }
    std::int32_t HighestInAll() const {
        const HighestNumbers All = HigherOf(mRecords.Highest, mInAlbums);
        return std::max({All.AlbumID, All.SlideID, All.SlideShowID});
    }

    void JudgeFiles() {
        for (const RecordFile File : AllRecordFiles) JudgeFile(File);
    }
    void JudgeFile(RecordFile File) {
        const bool IsOther = mNoted.Is == NotedRecords::State::Changed &&
                             std::ranges::count(mNoted.Others, File) > 0;
        if (Is(File, FileFound::State::Missing)) {
            if (IsOther || (!IsOptional(File) && OthersHaveRecords(File)))
                Say(tr("%1 is missing.").arg(NameOf(File)));
        } else if (Is(File, FileFound::State::Cut)) {
            SayCut(File);
        } else if (IsOther && In(File).Length == 0) {
            Say(tr("%1 is empty, and was not when it was written.").arg(NameOf(File)));
        } else if (IsOther && Is(File, FileFound::State::Whole)) {
            Say(tr("%1 is not as it was written: something has changed it.").arg(NameOf(File)));
        }
    }
    void SayCut(RecordFile File) {
        if (In(File).Length == 0) return Say(tr("%1 is empty.").arg(NameOf(File)));
        Say(tr("%1 is damaged: its %2 bytes are no whole number of records.")
                .arg(NameOf(File))
                .arg(In(File).Length));
    }

    // What no earlier look has named: a file without records, where others show that it had some.
    void JudgeEmptyOnes() {
        if (mNoted.Is == NotedRecords::State::Changed) return;
        if (IsEmpty(RecordFile::Albums) && IsEmpty(RecordFile::Slides) && mInAlbums.AlbumID > 0)
            Say(
                tr("Albums.dat has no albums, although there are folders of albums in "
                   "Albums."));
        if (IsEmpty(RecordFile::Slides) && AnyAlbumHolds(mDBPath, SlidesFolder))
            Say(tr("Slides.dat has no slides, although there are pictures in Albums."));
        if (IsEmpty(RecordFile::SlideShowDetails) && mRecords.LiveIn(RecordFile::SlideShows) > 0)
            Say(tr("SlideShowDetails.dat is empty, although there are slide shows."));
        if (IsEmpty(RecordFile::SlideShowSoundTracks) &&
            mRecords.LiveIn(RecordFile::SlideShows) > 0 &&
            AnyAlbumHolds(mDBPath, SoundTracksFolder))
            Say(
                tr("SlideShowSoundTracks.dat is empty, although there are sound tracks "
                   "in Albums."));
    }

    void JudgeOwners() {
        const qint64 Slides = mRecords.SlidesAlone, Shows = mRecords.ShowsAlone;
        if (Slides > 0)
            Say(Counted(Slides,
                        QT_TR_NOOP("%1 slide belongs to an album that is not in Albums.dat."),
                        QT_TR_NOOP("%1 slides belong to an album that is not in Albums.dat.")));
        if (Shows > 0)
            Say(Counted(
                Shows, QT_TR_NOOP("%1 slide show belongs to an album that is not in Albums.dat."),
                QT_TR_NOOP("%1 slide shows belong to an album that is not in Albums.dat.")));
        if (const qint64 Parts = mRecords.PlacesAlone + mRecords.TracksAlone;
            Parts > 0 && Shows == 0)
            Say(Counted(
                Parts,
                QT_TR_NOOP("%1 place or sound track belongs to a slide show that is not there."),
                QT_TR_NOOP("%1 places or sound tracks belong to a slide show that is not there.")));
        if (mRecords.Senseless > 0)
            Say(Counted(mRecords.Senseless,
                        QT_TR_NOOP("%1 record has a number that the program never gives."),
                        QT_TR_NOOP("%1 records have a number that the program never gives.")));
    }

    // Pictures beyond the counters that the program has written itself were left by a crash.
    void JudgeCounters(bool AsWritten) {
        if (!Is(RecordFile::NextIDs, FileFound::State::Whole)) return;
        const HighestNumbers All =
            AsWritten ? mRecords.Highest : HigherOf(mRecords.Highest, mInAlbums);
        JudgeCounter(QT_TR_NOOP("album"), mRecords.Next.AlbumID, All.AlbumID);
        JudgeCounter(QT_TR_NOOP("slide"), mRecords.Next.SlideID, All.SlideID);
        JudgeCounter(QT_TR_NOOP("slide show"), mRecords.Next.SlideShowID, All.SlideShowID);
    }
    void JudgeCounter(const char* What, std::int32_t Next, std::int32_t Highest) {
        const QString Name = tr(What);
        if (Next < 1 || Next > MostNumbers)
            Say(tr("NextIDs.dat has no sensible number for the next %1.").arg(Name));
        else if (Next <= Highest)
            Say(tr("NextIDs.dat says that the next %1 has the number %2, but number %3 "
                   "is taken: new pictures or sounds would replace old ones.")
                    .arg(Name)
                    .arg(Next)
                    .arg(Highest));
    }

    const QString mDBPath;
    DatabaseHealth mFound;
    std::array<FileFound, RecordFileCount> mFiles;
    std::optional<RecordImage> mJournal;
    bool mGoesOn = false;
    HighestNumbers mInAlbums;
    RecordSurvey mRecords;
    NotedRecords mNoted;
};

}  // namespace

bool DatabaseHealth::CanBeUsed(RecordFile File) const {
    return std::ranges::count(Unusable, File) == 0;
}

DatabaseHealth LookAtHealth(const QString& DBPath) {
    return HealthLook(DBPath).Run();
}

RecordSource UsableRecords(const QString& DBPath, const DatabaseHealth& Health) {
    return [There = RecordsInDirectory(DBPath), Health](RecordFile File) {
        return Health.CanBeUsed(File) ? There(File) : std::nullopt;
    };
}

}  // namespace neb
