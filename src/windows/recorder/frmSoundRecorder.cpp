#include "windows/recorder/frmSoundRecorder.h"

#include <QEvent>
#include <QTimer>
#include <algorithm>
#include <cmath>

#include "controls/fields/Icons.h"
#include "controls/forms/Tell.h"
#include "sound/clsDirectSound.h"
#include "support/Services.h"
#include "ui_frmSoundRecorder.h"

namespace neb {
namespace {

constexpr int CompletionMs = 100;
constexpr int MeterMs = 50;
constexpr int MostSeconds = 20;
constexpr int StillSteps = 20;  // of the meter, after which a microphone counts as silent
constexpr int StatusLines = 2;

constexpr char Idle[] = "";
constexpr char Recording[] = "Recording";
constexpr char Playing[] = "Playing";

enum Buttons : unsigned { cmdRecord = 1, cmdPlay = 2, cmdStop = 4, cmdSave = 8 };
constexpr unsigned AllButStop = cmdRecord | cmdPlay | cmdSave;

// What a button does: the engine's part, and how the window looks afterwards.
struct Command {
    Buttons Pressed;
    const char* In;  // the mode in which it does so; nothing in the others
    void (*Engine)(clsDirectSound& Sound);
    const char* RecorderMode;
    unsigned On;  // the buttons that work then
    bool StartsTimer1;
};
const Command Commands[] = {
    {cmdRecord, Idle, [](auto& Sound) { Sound.RecorderStartRecording(); }, Recording, cmdStop,
     false},
    {cmdPlay, Idle, [](auto& Sound) { Sound.RecorderStartPlayback(); }, Playing, cmdStop, true},
    {cmdStop, Recording, [](auto& Sound) { Sound.RecorderStopRecording(); }, Idle, AllButStop,
     false},
    {cmdStop, Playing, [](auto& Sound) { Sound.RecorderStopPlayback(); }, Idle, AllButStop, false},
};

// The longest status: the window keeps room for it, so that it never jumps in size.
const auto LongestStatus =
    QStringLiteral("This card does not support full duplex.  You may still record sound.");

QString Minutes(double Seconds) {
    const int Whole = static_cast<int>(std::floor(Seconds));
    return QStringLiteral("%1:%2").arg(Whole / 60).arg(Whole % 60, 2, 10, QLatin1Char('0'));
}

}  // namespace

frmSoundRecorder::frmSoundRecorder()
    : mUi(std::make_unique<Ui::frmSoundRecorder>()),
      Timer1(new QTimer(this)),
      tmrMeter(new QTimer(this)) {
    mUi->setupUi(this);
    LoadIcons();
    ReserveStatus();
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(CompletionMs);
    Timer1->setTimerType(Qt::PreciseTimer);
    tmrMeter->setObjectName(QStringLiteral("tmrMeter"));
    tmrMeter->setInterval(MeterMs);
    connect(Timer1, &QTimer::timeout, this, &frmSoundRecorder::Tick);
    connect(tmrMeter, &QTimer::timeout, this, &frmSoundRecorder::ShowProgress);
    connect(mUi->cmdRecord, &QPushButton::clicked, this, [this] { Run(cmdRecord); });
    connect(mUi->cmdPlay, &QPushButton::clicked, this, [this] { Run(cmdPlay); });
    connect(mUi->cmdStop, &QPushButton::clicked, this, [this] { Run(cmdStop); });
    connect(mUi->cmdSave, &QPushButton::clicked, this, &frmSoundRecorder::Save);
    connect(mUi->sdrVolume, &QSlider::valueChanged, this, &frmSoundRecorder::SetVolume);
}

frmSoundRecorder::~frmSoundRecorder() = default;

void frmSoundRecorder::SetVolume(int Value) {
    if (mSound) Tell(mSound->SetRecorderVolume(Value));
}

void frmSoundRecorder::Form_Load() {
    mSound = std::make_unique<clsDirectSound>();
    if (!mSound->RecordingSupported(this)) {
        MsgBox(mSound->LastError());
        Unload();
        return;
    }
    mRefusal = mSound->LastError();
    ShowProgress();
}

// What is still being spoken has been spoken for something.
bool frmSoundRecorder::Form_QueryUnload() {
    if (!mSound || mClip.IsSaved) return true;
    if (mClip.Mode == QLatin1String(Recording)) Run(cmdStop);
    if (mClip.Seconds <= 0) return true;
    const BoxAnswer Answered = AskSave(tr("Are you sure you want to discard the recording?"),
                                       QStringLiteral("Discard Changes Confirmation"));
    if (Answered == BoxAnswer::Save) Keep();
    return Answered != BoxAnswer::Cancel;
}

bool frmSoundRecorder::Form_Unload() {
    Timer1->stop();
    tmrMeter->stop();
    mSound.reset();
    return true;
}

// A key pressed at the last moment runs its button when the window has gone.
void frmSoundRecorder::Run(unsigned Pressed) {
    if (!mSound) return;
    const auto Chosen =
        std::find_if(std::begin(Commands), std::end(Commands), [&](const auto& Row) {
            return Row.Pressed == Pressed && mClip.Mode == QLatin1String(Row.In);
        });
    if (Chosen == std::end(Commands)) return;
    Chosen->Engine(*mSound);
    mRefusal = mSound->LastError();
    if (Pressed == cmdStop && mClip.Mode == QLatin1String(Recording))
        mClip.Seconds = mSound->RecorderSeconds();
    mClip.Mode = QString::fromLatin1(Chosen->RecorderMode);
    Enable(Chosen->On);
    if (Chosen->StartsTimer1) Timer1->start();
    StartProgress();
}

// The keyboard stays on a button that works; else it would be left on one that is off.
void frmSoundRecorder::Enable(unsigned On) {
    const QWidget* Before = focusWidget();
    mUi->cmdRecord->setEnabled(On & cmdRecord);
    mUi->cmdPlay->setEnabled(On & cmdPlay);
    mUi->cmdStop->setEnabled(On & cmdStop);
    mUi->cmdSave->setEnabled(On & cmdSave);
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

// A file that cannot be written leaves the window, and the recording in it, as they are.
void frmSoundRecorder::Save() {
    if (!mSound) return;
    Keep();
    Unload();
}

void frmSoundRecorder::Keep() {
    mSound->RecorderSaveToFile(mClip.SavePath);
    mClip.IsSaved = true;
}

void frmSoundRecorder::Tick() {
    if (!mSound->RecorderPlaybackComplete()) return;
    Timer1->stop();
    Run(cmdStop);
}

// A level counts as long as time moves on: a full recording and a microphone that was pulled out
// have none.
void frmSoundRecorder::ShowProgress() {
    const double Seconds = mSound->RecorderSeconds();
    const bool Moves = std::exchange(mProgress.Seconds, Seconds) != Seconds;
    mProgress.StillSteps = Moves ? 0 : mProgress.StillSteps + 1;
    mUi->lvlSound->SetLevel(Moves ? mSound->RecorderLevel() : 0);
    mUi->lblStatus->setText(mRefusal.isEmpty() ? StatusText() : mRefusal);
    mUi->lblTime->setText(TimeText());
}

QString frmSoundRecorder::StatusText() const {
    if (mClip.Mode == QLatin1String(Playing)) return tr("Playing");
    if (mClip.Mode.isEmpty()) return IdleText();
    if (mProgress.Seconds >= MostSeconds) return tr("Recording: the 20 seconds are full.");
    return mProgress.StillSteps > StillSteps ? tr("Waiting for the microphone") : tr("Recording");
}

QString frmSoundRecorder::IdleText() const {
    if (!mUi->cmdPlay->isEnabled()) return tr("Press Record and speak.");
    return mClip.Seconds > 0 ? tr("Recorded") : tr("Nothing was recorded.");
}

QString frmSoundRecorder::TimeText() const {
    const bool Ended = mClip.Mode.isEmpty() && mUi->cmdPlay->isEnabled();
    if (Ended) return Minutes(mClip.Seconds);
    const double Whole = mClip.Mode == QLatin1String(Playing) ? mClip.Seconds : MostSeconds;
    return tr("%1 of %2").arg(Minutes(mProgress.Seconds), Minutes(Whole));
}

void frmSoundRecorder::changeEvent(QEvent* Event) {
    Form::changeEvent(Event);
    if (Event->type() == QEvent::PaletteChange) LoadIcons();
    if (Event->type() == QEvent::FontChange) ReserveStatus();
}

void frmSoundRecorder::ReserveStatus() {
    const QFontMetrics Metrics = mUi->lblStatus->fontMetrics();
    const int Width = Metrics.horizontalAdvance(LongestStatus) * 6 / 5 / StatusLines;
    mUi->lblStatus->setMinimumSize(Width, Metrics.lineSpacing() * StatusLines);
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
