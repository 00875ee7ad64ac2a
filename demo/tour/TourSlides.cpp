// Chapter: the slide manager. One slide is turned and gets a caption, another one a sound.
#include <QCheckBox>

#include "Tour.h"
#include "TourControls.h"
#include "TourSteps.h"
#include "program/frmNEBSlideShow.h"
#include "windows/recorder/frmSoundRecorder.h"
#include "windows/slides/frmSlideDBM.h"

namespace neb::demo {
namespace {

template <class Control>
Control& In(const char* Name) {
    return demo::In<Control, frmSlideDBM>(Name);
}

std::function<void()> Press(const char* Name) {
    return demo::Press<frmSlideDBM>(Name);
}

void OpenAlbum(Tour& Guide, frmNEBSlideShow& Window) {
    Guide.Do("open-the-slide-manager", IsInFront(Window),
             Keys(Window, Qt::Key_E, Qt::ControlModifier));
    Guide.Do("choose-the-album", IsOpen<frmSlideDBM>(),
             [] { Choose(In<QComboBox>("cboAlbum"), FirstAlbumName); });
}

void TurnAndCaption(Tour& Guide) {
    Guide.Do(
        "choose-a-slide", [] { return In<QComboBox>("cboSlides").count() > 1; },
        [] { Choose(In<QComboBox>("cboSlides"), QStringLiteral("Dew on a Leaf")); });
    Guide.Do("turn-the-slide", {}, Press("cmdRotate2"));
    Guide.Do("type-a-caption", {},
             [] { Type(In<QLineEdit>("txtDscr"), QStringLiteral("Every drop holds a garden")); });
    Guide.Add({"slide-manager", {}, Press("cmdSave")});
}

QString Says(const char* Label) {
    return demo::In<QLabel, frmSoundRecorder>(Label).text();
}

// The window says so and has come to that time, minutes and seconds, or past it.
std::function<bool()> RecorderStandsAt(const char* Status, const char* Time) {
    return [Status, Time] {
        return Says("lblStatus").startsWith(QLatin1String(Status)) &&
               Says("lblTime").left(4) >= QLatin1String(Time);
    };
}

// It may have come to its end before anyone looked.
bool IsHeard() {
    return RecorderStandsAt("Playing", "0:01")() || RecorderStandsAt("Recorded", "0:02")();
}

bool PlayingIsRefused() {
    return Says("lblStatus").startsWith(QStringLiteral("There is no sound card"));
}

void Record(Tour& Guide) {
    const auto Press = [](const char* Button) { return demo::Press<frmSoundRecorder>(Button); };
    Guide.Add({"sound-recorder", IsOpen<frmSoundRecorder>(), Press("cmdRecord")});
    Guide.Look("sound-recording", RecorderStandsAt("Recording", "0:01"));
    Guide.Add(
        {"stop-recording", RecorderStandsAt("Recording", "0:02"), Press("cmdStop"), false, true});
    Guide.Add({"sound-recorded", RecorderStandsAt("Recorded", "0:02"), Press("cmdPlay")});
    // Without a sound card the window says so instead, until it is stopped.
    Guide.Add({"sound-playing", [] { return PlayingIsRefused() || IsHeard(); },
               [Press] {
                   if (PlayingIsRefused()) Press("cmdStop")();
               },
               true, true});
    Guide.Do("save-the-recording", RecorderStandsAt("Recorded", "0:02"), Press("cmdSave"));
}

void GiveSound(Tour& Guide) {
    Guide.Do(
        "choose-another-slide", [] { return !In<QPushButton>("cmdSave").isEnabled(); },
        [] { Choose(In<QComboBox>("cboSlides"), QStringLiteral("Milky Way over the Lake")); });
    Guide.Do("record-a-sound", {}, Press("cmdRecord"));
    Record(Guide);
    Guide.Do(
        "in-place-of-the-music",
        [] { return !Open<frmSoundRecorder>() && In<QCheckBox>("chkOverride").isEnabled(); },
        [] { QTest::mouseClick(&In<QCheckBox>("chkOverride"), Qt::LeftButton); });
    Guide.Add({"slide-with-a-sound", [] { return In<QCheckBox>("chkOverride").isChecked(); },
               Press("cmdSave")});
}

}  // namespace

void AddSlideManager(Tour& Guide, frmNEBSlideShow& Window) {
    OpenAlbum(Guide, Window);
    TurnAndCaption(Guide);
    GiveSound(Guide);
    Guide.Do(
        "close-the-slide-manager", [] { return !In<QPushButton>("cmdSave").isEnabled(); },
        Press("cmdClose"));
    Guide.Do("after-the-slide-manager", IsClosed<frmSlideDBM>(), {});
}

}  // namespace neb::demo
