// The controls of the slide show manager and what the user does with them. How an album and a show
// are taken up, and what other windows do, is in frmSlideShowDBMFollow.cpp.
#include "windows/compose/frmSlideShowDBM.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QShortcut>

#include "albums/modSaveShow.h"
#include "controls/fields/Icons.h"
#include "controls/fields/ToolBar.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Texts.h"
#include "support/modDEValidation.h"
#include "ui_frmSlideShowDBM.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/compose/TwoLists.h"
#include "windows/compose/modShowManagers.h"
#include "windows/film/modFilms.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modNotice.h"
#include "windows/frame/modWindowState.h"
#include "windows/lists/SlideRows.h"
#include "windows/lists/clsImageBuffer.h"
#include "windows/lists/frmPicturePopup.h"
#include "windows/printing/modPrinting.h"
#include "windows/rehearsal/modRehearsals.h"
#include "windows/show/modSlideShows.h"

namespace neb {
namespace {

const WindowMemory Memory{QStringLiteral("frmSlideShowDBM"), 9075};
constexpr int ListsRoom = 280, TracksRoom = 140;  // parts of the height at first

}  // namespace

frmSlideShowDBM::frmSlideShowDBM() : mUi(std::make_unique<Ui::frmSlideShowDBM>()) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    mLists = new TwoLists(*mUi->flxNonSelected, *mUi->flxSelected, *this, !ReadOnlyDB);
    SetUpChoice();
    SetUpLists();
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
    On(mUi->cboSlideShows, &QComboBox::currentIndexChanged, &frmSlideShowDBM::cboSlideShows_Click);
    KeepNameClean(*mUi->txtName);
    mUi->splMain->setSizes({ListsRoom, TracksRoom});
    mUi->splMain->setStretchFactor(0, 1);  // the pictures get the room of a larger window
    mUi->splMain->setStretchFactor(1, 0);
}

void frmSlideShowDBM::SetUpLists() {
    connect(mLists, &TwoLists::Counted, this, &frmSlideShowDBM::ShowCounts);
    for (FlexGrid* Grid : {mUi->flxNonSelected, mUi->flxSelected}) {
        const auto Show = [this, Grid](int Row) {
            Command([=, this] { ShowPicture(*Grid, Row); });
        };
        connect(Grid, &FlexGrid::CellDblClicked, this, Show);
        connect(Grid, &FlexGrid::RowActivated, this, Show);
        connect(Grid, &FlexGrid::RowsDropped, this, [this, Grid](FlexGrid* From, int Before) {
            Command([=, this] { mLists->TakeDragged(*From, *Grid, Before); });
        });
    }
}

void frmSlideShowDBM::SetUpTracks() {
    TrackList* List = mUi->flxSoundTracks;
    List->SetUp(!ReadOnlyDB);
    connect(List, &FlexGrid::CellButtonClicked, this,
            [this, List](int Row) { Command([=] { List->ChooseFile(Row); }); });
    connect(List, &FlexGrid::DeletePressed, this,
            [this, List] { Command([=] { List->EmptySelected(); }); });
    connect(List, &TrackList::CannotPlay, this, [](const QString& Why) { ShowNotice(Why); });
    connect(mLists, &TwoLists::Rearranged, this, &frmSlideShowDBM::FollowOrder);
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
        {mUi->cmdFitAll, &frmSlideShowDBM::FitAll},
        {mUi->cmdClose, &frmSlideShowDBM::Close},
    };
    for (const auto& [Button, Does] : Buttons) On(Button, &QPushButton::clicked, Does);
}

void frmSlideShowDBM::SetUpToolBar() {
    const struct {
        const char* Name;
        QString Caption, ToolTip;
        const char *Icon, *Keys;
        Action Does;
    } Tools[] = {
        {"mnuSlideShowNew", tr("New"), tr("Begin a new slide show"), "new", "Ctrl+N",
         &frmSlideShowDBM::New},
        {"mnuSlideShowSave", tr("Save"), tr("Save the slide show"), "save", "Ctrl+S",
         &frmSlideShowDBM::Save},
        {"mnuSlideShowSaveAs", tr("Save As New"),
         tr("Save as a new slide show, under another name"), "save-as", "Ctrl+Shift+S",
         &frmSlideShowDBM::SaveAsNew},
        {"mnuSlideShowDelete", tr("Delete"), tr("Delete the slide show"), "delete", "",
         &frmSlideShowDBM::Delete},
        {"mnuSlideShowPrint", tr("Print"), tr("Print the slide show as it was last saved"), "print",
         "Ctrl+P", &frmSlideShowDBM::Print},
        {"mnuSlideShowView", tr("View"),
         tr("Play the saved show from its first slide; with Shift from the slide in hand"),
         "slide-show-play", "Shift+F5", &frmSlideShowDBM::View},
        {"mnuSlideShowRehearse", tr("Rehearse"),
         tr("What the saved show brings when, and what is wrong"), "find-graphics", "",
         &frmSlideShowDBM::Rehearse},
        {"mnuSlideShowFilm", tr("Film"), tr("Make a video file of the show as it was last saved"),
         "film", "", &frmSlideShowDBM::MakeFilm},
        {"mnuSlideShowPrefs", tr("Preferences"), tr("Choose how slide shows are played"),
         "preferences", "", &frmSlideShowDBM::EditPreferences},
        {"mnuExit", tr("Exit"), tr("Close this window"), "exit", "", &frmSlideShowDBM::Close},
    };
    for (const auto& Each : Tools)
        On(mUi->abrMenu->AddTool(QLatin1String(Each.Name), Each.Caption, Each.ToolTip,
                                 QLatin1String(Each.Icon), QKeySequence(QLatin1String(Each.Keys))),
           &QAction::triggered, Each.Does);
}

// Each key where it means nothing else: in a line of text Ctrl+Right goes to the next word.
void frmSlideShowDBM::SetUpKeys() {
    const struct {
        FlexGrid* Grid;
        const char* Keys;
        Action Does;
    } Keys[] = {
        {mUi->flxNonSelected, "Ctrl+Right", &frmSlideShowDBM::MoveRightOne},
        {mUi->flxNonSelected, "Ctrl+Shift+Right", &frmSlideShowDBM::MoveRightAll},
        {mUi->flxSelected, "Ctrl+Left", &frmSlideShowDBM::MoveLeftOne},
        {mUi->flxSelected, "Ctrl+Shift+Left", &frmSlideShowDBM::MoveLeftAll},
        {mUi->flxSelected, "Alt+Up", &frmSlideShowDBM::MoveUp},
        {mUi->flxSelected, "Alt+Down", &frmSlideShowDBM::MoveDown},
    };
    if (ReadOnlyDB) return;
    for (const auto& Each : Keys) {
        auto* Key = new QShortcut(QKeySequence(QString::fromLatin1(Each.Keys)), Each.Grid);
        Key->setContext(Qt::WidgetShortcut);
        On(Key, &QShortcut::activated, Each.Does);
    }
    On(mUi->flxSelected, &FlexGrid::DeletePressed, &frmSlideShowDBM::MoveLeftOne);
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

bool frmSlideShowDBM::IsBusy() const {
    return mReading.IsReading() || mStep != Step::None;
}

void frmSlideShowDBM::FinishEdits() {
    mLists->FinishEdits();
    mUi->flxSoundTracks->FinishEdit();
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
    mUi->cboProgressionMethod->addItems({tr("Automatic"), tr("Manual")});
    ComboBoxList AlbumList = Albums();
    DBEngine->LoadAlbumsCombo(AlbumList, false);
    OpenAsWideAsNames(*mUi->cboAlbum);
    FollowAlbum();
    mLists->Renumber();
    SetReadOnlyLook();
    FitToolBar();
    RestoreWindow(*this, Memory);
}

void frmSlideShowDBM::SetReadOnlyLook() {
    for (QWidget* Each : std::initializer_list<QWidget*>{
             mUi->cmdNew, mUi->cmdSave, mUi->cmdDelete, mUi->cmdCancel, mUi->cmdMoveRightOne,
             mUi->cmdMoveRightAll, mUi->cmdMoveLeftOne, mUi->cmdMoveLeftAll, mUi->cmdMoveUp,
             mUi->cmdMoveDown, mUi->cmdFitAll, mUi->cboProgressionMethod})
        Each->setEnabled(!ReadOnlyDB);
    mUi->txtName->setReadOnly(ReadOnlyDB);
    for (const char* Tool :
         {"mnuSlideShowNew", "mnuSlideShowSave", "mnuSlideShowSaveAs", "mnuSlideShowDelete"})
        mUi->abrMenu->SetToolEnabled(QString::fromLatin1(Tool), !ReadOnlyDB);
}

bool frmSlideShowDBM::Form_QueryUnload() {
    return mStep != Step::Writing && MayLeave();
}

// A show that is being written is not left half written.
bool frmSlideShowDBM::Form_Unload() {
    if (mStep == Step::Writing) return false;
    SaveWindow(*this, Memory);
    mUi->flxSoundTracks->StopPlaying();
    mReading.WindowClosed();
    return true;
}

// The main window has a use for the keys as well: here they are for a new show. They are taken
// before any control sees them, as a list of choices would look for an entry.
bool frmSlideShowDBM::event(QEvent* Event) {
    const auto Type = Event->type();
    const bool IsNew = (Type == QEvent::ShortcutOverride || Type == QEvent::KeyPress) &&
                       static_cast<QKeyEvent*>(Event)->keyCombination() == (Qt::CTRL | Qt::Key_N);
    if (!IsNew) return Form::event(Event);
    Event->accept();
    if (Type == QEvent::ShortcutOverride)
        QMetaObject::invokeMethod(mUi->abrMenu->Tool(QStringLiteral("mnuSlideShowNew")),
                                  &QAction::trigger, Qt::QueuedConnection);
    return true;
}

void frmSlideShowDBM::changeEvent(QEvent* Event) {
    Form::changeEvent(Event);
    if (Event->type() == QEvent::PaletteChange) LoadIcons();
    if (Event->type() == QEvent::FontChange) FitToolBar();
}

void frmSlideShowDBM::FitToolBar() {
    const int Wide = mUi->abrMenu->sizeHint().width();  // all tools, else an arrow for the rest
    mUi->abrMenu->setMinimumWidth(Wide > screen()->availableSize().width() ? 0 : Wide);
}

void frmSlideShowDBM::ShowCounts(int NonSelected, int Selected) {
    mUi->lblNonSelectedCnt->setText(QString::number(NonSelected));
    mUi->lblSelectedCnt->setText(QString::number(Selected));
    mUi->flxSoundTracks->SetPlaces(Selected);
}

void frmSlideShowDBM::ShowPicture(const FlexGrid& Grid, int Row) {
    PopUpPicture(Grid.TextMatrix(Row, clsImageBuffer::ColPath));
}

void frmSlideShowDBM::MoveRightOne() {
    mLists->MoveIntoShow(false);
}

void frmSlideShowDBM::MoveRightAll() {
    mLists->MoveIntoShow(true);
}

void frmSlideShowDBM::MoveLeftOne() {
    mLists->MoveOutOfShow(false);
}

void frmSlideShowDBM::MoveLeftAll() {
    mLists->MoveOutOfShow(true);
}

void frmSlideShowDBM::MoveUp() {
    mLists->MoveBy(-1);
}

void frmSlideShowDBM::MoveDown() {
    mLists->MoveBy(1);
}

void frmSlideShowDBM::New() {
    if (AlbumID() == 0)
        MsgBox(tr("You must first select an album."));
    else if (MayLeave())
        ChooseShow(0, Cause::User);
}

// Whether what was composed has been dealt with.
bool frmSlideShowDBM::MayLeave() {
    if (!IsChanged()) return true;
    BringToFront(*this);
    const BoxAnswer Answered =
        AskSave(tr("Are you sure you want to discard the changes to the current slide show?"),
                tr("Discard Changes Confirmation"));
    return Answered == BoxAnswer::Save ? SaveShow(Content(), Cause::Program)
                                       : Answered == BoxAnswer::Discard;
}

bool frmSlideShowDBM::SaveShow(ShowContent Show, Cause Who) {
    const Answer<> IsRight = CheckShow(Show, *DBEngine);
    mUi->txtName->setText(Show.Name);
    if (!IsRight) return TellRefused(Show, IsRight);
    Answer<Announcement> Written = Write(Show);
    FollowWaiting();
    if (!Tell(Written)) return false;
    if (Who == Cause::User)
        MsgBox(tr("Slide Show Saved Successfully."), tr("Save Successful"), BoxIcon::Information);
    Written->Now();
    if (!IsLoaded() || AlbumID() != Show.AlbumID) return true;
    LoadSlideShowsList();
    ChooseShow(mUi->cboSlideShows->findData(Show.SlideShowID), Cause::User);
    return true;
}

// What other windows do meanwhile is followed behind it, after a fault as well: what stands in the
// window is then what stood there before, to be saved once more.
Answer<Announcement> frmSlideShowDBM::Write(ShowContent& Show) {
    try {
        const PointerScope Working(Pointer::Hourglass);
        const QScopedValueRollback<Step> Writing(mStep, Step::Writing);
        return WriteShow(Show, *DBEngine, &DoEventsButInput, this);
    } catch (...) {
        FollowWaiting();
        throw;
    }
}

// The grids keep what they hold, and it is saved as no show that is there. Where that is refused
// the show that is edited stays the chosen one.
void frmSlideShowDBM::SaveAsNew() {
    ShowContent Show = Content();
    Show.SlideShowID = 0;
    SaveShow(std::move(Show), Cause::User);
}

void frmSlideShowDBM::Delete() {
    const std::int32_t From = AlbumID(), ShowID = SlideShowID();
    if (From == 0 || ShowID == 0) return New();
    std::optional<Announcement> Deleted = DeleteShowAsked(From, ShowID, this);
    if (!Deleted) return;
    MsgBox(tr("Slide Show Deleted Successfully."), tr("Delete Successful"), BoxIcon::Information);
    Deleted->Now();
    if (!IsLoaded() || AlbumID() != From) return;
    LoadSlideShowsList();
    ChooseShow(0, Cause::User);
}

void frmSlideShowDBM::Print() {
    if (AlbumID() != 0) return ShowPrintSlideShow(AlbumID(), SlideShowID());
    MsgBox(tr("You must first select an album."));
}

void frmSlideShowDBM::View() {
    const int Row = mUi->flxSelected->Row();
    ViewSlideShow(AlbumID(), mUi->cboAlbum->currentText(), SlideShowID(),
                  Row < 0 ? 0 : SlideIn(*mUi->flxSelected, Row), Row + 1);
}

void frmSlideShowDBM::Rehearse() {
    WithShow(&ShowRehearsal, tr("You must first select a Slide Show to Rehearse."));
}

void frmSlideShowDBM::MakeFilm() {
    if (SlideShowID() != 0 && IsChanged() && !StoredShowWillDo()) return;
    WithShow(&ShowFilm, tr("You must first select a Slide Show to make a Film of."));
}

void frmSlideShowDBM::WithShow(ShowOpener Open, const QString& None) {
    if (AlbumID() != 0 && SlideShowID() != 0) return Open(AlbumID(), SlideShowID());
    MsgBox(None, tr("Missing User Input"));
}

}  // namespace neb
