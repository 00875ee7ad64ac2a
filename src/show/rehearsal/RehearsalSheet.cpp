#include "show/rehearsal/RehearsalSheet.h"

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"
#include "show/SongName.h"
#include "show/rehearsal/CueTexts.h"
#include "show/rehearsal/RehearsalNotebook.h"

namespace neb {
namespace {

// Fills the rows; each song's name is read once.
class SheetFiller {
  public:
    SheetFiller(const RehearsedShow& Of, RehearsalSheet& Into) : mBook(Of), mSheet(Into) {}

    void Fill() {
        for (const RehearsalCue& Cue : mBook.Show.Log.Cues) mSheet.Rows.push_back(RowOf(Cue));
        QHash<std::int32_t, QStringList> Problems;
        for (const RehearsalFinding& Each : mSheet.Findings.Problems)
            Problems[Each.SlideSeq] << Each.Text;
        for (RehearsalRow& Row : mSheet.Rows) Row.Problems = Problems.value(Row.SlideSeq);
    }

  private:
    RehearsalRow RowOf(const RehearsalCue& Cue) {
        RehearsalRow Row{.At = Cue.At,
                         .Seconds = Cue.Seconds,
                         .SlideSeq = Cue.SlideSeq,
                         .SlideID = Cue.SlideID,
                         .Caption = Cue.Caption,
                         .Picture = Cue.Picture,
                         .Sound = Cue.Sound,
                         .SoundText = SoundText(Cue)};
        if (const auto* Track = mBook.TrackAt(Cue.SlideSeq))
            Row.Track = NameOf(mBook.AlbumFile(SoundTracksFolder, Track->SoundTrackLoc));
        const clsNEBSlide* Slide = mBook.SlideAt(Cue.SlideSeq);
        if (Slide && !Slide->SoundTrackLoc.isEmpty()) {
            const QString Path = mBook.AlbumFile(SlidesFolder, Slide->SoundTrackLoc);
            Row.Clip = NameOf(Path);
            Row.ClipSounds = Cue.Sound.File == Path;
        }
        return Row;
    }
    QString NameOf(const QString& Path) {
        auto Known = mNames.find(Path);
        if (Known == mNames.end()) Known = mNames.insert(Path, SongName(Path));
        return *Known;
    }

    RehearsalNotebook mBook;
    RehearsalSheet& mSheet;
    QHash<QString, QString> mNames;
};

}  // namespace

QString RehearsalSheet::Summary() const {
    return SummaryText(Rows.size(), RunningTime, Findings, End);
}

std::shared_ptr<clsDBEngine> CopyForRehearsal(const clsDBEngine& theDB, std::int32_t AlbumID,
                                              std::int32_t SlideShowID) {
    const clsNEBAlbum* Album = theDB.GetAlbum(AlbumID);
    if (!Album || !Album->GetSlideShow(SlideShowID)) return nullptr;
    auto Copy = std::make_shared<clsDBEngine>();
    Copy->SetDBPath(theDB.DBPath());
    Copy->SetProgramPath(AppPath());
    Copy->Albums.push_back(Album->Part({SlideShowID}));
    Copy->EffectStats = theDB.EffectStats;
    Copy->Properties = theDB.Properties;
    return Copy;
}

RehearsalSheet MakeRehearsalSheet(clsDBEngine& Copy, QSize Screen, const RehearsalOptions& Options,
                                  RehearsalLog* Log) {
    const clsNEBAlbum& Album = *Copy.Albums.front();
    const clsNEBSlideShow& Show = *Album.SlideShows.front();
    Rehearsal Of(Copy, Album.AlbumID, Show.SlideShowID, Options);
    RehearsalSheet Sheet{.Album = Album.AlbumName,
                         .Show = Show.SlideShowName,
                         .IsManual = Show.ProgressionMethod != 0};
    Sheet.End = Of.RunWhole();
    Sheet.RunningTime = Of.Now();
    if (Log) *Log = Of.Log();
    if (Sheet.End == RehearsalEnd::GivenUp) return Sheet;
    const RehearsedShow Run{Copy,      Album.AlbumID, Show.SlideShowID, Of.Log(),
                            Sheet.End, Screen,        Options};
    Sheet.Findings = FindProblems(Run);
    SheetFiller(Run, Sheet).Fill();
    return Sheet;
}

}  // namespace neb
