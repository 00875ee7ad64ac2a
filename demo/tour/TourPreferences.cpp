// Chapter: preferences. The show becomes the active one, an effect is found by its name and seen.
#include "Tour.h"
#include "TourControls.h"
#include "TourSteps.h"
#include "TourWatch.h"
#include "controls/picture/XShow.h"
#include "program/frmNEBSlideShow.h"
#include "windows/show/EffectList.h"
#include "windows/show/frmPreferences.h"

namespace neb::demo {
namespace {

constexpr int SomeEffect = 13;  // its row in the list

XShow& Preview() {
    return In<XShow, frmPreferences>("XShow1");
}

void MakeActive() {
    Choose(In<QComboBox, frmPreferences>("cboAlbums"), AlbumName);
    Choose(In<QComboBox, frmPreferences>("cboSlideShows"), SlideShowName);
    Type(In<QLineEdit, frmPreferences>("txtSlideTimeout"), QStringLiteral("4"));
    auto& Effects = In<EffectList, frmPreferences>("lstEffects");
    Effects.setFocus();
    QTest::keyClicks(&Effects, Effects.item(SomeEffect)->text());
}

}  // namespace

void AddPreferences(Tour& Guide, frmNEBSlideShow& Window) {
    Guide.Do("open-preferences", IsInFront(Window), Keys(Window, Qt::Key_R, Qt::ControlModifier));
    Guide.Do("make-the-show-active", IsOpen<frmPreferences>(), &MakeActive);
    Guide.Add({"preferences", {}, Press<frmPreferences>("cmdPreview")});
    Guide.Add({"preview-begins", [] { return Preview().IsRunning(); },
               [] { WatchProgress(Preview()); }, false, true});
    Guide.Look("preferences-preview", [] { return !Preview().IsRunning() || Progress() > 0.4; });
    Guide.Do(
        "apply-preferences", [] { return !Preview().IsRunning(); },
        Press<frmPreferences>("cmdApply"));
    Guide.Do("close-preferences", IsOpen<frmPreferences>(), Press<frmPreferences>("cmdClose"));
    Guide.Do("after-preferences", IsClosed<frmPreferences>(), {});
}

}  // namespace neb::demo
