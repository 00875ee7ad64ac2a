#include "windows/recorder/frmSoundRecorder.h"

#include <QEvent>
#include <QTimer>
#include <algorithm>
#include <cmath>

#include "controls/fields/Icons.h"
#include "controls/forms/Tell.h"
#include "sound/clsDirectSound.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "ui_frmSoundRecorder.h"

namespace neb {
namespace {

constexpr int CompletionMs = 100;
constexpr int MeterMs = 50;
constexpr int MostSeconds = 20;
constexpr int StillSteps = 20;  // of the meter, after which a microphone counts as silent
constexpr int StatusLines = 2;
constexpr std::chrono::milliseconds PaintingMs{5};  // between two looks at a device

constexpr char Idle[] = "";
constexpr char Recording[] = "Recording";
constexpr char Playing[] = "Playing";

enum Button : unsigned { cmdRecord = 1, cmdPlay = 2, cmdStop = 4, cmdSave = 8 };
constexpr unsigned AllButStop = cmdRecord | cmdPlay | cmdSave;

// The longest status: the window keeps room for it, so that it never jumps in size.
constexpr char LongestStatus[] =
    QT_TR_NOOP("This card does not support full duplex.  You may still record sound.");

QString Minutes(double Seconds) {
    const int Whole = static_cast<int>(std::floor(Seconds));
    return QStringLiteral("%1:%2").arg(Whole / 60).arg(Whole % 60, 2, 10, QLatin1Char('0'));
}

QString RecordingTime(double Seconds) {
    return frmSoundRecorder::tr("%1, %2 left")
        .arg(Minutes(Seconds), Minutes(MostSeconds - std::floor(Seconds)));
}

}  // namespace

// What a button does: the engine's part, and how the window looks afterwards.
struct frmSoundRecorder::Command {
    Button Pressed;
    const char* In;  // the mode in which it does so; nothing in the others
    bool (*Engine)(clsDirectSound& Sound);
    const char* Text;  // of the window while the devices take their time
    const char* RecorderMode;
    unsigned On;  // the buttons that work then
    bool StartsTimer1;
};

const frmSoundRecorder::Command* frmSoundRecorder::CommandFor(unsigned Pressed,
                                                              const QString& Mode) {
    static const Command Commands[] = {
        {cmdRecord, Idle, [](auto& Sound) { return Sound.RecorderStartRecording(); },
         QT_TR_NOOP("Opening the microphone..."), Recording, cmdStop, false},
        {cmdPlay, Idle, [](auto& Sound) { return Sound.RecorderStartPlayback(); },
         QT_TR_NOOP("Opening the loudspeakers..."), Playing, cmdStop, true},
        {cmdStop, Recording, [](auto& Sound) { return Sound.RecorderStopRecording(), true; },
         QT_TR_NOOP("Closing the microphone..."), Idle, AllButStop, false},
        {cmdStop, Playing, [](auto& Sound) { return Sound.RecorderStopPlayback(), true; },
         QT_TR_NOOP("Closing the loudspeakers..."), Idle, AllButStop, false},
    };
    const auto Chosen =
        std::find_if(std::begin(Commands), std::end(Commands), [&](const Command& Row) {
            return Row.Pressed == Pressed && Mode == QLatin1String(Row.In);
        });
    return Chosen == std::end(Commands) ? nullptr : Chosen;
}

frmSoundRecorder::frmSoundRecorder()
    : mUi(std::make_unique<Ui::frmSoundRecorder>()),
      Timer1(new QTimer(this)),
      tmrMeter(new QTimer(this)) {
    mUi->setupUi(this);
    LoadIcons();
    ReserveTexts();
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(CompletionMs);
    Timer1->setTimerType(Qt::PreciseTimer);
    tmrMeter->setObjectName(QStringLiteral("tmrMeter"));
    tmrMeter->setInterval(MeterMs);
    connect(Timer1, &QTimer::timeout, this, &frmSoundRecorder::Tick);
    connect(tmrMeter, &QTimer::timeout, this, &frmSoundRecorder::MeterTick);
    SetUpButtons();
}

frmSoundRecorder::~frmSoundRecorder() = default;

void frmSoundRecorder::SetUpButtons() {
    const std::pair<QPushButton*, Button> Buttons[] = {
        {mUi->cmdRecord, cmdRecord}, {mUi->cmdPlay, cmdPlay}, {mUi->cmdStop, cmdStop}};
    for (const auto& [Each, Pressed] : Buttons)
        connect(Each, &QPushButton::clicked, this, [this, Its = Pressed] { Run(Its); });
    connect(mUi->cmdSave, &QPushButton::clicked, this, &frmSoundRecorder::Save);
    connect(mUi->sdrVolume, &QSlider::valueChanged, this, &frmSoundRecorder::SetVolume);
}

// While the devices are busy the slider alone keeps the value, until they have done.
void frmSoundRecorder::SetVolume(int Value) {
    if (mJobs && !IsWaiting()) Tell(mJobs->Recorder().SetRecorderVolume(Value));
}

void frmSoundRecorder::Form_Load() {
    mJobs = std::make_unique<RecorderJobs>();
    Begin([](clsDirectSound& Sound) { return Sound.RecordingSupported(nullptr); },
          tr("Opening the microphone..."), [this](bool Did) { Opened(Did); });
}

void frmSoundRecorder::Opened(bool Did) {
    mProgress.Refusal = mJobs->Recorder().LastError();
    if (Did) return StartProgress();
    MsgBox(mProgress.Refusal);
    Unload();
}

// What is still being spoken has been spoken for something. A device that is still being opened for
// nothing is no reason to stay.
bool frmSoundRecorder::Form_QueryUnload() {
    if (!mJobs || mClip.IsSaved) return true;
    if (IsWaiting() && mClip.Mode.isEmpty() && mClip.Seconds <= 0) return true;
    AwaitStep();
    if (mClip.Mode == QLatin1String(Recording)) Run(cmdStop);
    AwaitStep();
    return mClip.IsSaved || mClip.Seconds <= 0 || MayDiscard();
}

bool frmSoundRecorder::MayDiscard() {
    const BoxAnswer Answered = AskSave(tr("Are you sure you want to discard the recording?"),
                                       tr("Discard Changes Confirmation"));
    if (Answered != BoxAnswer::Save) return Answered == BoxAnswer::Discard;
    Save();
    AwaitStep();
    return mClip.IsSaved;
}

bool frmSoundRecorder::Form_Unload() {
    Timer1->stop();
    tmrMeter->stop();
    mStep = {};
    mJobs.reset();
    return true;
}

// A key pressed at the last moment runs its button when the window has gone.
void frmSoundRecorder::Run(unsigned Pressed) {
    const Command* const Chosen = CommandFor(Pressed, mClip.Mode);
    if (!mJobs || IsWaiting() || !Chosen) return;
    Begin(Chosen->Engine, tr(Chosen->Text), [this, Chosen](bool Did) { Done(*Chosen, Did); });
}

// What was refused leaves the buttons as they were.
void frmSoundRecorder::Done(const Command& Chosen, bool Did) {
    mProgress.Refusal = mJobs->Recorder().LastError();
    if (!Did) return StartProgress();
    if (Chosen.Pressed == cmdStop && mClip.Mode == QLatin1String(Recording))
        mClip.NoteEnd(mJobs->Recorder().RecorderSeconds());
    mClip.Mode = QString::fromLatin1(Chosen.RecorderMode);
    Enable(Chosen.On);
    if (Chosen.StartsTimer1) Timer1->start();
    StartProgress();
}

// A file that cannot be written leaves the window, and the recording in it, as they are.
void frmSoundRecorder::Save() {
    if (!mJobs || IsWaiting()) return;
    Begin([Path = mClip.SavePath](clsDirectSound& Sound) { return Sound.RecorderSaveToFile(Path); },
          tr("Saving..."), [this](bool Did) { Saved(Did); });
}

void frmSoundRecorder::Saved(bool Did) {
    mProgress.Refusal = mJobs->Recorder().LastError();
    StartProgress();
    if (!Did) {
        MsgBox(mProgress.Refusal);
        return;
    }
    mClip.IsSaved = true;
    Unload();
}

void frmSoundRecorder::Begin(RecorderJobs::Operation Do, const QString& Text,
                             std::function<void(bool)> Then) {
    mStep = {.Then = std::move(Then), .Text = Text, .On = ButtonsOn()};
    mJobs->Begin(std::move(Do));
    if (mJobs->IsOver())
        Finish();
    else
        Wait();
}

void frmSoundRecorder::Wait() {
    mStep.Keyboard = focusWidget() ? qobject_cast<QPushButton*>(focusWidget()) : mUi->cmdRecord;
    SwitchButtons(0);
    mUi->lvlSound->Clear();
    ShowProgress();
    tmrMeter->start();
}

void frmSoundRecorder::Finish() {
    const Step Ended = std::exchange(mStep, {});
    SwitchButtons(Ended.On);
    if (Ended.Keyboard) Ended.Keyboard->setFocus();
    StartProgress();
    const Answer<> Kept = mJobs->Recorder().SetRecorderVolume(mUi->sdrVolume->value());
    Ended.Then(mJobs->Answer());
}

// For a question that needs an answer: the window paints on, and the user's clicks wait.
void frmSoundRecorder::AwaitStep() {
    while (mJobs && IsWaiting()) {
        if (mJobs->IsOver(PaintingMs))
            Finish();
        else
            DoEventsButInput();
    }
}

unsigned frmSoundRecorder::ButtonsOn() const {
    const auto If = [](const QPushButton* Each, Button Its) {
        return Each->isEnabled() ? Its : 0U;
    };
    return If(mUi->cmdRecord, cmdRecord) | If(mUi->cmdPlay, cmdPlay) | If(mUi->cmdStop, cmdStop) |
           If(mUi->cmdSave, cmdSave);
}

void frmSoundRecorder::SwitchButtons(unsigned On) {
    mUi->cmdRecord->setEnabled(On & cmdRecord);
    mUi->cmdPlay->setEnabled(On & cmdPlay);
    mUi->cmdStop->setEnabled(On & cmdStop);
    mUi->cmdSave->setEnabled(On & cmdSave);
}

// The keyboard stays on a button that works; else it would be left on one that is off.
void frmSoundRecorder::Enable(unsigned On) {
    const QWidget* Before = focusWidget();
    SwitchButtons(On);
    QPushButton* Next = On & cmdStop ? mUi->cmdStop : mUi->cmdPlay;
    Next->setDefault(true);
    if (!Before || !Before->isEnabled()) Next->setFocus();
}

void frmSoundRecorder::StartProgress() {
    mUi->lvlSound->Clear();
    ShowProgress();
    mProgress.StillSteps = 0;
    if (mClip.Mode.isEmpty())
        tmrMeter->stop();
    else
        tmrMeter->start();
}

void frmSoundRecorder::Tick() {
    if (IsWaiting() || !mJobs->Recorder().RecorderPlaybackComplete()) return;
    Timer1->stop();
    Run(cmdStop);
}

// The microphone ends by itself when there is no more room, and so does the window.
void frmSoundRecorder::MeterTick() {
    if (IsWaiting()) {
        if (mJobs->IsOver()) Finish();
        return;
    }
    ShowProgress();
    if (mClip.Mode == QLatin1String(Recording) && mProgress.Seconds >= MostSeconds) Run(cmdStop);
}

// A level counts as long as time moves on: a microphone that was pulled out has none.
void frmSoundRecorder::ShowProgress() {
    if (!IsWaiting()) {
        const clsDirectSound& Sound = mJobs->Recorder();
        const double Seconds = Sound.RecorderSeconds();
        const bool Moves = std::exchange(mProgress.Seconds, Seconds) != Seconds;
        mProgress.StillSteps = Moves ? 0 : mProgress.StillSteps + 1;
        mUi->lvlSound->SetLevel(Moves ? Sound.RecorderLevel() : 0);
    }
    mUi->lblStatus->setText(StatusText());
    mUi->lblTime->setText(TimeText());
}

QString frmSoundRecorder::StatusText() const {
    if (IsWaiting()) return mStep.Text;
    if (!mProgress.Refusal.isEmpty()) return mProgress.Refusal;
    if (mClip.Mode == QLatin1String(Playing)) return tr("Playing");
    if (mClip.Mode.isEmpty()) return IdleText();
    return mProgress.StillSteps > StillSteps ? tr("Waiting for the microphone") : tr("Recording");
}

QString frmSoundRecorder::IdleText() const {
    if (!mClip.IsThere) return tr("Press Record and speak.");
    if (mClip.Seconds >= MostSeconds) return tr("Recorded: the 20 seconds are full.");
    return mClip.Seconds > 0 ? tr("Recorded") : tr("Nothing was recorded.");
}

QString frmSoundRecorder::TimeText() const {
    if (mClip.Mode.isEmpty() && mClip.IsThere) return Minutes(mClip.Seconds);
    if (mClip.Mode == QLatin1String(Playing))
        return tr("%1 of %2").arg(Minutes(mProgress.Seconds), Minutes(mClip.Seconds));
    return RecordingTime(mProgress.Seconds);
}

void frmSoundRecorder::changeEvent(QEvent* Event) {
    Form::changeEvent(Event);
    if (Event->type() == QEvent::PaletteChange) LoadIcons();
    if (Event->type() == QEvent::FontChange) ReserveTexts();
}

void frmSoundRecorder::ReserveTexts() {
    const QFontMetrics Metrics = mUi->lblStatus->fontMetrics();
    const int Width = Metrics.horizontalAdvance(tr(LongestStatus)) * 6 / 5 / StatusLines;
    mUi->lblStatus->setMinimumSize(Width, Metrics.lineSpacing() * StatusLines);
    mUi->lblTime->setMinimumWidth(Metrics.horizontalAdvance(RecordingTime(0)) +
                                  Metrics.averageCharWidth());
}

void frmSoundRecorder::LoadIcons() {
    const struct {
        QPushButton* Button;
        const char* IconName;
    } Icons[] = {{mUi->cmdRecord, "record"},
                 {mUi->cmdStop, "stop"},
                 {mUi->cmdPlay, "sound"},
                 {mUi->cmdSave, "save"}};
    for (const auto& Each : Icons)
        Each.Button->setIcon(ThemeIcon(QString::fromLatin1(Each.IconName), palette()));
}

}  // namespace neb
