#include "windows/show/frmSpeedTest.h"

#include <QResizeEvent>
#include <QTimer>

#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "controls/picture/XShow.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "ui_frmSpeedTest.h"
#include "windows/show/ShowScreen.h"

namespace neb {
namespace {

constexpr char FirstPicture[] = "SpeedTest1.bmp";
constexpr char SecondPicture[] = "SpeedTest2.bmp";
constexpr int CloseAfterMs = 250;

QString PathOf(const char* File) {
    return AppPath() + QString::fromLatin1(File);
}

float Now() {
    return static_cast<float>(TheServices().Time->Timer());
}

bool AskForTest() {
    return ShowBox({.Text = SpeedTestQuestion(),
                    .Title = tr("Speed Test Notification"),
                    .Icon = BoxIcon::Information,
                    .Buttons = BoxButtons::YesNo,
                    .Default = BoxAnswer::Yes,
                    .YesWords = QObject::tr("&Test Now"),
                    .NoWords = QObject::tr("&Skip")}) == BoxAnswer::Yes;
}

}  // namespace

// Most people start the program for the first time to see their pictures: they learn what is going
// to happen on their screen, and that nothing is lost without it.
QString SpeedTestQuestion() {
    return tr("NEB Slide Show will now test your graphics speed.\n\n") +
           QObject::tr(
               "It runs some transitions on the full screen to find out which of them this "
               "computer shows smoothly. That takes a minute or two; Esc ends it at any "
               "time.\n\nWithout it, slide shows go by settings that suit most computers. You can "
               "run it later: Slide Show, Test Graphics Speed.");
}

frmSpeedTest::frmSpeedTest() : mUi(std::make_unique<Ui::frmSpeedTest>()), Timer1(new QTimer(this)) {
    mUi->setupUi(this);
    setAutoFillBackground(true);
    setPalette(QPalette(Qt::white, Qt::black));
    Timer1->setObjectName(QStringLiteral("Timer1"));
    connect(Timer1, &QTimer::timeout, this, &frmSpeedTest::Unload);
    mUi->Show1->SetPacing(XShow::Pacing::EveryStep);
    connect(mUi->Show1, &XShow::EffectEnded, this, &frmSpeedTest::EffectEnded);
}

frmSpeedTest::~frmSpeedTest() = default;

void frmSpeedTest::Form_Load() {
    if (!FileExists(PathOf(FirstPicture)) || !FileExists(PathOf(SecondPicture))) return Abort();
    SetScreenPointer(Pointer::Hourglass);
    FillScreen(*this, ShowScreen());
}

void frmSpeedTest::Form_Activate() {
    if (std::exchange(mStarted, true)) return;
    const bool Wanted = AskForTest();
    if (!IsLoaded()) return;
    if (!Wanted) {
        Unload();
        return;
    }
    StartLevel();
}

bool frmSpeedTest::Form_Unload() {
    Timer1->stop();
    disconnect(mUi->Show1, nullptr, this, nullptr);
    mUi->Show1->StopEffect();
    SetScreenPointer(Pointer::Default);
    return true;
}

void frmSpeedTest::resizeEvent(QResizeEvent* Event) {
    Form::resizeEvent(Event);
    if (!isMinimized() && width() > 0 && height() > 0) PlaceControls();
}

// The picture gets the room that it has in a show, above a line of text: on a full screen nobody
// sees the window's title.
void frmSpeedTest::PlaceControls() {
    const int Line = mUi->lblTitle->sizeHint().height(), Picture = std::max(1, height() - Line);
    const int Half = width() / 2;
    mUi->Show1->setGeometry(0, 0, width(), Picture);
    mUi->lblTitle->setGeometry(0, Picture, Half, Line);
    mUi->lblHint->setGeometry(Half, Picture, width() - Half, Line);
}

void frmSpeedTest::ShowTitle() {
    setWindowTitle(mLadder.Title());
    mUi->lblTitle->setText(mLadder.Title());
}

void frmSpeedTest::StartLevel() {
    mLadder.StartLevel(Now());
    mUi->Show1->SetShowOptionA(true);
    RunRound();
}

void frmSpeedTest::RunRound() {
    mLadder.StartRound();
    ShowTitle();
    mUi->Show1->SetEffectDelay(mLadder.EffectDelay());
    mUi->Show1->SetEffectStep(mLadder.EffectStep());
    RunTransition(FirstPicture);
}

void frmSpeedTest::RunTransition(const char* File) {
    try {
        mUi->Show1->LoadPicture(PathOf(File));
    } catch (const Fault&) {
        return Abort();  // a damaged picture is as good as a missing one
    }
    mUi->Show1->SetEffectNumber(mLadder.EffectNumber());
    mUi->Show1->RunEffect();
}

void frmSpeedTest::EffectEnded() {
    if (mLadder.SecondTransition())
        RunTransition(SecondPicture);
    else
        RoundOver();
}

void frmSpeedTest::RoundOver() {
    const SpeedLadder::Verdict Verdict = mLadder.RoundOver(Now());
    if (Verdict.TooSlow)
        MsgBox(
            tr("Your system may be too slow to properly show effects.\n"
               "Setting to lowest settings."));
    if (!IsLoaded()) return;
    if (Verdict.Then == SpeedLadder::Next::Round) return RunRound();
    if (Verdict.Then == SpeedLadder::Next::Level) return StartLevel();
    Timer1->start(CloseAfterMs);
}

void frmSpeedTest::Abort() {
    MsgBox(tr("Missing Component, Speed Test aborted."));
    Unload();
}

}  // namespace neb
