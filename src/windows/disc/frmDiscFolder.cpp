#include "windows/disc/frmDiscFolder.h"

#include <QDragEnterEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include "controls/fields/Icons.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "controls/grid/EmptyHint.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Grouped.h"
#include "ui_frmDiscFolder.h"
#include "windows/frame/modNotice.h"
#include "windows/transfer/frmTransferProgress.h"
#include "windows/transfer/modTransferAsks.h"

namespace neb {
namespace {

enum Column { ColName, ColSlides, ColCount };

std::int32_t IDOf(const QTreeWidgetItem& Item) {
    return Item.data(ColName, Qt::UserRole).toInt();
}

QTreeWidgetItem* NewItem(const QString& Name, std::int32_t ID, size_t Slides) {
    auto* Item = new QTreeWidgetItem({Name, QString::number(Slides)});
    Item->setData(ColName, Qt::UserRole, ID);
    Item->setTextAlignment(ColSlides, Qt::AlignRight | Qt::AlignVCenter);
    Item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    Item->setCheckState(ColName, Qt::Unchecked);
    return Item;
}

const DiscAlbum* ChoiceOf(const DiscContents& Chosen, std::int32_t AlbumID) {
    for (const DiscAlbum& Each : Chosen)
        if (Each.AlbumID == AlbumID) return &Each;
    return nullptr;
}

void CheckShows(QTreeWidgetItem& Album, Qt::CheckState State) {
    for (int I = 0; I < Album.childCount(); ++I) Album.child(I)->setCheckState(ColName, State);
}

std::vector<std::int32_t> ShowsChosen(const QTreeWidgetItem& Album) {
    std::vector<std::int32_t> SlideShowIDs;
    for (int I = 0; I < Album.childCount(); ++I)
        if (Album.child(I)->checkState(ColName) == Qt::Checked)
            SlideShowIDs.push_back(IDOf(*Album.child(I)));
    return SlideShowIDs;
}

// An album holds slides that are in no show: with each of its shows it is not yet chosen as a
// whole.
void FollowShows(QTreeWidgetItem& Album) {
    Album.setCheckState(ColName, ShowsChosen(Album).empty() ? Qt::Unchecked : Qt::PartiallyChecked);
}

}  // namespace

frmDiscFolder::frmDiscFolder() : mUi(std::make_unique<Ui::frmDiscFolder>()) {
    mUi->setupUi(this);
    mUi->cmdWrite->setIcon(ThemeIcon(QStringLiteral("export")));
    mUi->cmdCancel->setIcon(ThemeIcon(QStringLiteral("cancel")));
    SetUpTree();
    On(mUi->cmdBrowse, &QPushButton::clicked, &frmDiscFolder::Browse);
    On(mUi->cmdWrite, &QPushButton::clicked, &frmDiscFolder::Write);
    On(mUi->cmdCancel, &QPushButton::clicked, &frmDiscFolder::Close);
}

frmDiscFolder::~frmDiscFolder() = default;

void frmDiscFolder::SetUpTree() {
    QTreeWidget& Tree = *mUi->trvAlbums;
    Tree.setColumnCount(ColCount);
    SetEmptyHint(Tree, tr("Your albums and slide shows are listed here once you have made some."));
    Tree.setHeaderLabels({tr("Album or slide show"), tr("Slides")});
    Tree.headerItem()->setTextAlignment(ColSlides, Qt::AlignRight | Qt::AlignVCenter);
    Tree.header()->setStretchLastSection(false);
    Tree.header()->setSectionResizeMode(ColName, QHeaderView::Stretch);
    Tree.header()->setSectionResizeMode(ColSlides, QHeaderView::ResizeToContents);
    connect(&Tree, &QTreeWidget::itemChanged, this, &frmDiscFolder::ItemChanged);
}

void frmDiscFolder::Form_Load() {
    ListAlbums({});
    if (mUi->trvAlbums->topLevelItemCount() > 0)
        mUi->trvAlbums->setCurrentItem(mUi->trvAlbums->topLevelItem(0));
}

void frmDiscFolder::ListAlbums(const DiscContents& Chosen) {
    const QSignalBlocker Quiet(mUi->trvAlbums);
    mUi->trvAlbums->clear();
    if (DBEngine && !DBEngine->Albums.empty())
        for (const NameIndexEntry& Row : DBEngine->AlbumIndex) AddAlbum(Row.ID, Chosen);
    mUi->trvAlbums->expandAll();
    ShowTally();
}

void frmDiscFolder::AddAlbum(std::int32_t AlbumID, const DiscContents& Chosen) {
    clsNEBAlbum* Album = DBEngine->GetAlbum(AlbumID);
    if (!Album) return;
    QTreeWidgetItem* Item = NewItem(Album->AlbumName, AlbumID, Album->Slides.size());
    mUi->trvAlbums->addTopLevelItem(Item);
    const DiscAlbum* Choice = ChoiceOf(Chosen, AlbumID);
    const auto IsChosen = [Choice](std::int32_t ID) {
        const auto& IDs = Choice->SlideShowIDs;
        return IDs.empty() || std::find(IDs.begin(), IDs.end(), ID) != IDs.end();
    };
    if (!Album->SlideShows.empty()) Album->SortSlideShows();
    for (size_t I = 0; I < Album->SlideShows.size(); ++I) {
        const clsNEBSlideShow& Show = *Album->GetSlideShow(0, static_cast<int>(I) + 1);
        Item->addChild(NewItem(Show.SlideShowName, Show.SlideShowID, Show.Details.size()));
        if (Choice && IsChosen(Show.SlideShowID))
            Item->child(Item->childCount() - 1)->setCheckState(ColName, Qt::Checked);
    }
    if (!Choice) return;
    FollowShows(*Item);
    if (Choice->SlideShowIDs.empty()) Item->setCheckState(ColName, Qt::Checked);
}

// By a user. An album takes its shows along.
void frmDiscFolder::ItemChanged(QTreeWidgetItem* Item) {
    {
        const QSignalBlocker Quiet(mUi->trvAlbums);
        if (Item->parent())
            FollowShows(*Item->parent());
        else
            CheckShows(*Item, Item->checkState(ColName));
    }
    mUi->trvAlbums->viewport()->update();
    ShowTally();
}

DiscContents frmDiscFolder::Chosen() const {
    DiscContents Chosen;
    for (int I = 0; I < mUi->trvAlbums->topLevelItemCount(); ++I) {
        const QTreeWidgetItem& Album = *mUi->trvAlbums->topLevelItem(I);
        const Qt::CheckState Ticked = Album.checkState(ColName);
        if (Ticked == Qt::Checked) Chosen.push_back({IDOf(Album)});
        if (Ticked == Qt::PartiallyChecked) Chosen.push_back({IDOf(Album), ShowsChosen(Album)});
    }
    return Chosen;
}

void frmDiscFolder::ShowTally() {
    const DiscContents What = Chosen();
    const bool NoAlbums = mUi->trvAlbums->topLevelItemCount() == 0;
    mUi->lblChosen->setText(
        NoAlbums       ? tr("There are no albums yet. New Album in the menu Album makes one.")
        : What.empty() ? tr("Tick what is to be written. An album takes its slide shows along.")
                       : CountDisc(*DBEngine, What).Text());
}

void frmDiscFolder::ReceiveEvent(const QString&, const QString&, const EventKeys&) {
    ListAlbums(Chosen());
}

void frmDiscFolder::Browse() {
    const QString Dir =
        TheServices().Dialogs->ChooseFolder(tr("Folder for the Disc"), PathIn(*mUi->txtFolder));
    if (!Dir.isEmpty()) PutPath(*mUi->txtFolder, Dir);
}

void frmDiscFolder::dragEnterEvent(QDragEnterEvent* Event) {
    if (!mWriting && !DroppedDirectory(*Event->mimeData()).isEmpty()) Event->acceptProposedAction();
}

void frmDiscFolder::dropEvent(QDropEvent* Event) {
    const QString Dir = DroppedDirectory(*Event->mimeData());
    if (Dir.isEmpty()) return;
    Event->acceptProposedAction();
    PutPath(*mUi->txtFolder, Dir);
}

void frmDiscFolder::Write() {
    const DiscContents What = Chosen();
    if (!IsReady(What)) return;
    const QString Tally = CountDisc(*DBEngine, What).Text();
    const Written Folder = Run(What);
    if (Folder.Result)
        TellDone(Folder, Tally);
    else
        TellFailure(Folder.Result);
}

bool frmDiscFolder::IsReady(const DiscContents& What) {
    if (What.empty()) {
        MsgBox(tr("You must first select the albums or slide shows to write."),
               tr("No Source Selected"), BoxIcon::Information);
        mUi->trvAlbums->setFocus();
    } else if (mUi->txtFolder->text().trimmed().isEmpty()) {
        MsgBox(tr("You must first name the folder to write to."),
               tr("Missing Directory Information"), BoxIcon::Information);
        mUi->txtFolder->setFocus();
    }
    return !What.empty() && !mUi->txtFolder->text().trimmed().isEmpty();
}

frmDiscFolder::Written frmDiscFolder::Run(const DiscContents& What) {
    const PointerScope Working(Pointer::Hourglass);
    const QScopedValueRollback<bool> Writing(mWriting, true);
    Written Made;
    const auto Bar = NewForm<frmTransferProgress>();
    Bar->setWindowTitle(tr("Writing ..."));
    const QString Dir = PathIn(*mUi->txtFolder);
    try {
        Bar->ShowOver([&] {
            Made.Result = WriteDiscFolder(*DBEngine, What, Dir, DeskOf(*Bar, Made.LeftOut));
        });
    } catch (const Fault& Problem) {
        Made.Result.Boxes = {{Problem.Text(), tr("Operation Failed"), BoxIcon::Critical}};
    }
    return Made;
}

DiscDesk frmDiscFolder::DeskOf(frmTransferProgress& Bar, int& LeftOut) const {
    const auto Progress = [&Bar, Begun = std::optional<double>()](const DiscProgress& Now) mutable {
        const double Ticks = TheServices().Time->Ticks();
        if (Now.Copied.Bytes > 0 && !Begun) Begun = Ticks;
        return Bar.Show(Now.Text(Begun ? (Ticks - *Begun) / 1000 : 0), Now.Percent());
    };
    return {.Progress = Progress, .GoOnWithout = [&LeftOut](const QStringList& Missing) {
                LeftOut = static_cast<int>(Missing.size());
                return AskGoOnWithout(Missing, DBEngine->DBPath());
            }};
}

void frmDiscFolder::TellDone(const Written& Folder, const QString& What) {
    const DiscResult& Result = Folder.Result;
    MsgBox(tr("The folder\n%1\nis ready: %2, in %3 files of %4%5.\n\nWhether it is still as it was "
              "written can be looked up at any time: by Check a Disc in the menu Import/Export, or "
              "in the folder by\nsha256sum -c Sums.sha256")
               .arg(Result.Dir, What, QString::number(Result.Files), ShortSize(Result.Bytes),
                    TextOfLeftOut(Folder.LeftOut)),
           tr("Operation Completed"), BoxIcon::Information);
    Unload();
}

void frmDiscFolder::TellFailure(const DiscResult& Result) {
    for (const BoxRequest& Each : Result.Boxes) ShowBox(Each);
    if (Result.Is == TransferResult::End::Stopped) ShowNotice(tr("Stopped; nothing was written."));
}

}  // namespace neb
