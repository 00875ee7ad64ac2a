// The slides of a rehearsed show: places, pictures, captions, clips, boxes. Its sound tracks are in
// RehearsalTracks.cpp.
#include "show/rehearsal/RehearsalFindings.h"

#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"
#include "show/captions/ShowLayout.h"
#include "show/rehearsal/RehearsalNotebook.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modCharacters.h"

namespace neb {
namespace {

using Notebook = RehearsalNotebook;

// A run of places without slides ends the round: what lies behind it never comes up.
void CheckGap(Notebook& Book, std::int32_t First, std::int32_t Next) {
    const QString Where = SlidesText(First, Next - 1);
    if (First > 1)
        return Book.Problem(First, tr("%1: nothing has this place; the show goes back to "
                                      "its start there, and slide %2 never comes up by "
                                      "itself")
                                       .arg(Where)
                                       .arg(Next));
    Book.Problem(First, tr("%1: nothing has this place; the show cannot start").arg(Where));
    Book.Explain(First, RehearsalBoxFrom::Run);
}

void CheckPlaces(Notebook& Book) {
    std::int32_t Before = 0;
    for (const std::int32_t Place : Book.Places) {
        if (Place < 1)
            Book.OfSlide(Place, tr("no show comes to this place"));
        else if (Place > Before + 1)
            CheckGap(Book, Before + 1, Place);
        Before = std::max(Before, Place);
    }
    if (Before > 0) return;
    Book.Problem(0, tr("the show has no slides"));
    Book.Explain(1, RehearsalBoxFrom::Run);
}

void CheckDoubles(Notebook& Book) {
    for (const auto& Detail : Book.SlideShow.Details)
        if (Book.Details.value(Detail->SlideSeq) != Detail.get())
            Book.OfSlide(Detail->SlideSeq,
                         tr("the place is taken twice; slide number %1 of the album "
                            "never comes up there")
                             .arg(Detail->SlideID));
}

// What the show makes of a picture that it cannot show.
QString StandIn() {
    return FileExists(AppPath() + QStringLiteral("NoSlide.bmp"))
               ? tr("NoSlide.bmp takes its place")
               : tr("the show stops, because NoSlide.bmp is missing as well");
}

void CheckPicture(Notebook& Book, std::int32_t Place, const clsNEBSlide& Slide) {
    const QString Path = Book.AlbumFile(SlidesFolder, Slide.SlideLoc);
    if (!FileExists(Path))
        Book.OfSlide(Place, tr("the picture is missing (%1): %2").arg(StandIn(), Path));
    else if (!Book.Show.Options.CanReadPicture(Path))
        Book.OfSlide(Place, tr("the picture cannot be read (%1): %2").arg(StandIn(), Path));
}

void CheckClip(Notebook& Book, std::int32_t Place, const clsNEBSlide& Slide) {
    if (Slide.SoundTrackLoc.isEmpty()) return;
    const QString Path = Book.AlbumFile(SlidesFolder, Slide.SoundTrackLoc);
    const SoundFacts Facts = Book.LookAtSound(Path);
    if (!Facts.Problem.isEmpty()) Book.OfSlide(Place, tr("its sound ") + Facts.Problem);
    if (Facts.State != SoundState::Sound) Book.Explain(Place, RehearsalBoxFrom::Sound);
    const auto* Track = Book.TrackAt(Place);
    if (Track && !Slide.Override)
        Book.OfSlide(Place, tr("its sound is never heard, because it does not override "
                               "sound track %1: %2")
                                .arg(Track->SoundTrackSeq)
                                .arg(Path));
}

void CheckDetail(Notebook& Book, const clsNEBSlideShowDetail& Detail) {
    const std::int32_t Place = Detail.SlideSeq;
    if (const clsNEBSlide* Slide = Book.SlideAt(Place)) {
        CheckPicture(Book, Place, *Slide);
        CheckClip(Book, Place, *Slide);
        return;
    }
    Book.OfSlide(Place,
                 tr("the album has no slide number %1; the show stops there").arg(Detail.SlideID));
    Book.Explain(Place, RehearsalBoxFrom::Run);
}

QString Shortened(const QString& Text) {
    constexpr qsizetype Most = 40;
    return Text.size() <= Most ? Text : FirstUnits(Text, Most).trimmed() + QStringLiteral("...");
}

void CheckCaption(Notebook& Book, const RehearsalCue& Cue) {
    if (Book.Show.Screen.isEmpty()) return;
    const CaptionSpace Space = CaptionSpaceIn(Book.Show.Screen);
    const CaptionSetting Standard = StandardCaption(Cue.Caption, Space);
    if (Standard.Lines <= 1) return;
    QString Text = tr("the caption takes %1 lines").arg(Standard.Lines);
    if (Standard.Height > Space.MostHeight)
        Text += tr(", too many for the screen, and is set in %1 points in place of %2")
                    .arg(FitCaption(Cue.Caption, Space).Points)
                    .arg(Standard.Points);
    Book.OfSlide(Cue.SlideSeq, Text + QStringLiteral(": \"%1\"").arg(Shortened(Cue.Caption)));
}

// Slides of fitted tracks are told of one by one, with their track; all others have one time.
void CheckTransitions(Notebook& Book) {
    const RehearsalCue* First = nullptr;
    int Count = 0;
    for (const RehearsalCue& Cue : Book.Show.Log.Cues) {
        if (Cue.FitToSong || Cue.EffectSeconds <= Cue.SlideInterval) continue;
        if (!First) First = &Cue;
        ++Count;
    }
    if (!First || Book.IsManual) return;
    Book.OfSlide(First->SlideSeq,
                 tr("it stays up for %1, but its transition takes %2; %3 in all have "
                    "too little time")
                     .arg(SecondsText(First->SlideInterval), SecondsText(First->EffectSeconds),
                          Count == 1 ? tr("1 slide") : tr("%1 slides").arg(Count)));
}

void CheckBoxes(Notebook& Book) {
    for (const RehearsalBox& Box : Book.Show.Log.Boxes) {
        if (Book.IsExplained(Box)) continue;
        Book.OfSlide(Box.SlideSeq,
                     tr("a box comes up: \"%1\"").arg(QString(Box.Text).replace(u'\n', u' ')));
        Book.Explain(Box.SlideSeq, Box.From);
    }
}

void CheckEnd(Notebook& Book) {
    if (Book.Show.End == RehearsalEnd::TooLong)
        Book.Problem(0, tr("the show takes more than %1 days; the rest was not rehearsed")
                            .arg(LongestRehearsal / 86400));
}

}  // namespace

RehearsalFindings FindProblems(const RehearsedShow& Show) {
    Notebook Book(Show);
    CheckEnd(Book);
    CheckPlaces(Book);
    CheckDoubles(Book);
    for (const auto& Detail : Book.SlideShow.Details)
        if (Book.Details.value(Detail->SlideSeq) == Detail.get()) CheckDetail(Book, *Detail);
    for (const RehearsalCue& Cue : Show.Log.Cues) CheckCaption(Book, Cue);
    CheckTransitions(Book);
    CheckTracks(Book);
    CheckBoxes(Book);
    return Book.Taken();
}

}  // namespace neb
