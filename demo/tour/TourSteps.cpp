#include "TourSteps.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QTest>
#include <QToolButton>
#include <cstdio>

#include "Tour.h"
#include "TourMusic.h"
#include "TourSound.h"
#include "intake/frmDirSelect.h"
#include "intake/frmPicturePopup.h"
#include "intake/frmQuickShow.h"
#include "platform/FlexGrid.h"
#include "platform/ToolBar.h"
#include "platform/XShow.h"
#include "presentation/EffectList.h"
#include "presentation/frmPreferences.h"
#include "presentation/frmSlideShowProjector.h"
#include "presentation/frmSoundRecorder.h"
#include "presentation/frmSpeedTest.h"
#include "shell/main/frmNEBSlideShow.h"
#include "support/Fault.h"
#include "support/modHostFiles.h"
#include "support/windows/frmLoading.h"
#include "support/windows/frmProgress.h"

using namespace neb;

namespace {

template <class Window>
Window* Open() {
    for (const auto& Each : LoadedForms())
        if (auto* Found = dynamic_cast<Window*>(Each.get()); Found && Found->isVisible())
            return Found;
    return nullptr;
}

template <class Window>
std::function<bool()> IsOpen() {
    return [] { return Open<Window>() != nullptr; };
}

template <class Control, class Window>
Control* Find(const char* Name) {
    return Open<Window>()->template findChild<Control*>(QString::fromLatin1(Name));
}

template <class Window>
std::function<void()> Press(const char* Button) {
    return [Button] { QTest::mouseClick(Find<QPushButton, Window>(Button), Qt::LeftButton); };
}

void PressTool(const char* Name) {
    auto* Bar = Find<ToolBar, frmQuickShow>("abrMenu");
    QTest::mouseClick(Bar->widgetForAction(Bar->Tool(QString::fromLatin1(Name))), Qt::LeftButton);
}

QMenu* OpenMenu() {
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

// How far the transition on the screen has come.
double Shown = 0;

void WatchProgress(XShow* View) {
    QObject::connect(View, &XShow::EffectStepped, [](double Now) { Shown = Now; });
}

// Settings without a speed test are new ones: the program measures before anything else.
void AddSpeedTestSteps(Tour& Guide) {
    Guide.Add({"speed-test-notification",
               {},
               [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); },
               true,
               false,
               QStringLiteral("NEB Slide Show will now test your graphics speed.")});
    Guide.Add({"speed-test-begins", IsOpen<frmSpeedTest>(),
               [] { WatchProgress(Find<XShow, frmSpeedTest>("Show1")); }, false, true});
    const auto InTheMiddle = [] {
        return Find<XShow, frmSpeedTest>("Show1")->EffectStep() < 50 && Shown > 0.35 &&
               Shown < 0.65;
    };
    Guide.Add({"speed-test", InTheMiddle, {}, true, true});
}

void AddQuickShowSteps(Tour& Guide, frmNEBSlideShow& Window) {
    Guide.Add({"main-window", [&] { return Window.isVisible() && !Open<frmSpeedTest>(); },
               [&] { QTest::keyClick(&Window, Qt::Key_F, Qt::AltModifier); }});
    Guide.Add({"file-menu", [] { return OpenMenu() != nullptr; },
               [] { QTest::keyClick(OpenMenu(), Qt::Key_Q); }});
    Guide.Add({"quick-show", IsOpen<frmQuickShow>(), [] { PressTool("mnuImportDirectory"); }});
}

void AddDirectorySteps(Tour& Guide, const QString& Folder) {
    Guide.Add({"type-the-folder", IsOpen<frmDirSelect>(),
               [Folder] {
                   auto* Typed = Open<frmDirSelect>()->findChild<QLineEdit*>();
                   Typed->setFocus();
                   Typed->selectAll();
                   QTest::keyClicks(Typed, Folder);
                   QTest::keyClick(Typed, Qt::Key_Return);
               },
               false});
    const auto Counted = [] {
        const QString Text = Find<QLabel, frmDirSelect>("lblDirSummary")->text();
        return !Text.isEmpty() && !Text.startsWith(QStringLiteral("0 "));
    };
    Guide.Add({"directory-chosen", Counted, Press<frmDirSelect>("cmdSelect")});
}

void AddSelectionSteps(Tour& Guide, const QString& ShowName) {
    const auto Rows = [](const char* Grid) { return Find<FlexGrid, frmQuickShow>(Grid)->Rows(); };
    const auto IsRead = [Rows] { return !Open<frmLoading>() && Rows("flxNonSelected") > 0; };
    Guide.Add({"reading-pictures",
               [IsRead] {
                   auto* Loading = Open<frmLoading>();
                   return IsRead() || (Loading && Loading->pgbLoadingProgress()->value() > 2);
               },
               {},
               true,
               true});
    Guide.Add({"pictures-read", IsRead, [] {
                   auto* Grid = Find<FlexGrid, frmQuickShow>("flxNonSelected");
                   const QPoint First = Grid->visualRect(Grid->model()->index(0, 0)).center();
                   QTest::mouseClick(Grid->viewport(), Qt::LeftButton, {}, First);
                   QTest::mouseDClick(Grid->viewport(), Qt::LeftButton, {}, First);
               }});
    Guide.Add({"preview", IsOpen<frmPicturePopup>(),
               [] { QTest::keyClick(Open<frmPicturePopup>(), Qt::Key_Escape); }});
    Guide.Add({"move-all", [] { return !Open<frmPicturePopup>(); },
               Press<frmQuickShow>("cmdMoveRightAll"), false});
    Guide.Add({"name-the-show", [Rows] { return Rows("flxSelected") > 0; },
               [ShowName] {
                   auto* Name = Find<QLineEdit, frmQuickShow>("txtName");
                   Name->setFocus();
                   Name->selectAll();
                   QTest::keyClicks(Name, ShowName);
               },
               false});
    Guide.Add({"pictures-selected", {}, Press<frmQuickShow>("cmdImport")});
}

XShow* View() {
    return Find<XShow, frmSlideShowProjector>("Show1");
}

// Two moments of each slide: in the middle of its transition and when it stands.
void AddSlideSteps(Tour& Guide, int Slide) {
    const QString Number = QString::number(Slide);
    Guide.Add({"next-slide", [] { return !View()->IsRunning(); },
               [] { QTest::keyClick(Open<frmSlideShowProjector>(), Qt::Key_Up); }, false});
    Guide.Add({"show-transition-" + Number,
               [] { return View()->IsRunning() && Shown > 0.35; },
               {},
               true,
               true});
    Guide.Add({"show-slide-" + Number, [] { return !View()->IsRunning(); }, {}});
}

void AddShowSteps(Tour& Guide) {
    Guide.Add({"importing",
               [] {
                   auto* Progress = Open<frmProgress>();
                   return Open<frmSlideShowProjector>() ||
                          (Progress && Progress->pgbLoadingProgress()->value() > 0);
               },
               {},
               true,
               true});
    Guide.Add(
        {"show-begins", IsOpen<frmSlideShowProjector>(), [] { WatchProgress(View()); }, false});
    Guide.Add({"show-slide-1", [] { return !View()->IsRunning(); }, {}});
    for (int Slide = 2; Slide <= 6; ++Slide) AddSlideSteps(Guide, Slide);
    Guide.Add({"show-menu-opens",
               {},
               [] { QTest::mouseClick(View(), Qt::RightButton, {}, View()->rect().center()); },
               false});
    Guide.Add({"show-menu", [] { return OpenMenu() != nullptr; },
               [] { QTest::keyClick(OpenMenu(), Qt::Key_Escape); }});
    Guide.Add({"leave-the-show", [] { return !OpenMenu(); },
               [] { QTest::keyClick(Open<frmSlideShowProjector>(), Qt::Key_Escape); }, false});
}

EffectList* Effects() {
    return Find<EffectList, frmPreferences>("lstEffects");
}

XShow* PreviewView() {
    return Find<XShow, frmPreferences>("XShow1");
}

void ChooseTheShow() {
    Find<QComboBox, frmPreferences>("cboAlbums")->setCurrentIndex(0);
    Find<QComboBox, frmPreferences>("cboSlideShows")->setCurrentIndex(0);
    Effects()->setFocus();
    QTest::keyClicks(Effects(), Effects()->item(13)->text());
}

// The active show, an effect found by its name and seen, and all of it kept.
void AddPreferencesSteps(Tour& Guide, frmNEBSlideShow& Window) {
    const auto ShowIsOver = [] { return !Open<frmSlideShowProjector>() && !Open<frmQuickShow>(); };
    Guide.Add({"open-preferences", ShowIsOver,
               [&] { QTest::keyClick(&Window, Qt::Key_R, Qt::ControlModifier); }, false});
    Guide.Add({"choose-the-show", IsOpen<frmPreferences>(), &ChooseTheShow, false});
    Guide.Add({"preferences", {}, Press<frmPreferences>("cmdPreview")});
    Guide.Add({"preview-begins", [] { return PreviewView()->IsRunning(); },
               [] {
                   Shown = 0;
                   QObject::connect(PreviewView(), &XShow::EffectStepped,
                                    [](double Now) { Shown = Now; });
               },
               false, true});
    Guide.Add({"preferences-preview",
               [] { return !PreviewView()->IsRunning() || Shown > 0.4; },
               {},
               true,
               true});
    Guide.Add({"apply-preferences", [] { return !PreviewView()->IsRunning(); },
               Press<frmPreferences>("cmdApply"), false});
}

// The slide manager's way to a clip: the recorder, modal, and the clip to a slide.
void RecordClip() {
    const QString Path = RecordedClipPath();
    const auto Recorder = NewForm<frmSoundRecorder>();
    Recorder->SetSoundSavePath(Path);
    Recorder->ShowModal();
    if (!Recorder->SoundRecorded()) throw Fault(QStringLiteral("Nothing was recorded."));
    std::printf("  The recorder saved %lld bytes\n", static_cast<long long>(FileSize(Path)));
    GiveRecordedClip();
}

std::function<bool()> RecorderStandsAt(const char* Status, const char* Time) {
    return [Status, Time] {
        const auto Says = [](const char* Label, const char* Text) {
            return Find<QLabel, frmSoundRecorder>(Label)->text().startsWith(QLatin1String(Text));
        };
        return Says("lblStatus", Status) && Says("lblTime", Time);
    };
}

void AddRecorderSteps(Tour& Guide) {
    const auto Press = [](const char* Button) { return ::Press<frmSoundRecorder>(Button); };
    Guide.Add({"open-the-recorder", [] { return !Open<frmPreferences>(); }, &RecordClip, false});
    Guide.Add({"sound-recorder", IsOpen<frmSoundRecorder>(), Press("cmdRecord")});
    Guide.Add({"sound-recording", RecorderStandsAt("Recording", "0:01"), {}, true, true});
    Guide.Add(
        {"stop-recording", RecorderStandsAt("Recording", "0:02"), Press("cmdStop"), false, true});
    Guide.Add({"sound-recorded", RecorderStandsAt("Recorded", "0:02"), Press("cmdPlay")});
    // Without a sound card the window says so instead, until it is stopped.
    const auto IsRefused = [] {
        const QString Status = Find<QLabel, frmSoundRecorder>("lblStatus")->text();
        return Status.startsWith(QStringLiteral("There is no sound card"));
    };
    const auto IsHeard = RecorderStandsAt("Playing", "0:01");
    Guide.Add({"sound-playing", [IsRefused, IsHeard] { return IsRefused() || IsHeard(); },
               [IsRefused, Press] {
                   if (IsRefused()) Press("cmdStop")();
               },
               true, true});
    Guide.Add(
        {"save-the-recording", RecorderStandsAt("Recorded", "0:02"), Press("cmdSave"), false});
}

QString TellSound() {
    const QString Now = Open<frmSlideShowProjector>() ? TourSound::NowPlaying() : QString();
    return Now.isEmpty() ? Now : QStringLiteral("The show plays ") + Now;
}

}  // namespace

void AddSteps(Tour& Guide, frmNEBSlideShow& Window, const QString& Folder,
              const QString& ShowName) {
    Guide.SetTeller(&TellSound);
    AddSpeedTestSteps(Guide);
    AddQuickShowSteps(Guide, Window);
    AddDirectorySteps(Guide, Folder);
    AddSelectionSteps(Guide, ShowName);
    AddShowSteps(Guide);
    AddPreferencesSteps(Guide, Window);
    AddRecorderSteps(Guide);
    Guide.Add({"end", [] { return !Open<frmSoundRecorder>(); }, [&] { Window.close(); }, false});
}
