#include "windows/import/frmFindGraphics.h"

#include <QHeaderView>

#include "albums/GraphicsSearch.h"
#include "albums/modPictureFiles.h"
#include "controls/directories/Drives.h"
#include "controls/fields/ComboBoxList.h"
#include "controls/fields/Icons.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/modTwips.h"
#include "controls/grid/FlexGrid.h"
#include "controls/grid/WholeRows.h"
#include "db/clsDBEngine.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/ReasonOf.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/modFUFL.h"
#include "support/modText.h"
#include "ui_frmFindGraphics.h"
#include "windows/frame/modWindowState.h"
#include "windows/import/frmDirSelect.h"

namespace neb {
namespace {

constexpr char AllDrives[] = QT_TR_NOOP("All Drives");
constexpr char Browse[] = QT_TR_NOOP("Browse");
constexpr char Caption[] = QT_TR_NOOP("Find Graphics");
const QString NoProgress = QStringLiteral(" ");  // as high as any other line
constexpr int FilesPerTick = 200;
constexpr int WaitMs = 10;
constexpr double YieldMs = 30;
constexpr QSize LeastTwips(6200, 3500);

enum ItemData : std::int32_t { Searched = 0, NotSearched = 1 };
enum WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

// Sample is the longest usual text: a larger font makes the column wider.
const struct {
    const char *Heading, *Sample;
    int Twips;
    Qt::Alignment Align;
} Columns[] = {{QT_TR_NOOP("File Name"), "IMG_0000.JPEG", 1965, Qt::AlignLeft},
               {QT_TR_NOOP("Path"), "", 3030, Qt::AlignLeft},
               {QT_TR_NOOP("Size"), "00,000.0 KB", 990, Qt::AlignRight},
               {QT_TR_NOOP("Date"), "00/00/0000 00:00 AM", 2400, Qt::AlignLeft}};
constexpr int ColCount = static_cast<int>(std::size(Columns));
constexpr int ColName = 0;
constexpr int ColPath = 1;

SettingAt WidthSetting(int Col) {
    return {Setting::FindColumn, QString::number(Col)};
}

// Stored twips in pixels, or what is there when there are none.
int StoredPixels(const clsSettings& Settings, const SettingAt& At, int Present) {
    const std::int32_t Twips = ReadNumber(Settings, At);
    return Twips > 0 ? ToPixels(Twips) : Present;
}

void PutPixels(clsSettings& Settings, const SettingAt& At, int Pixels) {
    PutNumber(Settings, At, ToTwips(Pixels));
}

}  // namespace

frmFindGraphics::frmFindGraphics() : mUi(std::make_unique<Ui::frmFindGraphics>()) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    mUi->lblProgress->setText(NoProgress);
    SetUpGrid();
    SetUpButtons();
    On(mUi->cboSearchPath, &QComboBox::activated, &frmFindGraphics::SearchPathChosen);
}

frmFindGraphics::~frmFindGraphics() = default;

void frmFindGraphics::SetUpGrid() {
    FlexGrid& Grid = *mUi->flxResults;
    Grid.SetCols(ColCount);
    for (int Col = 0; Col < ColCount; ++Col) {
        const auto& Each = Columns[Col];
        Grid.SetColumn(
            Col, {.IsPath = Col == ColPath, .Align = Each.Align, .Heading = tr(Each.Heading)});
    }
    Grid.SetEmptyText(
        tr("Choose where to look and press Search.\n"
           "The pictures found are listed here."));
    connect(&Grid, &FlexGrid::SelChange, this, &frmFindGraphics::ShowSelected);
}

void frmFindGraphics::SetUpButtons() {
    mUi->cmdSearch->setIcon(ThemeIcon(QStringLiteral("find-graphics")));
    mUi->cmdCancel->setIcon(ThemeIcon(QStringLiteral("stop")));
    mUi->cmdImport->setIcon(ThemeIcon(QStringLiteral("import")));
    On(mUi->cmdSearch, &QPushButton::clicked, &frmFindGraphics::Search);
    On(mUi->cmdImport, &QPushButton::clicked, &frmFindGraphics::Import);
    On(mUi->flxResults, &FlexGrid::RowActivated, &frmFindGraphics::Import);
    // these two end a search
    connect(mUi->cmdCancel, &QPushButton::clicked, this, &frmFindGraphics::Cancel);
    connect(mUi->cmdClose, &QPushButton::clicked, this, &frmFindGraphics::Unload);
}

void frmFindGraphics::Form_Load() {
    mUi->lstTypeFilter->addItems(GraphicTypes());
    mUi->lstTypeFilter->selectAll();
    ShowWholeRows(*mUi->lstTypeFilter);
    FillSearchPath();
    if (TheServices().Drives) TheServices().Drives->Watch(*this, [this] { FollowDrives(); });
    FitColumns();
    RestorePlace();
}

void frmFindGraphics::FitColumns() {
    FlexGrid& Grid = *mUi->flxResults;
    Grid.ensurePolished();  // the font is known only then
    for (int Col = 0; Col < ColCount; ++Col) {
        const QString Sample = QString::fromLatin1(Columns[Col].Sample);
        Grid.setColumnWidth(Col, std::max(ToPixels(Columns[Col].Twips),
                                          Grid.fontMetrics().horizontalAdvance(Sample) + 16));
    }
}

// The drives first, then what was browsed to; the choice stays as long as it is there.
void frmFindGraphics::FillSearchPath() {
    ComboBoxList Paths(*mUi->cboSearchPath);
    const QString Chosen = mUi->cboSearchPath->currentText();
    QStringList Others;
    for (int I = 0; I < Paths.ListCount(); ++I)
        if (Paths.ItemData(I) == NotSearched) Others.append(Paths.List(I));
    if (Others.isEmpty()) Others = {tr(AllDrives), tr(Browse)};
    Paths.Clear();
    for (const QString& Drive : ReadyDrives(TheServices().Drives))
        ComboAddItem(Paths, Drive, Searched);
    for (const QString& Other : Others) ComboAddItem(Paths, Other, NotSearched);
    const int Place = mUi->cboSearchPath->findText(Chosen);
    Paths.SetListIndex(Place < 0 ? Paths.ListCount() - 2 : Place);
}

QStringList frmFindGraphics::ListedDrives() const {
    const ComboBoxList Paths(*mUi->cboSearchPath);
    QStringList Drives;
    for (int I = 0; I < Paths.ListCount(); ++I)
        if (Paths.ItemData(I) == Searched) Drives.append(Paths.List(I));
    return Drives;
}

// A search keeps the list with which it began.
void frmFindGraphics::FollowDrives() {
    if (mHunt)
        mHunt->DrivesMoved = true;
    else if (IsLoaded() && ReadyDrives(TheServices().Drives) != ListedDrives())
        FillSearchPath();
}

// A directory that was browsed to stays in the list until the window closes.
void frmFindGraphics::SearchPathChosen() {
    if (mUi->cboSearchPath->currentText() != tr(Browse)) return;
    const auto Selector = NewForm<frmDirSelect>();
    Selector->SetRecurseDirOption(false);
    Selector->SetCountGraphics(false);
    const QString Chosen = Selector->SelectDirectory();
    if (Chosen.isEmpty() || !IsLoaded()) return;
    ComboBoxList Paths(*mUi->cboSearchPath);
    const int Place = Paths.ListCount() - 2;  // before "All Drives"
    Paths.InsertItem(Place, Chosen, NotSearched);
    Paths.SetListIndex(Place);
}

void frmFindGraphics::Search() {
    mHunt = Hunt{};
    setWindowTitle(tr(Caption));
    SearchPathChosen();
    if (!IsLoaded() || mUi->cboSearchPath->currentText() == tr(Browse)) {
        if (std::exchange(mHunt, std::nullopt)->DrivesMoved) FollowDrives();
        return;
    }
    const PointerScope Working(Pointer::Hourglass);
    EnableForSearch(true);
    try {
        SearchChosen();
    } catch (const std::exception& Problem) {
        ShowFound();
        MsgBox(tr("Error Searching\n") + ReasonOf(Problem), tr("Operation Failed"));
    }
    SearchEnded();
}

void frmFindGraphics::SearchChosen() {
    mUi->lblResults->setText(tr("%1 Results").arg(0));
    mUi->lblSelected->setText(tr("%1 Selected").arg(0));
    mUi->pnlPassedOver->ShowReport({});
    mUi->flxResults->SetEmptyText(tr("Searching ..."));
    mUi->flxResults->SetRows(0);
    DoEvents();
    if (mUi->cboSearchPath->currentText() == tr(AllDrives))
        SearchDrives();
    else
        SearchDirectory(mUi->cboSearchPath->currentText());
}

// A network may hold more than anybody waits for, or not answer at all.
void frmFindGraphics::SearchDrives() {
    for (const QString& Drive : ListedDrives()) {
        if (mHunt->Cancelled) return;
        if (TheServices().Drives && TheServices().Drives->IsFar(Drive))
            PassOver(Drive, tr("A network drive is searched only where it is chosen by itself."));
        else
            SearchDirectory(Drive);
    }
}

void frmFindGraphics::SearchEnded() {
    const Hunt Ended = *std::exchange(mHunt, std::nullopt);
    EnableForSearch(false);
    mUi->cmdImport->setEnabled(mUi->flxResults->Rows() > 0);
    mUi->flxResults->SetEmptyText(WhyEmpty(Ended));
    mUi->pnlPassedOver->ShowReport(Ended.PassedOver);
    mUi->lblProgress->setText(NoProgress);
    setWindowTitle(tr(Caption));
    if (IsLoaded() && !focusWidget()) mUi->flxResults->setFocus();
    if (Ended.DrivesMoved) FollowDrives();
}

QString frmFindGraphics::WhyEmpty(const Hunt& Ended) const {
    if (Ended.Cancelled) return tr("The search was ended before a picture was found.");
    const QString Place = WithSeparator(mUi->cboSearchPath->currentText());
    if (const Answer<> Is = CheckSource(Place, DBEngine->DBPath()); !Is) return Is.Refusal().Text;
    if (SelectedTypes().isEmpty())
        return tr("No type of files is chosen.\nChoose at least one, and press Search.");
    return tr("No pictures were found.\nLook in another place, or for other types or names.");
}

void frmFindGraphics::Cancel() {
    if (mHunt) mHunt->Cancelled = true;
}

void frmFindGraphics::EnableForSearch(bool Searching) {
    QWidget* const Idle[] = {mUi->cmdSearch, mUi->cboSearchPath, mUi->lstTypeFilter,
                             mUi->txtFilter};
    // the keyboard stays in the window: what is disabled under it hands it to the grid
    if (Searching) mUi->flxResults->setFocus();
    if (Searching) mUi->cmdImport->setEnabled(false);
    for (QWidget* Each : Idle) Each->setEnabled(!Searching);
    mUi->cmdCancel->setEnabled(Searching);
}

QStringList frmFindGraphics::SelectedTypes() const {
    QStringList Types;
    for (int Row = 0; Row < mUi->lstTypeFilter->count(); ++Row)
        if (mUi->lstTypeFilter->item(Row)->isSelected())
            Types.append(mUi->lstTypeFilter->item(Row)->text());
    return Types;
}

void frmFindGraphics::SearchDirectory(const QString& Directory) {
    mUi->txtFilter->setText(NormalFilter(mUi->txtFilter->text()));
    GraphicsSearch Walk(Directory, mUi->txtFilter->text(), SelectedTypes(), {},
                        OwnFolders(DBEngine->DBPath()));
    mHunt->Place = Directory;
    while (!mHunt->Cancelled) {
        if (!Walk.Wait(WaitMs)) {
            ShowFound();
            DoEvents();
            continue;
        }
        if (Walk.AtEnd()) break;
        TakeStep(Walk.Take());
    }
    ShowFound();
}

void frmFindGraphics::TakeStep(const SearchStep& Step) {
    mHunt->Place = Step.Directory;
    for (const QStringList& File : Step.Files) {
        mHunt->Waiting.push_back(File);
        TickFile();
        if (mHunt->Cancelled) return;
    }
    if (Step.Error) PassOver(Step.Directory, qt_error_string(Step.Error.value()));
    TickDirectory();
}

// Told at the end, all at once: on a large disk there are many such folders.
void frmFindGraphics::PassOver(const QString& Directory, const QString& Reason) {
    mHunt->PassedOver.Folders << ReadableText(Directory) + QStringLiteral(": ") + Reason;
}

void frmFindGraphics::TickFile() {
    if (++mTally.Files % FilesPerTick == 0) ShowProgress();
}

void frmFindGraphics::TickDirectory() {
    ++mTally.Directories;
    ShowProgress();
}

// Thousands of times a second there is a reason to; nobody sees more than this, and each time the
// list is painted anew.
void frmFindGraphics::ShowProgress() {
    if (TheServices().Time->Ticks() < mHunt->NextYield) return;
    setWindowTitle(tr(Caption) + QStringLiteral(" - ") + Counts());
    const QFontMetrics Metrics = mUi->lblProgress->fontMetrics();
    const QString Told = Counts() + QStringLiteral("   ");
    const int Room = mUi->lblProgress->width() - Metrics.horizontalAdvance(Told);
    mUi->lblProgress->setText(
        Told + Metrics.elidedText(ReadableText(mHunt->Place), Qt::ElideMiddle, Room));
    ShowFound();
    DoEvents();
    mHunt->NextYield = TheServices().Time->Ticks() + YieldMs;
}

QString frmFindGraphics::Counts() const {
    return tr("%1 Directories Searched: %2 Graphics Files Found")
        .arg(mTally.Directories)
        .arg(mTally.Files);
}

// Before the user can look at the grid again, what was found is in it.
void frmFindGraphics::ShowFound() {
    mUi->flxResults->AddItems(std::exchange(mHunt->Waiting, {}));
    mUi->lblResults->setText(tr("%1 Results").arg(mUi->flxResults->Rows()));
}

void frmFindGraphics::ShowSelected() {
    mUi->lblSelected->setText(tr("%1 Selected").arg(mUi->flxResults->SelectedRows()));
}

void frmFindGraphics::Import() {
    const FlexGrid& Grid = *mUi->flxResults;
    const int Count = Grid.SelectedRows();
    if (Count == 0) {
        MsgBox(tr("You must first select the files you want to import."),
               tr("Missing Selection(s)"), BoxIcon::Information);
        return;
    }
    for (int I = 0; I < Count; ++I) {
        const int Row = Grid.SelectedRow(I);
        mFiles.append(Grid.TextMatrix(Row, ColPath) + Grid.TextMatrix(Row, ColName));
    }
    Unload();
}

void frmFindGraphics::reject() {
    if (mHunt)
        Cancel();
    else
        Form::reject();
}

bool frmFindGraphics::Form_Unload() {
    Cancel();
    SavePlace();
    return true;
}

void frmFindGraphics::RestorePlace() {
    const QSize Least(ToPixels(LeastTwips.width()), ToPixels(LeastTwips.height()));
    setMinimumSize(Least.expandedTo(layout()->minimumSize()));
    const clsSettings Settings = OpenMemory();
    const int Kept = ReadNumber(Settings, Setting::FindState);
    if (Kept == Maximised) setWindowState(Qt::WindowMaximized);
    if (Kept != Maximised && Kept != Minimised)
        resize(StoredPixels(Settings, Setting::FindWidth, width()),
               StoredPixels(Settings, Setting::FindHeight, height()));
    if (HasSetting(Settings, Setting::FindLeft) && HasSetting(Settings, Setting::FindTop))
        PlaceOnScreen(*this, {ToPixels(ReadNumber(Settings, Setting::FindLeft)),
                              ToPixels(ReadNumber(Settings, Setting::FindTop))});
    RestoreColumns(Settings);
}

void frmFindGraphics::RestoreColumns(const clsSettings& Settings) {
    FlexGrid& Grid = *mUi->flxResults;
    for (int Col = 0; Col < ColCount; ++Col)
        Grid.setColumnWidth(Col, StoredPixels(Settings, WidthSetting(Col), Grid.columnWidth(Col)));
}

void frmFindGraphics::SavePlace() const {
    clsSettings Settings = OpenMemory();
    const int Kept = isMinimized() ? Minimised : isMaximized() ? Maximised : Normal;
    PutNumber(Settings, Setting::FindState, Kept);
    if (Kept == Normal) {
        PutPixels(Settings, Setting::FindWidth, width());
        PutPixels(Settings, Setting::FindHeight, height());
        PutPixels(Settings, Setting::FindLeft, x());
        PutPixels(Settings, Setting::FindTop, y());
    }
    for (int Col = 0; Col < ColCount; ++Col)
        PutPixels(Settings, WidthSetting(Col), mUi->flxResults->columnWidth(Col));
    SaveMemory(Settings);
}

}  // namespace neb
