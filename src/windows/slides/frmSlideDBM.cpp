// The slide manager's controls and its two lists. What stands on the screen is in
// frmSlideDBMSlide.cpp, what is kept in frmSlideDBMSave.cpp, what other windows do in
// frmSlideDBMFollow.cpp.
#include "windows/slides/frmSlideDBM.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QMdiSubWindow>

#include "albums/SlideSave.h"
#include "controls/fields/Icons.h"
#include "controls/fields/KeyFilter.h"
#include "controls/fields/ToolBar.h"
#include "controls/forms/modTwips.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/modDEValidation.h"
#include "ui_frmSlideDBM.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modWindowState.h"

namespace neb {
namespace {

const WindowMemory Memory{QStringLiteral("frmSlideDBM"), 7200, 7815};
constexpr int LeastWidth = 7695;  // twips; the least height is that of the controls
const QString Caption = QStringLiteral("Slide Manager");

}  // namespace

frmSlideDBM::frmSlideDBM() : mUi(std::make_unique<Ui::frmSlideDBM>()) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    SetUpMessage();
    SetUpButtons();
    SetUpToolBar();
    LoadIcons();
    mUi->lytMain->addStrut(ToPixels(LeastWidth) - 2 * mUi->lytMain->contentsMargins().left());
}

frmSlideDBM::~frmSlideDBM() = default;

// The window may go while a box or another window is open inside what a control has begun.
template <class Sender, class Signal>
void frmSlideDBM::On(Sender* Control, Signal Happens, void (frmSlideDBM::*Do)()) {
    connect(Control, Happens, this, [this, Do] {
        if (mWorking) return;
        const auto Held = shared_from_this();
        (this->*Do)();
    });
}

void frmSlideDBM::SetUpButtons() {
    const std::pair<QPushButton*, void (frmSlideDBM::*)()> Buttons[] = {
        {mUi->cmdNew, &frmSlideDBM::New},
        {mUi->cmdSave, &frmSlideDBM::Save},
        {mUi->cmdDelete, &frmSlideDBM::Delete},
        {mUi->cmdCancel, &frmSlideDBM::Cancel},
        {mUi->cmdClose, &frmSlideDBM::Close},
        {mUi->cmdPrev, &frmSlideDBM::Previous},
        {mUi->cmdNext, &frmSlideDBM::Next},
        {mUi->cmdRecord, &frmSlideDBM::Record},
        {mUi->cmdClearSound, &frmSlideDBM::DropSound},
        {mUi->cmdPicture, &frmSlideDBM::ChoosePicture},
    };
    for (const auto& [Button, Do] : Buttons) On(Button, &QPushButton::clicked, Do);
    const std::pair<QPushButton*, void (*)(ImgX&)> Turns[] = {
        {mUi->cmdRotate1, [](ImgX& Picture) { Picture.Rotate(-90); }},
        {mUi->cmdRotate2, [](ImgX& Picture) { Picture.Rotate(90); }},
        {mUi->cmdFlip1, [](ImgX& Picture) { Picture.Flip(0); }},
        {mUi->cmdFlip2, [](ImgX& Picture) { Picture.Flip(1); }},
    };
    for (const auto& [Button, Operation] : Turns)
        connect(Button, &QPushButton::clicked, this, [this, Do = Operation] { Edit(Do); });
    On(mUi->imgSlide, &PictureView::DoubleClicked, &frmSlideDBM::ChoosePicture);
    On(mUi->cboAlbum, &QComboBox::currentIndexChanged, &frmSlideDBM::cboAlbum_Click);
    On(mUi->cboSlides, &QComboBox::currentIndexChanged, &frmSlideDBM::cboSlides_Click);
    On(mUi->txtDscr, &QLineEdit::textChanged, &frmSlideDBM::MarkDirty);
    On(mUi->chkOverride, &QCheckBox::clicked, &frmSlideDBM::MarkDirty);
    On(mUi->chkRepeat, &QCheckBox::clicked, &frmSlideDBM::MarkDirty);
    new KeyFilter(mUi->txtDscr, &FixQuoteKey);
    for (QComboBox* Box : {mUi->cboAlbum, mUi->cboSlides})
        Box->view()->setAccessibleName(Box->accessibleName());
}

void frmSlideDBM::SetUpToolBar() {
    const struct {
        const char *Name, *Caption, *ToolTip, *IconName, *Keys;
        bool On;
    } Tools[] = {
        {"mnuImport", "Import Graphics", "Import the graphics of a directory into the album",
         "import-directory", "Ctrl+O", !ReadOnlyDB},
        {"mnuPrintSlide", "Print Slide", "Print this slide", "print", "", false},  // not there yet
        {"mnuPrintSlideSheet", "Print Slide Sheet", "Print a sheet of this slide", "print-sheet",
         "", false},
        {"mnuExit", "Exit", "Close this window", "exit", "", true},
    };
    for (const auto& Each : Tools) {
        const QString Name = QString::fromLatin1(Each.Name);
        mUi->abrMenu->AddTool(Name, tr(Each.Caption), tr(Each.ToolTip),
                              QString::fromLatin1(Each.IconName),
                              QKeySequence(QString::fromLatin1(Each.Keys)));
        mUi->abrMenu->SetToolEnabled(Name, Each.On);
    }
    connect(mUi->abrMenu, &ToolBar::ToolClicked, this, &frmSlideDBM::ToolClicked);
}

// One cell that fills the place of the picture.
void frmSlideDBM::SetUpMessage() {
    FlexGrid& Grid = *mUi->flxMsg;
    Grid.SetCols(1);
    Grid.SetColumn(0, {.Stretch = true, .Align = Qt::AlignCenter});
    Grid.AddItem();
    Grid.SetTextMatrix(0, 0, QStringLiteral("Double-Click To Load a Graphic"));
    Grid.horizontalHeader()->hide();
    Grid.verticalHeader()->hide();
    Grid.verticalHeader()->setMinimumSectionSize(1);
    Grid.setShowGrid(false);
    Grid.viewport()->installEventFilter(this);
    Grid.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Grid.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(&Grid, &FlexGrid::CellDblClicked, this, [this] { ChoosePicture(); });
    connect(&Grid, &FlexGrid::RowActivated, this, [this] { ChoosePicture(); });
}

void frmSlideDBM::LoadIcons() {
    const std::pair<QPushButton*, const char*> Icons[] = {
        {mUi->cmdNew, "new"},
        {mUi->cmdSave, "save"},
        {mUi->cmdDelete, "delete"},
        {mUi->cmdCancel, "cancel"},
        {mUi->cmdPrev, "slide-previous"},
        {mUi->cmdNext, "slide-next"},
        {mUi->cmdRecord, "record"},
        {mUi->cmdClearSound, "sound-remove"},
        {mUi->cmdPicture, "album"},
        {mUi->cmdRotate1, "rotate-left"},
        {mUi->cmdRotate2, "rotate-right"},
        {mUi->cmdFlip1, "flip-horizontal"},
        {mUi->cmdFlip2, "flip-vertical"},
    };
    for (const auto& [Button, Name] : Icons)
        Button->setIcon(ThemeIcon(QString::fromLatin1(Name), palette()));
}

// The message is as large as its place allows.
void frmSlideDBM::FitMessage() {
    constexpr int HeightsOfText = 12;
    FlexGrid& Grid = *mUi->flxMsg;
    const QSize Place = Grid.viewport()->size();
    QFont Font = font();
    const double Widths =
        Place.width() /
        std::max(1.0, 1.1 * QFontMetricsF(Font).horizontalAdvance(Grid.TextMatrix(0, 0)));
    const double Largest = QFontMetricsF(Font).height() * Widths;
    const int Pixels = static_cast<int>(std::min(Largest, Place.height() / double(HeightsOfText)));
    Font.setPixelSize(std::max(Pixels, QFontInfo(font()).pixelSize()));
    if (Grid.font() != Font) Grid.setFont(Font);
    Grid.verticalHeader()->resizeSection(0, std::max(1, Place.height()));
}

bool frmSlideDBM::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() == QEvent::Resize) FitMessage();
    return Form::eventFilter(Watched, Event);
}

void frmSlideDBM::changeEvent(QEvent* Event) {
    Form::changeEvent(Event);
    if (Event->type() == QEvent::PaletteChange) LoadIcons();
    if (Event->type() == QEvent::FontChange) FitMessage();
}

// Loaded inside its frame, to which its size belongs.
void frmSlideDBM::LoadSlideMgr() {
    if (TheOpeners().ShowAsChild)
        TheOpeners().ShowAsChild(*this);
    else
        ShowModeless();
    for (QWidget* Each : std::initializer_list<QWidget*>{
             mUi->txtDscr, mUi->cmdNew, mUi->cmdSave, mUi->cmdDelete, mUi->cmdCancel, mUi->cmdFlip1,
             mUi->cmdFlip2, mUi->cmdRotate1, mUi->cmdRotate2, mUi->cmdPicture, mUi->cmdRecord})
        Each->setEnabled(!ReadOnlyDB);
}

void frmSlideDBM::Form_Load() {
    ClearSlideFields();
    RestoreWindow(*this, Memory);
}

void frmSlideDBM::Form_Activate() {
    if (std::exchange(mActivated, true)) return;
    ComboBoxList List = Albums();
    DBEngine->LoadAlbumsCombo(List, false);
    if (List.ListCount() > 0) return mUi->cboAlbum->setFocus();
    MsgBox(QStringLiteral("You must first create an album."));
    Unload();
}

bool frmSlideDBM::Form_Unload() {
    if (mWorking || (mDirty && !AskDiscard())) return false;
    SaveWindow(*this, Memory);
    return true;
}

ComboBoxList frmSlideDBM::Albums() const {
    return ComboBoxList(*mUi->cboAlbum);
}

ComboBoxList frmSlideDBM::Slides() const {
    return ComboBoxList(*mUi->cboSlides);
}

std::int32_t frmSlideDBM::AlbumID() const {
    return Albums().ItemData(mUi->cboAlbum->currentIndex());
}

std::int32_t frmSlideDBM::SlideID() const {
    return Slides().ItemData(mUi->cboSlides->currentIndex());
}

void frmSlideDBM::SelectAlbumIndex(int Index) {
    {
        const Guard Quiet(mIgnoreClick);
        mUi->cboAlbum->setCurrentIndex(Index);
    }
    cboAlbum_Click();
}

// A click comes even when the entry was chosen already: it shows the slide afresh.
void frmSlideDBM::SelectSlideIndex(int Index) {
    {
        const Guard Quiet(mIgnoreClick);
        mUi->cboSlides->setCurrentIndex(Index);
    }
    cboSlides_Click();
}

void frmSlideDBM::SelectSlide(std::int32_t SlideID) {
    const int Index = mUi->cboSlides->findData(SlideID);
    if (Index >= 0) SelectSlideIndex(Index);
}

void frmSlideDBM::ShowAlbumName() {
    const QString Name = mUi->cboAlbum->currentText();
    setWindowTitle(AlbumID() == 0 ? Caption : Caption + QStringLiteral(" - ") + Name);
}

void frmSlideDBM::LoadAlbumSlides() {
    const Guard Quiet(mIgnoreClick);
    ComboBoxList List = Slides();
    List.Clear();
    clsNEBAlbum* Album = DBEngine->GetAlbum(AlbumID());
    if (!Album) return Report(QStringLiteral("Album not found."));
    Album->LoadSlidesCombo(List);
    List.InsertItem(0, QStringLiteral("<NEW SLIDE>"), 0);
    mUi->cboSlides->update();
}

void frmSlideDBM::cboAlbum_Click() {
    if (mIgnoreClick) return;
    if (mUi->cboAlbum->count() > 0 && mUi->cboAlbum->currentIndex() < 0) return SelectAlbumIndex(0);
    ShowAlbumName();
    if (mUi->cboAlbum->count() == 0) return;
    LoadAlbumSlides();
    if (mUi->cboSlides->count() > 0) SelectSlideIndex(0);
}

void frmSlideDBM::cboSlides_Click() {
    if (mIgnoreClick || mUi->cboAlbum->currentIndex() < 0) return;
    mUi->cmdDelete->setEnabled(!ReadOnlyDB);
    if (!mCancelling && mDirty && !AskDiscard()) return BackToEdited();
    if (mUi->cboSlides->currentIndex() < 1) return ClearSlideFields();
    ShowSlide();
}

// The lists go back to the slide whose changes the user wants to keep, from another album, too.
void frmSlideDBM::BackToEdited() {
    const Guard Quiet(mIgnoreClick);
    ComboBoxList AlbumList = Albums(), SlideList = Slides();
    if (AlbumID() != mCurrentAlbumID && ComboSelectByData(AlbumList, mCurrentAlbumID, -2)) {
        ShowAlbumName();
        LoadAlbumSlides();
    }
    ComboSelectByData(SlideList, mCurrentSlideID, 0);
}

}  // namespace neb
