// The controls of the transfer windows, the directory of the other database, and the names that
// follow what is chosen; viewing and the transfer itself are in TransferFormRun.cpp.
#include "windows/transfer/TransferForm.h"

#include <QDragEnterEvent>
#include <QScopedValueRollback>

#include "albums/transfer/SuggestedName.h"
#include "controls/fields/Icons.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "settings/modNEBSlideShow.h"
#include "support/Texts.h"
#include "support/modFUFL.h"
#include "ui_TransferForm.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/transfer/TransferDirectories.h"
#include "windows/transfer/modTransferAsks.h"

namespace neb {
namespace {

const QString Counters = QStringLiteral("NextIDs.dat");
constexpr int HintLines = 2;  // the most that it has: the window does not grow with it

void Rename(QWidget& Control, const char* Name) {
    Control.setObjectName(QString::fromLatin1(Name));
}

// In a column of a grid, of what does not reach into its neighbour as well.
int WidestIn(const QGridLayout& Grid, int Column) {
    const int Neighbour = Column == 0 ? 1 : Column - 1;
    int Widest = 0;
    for (int Row = 0; Row < Grid.rowCount(); ++Row) {
        const QLayoutItem* Item = Grid.itemAtPosition(Row, Column);
        if (Item && !Item->isEmpty() && Item != Grid.itemAtPosition(Row, Neighbour))
            Widest = std::max(Widest, Item->sizeHint().width());
    }
    return Widest;
}

}  // namespace

TransferForm::TransferForm(TransferWindow Which)
    : mKind(KindOf(Which)),
      mUi([this] {
          auto Made = std::make_unique<Ui::TransferForm>();
          Made->setupUi(this);
          return Made;
      }()),
      mSrc({mUi->cboSrcAlbum, mUi->cboSrcSlideShow, false, mKind.OfShows}),
      mDst({mUi->cboDstAlbum, mUi->cboDstSlideShow, true, mKind.OfShows}) {
    SetUpTexts();
    SetUpNames();
    SetUpOtherDB();
    SetUpTabOrder();
    SetUpLists();
    SetUpButtons();
}

TransferForm::~TransferForm() = default;

void TransferForm::SetUpTexts() {
    Rename(*this, mKind.Name);
    setWindowTitle(tr(mKind.Title));
    setWindowIcon(ThemeIcon(QString::fromLatin1(mKind.Icon)));
    mUi->cmdStart->setText(tr(mKind.StartText));
    mUi->cmdStart->setAccessibleName(tr(mKind.StartName));
    mUi->cmdStart->setToolTip(tr(mKind.StartTip));
    mUi->cmdStart->setIcon(windowIcon());
    mUi->cmdCancel->setIcon(ThemeIcon(QStringLiteral("cancel")));
    mUi->txtDB->setAccessibleName(tr(mKind.DirectoryName));
    mUi->txtDB->setToolTip(tr(mKind.DirectoryTip));
    mUi->lblOwnDB->setToolTip(DBPath());
}

void TransferForm::SetUpNames() {
    Rename(*mUi->txtDB, mKind.txtDB);
    Rename(*mUi->cmdDBBrowse, mKind.cmdDBBrowse);
    Rename(*mUi->cmdDBFolder, mKind.cmdDBFolder);
    Rename(*mUi->cmdStart, mKind.cmdStart);
    KeepNameClean(*mUi->txtAlbumName);
    KeepNameClean(*mUi->txtSlideShowName);
}

// The directory stands with the side that it belongs to.
void TransferForm::SetUpOtherDB() {
    QGridLayout *Other = mUi->grdTo, *Own = mUi->grdFrom;
    if (!mKind.Exports) std::swap(Other, Own);
    Other->addWidget(mUi->lblDB, 0, 0);
    Other->addWidget(mUi->txtDB, 0, 1, 1, 2);
    Other->addWidget(mUi->pnlDB, 1, 1, 1, 2);
    Own->addWidget(mUi->lblOwn, 0, 0);
    Own->addWidget(mUi->lblOwnDB, 0, 1, 1, 2);
    connect(mUi->txtDB, &QLineEdit::textChanged, this, &TransferForm::UpdateControls);
    OfferLastDirectories(
        *mUi->txtDB, [this](const QString& Dir) { Command([this, Dir] { LoadDirectory(Dir); }); });
}

void TransferForm::SetUpTabOrder() {
    const QList<QWidget*> Source = {mUi->cboSrcAlbum, mUi->cmdViewSrcAlbum, mUi->cboSrcSlideShow,
                                    mUi->cmdViewSrcSlideShow};
    const QList<QWidget*> Directory = {mUi->txtDB, mUi->cmdDBBrowse, mUi->cmdDBFolder,
                                       mUi->cmdRefresh};
    QList<QWidget*> Order = mKind.Exports ? Source + Directory : Directory + Source;
    Order << mUi->cboDstAlbum << mUi->cmdViewDstAlbum << mUi->txtAlbumName << mUi->cboDstSlideShow
          << mUi->cmdViewDstSlideShow << mUi->txtSlideShowName << mUi->chkReplace << mUi->cmdStart
          << mUi->cmdCancel;
    for (qsizetype I = 1; I < Order.size(); ++I) setTabOrder(Order[I - 1], Order[I]);
    Order.front()->setFocus();
}

void TransferForm::SetUpLists() {
    for (QWidget* Each :
         QList<QWidget*>{mUi->lblSrcSlideShow, mUi->cboSrcSlideShow, mUi->cmdViewSrcSlideShow,
                         mUi->lblDstSlideShow, mUi->cboDstSlideShow, mUi->cmdViewDstSlideShow,
                         mUi->lblSlideShowName, mUi->txtSlideShowName, mUi->lblNote})
        Each->setVisible(mKind.OfShows);
    mUi->chkReplace->setVisible(!mKind.OfShows);
    // among the lists of shows no letter is free
    if (!mKind.OfShows) mUi->cmdViewDstAlbum->setText(tr("Vi&ew..."));
    using Self = TransferForm;
    connect(mUi->cboSrcAlbum, &QComboBox::currentIndexChanged, this, &Self::cboSrcAlbum_Click);
    connect(mUi->cboDstAlbum, &QComboBox::currentIndexChanged, this, &Self::cboDstAlbum_Click);
    connect(mUi->cboSrcSlideShow, &QComboBox::currentIndexChanged, this,
            &Self::cboSrcSlideShow_Click);
    connect(mUi->cboDstSlideShow, &QComboBox::currentIndexChanged, this,
            &Self::cboDstSlideShow_Click);
}

void TransferForm::SetUpButtons() {
    const struct {
        QPushButton* Button;
        void (TransferForm::*Do)();
    } Buttons[] = {
        {mUi->cmdDBBrowse, &TransferForm::Browse},
        {mUi->cmdDBFolder, &TransferForm::ChooseFolder},
        {mUi->cmdRefresh, &TransferForm::Refresh},
        {mUi->cmdViewSrcAlbum, &TransferForm::ViewSrcAlbum},
        {mUi->cmdViewDstAlbum, &TransferForm::ViewDstAlbum},
        {mUi->cmdViewSrcSlideShow, &TransferForm::ViewSrcSlideShow},
        {mUi->cmdViewDstSlideShow, &TransferForm::ViewDstSlideShow},
        {mUi->cmdStart, &TransferForm::Start},
        {mUi->cmdCancel, &TransferForm::Close},
    };
    for (const auto& Each : Buttons) On(Each.Button, &QPushButton::clicked, Each.Do);
}

void TransferForm::Form_Load() {
    OwnSide().List(DBEngine);
    UpdateControls();
    AlignColumns();
    const QFontMetrics Letters = mUi->lblHint->fontMetrics();
    // the tails of the last line may reach below its own
    mUi->lblHint->setMinimumHeight(HintLines * Letters.lineSpacing() + Letters.descent());
    layout()->activate();
    adjustSize();
}

void TransferForm::Propose(std::int32_t AlbumID, std::int32_t SlideShowID) {
    OwnSide().Choose(AlbumID, SlideShowID);
}

// The fields of both sides stand below each other.
void TransferForm::AlignColumns() {
    for (const int Column : {0, 2}) {
        const int Width = std::max(WidestIn(*mUi->grdFrom, Column), WidestIn(*mUi->grdTo, Column));
        mUi->grdFrom->setColumnMinimumWidth(Column, Width);
        mUi->grdTo->setColumnMinimumWidth(Column, Width);
    }
}

bool TransferForm::Form_Unload() {
    if (mWork == Work::Transferring) return false;
    CloseOther();
    return true;
}

void TransferForm::CloseRequested() {
    if (mWork != Work::Transferring) Unload();
}

void TransferForm::UpdateControls() {
    const bool MayStart = (mKind.Exports || !ReadOnlyDB) && mWork != Work::Transferring;
    for (QWidget* Each :
         QList<QWidget*>{mUi->cmdStart, mUi->chkReplace, mUi->txtAlbumName, mUi->txtSlideShowName})
        Each->setEnabled(MayStart);
    mUi->lblHint->setText(Hint());
}

QString TransferForm::Hint() const {
    if (!mKind.Exports && ReadOnlyDB)
        return tr("The database is read-only:\nnothing can be brought into it.");
    if (mKind.Exports && mSrc.AlbumEntries().isEmpty())
        return tr("There are no albums yet.\nNew Album in the menu Album makes one.");
    if (IsUnread() && !mUi->txtDB->text().trimmed().isEmpty())
        return tr("Press Enter to open this directory.");
    if (!mOther.Engine()) return tr(mKind.WhatNow);
    if (mSrc.AlbumEntries().isEmpty())
        return tr("There are no albums in this database.\nChoose another one.");
    if (mKind.OfShows && mSrc.HasAlbum() && mSrc.SlideShowEntries().isEmpty())
        return tr("This album has no slide shows.\nChoose another one.");
    return {};
}

void TransferForm::Browse() {
    const QString Before = mUi->txtDB->text();
    const QString Path = TheServices().Dialogs->SaveFile(
        tr(mKind.DirectoryName),
        (Before.isEmpty() ? Before : WithSeparator(PathIn(*mUi->txtDB))) + Counters,
        tr("NEB Slide Show Databases (%1)|%1|All Files (*.*)|*.*").arg(Counters));
    if (!Path.isEmpty()) Open(LookAt(GetFilePath(Path)));
}

void TransferForm::ChooseFolder() {
    const QString Before = mUi->txtDB->text();
    const QString Dir = TheServices().Dialogs->ChooseFolder(
        tr(mKind.DirectoryName), Before.isEmpty() ? Before : PathIn(*mUi->txtDB));
    if (!Dir.isEmpty()) LoadDirectory(Dir);
}

void TransferForm::LoadDirectory(const QString& Dir) {
    PutPath(*mUi->txtDB, Dir);
    LoadNamed();
}

// What is open already is only listed anew: nobody else can have changed it.
bool TransferForm::LoadNamed() {
    if (mUi->txtDB->text().trimmed().isEmpty()) {
        TellNoDirectory();
        CloseOther();
        return false;
    }
    const auto Found = LookAt(PathIn(*mUi->txtDB));
    if (!Found.IsOpen) {
        PutPath(*mUi->txtDB, Found.Dir);
        if (IsLoaded() && IsWanted(Found)) return Open(Found);
        CloseOther();
        return false;
    }
    PutPath(*mUi->txtDB, mOther.Dir());
    OtherSide().List(mOther.Engine());
    UpdateControls();
    return true;
}

TransferOther::Place TransferForm::LookAt(const QString& Path) {
    const PointerScope Waiting(Pointer::Hourglass);
    const QScopedValueRollback<Work> Looking(mWork, Work::Looking);
    return mOther.LookAt(Path, OpenBeside());
}

QStringList TransferForm::OpenBeside() const {
    QStringList Dirs;
    for (const auto& Each : LoadedForms()) {
        const auto* Other = dynamic_cast<const TransferForm*>(Each.get());
        if (Other && Other != this && Other->mOther.Foreign()) Dirs << Other->mOther.Dir();
    }
    return Dirs;
}

void TransferForm::TellNoDirectory() {
    MsgBox(tr(mKind.NoDirectory), tr("Missing Directory Information"), BoxIcon::Information);
}

bool TransferForm::IsUnread() const {
    const QString Open = mOther.Dir();
    if (Open.isEmpty() || mUi->txtDB->text().isEmpty()) return Open != mUi->txtDB->text();
    return PathIn(*mUi->txtDB) != Open;
}

// A first export goes to a folder in which there is nothing yet.
bool TransferForm::IsWanted(const TransferOther::Place& Found) {
    if (Found.HoldsDatabase || Found.IsOwn) return true;
    const QString NoDatabase =
        tr("The specified directory does not hold an NEB Slide Show Database.");
    const QString Title = tr("Invalid Directory");
    if (mKind.Exports)
        return AskYesNo(NoDatabase + u'\n' + tr("Do you want to make a new one there?"), Title,
                        BoxAnswer::Yes);
    MsgBox(NoDatabase, Title, BoxIcon::Information);
    return false;
}

bool TransferForm::Open(const TransferOther::Place& Found) {
    CloseOther();
    PutPath(*mUi->txtDB, Found.Dir);
    using Use = OtherDatabase::Use;
    const auto Opened = [&] {
        const PointerScope Working(Pointer::Hourglass);
        const QScopedValueRollback<Work> Looking(mWork, Work::Looking);
        return mOther.Open(Found, mKind.Exports ? Use::Destination : Use::Source);
    }();
    if (!Tell(Opened)) return false;
    if (!IsLoaded()) {
        mOther.Close();
        return false;
    }
    NoteDirectory(Found.Dir);
    OtherSide().List(mOther.Engine());
    UpdateControls();
    return true;
}

void TransferForm::CloseOther() {
    OtherSide().List(nullptr);
    mOther.Close();
    UpdateControls();
}

void TransferForm::cboSrcAlbum_Click() {
    mSrc.ListShows();
    if (mDst.IsNewAlbum()) ProposeAlbumName();
    cboSrcSlideShow_Click();
    UpdateControls();
}

void TransferForm::cboDstAlbum_Click() {
    mDst.ListShows();
    ProposeAlbumName();
}

void TransferForm::cboSrcSlideShow_Click() {
    if (mDst.IsNewSlideShow()) ProposeSlideShowName();
}

void TransferForm::cboDstSlideShow_Click() {
    ProposeSlideShowName();
}

TransferForm::Names TransferForm::Proposed() const {
    Names Found{mDst.AlbumName(), mDst.SlideShowName()};
    if (mDst.IsNewAlbum())
        Found.Album = SuggestAlbumName(mSrc.AlbumName(), mDst.AlbumEntries(), mOther.IsOwn());
    if (mDst.IsNewSlideShow())
        Found.SlideShow =
            SuggestSlideShowName(mSrc.SlideShowName(), mDst.SlideShowEntries(), mOther.IsOwn());
    return Found;
}

void TransferForm::ProposeAlbumName() {
    if (const auto Name = Proposed().Album) mUi->txtAlbumName->setText(*Name);
}

void TransferForm::ProposeSlideShowName() {
    if (const auto Name = Proposed().SlideShow) mUi->txtSlideShowName->setText(*Name);
}

// A proposed name follows the lists; one that the user has typed stays.
template <class Function>
void TransferForm::KeepingOwnNames(Function Do) {
    const Names Before = Proposed();
    const bool Album = Before.Album == mUi->txtAlbumName->text();
    const bool SlideShow = Before.SlideShow == mUi->txtSlideShowName->text();
    Do();
    if (Album) ProposeAlbumName();
    if (SlideShow) ProposeSlideShowName();
}

void TransferForm::ListOtherAgain() {
    KeepingOwnNames([this] { OtherSide().ListAgain(); });
}

void TransferForm::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                                const EventKeys& EventData) {
    KeepingOwnNames([&] {
        OwnSide().Follow(ObjectType, EventType, EventData);
        if (mOther.IsOwn()) OtherSide().Follow(ObjectType, EventType, EventData);
    });
    UpdateControls();
}

// Enter in the directory loads it, and does not press the default button as well.
void TransferForm::keyPressEvent(QKeyEvent* Event) {
    const bool Enter = Event->key() == Qt::Key_Return || Event->key() == Qt::Key_Enter;
    if (!Enter || focusWidget() != mUi->txtDB) return Form::keyPressEvent(Event);
    Command([this] { LoadNamed(); });
}

void TransferForm::dragEnterEvent(QDragEnterEvent* Event) {
    if (!IsBusy() && !DroppedDirectory(*Event->mimeData()).isEmpty()) Event->acceptProposedAction();
}

// A question waits until the drag is over, so that its source is not held up.
void TransferForm::dropEvent(QDropEvent* Event) {
    const QString Dir = DroppedDirectory(*Event->mimeData());
    if (Dir.isEmpty()) return;
    Event->acceptProposedAction();
    QMetaObject::invokeMethod(
        this, [this, Dir] { Command([this, Dir] { LoadDirectory(Dir); }); }, Qt::QueuedConnection);
}

}  // namespace neb
