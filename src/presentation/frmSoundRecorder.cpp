#include "presentation/frmSoundRecorder.h"

#include <QEvent>
#include <QTimer>
#include <cmath>

#include "platform/Icons.h"
#include "presentation/clsDirectSound.h"
#include "support/Services.h"
#include "ui_frmSoundRecorder.h"

namespace neb {
namespace {

constexpr int CompletionMs = 100;
constexpr int MeterMs = 50;
constexpr int MostSeconds = 20;
constexpr int StillSteps = 40;  // of the meter, after which a microphone counts as silent
constexpr int StatusLines = 2;

const auto Recording = QStringLiteral("Recording");
const auto Playing = QStringLiteral("Playing");

// The longest status: the window keeps room for it, so that it never jumps in size.
const auto LongestStatus =
    QStringLiteral("This card does not support full duplex.  You may still record sound.");

QString Minutes(double Seconds) {
    const int Whole = static_cast<int>(std::floor(Seconds));
    return QStringLiteral("%1:%2").arg(Whole / 60).arg(Whole % 60, 2, 10, QLatin1Char('0'));
}

}  // namespace

// What a button does: the engine's part, and how the window looks afterwards.
struct frmSoundRecorder::Command {
    void (*Engine)(clsDirectSound& Sound);
    QString RecorderMode;
    bool cmdRecord;
    bool cmdPlay;
    bool cmdStop;
    bool cmdSave;
    bool StartsTimer1;
};

const frmSoundRecorder::Command frmSoundRecorder::Record = {
    [](clsDirectSound& Sound) { Sound.RecorderStartRecording(); },
    Recording,
    false,
    false,
    true,
    false,
    false};
const frmSoundRecorder::Command frmSoundRecorder::Play = {
    [](clsDirectSound& Sound) { Sound.RecorderStartPlayback(); },
    Playing,
    false,
    false,
    true,
    false,
    true};
const frmSoundRecorder::Command frmSoundRecorder::StopRecording = {[](clsDirectSound& Sound) { Sound.RecorderStopRecording(); },
                                                                   {},
                                                                   true,
                                                                   true,
                                                                   false,
                                                                   true,
                                                                   false};
const frmSoundRecorder::Command frmSoundRecorder::StopPlaying = {[](clsDirectSound& Sound) { Sound.RecorderStopPlayback(); },
                                                                 {},
                                                                 true,
                                                                 true,
                                                                 false,
                                                                 true,
                                                                 false};

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
    connect(mUi->cmdRecord, &QPushButton::clicked, this, [this] { Run(Record); });
    connect(mUi->cmdPlay, &QPushButton::clicked, this, [this] { Run(Play); });
    connect(mUi->cmdStop, &QPushButton::clicked, this, &frmSoundRecorder::Stop);
    connect(mUi->cmdSave, &QPushButton::clicked, this, &frmSoundRecorder::Save);
    connect(mUi->sdrVolume, &QSlider::valueChanged, this,
            [this](int Value) { mSound->SetRecorderVolume(Value); });
}

frmSoundRecorder::~frmSoundRecorder() = default;

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

bool frmSoundRecorder::Form_Unload() {
    Timer1->stop();
    tmrMeter->stop();
    mSound.reset();
    return true;
}

void frmSoundRecorder::Run(const Command& Chosen) {
    Chosen.Engine(*mSound);
    mRefusal = mSound->LastError();
    if (Chosen.RecorderMode.isEmpty() && mRecorderMode == Recording)
        mRecordedSeconds = mSound->RecorderSeconds();
    mRecorderMode = Chosen.RecorderMode;
    Enable(Chosen);
    if (Chosen.StartsTimer1) Timer1->start();
    mUi->lvlSound->Clear();
    mStillSteps = 0;
    ShowProgress();
    if (mRecorderMode.isEmpty())
        tmrMeter->stop();
    else
        tmrMeter->start();
}

// The keyboard stays on a button that works; else it would be left on one that is off.
void frmSoundRecorder::Enable(const Command& Chosen) {
    const QWidget* Before = focusWidget();
    mUi->cmdRecord->setEnabled(Chosen.cmdRecord);
    mUi->cmdPlay->setEnabled(Chosen.cmdPlay);
    mUi->cmdStop->setEnabled(Chosen.cmdStop);
    mUi->cmdSave->setEnabled(Chosen.cmdSave);
    QPushButton* Next = Chosen.cmdStop ? mUi->cmdStop : mUi->cmdPlay;
    Next->setDefault(true);
    if (!Before || !Before->isEnabled()) Next->setFocus();
}

void frmSoundRecorder::Stop() {
    if (mRecorderMode == Recording) Run(StopRecording);
    if (mRecorderMode == Playing) Run(StopPlaying);
}

// A file that cannot be written leaves the window, and the recording in it, as they are.
void frmSoundRecorder::Save() {
    mSound->RecorderSaveToFile(mSoundSavePath);
    mSoundRecorded = true;
    Unload();
}

void frmSoundRecorder::Tick() {
    if (!mSound->RecorderPlaybackComplete()) return;
    Timer1->stop();
    Stop();
}

// A level counts as long as time moves on: a full recording and a microphone that was pulled out
// have none.
void frmSoundRecorder::ShowProgress() {
    const double Seconds = mSound->RecorderSeconds();
    const bool Moves = std::exchange(mShownSeconds, Seconds) != Seconds;
    mStillSteps = Moves ? 0 : mStillSteps + 1;
    mUi->lvlSound->SetLevel(Moves ? mSound->RecorderLevel() : 0);
    mUi->lblStatus->setText(mRefusal.isEmpty() ? StatusText() : mRefusal);
    mUi->lblTime->setText(TimeText());
}

QString frmSoundRecorder::StatusText() const {
    if (mRecorderMode == Playing) return tr("Playing");
    if (mRecorderMode.isEmpty()) return IdleText();
    if (mShownSeconds >= MostSeconds) return tr("Recording: the 20 seconds are full.");
    const bool Waits = mShownSeconds == 0 || mStillSteps > StillSteps;
    return Waits ? tr("Waiting for the microphone") : tr("Recording");
}

QString frmSoundRecorder::IdleText() const {
    if (!mUi->cmdPlay->isEnabled()) return tr("Press Record and speak.");
    return mRecordedSeconds > 0 ? tr("Recorded") : tr("Nothing was recorded.");
}

QString frmSoundRecorder::TimeText() const {
    const bool Ended = mRecorderMode.isEmpty() && mUi->cmdPlay->isEnabled();
    if (Ended) return Minutes(mRecordedSeconds);
    const double Whole = mRecorderMode == Playing ? mRecordedSeconds : MostSeconds;
    return tr("%1 of %2").arg(Minutes(mShownSeconds), Minutes(Whole));
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
