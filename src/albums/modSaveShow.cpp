#include "albums/modSaveShow.h"

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/Fault.h"
#include "support/FlagText.h"
#include "support/files/modHostFiles.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

using Check = std::optional<BoxRequest>;

const QString BadSequence = QStringLiteral("Invalid Slide Sequence");
const QString BadOptions = QStringLiteral("Invalid Option Combination");
const QString Deleted = QStringLiteral("Delete Detected");

BoxRequest Plain(const QString& Text) {
    return {.Text = Text};
}

BoxRequest Told(const QString& Text, const QString& Title) {
    return {.Text = Text, .Title = Title, .Icon = BoxIcon::Information};
}

double Start(const ShowTrack& Track) {
    return Val(Track.SlideSeqStart);
}

double End(const ShowTrack& Track) {
    return Val(Track.SlideSeqEnd);
}

// A later track that begins before this one and ends behind it is let through; the show then plays
// the first of the two.
bool Overlap(const ShowTrack& Track, const ShowTrack& Later) {
    const auto Covers = [&](double Slide) { return Start(Track) <= Slide && End(Track) >= Slide; };
    return Covers(Start(Later)) || Covers(End(Later));
}

Check CheckSequence(const ShowTrack& Track, size_t SlideCount) {
    if (Start(Track) < 0)
        return Told(QStringLiteral("The Starting Slide # must be >=1."), BadSequence);
    if (End(Track) > static_cast<double>(SlideCount))
        return Told(
            QStringLiteral("The Ending Slide # must be <= the total number of slides in the show."),
            BadSequence);
    if (Start(Track) > End(Track))
        return Told(QStringLiteral("The Ending Slide # must be >= the Starting Slide #."),
                    BadSequence);
    return {};
}

Check CheckOptions(const ShowTrack& Track, std::int32_t ProgressionMethod) {
    if (ProgressionMethod != 1) return {};
    if (IsChecked(Track.FitToSong))
        return Told(QStringLiteral("You cannot select both Fit To Song and Manual Progression."),
                    BadOptions);
    if (IsChecked(Track.Fade))
        return Told(QStringLiteral("You cannot select both Fade and Manual Progression."),
                    BadOptions);
    return {};
}

Check CheckTracks(const ShowContent& Content) {
    for (auto Track = Content.Tracks.begin(); Track != Content.Tracks.end(); ++Track) {
        if (!Track->IsFilled()) continue;
        if (Check Refused = CheckSequence(*Track, Content.Slides.size())) return Refused;
        if (Check Refused = CheckOptions(*Track, Content.ProgressionMethod)) return Refused;
        for (auto Later = Track + 1; Later != Content.Tracks.end(); ++Later)
            if (Later->IsFilled() && Overlap(*Track, *Later))
                return Told(QStringLiteral("A slide cannot use more than 1 sound track."),
                            BadSequence);
    }
    return {};
}

Check CheckNames(const ShowContent& Content, const clsNEBAlbum& Album) {
    if (Album.SlideShows.empty()) return {};
    for (const auto& Show : Album.SlideShows)
        if (Show->SlideShowID != Content.SlideShowID &&
            Show->SlideShowName.toUpper() == Content.Name.toUpper())
            return Told(QStringLiteral("A Slide Show with this name already exists in this Album."),
                        QStringLiteral("Slide Show Name Already In Use"));
    if (Content.SlideShowID != 0 && !Album.GetSlideShow(Content.SlideShowID))
        return Told(QStringLiteral("The Slide Show you are editing no longer appears to exist."),
                    Deleted);
    return {};
}

// A caption that the user has emptied is one blank: none at all would stand for the slide's own.
QString StoredCaption(const ShowSlide& Slide) {
    const QString Text = CleanText(Slide.SlideText);
    if (Text == CleanText(Slide.OwnText)) return {};
    return Text.isEmpty() ? QStringLiteral(" ") : Text;
}

void WriteSlide(clsNEBSlideShow& Show, const ShowSlide& Slide, std::int32_t SlideSeq) {
    if (!Show.SaveDetail(Slide.SlideID, SlideSeq, {})) {
        MsgBox(QStringLiteral("Failed to save slide #%1").arg(SlideSeq));
        return;
    }
    Show.Details.back()->SlideText = StoredCaption(Slide);
}

bool SameName(const QString& One, const QString& Other) {
    return One.toUpper() == Other.toUpper();
}

// The files of one show in its album, while its tracks are written.
class TrackFiles {
  public:
    TrackFiles(const ShowContent& Content, const clsDBEngine& theDB, const clsNEBSlideShow& Stored)
        : mFolder(SoundTracksFolder(theDB.DBPath(), Content.AlbumID)),
          mStem(FileStem(Content.SlideShowID)) {
        for (const auto& Track : Stored.SoundTracks) mOldTracks.push_back(Track->SoundTrackLoc);
    }

    // A new file takes the place of the one with its name. Where another row plays that one still,
    // it is kept under a number that no row has.
    void KeepPlayed(std::vector<ShowTrack>& Tracks, const std::function<void()>& Between) const {
        for (size_t I = 0; I < Tracks.size(); ++I) {
            if (!IsNew(Tracks[I])) continue;
            const QString Place = mFolder + NameFor(I, Tracks[I]);
            QString Kept;
            for (size_t J = 0; J < Tracks.size(); ++J)
                if (J != I && Plays(Tracks[J], Place)) KeepBeside(Place, Kept, Tracks[J], Between);
        }
    }

    // Copies a new file into the album; its row has the name there afterwards.
    void TakeIn(ShowTrack& Track, size_t Row, const std::function<void()>& Between) {
        if (IsNew(Track)) {
            const QString Source = Track.SoundTrackLoc.trimmed();
            const QString Name = NameFor(Row, Track);
            MakeDirs(mFolder);
            if (ResolvePath(Source) != ResolvePath(mFolder + Name))
                CopyFile(Source, mFolder + Name, Between);
            Track.SoundTrackLoc = Name;
        }
        for (QString& Old : mOldTracks)
            if (SameName(Old, Track.SoundTrackLoc.trimmed())) Old.clear();
    }

    void DropUnused() const {
        for (const QString& Old : mOldTracks) {
            if (Old.isEmpty() || HoldsSeparator(Old)) continue;
            try {
                DeleteFile(mFolder + Old);
            } catch (const Fault&) {
                continue;
            }
        }
    }

  private:
    static bool IsNew(const ShowTrack& Track) {
        return Track.IsFilled() && HoldsSeparator(Track.SoundTrackLoc.trimmed());
    }
    QString Numbered(size_t Number, const QString& Like) const {
        return mStem + u'_' + QString::number(Number) + GetFileExt(GetFileName(Like));
    }
    QString NameFor(size_t Row, const ShowTrack& Track) const {
        return Numbered(Row + 1, Track.SoundTrackLoc.trimmed());
    }
    bool Plays(const ShowTrack& Track, const QString& Path) const {
        if (!Track.IsFilled()) return false;
        const QString Loc = Track.SoundTrackLoc.trimmed();
        return ResolvePath(HoldsSeparator(Loc) ? Loc : mFolder + Loc) == ResolvePath(Path);
    }
    void KeepBeside(const QString& Place, QString& Kept, ShowTrack& Track,
                    const std::function<void()>& Between) const {
        if (!FileExists(Place)) return;
        if (Kept.isEmpty()) {
            size_t Number = 100;  // the rows are numbered up to 99
            while (NameExists(mFolder + Numbered(Number, Place))) ++Number;
            Kept = Numbered(Number, Place);
            CopyFile(Place, mFolder + Kept, Between);
        }
        Track.SoundTrackLoc = Kept;
    }

    QString mFolder;
    QString mStem;
    std::vector<QString> mOldTracks;
};

void WriteTrack(clsNEBSlideShow& Show, const ShowTrack& Track, std::int32_t SoundTrackSeq) {
    if (!Show.SaveSoundTrack(SoundTrackSeq, {}, CInt(Start(Track)), CInt(End(Track)), false, false,
                             false)) {
        MsgBox(QStringLiteral("Failed to save sound track #%1").arg(SoundTrackSeq));
        return;
    }
    clsNEBSlideShowSoundTrack& Saved = *Show.SoundTracks.back();
    Saved.SoundTrackLoc = Track.SoundTrackLoc.trimmed();
    Saved.Repeat = IsChecked(Track.Repeat);
    Saved.FitToSong = IsChecked(Track.FitToSong);
    Saved.Fade = IsChecked(Track.Fade);
}

// The show to write to; after a box nullptr.
clsNEBSlideShow* Target(ShowContent& Content, clsNEBAlbum& Album, clsDBEngine& theDB) {
    if (Content.SlideShowID == 0 &&
        !Album.SaveSlideShow(Content.SlideShowID, Content.Name, Content.ProgressionMethod, theDB)) {
        MsgBox(QStringLiteral("Failed to create Slide Show."));
        return nullptr;
    }
    clsNEBSlideShow* Show = Album.GetSlideShow(Content.SlideShowID);
    if (!Show) MsgBox(QStringLiteral("Slide Show not found."));
    return Show;
}

}  // namespace

bool ShowTrack::IsFilled() const {
    return !SlideSeqStart.trimmed().isEmpty() && !SlideSeqEnd.trimmed().isEmpty() &&
           !SoundTrackLoc.trimmed().isEmpty();
}

std::optional<BoxRequest> CheckShow(ShowContent& Content, const clsDBEngine& theDB) {
    if (Content.AlbumID == 0)
        return Plain(QStringLiteral("You must first select an album to save the slide show in."));
    if (Content.Name.isEmpty())
        return Plain(QStringLiteral("You have to enter a name for the slide show."));
    Content.Name = CleanText(Content.Name);
    if (Content.Slides.empty())
        return Plain(QStringLiteral("You must select atleast 1 slide for the Slide Show."));
    if (Check Refused = CheckTracks(Content)) return Refused;
    const clsNEBAlbum* Album = theDB.GetAlbum(Content.AlbumID);
    if (!Album) return Told(QStringLiteral("The current Album could not be found."), Deleted);
    return CheckNames(Content, *Album);
}

bool WriteShow(ShowContent& Content, clsDBEngine& theDB, const std::function<void()>& Between) {
    clsNEBAlbum* Album = theDB.GetAlbum(Content.AlbumID);
    clsNEBSlideShow* Show = Album ? Target(Content, *Album, theDB) : nullptr;
    if (!Show) return false;
    Show->SlideShowName = Content.Name;
    Show->ProgressionMethod = Content.ProgressionMethod;
    Show->ClearDetails();
    TrackFiles Files(Content, theDB, *Show);
    Show->ClearSoundTracks();
    std::int32_t SlideSeq = 0;
    for (const ShowSlide& Slide : Content.Slides) WriteSlide(*Show, Slide, ++SlideSeq);
    Files.KeepPlayed(Content.Tracks, Between);
    for (size_t Row = 0; Row < Content.Tracks.size(); ++Row) {
        if (!Content.Tracks[Row].IsFilled()) continue;
        Files.TakeIn(Content.Tracks[Row], Row, Between);
        WriteTrack(*Show, Content.Tracks[Row], static_cast<std::int32_t>(Row + 1));
    }
    Files.DropUnused();
    return true;
}

}  // namespace neb
