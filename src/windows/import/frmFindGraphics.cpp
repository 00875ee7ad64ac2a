#include "windows/import/frmFindGraphics.h"

#include <QHeaderView>

#include "albums/GraphicsSearch.h"
#include "controls/directories/Drives.h"
#include "controls/fields/ComboBoxList.h"
#include "controls/fields/Icons.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/modTwips.h"
#include "controls/grid/FlexGrid.h"
#include "controls/grid/WholeRows.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/ReasonOf.h"
#include "support/Services.h"
#include "ui_frmFindGraphics.h"
#include "windows/frame/modWindowState.h"
#include "windows/import/frmDirSelect.h"

namespace neb {
namespace {

const QString AllDrives = QStringLiteral("All Drives");
const QString Browse = QStringLiteral("Browse");
const QString Caption = QStringLiteral("Find Graphics");
const QString Failed = QStringLiteral("Operation Failed");
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
} Columns[] = {{"File Name", "IMG_0000.JPEG", 1965, Qt::AlignLeft},
               {"Path", "", 3030, Qt::AlignLeft},
               {"Size", "00,000.0 KB", 990, Qt::AlignRight},
               {"Date", "00/00/0000 00:00 AM", 2400, Qt::AlignLeft}};
constexpr int ColCount = static_cast<int>(std::size(Columns));
constexpr int ColName = 0;
constexpr int ColPath = 1;

SettingAt WidthOf(int Col) {
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

QStringList ReadyDrives() {
    QStringList Ready;
    const DriveList* Drives = TheServices().Drives;
    for (const QString& Drive : Drives ? Drives->Drives() : QStringList())
        if (Drives->IsReady(Drive)) Ready.append(Drive);
    return Ready;
}

void TellFailure(const SearchStep& Step) {
    const QString Given = u'\'' + Step.Directory + u'\'';
    if (!Step.IsSub && Step.Error == std::errc::permission_denied) {
        MsgBox(QStringLiteral("Access Denied to ") + Given, Failed);
        return;
    }
    MsgBox((Step.IsSub ? QStringLiteral("Error Searching Sub Directory ")
                       : QStringLiteral("Error Searching Directory ")) +
               Given + u'\n' + Step.Entry + u'\n' + QString::fromStdString(Step.Error.message()),
           Failed);
}

}  // namespace

frmFindGraphics::frmFindGraphics() : mUi(std::make_unique<Ui::frmFindGraphics>()) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
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
        Grid.SetColumn(Col, {.IsPath = Col == ColPath,
                             .Align = Each.Align,
                             .Heading = QString::fromLatin1(Each.Heading)});
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
    if (Others.isEmpty()) Others = {AllDrives, Browse};
    Paths.Clear();
    for (const QString& Drive : ReadyDrives()) ComboAddItem(Paths, Drive, Searched);
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

// A search goes on over the list with which it began.
void frmFindGraphics::FollowDrives() {
    if (mHunt)
        mHunt->DrivesMoved = true;
    else if (IsLoaded() && ReadyDrives() != ListedDrives())
        FillSearchPath();
}

// A directory that was browsed to stays in the list until the window closes.
void frmFindGraphics::SearchPathChosen() {
    if (mUi->cboSearchPath->currentText() != Browse) return;
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
    setWindowTitle(Caption);
    SearchPathChosen();
    if (!IsLoaded() || mUi->cboSearchPath->currentText() == Browse) {
        if (std::exchange(mHunt, std::nullopt)->DrivesMoved) FollowDrives();
        return;
    }
    const PointerScope Working(Pointer::Hourglass);
    EnableForSearch(true);
    try {
        SearchChosen();
    } catch (const std::exception& Problem) {
        ShowFound();
        MsgBox(QStringLiteral("Error Searching\n") + ReasonOf(Problem), Failed);
    }
    SearchEnded();
}

void frmFindGraphics::SearchChosen() {
    mUi->lblResults->setText(QStringLiteral("0 Results"));
    mUi->lblSelected->setText(QStringLiteral("0 Selected"));
    mUi->flxResults->SetRows(0);
    DoEvents();
    if (mUi->cboSearchPath->currentText() != AllDrives) {
        SearchDirectory(mUi->cboSearchPath->currentText());
        return;
    }
    for (const QString& Drive : ListedDrives())
        if (!SearchDirectory(Drive) || mHunt->Cancelled) return;
}

void frmFindGraphics::SearchEnded() {
    const Hunt Ended = *std::exchange(mHunt, std::nullopt);
    EnableForSearch(false);
    mUi->cmdImport->setEnabled(Ended.Results > 0);
    mUi->lblResults->setText(QString::number(Ended.Results) + QStringLiteral(" Results"));
    setWindowTitle(Caption);
    if (IsLoaded() && !focusWidget()) mUi->flxResults->setFocus();
    if (Ended.DrivesMoved) FollowDrives();
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

// False after a box: the whole search ends. What was found stays in the grid and is not counted.
bool frmFindGraphics::SearchDirectory(const QString& Directory) {
    mUi->txtFilter->setText(NormalFilter(mUi->txtFilter->text()));
    GraphicsSearch Walk(Directory, mUi->txtFilter->text(), SelectedTypes());
    int Found = 0;
    bool Ok = true;
    while (Ok && !mHunt->Cancelled) {
        if (!Walk.Wait(WaitMs)) {
            ShowFound();
            DoEvents();
            continue;
        }
        if (Walk.AtEnd()) break;
        Ok = TakeStep(Walk.Take(), Found);
    }
    ShowFound();
    if (Ok) mHunt->Results += Found;
    return Ok;
}

bool frmFindGraphics::TakeStep(const SearchStep& Step, int& Found) {
    for (const QStringList& File : Step.Files) {
        mHunt->Waiting.push_back(File);
        ++Found;
        TickFile();
        if (mHunt->Cancelled) return true;
    }
    if (!Step.Error) {
        TickDirectory();
        return true;
    }
    ShowFound();
    TellFailure(Step);
    return false;
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
    setWindowTitle(
        QStringLiteral("Find Graphics - %1 Directories Searched: %2 Graphics Files Found")
            .arg(mTally.Directories)
            .arg(mTally.Files));
    ShowFound();
    DoEvents();
    mHunt->NextYield = TheServices().Time->Ticks() + YieldMs;
}

// Before the user can look at the grid again, what was found is in it.
void frmFindGraphics::ShowFound() {
    mUi->flxResults->AddItems(std::exchange(mHunt->Waiting, {}));
}

void frmFindGraphics::ShowSelected() {
    mUi->lblSelected->setText(QString::number(mUi->flxResults->SelectedRows()) +
                              QStringLiteral(" Selected"));
}

void frmFindGraphics::Import() {
    const FlexGrid& Grid = *mUi->flxResults;
    const int Count = Grid.SelectedRows();
    if (Count == 0) {
        MsgBox(QStringLiteral("You must first select the files you want to import."),
               QStringLiteral("Missing Selection(s)"), BoxIcon::Information);
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
    const clsSettings Settings = OpenSettings();
    const int Kept = ReadNumber(Settings, Setting::FindState);
    if (Kept == Maximised) setWindowState(Qt::WindowMaximized);
    if (Kept != Maximised && Kept != Minimised)
        resize(StoredPixels(Settings, Setting::FindWidth, width()),
               StoredPixels(Settings, Setting::FindHeight, height()));
    RestoreColumns(Settings);
}

void frmFindGraphics::RestoreColumns(const clsSettings& Settings) {
    FlexGrid& Grid = *mUi->flxResults;
    for (int Col = 0; Col < ColCount; ++Col)
        Grid.setColumnWidth(Col, StoredPixels(Settings, WidthOf(Col), Grid.columnWidth(Col)));
}

void frmFindGraphics::SavePlace() const {
    clsSettings Settings = OpenSettings();
    const int Kept = isMinimized() ? Minimised : isMaximized() ? Maximised : Normal;
    PutNumber(Settings, Setting::FindState, Kept);
    if (Kept == Normal) {
        PutPixels(Settings, Setting::FindWidth, width());
        PutPixels(Settings, Setting::FindHeight, height());
    }
    for (int Col = 0; Col < ColCount; ++Col)
        PutPixels(Settings, WidthOf(Col), mUi->flxResults->columnWidth(Col));
    SaveMemory(Settings);
}

}  // namespace neb
