// Chapter: the active show is played, through the fitted track, into the one that fades and the
// silence behind it, and left at a slide.

#include "Tour.h"
#include "TourControls.h"
#include "TourSteps.h"
#include "TourWatch.h"
#include "controls/picture/XShow.h"
#include "program/frmNEBSlideShow.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/show/modSlideShows.h"

namespace neb::demo {
namespace {

constexpr int LastFitted = 4, Fading = 6, WithClip = 7, Silent = 8;
constexpr double ListenSeconds = 1.5;

void Key(Qt::Key Pressed) {
    QTest::keyClick(&Opened<frmSlideShowProjector>(), Pressed);
}

QString Numbered(const char* Name, int SlideSeq) {
    return QString::fromLatin1(Name) + QString::number(SlideSeq);
}

// Tells the moment at which a slide begins; the show goes on to it by itself or by the key.
void AddSlide(Tour& Guide, int SlideSeq) {
    Guide.Add({Numbered("the-show-comes-to-", SlideSeq), SlideIsUp(SlideSeq), {}, false, true});
    Guide.Add({Numbered("show-slide-", SlideSeq), SlideStands(SlideSeq), {}, true, true});
}

// By the key, when the slide before has been listened to, unless the show has gone on by itself.
void GoOn(Tour& Guide, int SlideSeq) {
    Guide.Add({"next-slide",
               [SlideSeq, IsHeard = IsListenedTo(ListenSeconds)] {
                   return CurrentSlideSeq >= SlideSeq || IsHeard();
               },
               [SlideSeq] {
                   if (CurrentSlideSeq < SlideSeq) Key(Qt::Key_Up);
               },
               false, true});
}

void Begin(Tour& Guide, frmNEBSlideShow& Window) {
    Guide.Do("play-the-active-show", IsInFront(Window), [&] {
        Print(QStringLiteral("The active show begins"));
        Keys(Window, Qt::Key_F5)();
    });
    Guide.Do("the-show-begins", IsOpen<frmSlideShowProjector>(), [] { WatchProgress(ShowView()); });
}

void ThroughTheMusic(Tour& Guide) {
    AddSlide(Guide, 1);
    Guide.Look("show-transition-2", IsBetween(2));
    AddSlide(Guide, 2);
    for (int SlideSeq = 3; SlideSeq <= LastFitted; ++SlideSeq) {
        GoOn(Guide, SlideSeq);
        AddSlide(Guide, SlideSeq);
    }
    AddSlide(Guide, LastFitted + 1);
    AddSlide(Guide, Fading);
    AddSlide(Guide, WithClip);
}

// The last slide has no music: there is nothing to hear while it stands.
void LeaveInSilence(Tour& Guide) {
    AddSlide(Guide, Silent);
    Guide.Add({"leave-the-show", IsListenedTo(ListenSeconds),
               [] {
                   Print(QStringLiteral("The show was left at slide %1").arg(CurrentSlideSeq));
                   Print(QStringLiteral("The show: ") + ShowView().Frames().Text());
                   Key(Qt::Key_Escape);
               },
               false, true});
}

}  // namespace

void AddTheShow(Tour& Guide, frmNEBSlideShow& Window) {
    Begin(Guide, Window);
    ThroughTheMusic(Guide);
    LeaveInSilence(Guide);
    Guide.Do("after-the-show", ShowIsOver(), {});
}

}  // namespace neb::demo
