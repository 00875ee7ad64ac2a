#include "TourSteps.h"

#include <QApplication>

#include "Tour.h"
#include "TourControls.h"
#include "TourWatch.h"
#include "controls/picture/XShow.h"
#include "program/frmNEBSlideShow.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/show/frmSpeedTest.h"
#include "windows/show/modSlideShows.h"

namespace neb::demo {

void EndProgram(Tour& Guide, frmNEBSlideShow& Window) {
    Guide.Do("end-the-program", IsInFront(Window), Keys(Window, Qt::Key_Q, Qt::ControlModifier));
    Guide.Do("the-end", [&] { return !Window.isVisible(); }, {});
}

// Settings without a speed test are new ones: the program measures before anything else.
void AddSpeedTest(Tour& Guide) {
    Guide.Answer("speed-test-notification", SpeedTestQuestion());
    Guide.Do("speed-test-begins", IsOpen<frmSpeedTest>(),
             [] { WatchProgress(In<XShow, frmSpeedTest>("Show1")); });
    // On a slow machine the test may be over before it comes to steps as small as that.
    Guide.Look("speed-test", [] {
        return !Open<frmSpeedTest>() || (In<XShow, frmSpeedTest>("Show1").EffectStep() < 50 &&
                                         Progress() > 0.35 && Progress() < 0.65);
    });
}

void AddRoad(Tour& Guide, frmNEBSlideShow& Window, const Story& Told) {
    Guide.SetTeller(&TellShow);
    AddSpeedTest(Guide);
    AddQuickShow(Guide, Window, Told);
    if (!Told.Music.isEmpty()) {
        AddNewAlbum(Guide, Window, Told);
        AddShowManagerOpened(Guide);
        AddSlideManager(Guide, Window);
        AddBulkManager(Guide, Window);
        AddRename(Guide, Window);
        AddShowManager(Guide, Told);
        AddPreferences(Guide, Window);
        AddTheShow(Guide, Window);
        AddPrinting(Guide, Window, Told.Second + QStringLiteral(".pdf"));
        AddTransfer(Guide, Window, Told.Second);
    }
    EndProgram(Guide, Window);
}

void AddReturn(Tour& Guide, frmNEBSlideShow& Window) {
    Guide.SetTeller(&TellShow);
    Guide.Do("start-again", IsInFront(Window), Keys(Window, Qt::Key_F5));
    Guide.Do("the-show-goes-on", IsOpen<frmSlideShowProjector>(), {});
    Guide.Add({"show-resumed", [] { return !ShowView().IsRunning(); },
               [] {
                   Print(QStringLiteral("The show went on at slide %1").arg(CurrentSlideSeq));
                   QTest::keyClick(Open<frmSlideShowProjector>(), Qt::Key_Escape);
               }});
    Guide.Do("after-the-show", ShowIsOver(), {});
    EndProgram(Guide, Window);
}

}  // namespace neb::demo
