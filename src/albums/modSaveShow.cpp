#include "albums/modSaveShow.h"

#include "albums/TrackPlan.h"
#include "db/NamedSounds.h"
#include "db/SongNames.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"
#include "support/modNumbers.h"
#include "support/modText.h"

namespace neb {
namespace {

constexpr char BadSequence[] = QT_TR_NOOP("Invalid Slide Sequence");
constexpr char BadOptions[] = QT_TR_NOOP("Invalid Option Combination");
constexpr char Deleted[] = QT_TR_NOOP("Delete Detected");

// A later track that begins before this one and ends behind it is let through; the show then plays
// the first of the two.
bool Overlap(const ShowTrack& Track, const ShowTrack& Later) {
    const auto Covers = [&](double Slide) {
        return *Track.SlideSeqStart <= Slide && *Track.SlideSeqEnd >= Slide;
    };
    return Covers(*Later.SlideSeqStart) || Covers(*Later.SlideSeqEnd);
}

Answer<> CheckSequence(const ShowTrack& Track, size_t SlideCount) {
    if (*Track.SlideSeqStart < 0)
        return Refuse(tr("The Starting Slide # must be >=1."), tr(BadSequence));
    if (*Track.SlideSeqEnd > static_cast<double>(SlideCount))
        return Refuse(tr("The Ending Slide # must be <= the total number of slides in the show."),
                      tr(BadSequence));
    if (*Track.SlideSeqStart > *Track.SlideSeqEnd)
        return Refuse(tr("The Ending Slide # must be >= the Starting Slide #."), tr(BadSequence));
    return Done();
}

// What is missing, as a user calls it; empty for a whole row and for an empty one.
QString MissingIn(const ShowTrack& Track) {
    if (Track == ShowTrack()) return {};
    QStringList Missing;
    if (!Track.SlideSeqStart) Missing << tr("a first slide");
    if (!Track.SlideSeqEnd) Missing << tr("a last slide");
    if (Track.SoundTrackLoc.isEmpty()) Missing << tr("a sound file");
    if (Missing.size() < 2) return Missing.join(QString());
    const QString Last = Missing.takeLast();
    return Missing.join(QStringLiteral(", ")) + tr(" and ") + Last;
}

Answer<> CheckWhole(const ShowTrack& Track, size_t Number) {
    const QString Missing = MissingIn(Track);
    if (Missing.isEmpty()) return Done();
    return Refuse(tr("Sound track %1 lacks %2. Complete its row, or empty it with the "
                     "Del key.")
                      .arg(QString::number(Number), Missing),
                  tr("Incomplete Sound Track"));
}

Answer<> CheckTracks(const ShowContent& Content) {
    for (auto Track = Content.Tracks.begin(); Track != Content.Tracks.end(); ++Track) {
        const auto Number = static_cast<size_t>(Track - Content.Tracks.begin()) + 1;
        if (const Answer<> Is = CheckWhole(*Track, Number); !Is) return Is;
        if (!Track->IsFilled()) continue;
        if (const Answer<> Is = CheckSequence(*Track, Content.Slides.size()); !Is) return Is;
        if (const Answer<> Is = CheckTrackOptions(*Track, Content.ProgressionMethod); !Is)
            return Is;
        for (auto Later = Track + 1; Later != Content.Tracks.end(); ++Later)
            if (Later->IsFilled() && Overlap(*Track, *Later))
                return Refuse(tr("A slide cannot use more than 1 sound track."), tr(BadSequence));
    }
    return Done();
}

Answer<> CheckOtherNames(const clsNEBAlbum& Album, std::int32_t SlideShowID, const QString& Name) {
    const QString Wanted = CaselessName(CleanName(Name));
    for (const auto& Show : Album.SlideShows)
        if (Show->SlideShowID != SlideShowID && CaselessName(Show->SlideShowName) == Wanted)
            return Refuse(tr("A Slide Show with this name already exists in this Album."),
                          tr("Slide Show Name Already In Use"));
    return Done();
}

Answer<> CheckLength(const QString& Name) {
    if (CleanName(Name).size() <= MaxName) return Done();
    return Refuse(tr("Slide show names must be <= 80 characters long."));
}

Answer<> CheckNames(const ShowContent& Content, const clsNEBAlbum& Album) {
    if (Album.SlideShows.empty()) return Done();
    if (const Answer<> Is = CheckOtherNames(Album, Content.SlideShowID, Content.Name); !Is)
        return Is;
    if (Content.SlideShowID != 0 && !Album.GetSlideShow(Content.SlideShowID))
        return Refuse(tr("The Slide Show you are editing no longer appears to exist."),
                      tr(Deleted));
    return Done();
}

// A caption that the user has emptied is one blank: none at all would stand for the slide's own.
QString StoredCaption(const ShowSlide& Slide) {
    const QString Text = CleanText(Slide.SlideText);
    if (Text == CleanText(Slide.OwnText)) return {};
    return Text.isEmpty() ? QStringLiteral(" ") : Text;
}

clsNEBSlideShow Record(const ShowContent& Content) {
    clsNEBSlideShow Show;
    Show.SlideShowID = Content.SlideShowID;
    Show.SlideShowName = Content.Name;
    Show.ProgressionMethod = Content.ProgressionMethod;
    std::int32_t Place = 0, Number = 0;
    for (const ShowSlide& Slide : Content.Slides)
        Show.SaveDetail(Slide.SlideID, ++Place, StoredCaption(Slide));
    for (const ShowTrack& Track : Content.Tracks) {
        ++Number;
        if (Track.IsFilled())
            Show.SaveSoundTrack(Number, Track.SoundTrackLoc, CInt(*Track.SlideSeqStart),
                                CInt(*Track.SlideSeqEnd), Track.Repeat, Track.FitToSong,
                                Track.Fade);
    }
    return Show;
}

// The number that the show has, or that a new one is going to have.
Answer<std::int32_t> NumberOf(const ShowContent& Content, const clsDBEngine& theDB) {
    const clsNEBAlbum* Album = theDB.GetAlbum(Content.AlbumID);
    const bool IsNew = Content.SlideShowID == 0;
    if (IsNew && !Album) return Refuse(tr("Failed to create Slide Show."));
    if (IsNew) return FreeSlideShowID(theDB.DBPath(), Content.AlbumID, theDB.NextSlideShowID);
    if (!Album || !Album->GetSlideShow(Content.SlideShowID))
        return Refuse(tr("Slide Show not found."));
    return Content.SlideShowID;
}

TrackPlan PlanFor(const ShowContent& Content, std::int32_t SlideShowID, const clsDBEngine& theDB) {
    std::vector<QString> Stored;
    if (const auto* Show = theDB.GetAlbum(Content.AlbumID)->GetSlideShow(Content.SlideShowID))
        for (const auto& Track : Show->SoundTracks) Stored.push_back(Track->SoundTrackLoc);
    return PlanTracks(SoundTracksFolder(theDB.DBPath(), Content.AlbumID), SlideShowID,
                      Content.Tracks, Stored,
                      SoundsNamedBesides(theDB, Content.AlbumID, Content.SlideShowID));
}

// A copy of a sound that the album has already is called as that one is.
void NoteNames(const TrackPlan& Plan, const QString& Album) {
    const SongNames Before = SongNames::Of(Album);
    std::vector<NamedSong> Came;
    for (const TrackPlan::Copy& Each : Plan.Copies) {
        const qint64 Bytes = FileSize(Each.To);
        QString Name = GetFileName(Each.From);
        if (ResolvePath(GetFilePath(Each.From)) == ResolvePath(Plan.Folder))
            Name = Before.NameOf(Name, Bytes);
        if (!Name.isEmpty()) Came.push_back({GetFileName(Each.To), Bytes, ReadableText(Name)});
    }
    KeepSongNames(Album, Came);
}

// From here on nothing waits: the show and its files change together.
Answer<Announcement> Store(ShowContent& Content, std::int32_t SlideShowID, TrackCopies& Files,
                           clsDBEngine& theDB, Changes Door) {
    Files.PutInPlace();
    ShowContent Placed = Content;
    Placed.SlideShowID = SlideShowID;
    for (size_t Row = 0; Row < Placed.Tracks.size(); ++Row)
        Placed.Tracks[Row].SoundTrackLoc = Files.Plan().Names[Row];
    Answer<Announcement> Saved = Door.SaveShow(Placed.AlbumID, Record(Placed));
    if (!Saved) return Saved;
    Files.Keep(Door);
    NoteNames(Files.Plan(), AlbumFolder(theDB.DBPath(), Placed.AlbumID));
    Content = std::move(Placed);
    Content.SlideShowID = Saved->What().SlideShowID;
    if (theDB.IsSessionStored()) Files.DropUnused(Door);
    return Saved;
}

}  // namespace

Answer<> CheckTrackOptions(const ShowTrack& Track, std::int32_t ProgressionMethod) {
    if (ProgressionMethod != 1) return Done();
    if (Track.FitToSong)
        return Refuse(tr("You cannot select both Fit To Song and Manual Progression."),
                      tr(BadOptions));
    if (Track.Fade)
        return Refuse(tr("You cannot select both Fade and Manual Progression."), tr(BadOptions));
    return Done();
}

Answer<> CheckShowName(const QString& Name) {
    if (!Name.trimmed().isEmpty()) return CheckLength(Name);
    return Refuse(tr("You have to enter a name for the slide show."));
}

Answer<> CheckShowName(const clsNEBAlbum& Album, std::int32_t SlideShowID, const QString& Name) {
    const Answer<> Is = CheckShowName(Name);
    return Is ? CheckOtherNames(Album, SlideShowID, Name) : Is;
}

Answer<Announcement> RenameShow(clsDBEngine& theDB, std::int32_t AlbumID, std::int32_t SlideShowID,
                                const QString& Name, const QObject* Asker) {
    const QString Clean = CleanName(Name);
    const clsNEBAlbum* Album = theDB.GetAlbum(AlbumID);
    if (!Album) return Refuse(tr("The current Album could not be found."), tr(Deleted));
    if (const Answer<> May = CheckShowName(*Album, SlideShowID, Clean); !May)
        return Answer<Announcement>::Because(May);
    const clsNEBSlideShow* Stored = Album->GetSlideShow(SlideShowID);
    if (!Stored)
        return Refuse(tr("The Slide Show you are editing no longer appears to exist."),
                      tr(Deleted));
    clsNEBSlideShow Show = std::move(*Stored->Copy());
    Show.SlideShowName = Clean;
    return Changes(theDB, Asker).SaveShow(AlbumID, std::move(Show));
}

Answer<> CheckShow(ShowContent& Content, const clsDBEngine& theDB) {
    if (Content.AlbumID == 0)
        return Refuse(tr("You must first select an album to save the slide show in."));
    if (Content.Name.isEmpty()) return Refuse(tr("You have to enter a name for the slide show."));
    Content.Name = CleanName(Content.Name);
    if (const Answer<> Is = CheckLength(Content.Name); !Is) return Is;
    if (Content.Slides.empty())
        return Refuse(tr("You must select atleast 1 slide for the Slide Show."));
    if (const Answer<> Are = CheckTracks(Content); !Are) return Are;
    const clsNEBAlbum* Album = theDB.GetAlbum(Content.AlbumID);
    if (!Album) return Refuse(tr("The current Album could not be found."), tr(Deleted));
    return CheckNames(Content, *Album);
}

// While files are copied others may be at work: a show that is made meanwhile takes the number for
// which this one was planned, and the one that is to be replaced may go, and its files with it.
Answer<Announcement> WriteShow(ShowContent& Content, clsDBEngine& theDB, const Yield& LetRun,
                               const QObject* Asker) {
    for (;;) {
        Answer<std::int32_t> Number = NumberOf(Content, theDB);
        if (!Number) return Answer<Announcement>::Because(Number);
        TrackCopies Files(PlanFor(Content, *Number, theDB));
        try {
            Files.Make(LetRun);
        } catch (const Fault&) {
            if (NumberOf(Content, theDB)) throw;
        }
        const bool IsItsOwn = Content.SlideShowID != 0 || theDB.NextSlideShowID <= *Number;
        if (NumberOf(Content, theDB) && IsItsOwn)
            return Store(Content, *Number, Files, theDB, Changes(theDB, Asker));
    }
}

}  // namespace neb
