#include "windows/film/frmFilm.h"

#include <QApplication>
#include <algorithm>

#include "controls/fields/Icons.h"
#include "controls/forms/Tell.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Grouped.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesCopy.h"
#include "support/modCharacters.h"
#include "support/modFUFL.h"
#include "ui_frmFilm.h"
#include "windows/film/FilmForecast.h"
#include "windows/film/FilmMemory.h"
#include "windows/film/FilmRun.h"
#include "windows/film/FilmTexts.h"
#include "windows/film/FilmWorks.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modNotice.h"
#include "windows/frame/modWindowState.h"

namespace neb {
namespace {

const WindowMemory Memory{QStringLiteral("frmFilm"), 9000};
constexpr int BarEnd = 1000;
constexpr double MomentSeconds = 10;  // of work, which are made again without regret
enum FindingColumn { FindingSlide, FindingKind, FindingText, FindingColumns };

}  // namespace

frmFilm::frmFilm()
    : mUi(std::make_unique<Ui::frmFilm>()),
      mForecast(new FilmForecast(this)),
      mRun(new FilmRun(this)) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    mUi->pgbFilm->setMaximum(BarEnd);
    SetUpGrid();
    Connect();
    LoadIcons();
    ShowPhase();
}

frmFilm::~frmFilm() = default;

void frmFilm::Connect() {
    const std::pair<QPushButton*, void (frmFilm::*)()> Buttons[] = {
        {mUi->cmdMake, &frmFilm::Make},       {mUi->cmdStop, &frmFilm::Stop},
        {mUi->cmdOpen, &frmFilm::OpenFilm},   {mUi->cmdFolder, &frmFilm::OpenFolder},
        {mUi->cmdAnother, &frmFilm::Another}, {mUi->cmdClose, &frmFilm::Close},
    };
    for (const auto& [Button, Does] : Buttons) On(Button, &QPushButton::clicked, Does);
    connect(mUi->fchFilm, &FilmChoices::Changed, this, &frmFilm::AskForecast);
    connect(mForecast, &FilmForecast::Changed, this, &frmFilm::ShowForecast);
    connect(mForecast, &FilmForecast::Failed, this, &frmFilm::ForecastFailed);
    connect(mRun, &FilmRun::Advanced, this, &frmFilm::Advanced);
    connect(mRun, &FilmRun::Seen, mUi->pvwFilm, &PictureView::SetPicture);
    connect(mRun, &FilmRun::Ended, this, &frmFilm::Ended);
    connect(mRun, &FilmRun::Failed, this, &frmFilm::Failed);
    connect(mUi->flxFindings, &FlexGrid::CellDblClicked, this, &frmFilm::FindingChosen);
    connect(mUi->flxFindings, &FlexGrid::RowActivated, this, &frmFilm::FindingChosen);
}

void frmFilm::SetUpGrid() {
    FlexGrid& Findings = *mUi->flxFindings;
    const int Letter = fontMetrics().averageCharWidth();
    Findings.SetCols(FindingColumns);
    Findings.SetColumn(FindingSlide,
                       {.Width = 6 * Letter, .Align = Qt::AlignRight, .Heading = tr("Slide")});
    Findings.SetColumn(FindingKind, {.Width = 12 * Letter, .Heading = tr("Kind")});
    Findings.SetColumn(FindingText, {.Stretch = true, .Heading = tr("What is wrong")});
}

void frmFilm::LoadIcons() {
    const std::pair<QPushButton*, const char*> Icons[] = {
        {mUi->cmdMake, "film"},   {mUi->cmdStop, "cancel"},  {mUi->cmdOpen, "slide-show-play"},
        {mUi->cmdFolder, "open"}, {mUi->cmdAnother, "film"}, {mUi->cmdClose, "exit"}};
    for (const auto& [Button, Name] : Icons)
        Button->setIcon(ThemeIcon(QString::fromLatin1(Name), palette()));
}

void frmFilm::changeEvent(QEvent* Event) {
    Form::changeEvent(Event);
    if (Event->type() == QEvent::PaletteChange) LoadIcons();
}

void frmFilm::Form_Load() {
    RestoreWindow(*this, Memory);
}

// Asked alone: another window may yet keep the program open, and the film goes on then.
bool frmFilm::Form_QueryUnload() {
    if (PhaseNow() != Phase::Making) return true;
    BringToFront(*this);
    return AsksToStop(
        tr("A film is being made:\n%1\n\nWhen this window closes the film is given "
           "up, and nothing of it is left."));
}

bool frmFilm::Form_Unload() {
    SaveWindow(*this, Memory);
    if (mOf.AlbumID != 0) mUi->fchFilm->Remember();
    mForecast->Cancel();
    mRun->Abandon();
    return true;
}

void frmFilm::reject() {
    if (mRun->IsRunning())
        Command([this] { Stop(); });
    else
        Unload();
}

void frmFilm::MakeFilmOf(std::int32_t AlbumID, std::int32_t SlideShowID) {
    const auto Held = shared_from_this();
    mOf = {AlbumID, SlideShowID};
    if (!Show()) {
        MsgBox(tr("Slide Show not found."));
        return;
    }
    mUi->fchFilm->Propose(Show()->SlideShowName);
    if (TheOpeners().ShowAsChild)
        TheOpeners().ShowAsChild(*this);
    else
        ShowModeless();
    if (IsLoaded()) FollowShow();
}

const clsNEBSlideShow* frmFilm::Show() const {
    const clsNEBAlbum* Album = DBEngine->GetAlbum(mOf.AlbumID);
    return Album ? Album->GetSlideShow(mOf.SlideShowID) : nullptr;
}

void frmFilm::FollowShow() {
    const clsNEBSlideShow* Its = Show();
    if (!Its) return Close();
    mUi->fchFilm->SetSlides(static_cast<int>(Its->Details.size()));
    mForecast->Follow(CopyForRehearsal(*DBEngine, mOf.AlbumID, mOf.SlideShowID));
    ShowTitle({});
    AskForecast();
}

void frmFilm::ReceiveEvent(const QString&, const QString&, const EventKeys& EventData) {
    if (EventData.empty() || EventData[0] != mOf.AlbumID) return;
    const auto Held = shared_from_this();
    if (PhaseNow() == Phase::Choosing) FollowShow();
}

frmFilm::Phase frmFilm::PhaseNow() const {
    if (mRun->IsRunning()) return mRun->IsStopping() ? Phase::Stopping : Phase::Making;
    return mRun->Made() ? Phase::Made : Phase::Choosing;
}

void frmFilm::ShowTitle(const QString& Before) {
    const clsNEBSlideShow* Its = Show();
    const QString Name = Its ? Its->SlideShowName : GetFileBaseName(mRun->Order().Path);
    setWindowTitle(Before + tr("Film - %1").arg(InOwnDirection(Name)));
}

// What of the window is there when. Who was on a control that goes finds himself on the next
// button; whoever works in another window stays there.
void frmFilm::ShowPhase() {
    const Phase Now = PhaseNow();
    const bool Runs = Now == Phase::Making || Now == Phase::Stopping;
    const QWidget* Focus = QApplication::focusWidget();
    const bool IsHere =
        isAncestorOf(Focus) && (Now != Phase::Choosing || !mUi->fchFilm->isEnabled());
    mUi->fchFilm->setEnabled(Now == Phase::Choosing);
    mUi->fraChoices->setVisible(Now == Phase::Choosing);  // the picture has their room
    mUi->fraProgress->setVisible(Runs);
    mUi->fraFindings->setVisible(!Runs);
    mUi->cmdMake->setVisible(Now == Phase::Choosing);
    mUi->cmdStop->setVisible(Runs);
    mUi->cmdStop->setEnabled(Now == Phase::Making);
    for (QPushButton* Each : {mUi->cmdOpen, mUi->cmdFolder, mUi->cmdAnother})
        Each->setVisible(Now == Phase::Made);
    QPushButton* Next = Runs ? mUi->cmdStop : Now == Phase::Made ? mUi->cmdOpen : mUi->cmdMake;
    for (QPushButton* Each : {mUi->cmdMake, mUi->cmdOpen}) Each->setDefault(Each == Next);
    if (IsHere) Next->setFocus();
}

FilmOrder frmFilm::Order() const {
    FilmOrder Its = mUi->fchFilm->Order();
    Its.AlbumID = mOf.AlbumID;
    Its.SlideShowID = mOf.SlideShowID;
    Its.Date = TheServices().Time->Now().date();
    return Its;
}

// A choice that no film can have asks for nothing: it is told when one is to be made.
void frmFilm::AskForecast() {
    if (mOf.AlbumID == 0) return;
    FilmOrder Its = Order();
    Its.Path = QLatin1String(RowOf(Its.Format).Ending);
    if (CheckFilmOrder(Its))
        mForecast->Ask(Its);
    else
        mForecast->Cancel();
    ShowForecast();
}

void frmFilm::ShowForecast() {
    if (PhaseNow() != Phase::Choosing) return;
    const auto& Size = mForecast->Size();
    ShowExpected(Size                      ? tr("About %1 are expected.").arg(ShortSize(*Size))
                 : mForecast->IsUnderWay() ? FindingOutSize()
                                           : tr("How large it will be is not known."));
    const auto Plan = mForecast->Plan();
    mUi->lblSummary->setText(Plan ? Plan->Sheet.Summary() + u'.'
                                  : tr("The show is being rehearsed ..."));
    mUi->pvwFilm->SetPicture(mForecast->FirstLook());
    if (!Plan) return ShowFindings({});
    std::vector<std::pair<QString, RehearsalFinding>> Rows;
    for (const auto& Each : Plan->Sheet.Findings.Problems) Rows.emplace_back(tr("Problem"), Each);
    for (const auto& Each : Plan->Sheet.Findings.Notes) Rows.emplace_back(tr("Note"), Each);
    mUi->flxFindings->SetEmptyText(tr("Nothing is wrong with this show."));
    ShowFindings(Rows);
}

void frmFilm::ShowExpected(const QString& Size) {
    const qint64 Room = FreeSpace(GetFilePath(Order().Path));
    mUi->lblExpected->setText(
        Room < 0 ? Size : Size + u' ' + tr("%1 are free in the folder.").arg(ShortSize(Room)));
}

void frmFilm::ForecastFailed(const QString& Reason) {
    if (PhaseNow() != Phase::Choosing) return;
    const bool HasPlan = mForecast->Plan() != nullptr;
    ShowExpected(HasPlan ? Reason : tr("How large it will be is not known."));
    if (!HasPlan) mUi->lblSummary->setText(Reason);
}

void frmFilm::ShowFindings(const std::vector<std::pair<QString, RehearsalFinding>>& Rows) {
    std::vector<QStringList> Texts;
    for (const auto& [Kind, Its] : Rows)
        Texts.push_back(
            {Its.SlideSeq > 0 ? QString::number(Its.SlideSeq) : QString(), Kind, Its.Text});
    mUi->flxFindings->SetRows(0);
    mUi->flxFindings->AddItems(Texts);
}

void frmFilm::FindingChosen(int Row) {
    const int SlideSeq = mUi->flxFindings->TextMatrix(Row, FindingSlide).toInt();
    const clsNEBSlideShow* Its = Show();
    const clsNEBSlideShowDetail* Detail = Its ? Its->GetDetail(SlideSeq) : nullptr;
    if (!Detail) return;
    Command([this, SlideID = Detail->SlideID] {
        if (TheOpeners().SlideOfShow)
            TheOpeners().SlideOfShow(mOf.AlbumID, mOf.SlideShowID, SlideID);
    });
}

void frmFilm::Make() {
    const FilmOrder Its = Order();
    if (PhaseNow() == Phase::Choosing && IsReady(Its) && IsLoaded()) Begin(Its);
}

// The box may have closed the window, and the show may have gone behind it.
bool frmFilm::IsReady(const FilmOrder& Order) {
    if (!Tell(CheckFilmFile(Order))) {
        mUi->fchFilm->PointOut(Order);
        return false;
    }
    for (const auto& Each : LoadedForms())
        if (const auto Other = std::dynamic_pointer_cast<frmFilm>(Each);
            Other && Other->IsMaking(Order.Path)) {
            MsgBox(tr("A film is just being made in this file:\n%1").arg(Order.Path),
                   tr("Invalid User Input"), BoxIcon::Information);
            return false;
        }
    const QStringList There = FilesToReplace(Order);
    return There.isEmpty() || AskYesNo(ReplaceText(There), tr("Make a Film"), BoxAnswer::No);
}

void frmFilm::Begin(const FilmOrder& Order) {
    const auto Copy = CopyForRehearsal(*DBEngine, mOf.AlbumID, mOf.SlideShowID);
    if (!Copy) return Close();
    mUi->fchFilm->Remember();
    mForecast->Cancel();
    mRun->SetRoom(mUi->pvwFilm->size() * devicePixelRatioF());
    mRun->Begin({Copy, Order, mForecast->Plan(), mForecast->Size()});
    mUi->pgbFilm->setValue(0);
    mUi->pwdFilm->Clear();
    mUi->lblWritten->setText(mForecast->Size() ? QString() : FindingOutSize());
    mUi->lblSummary->setText(tr("The film is being made: %1").arg(GetFileName(Order.Path)));
    ShowPhase();
}

void frmFilm::Advanced(const FilmStep& Step) {
    if (PhaseNow() != Phase::Making) return;
    mRun->SetRoom(mUi->pvwFilm->size() * devicePixelRatioF());
    mUi->pgbFilm->setValue(static_cast<int>(Step.Part * BarEnd));
    mUi->pgbFilm->update();  // it would stay a percent behind the title
    mUi->pwdFilm->ShowCount(Step.Slide, Step.Slides, tr("Slide %1 of %2"));
    mUi->pwdFilm->Follow(*mUi->pgbFilm);
    mUi->lblWritten->setText(tr("%1 written").arg(ShortSize(Step.Bytes)));
    ShowTitle(tr("%1% - ").arg(static_cast<int>(Step.Part * 100)));
}

void frmFilm::Ended() {
    const auto Held = shared_from_this();
    if (const FilmReport* Report = mRun->Made()) return ShowMade(*Report);
    ShowPhase();
    FollowShow();
    ShowNotice(tr("The film was stopped; nothing of it is left."));
}

void frmFilm::Failed(const QString& Reason) {
    const auto Held = shared_from_this();
    ShowPhase();
    mUi->lblSummary->setText(tr("The film was not made."));
    ShowTitle({});
    BringToFront(*this);
    MsgBox(Reason, tr("Operation Failed"), BoxIcon::Critical);
    if (IsLoaded() && PhaseNow() == Phase::Choosing) FollowShow();
}

void frmFilm::ShowMade(const FilmReport& Report) {
    const QString Text = MadeText(mRun->Order().Path, Report);
    mUi->lblSummary->setText(Text);
    std::vector<std::pair<QString, RehearsalFinding>> Rows;
    for (const auto& Each : Report.Faults) Rows.emplace_back(tr("Missing"), Each);
    mUi->flxFindings->SetEmptyText(tr("Nothing is missing in the film."));
    ShowFindings(Rows);
    ShowTitle({});
    ShowPhase();
    ShowNotice(Text);
}

bool frmFilm::AsksToStop(const QString& Text) {
    return ShowBox({.Text = Text.arg(mRun->Order().Path),
                    .Title = tr("Make a Film"),
                    .Icon = BoxIcon::Question,
                    .Buttons = BoxButtons::YesNo,
                    .Default = BoxAnswer::No,
                    .YesWords = tr("&Stop the Film"),
                    .NoWords = tr("&Go On")}) == BoxAnswer::Yes;
}

// It may have ended behind the box.
void frmFilm::Stop() {
    if (PhaseNow() != Phase::Making) return;
    if (mRun->SecondsAtWork() > MomentSeconds &&
        !AsksToStop(tr("Stop making the film?\n%1\n\nNothing of it is left then.")))
        return;
    StopUnasked();
}

void frmFilm::StopUnasked() {
    if (PhaseNow() != Phase::Making) return;
    mRun->Stop();
    mUi->lblSummary->setText(tr("The film is being stopped ..."));
    ShowPhase();
}

bool frmFilm::IsMaking(const QString& Path) const {
    return mRun->IsRunning() && mRun->Order().Path == Path;
}

void frmFilm::Another() {
    mRun->Forget();
    ShowPhase();
    FollowShow();
}

void frmFilm::OpenFilm() {
    TheFilmWorks().Open(mRun->Order().Path);
}

void frmFilm::OpenFolder() {
    TheFilmWorks().Open(GetFilePath(mRun->Order().Path));
}

}  // namespace neb
