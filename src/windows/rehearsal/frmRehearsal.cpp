#include "windows/rehearsal/frmRehearsal.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

#include "controls/fields/Icons.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Grouped.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/modCharacters.h"
#include "ui_frmRehearsal.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modWindowState.h"
#include "windows/printing/modPrinting.h"
#include "windows/rehearsal/RehearsalTable.h"
#include "windows/show/ShowScreen.h"

namespace neb {
namespace {

const WindowMemory Memory{QStringLiteral("frmRehearsal"), 9000};
constexpr int LookMs = 50;
constexpr int CuesRoom = 420, FindingsRoom = 100;  // parts of the height at first
enum FindingColumn { FindingSlide, FindingKind, FindingText, FindingColumns };

RehearsalSheet Rehearsed(const std::shared_ptr<clsDBEngine>& Copy, QSize Screen, JobState& State) {
    RehearsalOptions Options;
    Options.GoesOn = [&State](std::int32_t SlideSeq) {
        State.SoFar = SlideSeq;
        return !State.Stop;
    };
    return MakeRehearsalSheet(*Copy, Screen, Options);
}

}  // namespace

frmRehearsal::frmRehearsal() : mUi(std::make_unique<Ui::frmRehearsal>()) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    SetUpGrids();
    mUi->splMain->setSizes({CuesRoom, FindingsRoom});
    mUi->splMain->setStretchFactor(0, 1);  // the show gets the room of a larger window
    mUi->splMain->setStretchFactor(1, 0);
    On(mUi->cmdPrint, &QPushButton::clicked, &frmRehearsal::Print);
    On(mUi->cmdAgain, &QPushButton::clicked, &frmRehearsal::Rehearse);
    On(mUi->cmdCancel, &QPushButton::clicked, &frmRehearsal::Stop);
    On(mUi->cmdClose, &QPushButton::clicked, &frmRehearsal::Close);
    connect(mUi->tlnShow, &TimeLine::CurrentChanged, this, &frmRehearsal::StandOn);
    connect(mUi->tlnShow, &TimeLine::Activated, this, &frmRehearsal::GoTo);
    LoadIcons();
}

frmRehearsal::~frmRehearsal() = default;

void frmRehearsal::SetUpGrids() {
    FlexGrid &Cues = *mUi->flxCues, &Findings = *mUi->flxFindings;
    Cues.SetCols(CueColumns);
    const int Letter = fontMetrics().averageCharWidth();
    for (int Col = 0; Col < CueColumns; ++Col)
        Cues.SetColumn(Col, {.Stretch = LookOf(Col).Letters == 0,
                             .Width = LookOf(Col).Letters * Letter,
                             .Align = LookOf(Col).Right ? Qt::AlignRight : Qt::AlignLeft,
                             .Heading = tr(LookOf(Col).Heading)});
    Findings.SetCols(FindingColumns);
    Findings.SetColumn(FindingSlide,
                       {.Width = 6 * Letter, .Align = Qt::AlignRight, .Heading = tr("Slide")});
    Findings.SetColumn(FindingKind, {.Width = 12 * Letter, .Heading = tr("Kind")});
    Findings.SetColumn(FindingText, {.Stretch = true, .Heading = tr("What is to be mended")});
    connect(&Cues, &FlexGrid::EnterCell, this, &frmRehearsal::StandOn);
    connect(&Cues, &FlexGrid::CellDblClicked, this, &frmRehearsal::GoTo);
    connect(&Cues, &FlexGrid::RowActivated, this, &frmRehearsal::GoTo);
    connect(&Findings, &FlexGrid::CellDblClicked, this, &frmRehearsal::FindingChosen);
    connect(&Findings, &FlexGrid::RowActivated, this, &frmRehearsal::FindingChosen);
}

void frmRehearsal::LoadIcons() {
    const std::pair<QPushButton*, const char*> Icons[] = {{mUi->cmdPrint, "print"},
                                                          {mUi->cmdAgain, "slide-show-play"},
                                                          {mUi->cmdCancel, "cancel"},
                                                          {mUi->cmdClose, "exit"}};
    for (const auto& [Button, Name] : Icons)
        Button->setIcon(ThemeIcon(QString::fromLatin1(Name), palette()));
}

void frmRehearsal::changeEvent(QEvent* Event) {
    Form::changeEvent(Event);
    if (Event->type() == QEvent::PaletteChange) LoadIcons();
}

void frmRehearsal::Form_Load() {
    RestoreWindow(*this, Memory);
}

// The work is let go of: it has all that it needs, and ends by itself.
bool frmRehearsal::Form_Unload() {
    SaveWindow(*this, Memory);
    mJob.reset();
    return true;
}

// Esc ends what is under way, and closes what is over.
void frmRehearsal::CloseRequested() {
    if (mJob)
        Stop();
    else
        Unload();
}

void frmRehearsal::RehearseShow(std::int32_t AlbumID, std::int32_t SlideShowID) {
    const auto Held = shared_from_this();
    mOf = {AlbumID, SlideShowID};
    if (!IsThere()) {
        MsgBox(tr("Slide Show not found."));
        return;
    }
    if (TheOpeners().ShowAsChild)
        TheOpeners().ShowAsChild(*this);
    else
        ShowModeless();
    if (IsLoaded()) Rehearse();
}

bool frmRehearsal::IsThere() const {
    const clsNEBAlbum* Album = DBEngine->GetAlbum(mOf.AlbumID);
    return Album && Album->GetSlideShow(mOf.SlideShowID);
}

void frmRehearsal::Rehearse() {
    const std::shared_ptr<clsDBEngine> Copy =
        CopyForRehearsal(*DBEngine, mOf.AlbumID, mOf.SlideShowID);
    if (!Copy) return Close();
    const clsNEBSlideShow& Show = *Copy->Albums.front()->SlideShows.front();
    setWindowTitle(tr("Rehearsal - %1").arg(InOwnDirection(Show.SlideShowName)));
    mUi->pgbRun->setMaximum(std::max(1, static_cast<int>(Show.Details.size())));
    const QScreen* Shows = ShowScreen();  // its captions have another room than this window's
    if (!Shows) Shows = screen();
    const QSize Screen = Shows->size() * Shows->devicePixelRatio();
    mJob = std::make_unique<Job<RehearsalSheet>>(
        [Copy, Screen](JobState& Its) { return Rehearsed(Copy, Screen, Its); });
    ShowRunning(true);
    Look();
}

// Again and again until it has ended, for the one that was begun last alone.
void frmRehearsal::Look() {
    if (!mJob) return;
    mUi->pgbRun->setValue(mJob->SoFar());
    mUi->pgbRun->setFormat(tr("Slide %1 of %2")
                               .arg(Grouped(std::min(mJob->SoFar(), mUi->pgbRun->maximum())),
                                    Grouped(mUi->pgbRun->maximum())));
    if (!mJob->Wait(0)) return QTimer::singleShot(LookMs, this, &frmRehearsal::Look);
    const auto Done = std::move(mJob);
    ShowRunning(false);
    try {
        mSheet = std::make_shared<const RehearsalSheet>(Done->Take());
        ShowSheet();
    } catch (const Fault& Problem) {
        mUi->lblSummary->setText(Problem.Text());
    }
}

void frmRehearsal::Stop() {
    mJob.reset();
    ShowRunning(false);
    mUi->lblSummary->setText(tr("The rehearsal was stopped."));
}

void frmRehearsal::ShowRunning(bool Runs) {
    if (Runs) mUi->lblSummary->setText(tr("The show is being rehearsed ..."));
    mUi->pgbRun->setVisible(Runs);
    mUi->cmdCancel->setEnabled(Runs);
    mUi->cmdAgain->setEnabled(!Runs);
    mUi->cmdPrint->setEnabled(!Runs && mSheet && !mSheet->Rows.empty());
}

// Whoever goes through the problems one by one is not thrown back by what he mends.
void frmRehearsal::ShowSheet() {
    const int Stood = mUi->flxCues->Row(), Last = static_cast<int>(mSheet->Rows.size()) - 1;
    mUi->lblSummary->setText(mSheet->Summary() + u'.');
    FillCues();
    FillFindings();
    mUi->tlnShow->ShowSheet(mSheet);
    mUi->cmdPrint->setEnabled(Last >= 0);
    StandOn(std::min(std::max(Stood, 0), Last));
}

void frmRehearsal::FillCues() {
    std::vector<QStringList> Texts;
    for (const RehearsalRow& Each : mSheet->Rows) Texts.push_back(CueTextsOf(Each));
    mUi->flxCues->SetRows(0);
    mUi->flxCues->AddItems(Texts);
    mUi->flxCues->SetEmptyText(tr("No slide of the show comes up."));
}

void frmRehearsal::FillFindings() {
    std::vector<QStringList> Texts;
    const auto Add = [&](const std::vector<RehearsalFinding>& Findings, const QString& Kind) {
        for (const RehearsalFinding& Each : Findings)
            Texts.push_back(
                {Each.SlideSeq > 0 ? QString::number(Each.SlideSeq) : QString(), Kind, Each.Text});
    };
    Add(mSheet->Findings.Problems, tr("Problem"));
    Add(mSheet->Findings.Notes, tr("Note"));
    mUi->flxFindings->SetRows(0);
    mUi->flxFindings->AddItems(Texts);
    mUi->flxFindings->SetEmptyText(tr("Nothing is wrong with this show."));
}

// Table and time line stand on the same slide.
void frmRehearsal::StandOn(int Row) {
    if (!mSheet || Row < 0) return;
    mUi->tlnShow->SetCurrent(Row);
    if (mUi->flxCues->Row() != Row && Row < mUi->flxCues->Rows()) {
        mUi->flxCues->SetRow(Row);
        mUi->flxCues->EnsureRowVisible(Row);
    }
}

void frmRehearsal::GoTo(int Row) {
    if (!mSheet || Row < 0 || Row >= static_cast<int>(mSheet->Rows.size())) return;
    const std::int32_t SlideID = mSheet->Rows[static_cast<size_t>(Row)].SlideID;
    StandOn(Row);
    Command([&] {
        if (TheOpeners().SlideOfShow)
            TheOpeners().SlideOfShow(mOf.AlbumID, mOf.SlideShowID, SlideID);
    });
}

void frmRehearsal::FindingChosen(int Row) {
    const int SlideSeq = mUi->flxFindings->TextMatrix(Row, FindingSlide).toInt();
    const auto& All = mSheet->Rows;
    const auto Its = std::find_if(All.begin(), All.end(),
                                  [=](const auto& Each) { return Each.SlideSeq == SlideSeq; });
    if (Its != All.end()) GoTo(static_cast<int>(Its - All.begin()));
}

void frmRehearsal::Print() {
    if (!mSheet) return;
    const auto Document = NewPrintDocument(mSheet->Show);
    ComposeTable(*Document, TableOf(*mSheet));
    PreviewDocument(Document);
}

void frmRehearsal::ReceiveEvent(const QString&, const QString&, const EventKeys& EventData) {
    if (EventData.empty() || EventData[0] != mOf.AlbumID) return;
    const auto Held = shared_from_this();
    if (IsThere())
        Rehearse();
    else
        Unload();
}

}  // namespace neb
