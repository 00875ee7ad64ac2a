// The controls of the slide show manager. How an album and a show are taken up is in
// frmSlideShowDBMFill.cpp, the lists are in frmSlideShowDBMLists.cpp, the tracks in
// frmSlideShowDBMTracks.cpp, saving in frmSlideShowDBMSave.cpp, what other windows do in
// frmSlideShowDBMFollow.cpp.
#include "windows/compose/frmSlideShowDBM.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QShortcut>

#include "controls/fields/Icons.h"
#include "controls/fields/ToolBar.h"
#include "controls/forms/frmLoading.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/modDEValidation.h"
#include "ui_frmSlideShowDBM.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modWindowState.h"
#include "windows/lists/SlideGrids.h"
#include "windows/lists/clsImageBuffer.h"

namespace neb {
namespace {

const WindowMemory Memory{QStringLiteral("frmSlideShowDBM"), 9075};
const QKeyCombination NewKeys = Qt::CTRL | Qt::Key_N;
constexpr int ListsRoom = 280, TracksRoom = 140;  // parts of the height at first

}  // namespace

frmSlideShowDBM::frmSlideShowDBM()
    : mUi(std::make_unique<Ui::frmSlideShowDBM>()), mBuffer(new FlexGrid(this)) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    SetUpChoice();
    SetUpGrids();
    SetUpTracks();
    SetUpButtons();
    SetUpToolBar();
    SetUpKeys();
    LoadIcons();
}

frmSlideShowDBM::~frmSlideShowDBM() = default;

void frmSlideShowDBM::SetUpChoice() {
    for (QComboBox* Box : {mUi->cboAlbum, mUi->cboSlideShows, mUi->cboProgressionMethod})
        Box->view()->setAccessibleName(Box->accessibleName());
    for (QComboBox* Box : {mUi->cboAlbum, mUi->cboSlideShows}) ChooseNotByWheel(*Box);
    connect(mUi->cboAlbum, &QComboBox::currentIndexChanged, this, &frmSlideShowDBM::cboAlbum_Click);
    connect(mUi->cboSlideShows, &QComboBox::currentIndexChanged, this,
            &frmSlideShowDBM::cboSlideShows_Click);
    KeepQuotesClean(*mUi->txtName);
    mUi->splMain->setSizes({ListsRoom, TracksRoom});
    mUi->splMain->setStretchFactor(0, 1);  // the pictures get the room of a larger window
    mUi->splMain->setStretchFactor(1, 0);
}

// A double click shows the picture; a cell is edited by typing, by F2 or Enter, or by a second
// click on it, as names are in a list of files.
void frmSlideShowDBM::SetUpGrids() {
    mBuffer->setObjectName(QStringLiteral("flxBuffer"));
    mBuffer->setAccessibleName(tr("All slides of the album"));
    mBuffer->hide();
    SetUpSlideColumns(*mBuffer, false, false);
    mBuffer->SetRedraw(false);
    SetUpSlideColumns(*mUi->flxNonSelected, false, false);
    SetUpSlideColumns(*mUi->flxSelected, true, !ReadOnlyDB);
    mUi->flxSelected->SetKeyPressEdit(&FixQuoteKeyInGrid);
    mUi->flxSelected->setEditTriggers(mUi->flxSelected->editTriggers() |
                                      QAbstractItemView::SelectedClicked);
    for (FlexGrid* Grid : {mUi->flxNonSelected, mUi->flxSelected}) {
        Grid->SetEditOnDblClick(false);
        const auto Show = [this, Grid](int Row) { ShowPicture(*Grid, Row); };
        connect(Grid, &FlexGrid::CellDblClicked, this, Show);
        connect(Grid, &FlexGrid::RowActivated, this, Show);
        Grid->SetRowDrag(ReadOnlyDB ? QString() : QStringLiteral("slides"));
        connect(Grid, &FlexGrid::RowsDropped, this,
                [this, Grid](FlexGrid* From, int Before) { RowsDropped(*From, *Grid, Before); });
    }
    connect(mUi->flxSelected, &FlexGrid::AfterEdit, this, &frmSlideShowDBM::AfterEdit);
}

void frmSlideShowDBM::SetUpButtons() {
    const std::pair<QPushButton*, Action> Buttons[] = {
        {mUi->cmdMoveRightOne, &frmSlideShowDBM::MoveRightOne},
        {mUi->cmdMoveRightAll, &frmSlideShowDBM::MoveRightAll},
        {mUi->cmdMoveLeftOne, &frmSlideShowDBM::MoveLeftOne},
        {mUi->cmdMoveLeftAll, &frmSlideShowDBM::MoveLeftAll},
        {mUi->cmdMoveUp, &frmSlideShowDBM::MoveUp},
        {mUi->cmdMoveDown, &frmSlideShowDBM::MoveDown},
        {mUi->cmdNew, &frmSlideShowDBM::New},
        {mUi->cmdSave, &frmSlideShowDBM::Save},
        {mUi->cmdCancel, &frmSlideShowDBM::Cancel},
        {mUi->cmdDelete, &frmSlideShowDBM::Delete},
        {mUi->cmdClose, &frmSlideShowDBM::Close},
    };
    for (const auto& [Button, Command] : Buttons)
        connect(Button, &QPushButton::clicked, this, [this, Run = Command] { Do(Run); });
}

void frmSlideShowDBM::SetUpToolBar() {
    static const struct {
        const char *Name, *Caption, *ToolTip, *IconName, *Keys;
        Action Command;
    } Tools[] = {
        {"mnuSlideShowNew", "New", "Begin a new slide show", "new", "Ctrl+N",
         &frmSlideShowDBM::New},
        {"mnuSlideShowSave", "Save", "Save the slide show", "save", "Ctrl+S",
         &frmSlideShowDBM::Save},
        {"mnuSlideShowSaveAs", "Save As New", "Save as a new slide show, under another name",
         "save-as", "Ctrl+Shift+S", &frmSlideShowDBM::SaveAsNew},
        {"mnuSlideShowDelete", "Delete", "Delete the slide show", "delete", "",
         &frmSlideShowDBM::Delete},
        {"mnuSlideShowPrint", "Print", "Print the slide show", "print", "", nullptr},
        {"mnuSlideShowView", "View", "Play the slide show as it was last saved", "slide-show-play",
         "", &frmSlideShowDBM::View},
        {"mnuSlideShowPrefs", "Preferences", "Choose how slide shows are played", "preferences", "",
         &frmSlideShowDBM::EditPreferences},
        {"mnuExit", "Exit", "Close this window", "exit", "", &frmSlideShowDBM::Close},
    };
    for (const auto& Each : Tools) {
        const QString Name = QString::fromLatin1(Each.Name);
        QAction* Tool = mUi->abrMenu->AddTool(Name, tr(Each.Caption), tr(Each.ToolTip),
                                              QString::fromLatin1(Each.IconName),
                                              QKeySequence(QString::fromLatin1(Each.Keys)));
        Tool->setEnabled(Each.Command != nullptr);
        connect(Tool, &QAction::triggered, this, [this, Run = Each.Command] { Do(Run); });
    }
}

// Each key where it means nothing else: in a line of text Ctrl+Right goes to the next word.
void frmSlideShowDBM::SetUpKeys() {
    const struct {
        FlexGrid* Grid;
        const char* Keys;
        Action Command;
    } Keys[] = {
        {mUi->flxNonSelected, "Ctrl+Right", &frmSlideShowDBM::MoveRightOne},
        {mUi->flxNonSelected, "Ctrl+Shift+Right", &frmSlideShowDBM::MoveRightAll},
        {mUi->flxSelected, "Ctrl+Left", &frmSlideShowDBM::MoveLeftOne},
        {mUi->flxSelected, "Ctrl+Shift+Left", &frmSlideShowDBM::MoveLeftAll},
        {mUi->flxSelected, "Alt+Up", &frmSlideShowDBM::MoveUp},
        {mUi->flxSelected, "Alt+Down", &frmSlideShowDBM::MoveDown},
    };
    for (const auto& Each : Keys) {
        if (ReadOnlyDB) break;
        auto* Key = new QShortcut(QKeySequence(QString::fromLatin1(Each.Keys)), Each.Grid);
        Key->setContext(Qt::WidgetShortcut);
        connect(Key, &QShortcut::activated, this, [this, Run = Each.Command] { Do(Run); });
    }
    connect(mUi->flxSelected, &FlexGrid::DeletePressed, this, [this] {
        if (!ReadOnlyDB) Do(&frmSlideShowDBM::MoveLeftOne);
    });
}

void frmSlideShowDBM::LoadIcons() {
    const std::pair<QPushButton*, const char*> Icons[] = {
        {mUi->cmdMoveRightOne, "move-right-one"},
        {mUi->cmdMoveRightAll, "move-right-all"},
        {mUi->cmdMoveLeftOne, "move-left-one"},
        {mUi->cmdMoveLeftAll, "move-left-all"},
        {mUi->cmdMoveUp, "move-up"},
        {mUi->cmdMoveDown, "move-down"},
        {mUi->cmdNew, "new"},
        {mUi->cmdSave, "save"},
        {mUi->cmdCancel, "cancel"},
        {mUi->cmdDelete, "delete"},
        {mUi->cmdClose, "exit"},
    };
    for (const auto& [Button, Name] : Icons)
        Button->setIcon(ThemeIcon(QString::fromLatin1(Name), palette()));
}

// A command acts on what the user sees: an edit that is open counts as made. The window may go
// while a box or another window is open inside a command.
void frmSlideShowDBM::Do(Action Chosen) {
    const auto Held = shared_from_this();
    if (IsBusy()) return;
    FinishEdits();
    (this->*Chosen)();
}

void frmSlideShowDBM::FinishEdits() {
    for (FlexGrid* Grid : {mUi->flxSelected, mUi->flxSoundTracks}) Grid->FinishEdit();
}

void frmSlideShowDBM::LoadSlideShowMgr(std::int32_t AlbumID, std::int32_t SlideShowID) {
    const auto Held = shared_from_this();
    if (TheOpeners().ShowAsChild)
        TheOpeners().ShowAsChild(*this);
    else
        ShowModeless();
    if (!IsLoaded()) return;
    mUi->cboAlbum->setFocus();
    ComboBoxList AlbumList = Albums();
    if (AlbumID > 0) ComboSelectByData(AlbumList, AlbumID, -2);
    ComboBoxList ShowList = Shows();
    if (SlideShowID > 0 && IsLoaded()) ComboSelectByData(ShowList, SlideShowID, -2);
}

void frmSlideShowDBM::Form_Load() {
    mUi->cboProgressionMethod->addItems({QStringLiteral("Automatic"), QStringLiteral("Manual")});
    ComboBoxList AlbumList = Albums();
    DBEngine->LoadAlbumsCombo(AlbumList, false);
    OpenAsWideAsNames(*mUi->cboAlbum);
    FollowAlbum();
    RenumberSelected();
    SetReadOnlyLook();
    FitToolBar();
    RestoreWindow(*this, Memory);
}

void frmSlideShowDBM::SetReadOnlyLook() {
    for (QWidget* Each : std::initializer_list<QWidget*>{
             mUi->cmdNew, mUi->cmdSave, mUi->cmdDelete, mUi->cmdCancel, mUi->cmdMoveRightOne,
             mUi->cmdMoveRightAll, mUi->cmdMoveLeftOne, mUi->cmdMoveLeftAll, mUi->cmdMoveUp,
             mUi->cmdMoveDown, mUi->cboProgressionMethod})
        Each->setEnabled(!ReadOnlyDB);
    mUi->txtName->setReadOnly(ReadOnlyDB);
    for (const char* Tool :
         {"mnuSlideShowNew", "mnuSlideShowSave", "mnuSlideShowSaveAs", "mnuSlideShowDelete"})
        mUi->abrMenu->SetToolEnabled(QString::fromLatin1(Tool), !ReadOnlyDB);
}

// A show that is being written is not left half written.
bool frmSlideShowDBM::Form_Unload() {
    if (mWriting) return false;
    SaveWindow(*this, Memory);
    if (mLoadingForm) std::exchange(mLoadingForm, nullptr)->ClearParent();
    return true;
}

// The main window has a use for the keys as well: here they are for a new show. They are taken
// before any control sees them, as a list of choices would look for an entry.
bool frmSlideShowDBM::event(QEvent* Event) {
    const auto Type = Event->type();
    const bool IsNew = (Type == QEvent::ShortcutOverride || Type == QEvent::KeyPress) &&
                       static_cast<QKeyEvent*>(Event)->keyCombination() == NewKeys;
    if (!IsNew) return Form::event(Event);
    Event->accept();
    if (Type == QEvent::ShortcutOverride)
        QMetaObject::invokeMethod(mUi->abrMenu->Tool(QStringLiteral("mnuSlideShowNew")),
                                  &QAction::trigger, Qt::QueuedConnection);
    return true;
}

bool frmSlideShowDBM::eventFilter(QObject* Watched, QEvent* Event) {
    return FilterDrop(*Event) || Form::eventFilter(Watched, Event);
}

void frmSlideShowDBM::changeEvent(QEvent* Event) {
    Form::changeEvent(Event);
    if (Event->type() == QEvent::PaletteChange) LoadIcons();
    if (Event->type() == QEvent::FontChange) FitToolBar();
}

// All its tools are seen, however large the letters are.
void frmSlideShowDBM::FitToolBar() {
    mUi->abrMenu->setMinimumWidth(mUi->abrMenu->sizeHint().width());
}

ComboBoxList frmSlideShowDBM::Albums() const {
    return ComboBoxList(*mUi->cboAlbum);
}

ComboBoxList frmSlideShowDBM::Shows() const {
    return ComboBoxList(*mUi->cboSlideShows);
}

std::int32_t frmSlideShowDBM::AlbumID() const {
    return Albums().ItemData(mUi->cboAlbum->currentIndex());
}

std::int32_t frmSlideShowDBM::SlideShowID() const {
    return Shows().ItemData(mUi->cboSlideShows->currentIndex());
}

clsNEBAlbum* frmSlideShowDBM::ShownAlbum() const {
    return DBEngine && AlbumID() != 0 ? DBEngine->GetAlbum(AlbumID()) : nullptr;
}

}  // namespace neb
