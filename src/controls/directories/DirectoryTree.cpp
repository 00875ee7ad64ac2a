#include "controls/directories/DirectoryTree.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>
#include <QVBoxLayout>

#include "controls/directories/DirectoryModel.h"
#include "controls/directories/DirectoryProposals.h"
#include "controls/directories/Drives.h"
#include "support/Services.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/modText.h"

namespace neb {
namespace {

QString FirstPlace() {
    for (auto Place : {QStandardPaths::PicturesLocation, QStandardPaths::HomeLocation}) {
        const QString Path = QStandardPaths::writableLocation(Place);
        if (FolderExists(Path)) return Path;
    }
    return QStringLiteral("/");
}

void AddPlace(QComboBox& Drives, const QString& Text, const QString& Path) {
    if (FolderExists(Path) && Drives.findData(Path) < 0) Drives.addItem(Text, Path);
}

void AddUserPlaces(QComboBox& Drives) {
    using Paths = QStandardPaths;
    for (auto Place : {Paths::HomeLocation, Paths::PicturesLocation, Paths::DesktopLocation,
                       Paths::DownloadLocation})
        AddPlace(Drives, Paths::displayName(Place), Paths::writableLocation(Place));
}

// Marks the places that are volumes.
constexpr int VolumeRole = Qt::UserRole + 1;

std::vector<Volume> VolumesNow() {
    const DriveList* Drives = TheServices().Drives;
    return Drives ? Drives->Volumes() : std::vector<Volume>();
}

}  // namespace

DirectoryTree::DirectoryTree(QWidget* Parent)
    : QWidget(Parent),
      mTyped(new QLineEdit(this)),
      mTree(new QTreeView(this)),
      mModel(new DirectoryModel(this)),
      mProposals(new DirectoryProposals(mTyped)) {
    auto* Layout = new QVBoxLayout(this);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->addWidget(mTyped);
    Layout->addWidget(mTree);
    SetUpTree();
    mTyped->setAccessibleName(tr("Directory"));
    mTyped->setToolTip(tr("The directory; type a path and press Enter to go there"));
    connect(mTyped, &QLineEdit::editingFinished, this, &DirectoryTree::TakeTyped);
    SetPath(FirstPlace());
}

void DirectoryTree::SetUpTree() {
    mTree->setModel(mModel);
    mTree->setHeaderHidden(true);
    mTree->setUniformRowHeights(true);
    mTree->setAccessibleName(tr("Directories"));
    mTree->setAccessibleDescription(tr("Right and Left open and close a directory"));
    connect(mTree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& Index) { TreeMoved(mModel->Path(Index)); });
    mTree->installEventFilter(this);
    mTree->viewport()->installEventFilter(this);
    connect(mTree->verticalScrollBar(), &QScrollBar::actionTriggered, this,
            [this] { mInSight = false; });
    // the model reads directories in the background, and rows come in above this one
    connect(mModel, &DirectoryModel::rowsInserted, this, &DirectoryTree::BringIntoSight,
            Qt::QueuedConnection);
    connect(mTree, &QTreeView::collapsed, this, &DirectoryTree::Collapsed);
}

void DirectoryTree::BringIntoSight() {
    if (mInSight) mTree->scrollTo(mTree->currentIndex(), QAbstractItemView::PositionAtCenter);
}

// A directory that is opened again shows what it holds by then.
void DirectoryTree::Collapsed(const QModelIndex& Index) {
    if (!WithSeparator(mPath).startsWith(WithSeparator(mModel->Path(Index))) ||
        mPath == mModel->Path(Index))
        mModel->Forget(Index);
}

// What the user does in the tree counts from then on, and what was typed in vain is dropped.
bool DirectoryTree::eventFilter(QObject* Watched, QEvent* Event) {
    const auto Type = Event->type();
    if (Type == QEvent::MouseButtonPress || Type == QEvent::Wheel || Type == QEvent::KeyPress)
        mInSight = false;
    if (Type == QEvent::FocusIn) ShowPath();
    return QWidget::eventFilter(Watched, Event);
}

void DirectoryTree::SetPath(const QString& Path) {
    if (!FolderExists(Path)) return;
    const QModelIndex Index = mModel->Reveal(ResolvePath(Path));
    mInSight = true;
    mTree->setCurrentIndex(Index);
    mTree->expand(Index);
    BringIntoSight();
    TreeMoved(mModel->Path(Index));
    ShowPath();
}

void DirectoryTree::SetDrives(QComboBox* Drives) {
    AddUserPlaces(*Drives);
    AddPlace(*Drives, tr("Computer"), QStringLiteral("/"));
    mDrives = Drives;
    FollowVolumes();
    if (TheServices().Drives) TheServices().Drives->Watch(*this, [this] { FollowVolumes(); });
    connect(Drives, &QComboBox::activated, this, [this, Drives] {
        SetPath(Drives->currentData().toString());
        ShowPlace();
    });
}

// The list may be open: what stays in it is not touched.
void DirectoryTree::FollowVolumes() {
    if (!mDrives) return;
    const std::vector<Volume> Now = VolumesNow();
    for (int I = mDrives->count() - 1; I >= 0; --I) {
        const QString Root = mDrives->itemData(I).toString();
        const bool Stays = std::any_of(Now.begin(), Now.end(),
                                       [&](const Volume& Each) { return Each.Root == Root; });
        if (mDrives->itemData(I, VolumeRole).toBool() && !Stays) mDrives->removeItem(I);
    }
    for (const Volume& Each : Now) {
        if (mDrives->findData(Each.Root) >= 0) continue;
        const int Last = mDrives->findData(QStringLiteral("/"));
        const int Place = Last < 0 ? mDrives->count() : Last;
        mDrives->insertItem(Place, Each.Name, Each.Root);
        mDrives->setItemData(Place, true, VolumeRole);
    }
    ShowPlace();
}

// Of several places that hold the directory the nearest one.
void DirectoryTree::ShowPlace() {
    if (!mDrives) return;
    int Nearest = -1;
    qsizetype Longest = 0;
    for (int I = 0; I < mDrives->count(); ++I) {
        const QString Place = WithSeparator(mDrives->itemData(I).toString());
        if (Place.size() <= Longest || !WithSeparator(mPath).startsWith(Place)) continue;
        Nearest = I;
        Longest = Place.size();
    }
    mDrives->setCurrentIndex(Nearest);
}

void DirectoryTree::ShowPath() {
    mTyped->setText(ReadableText(mPath));
}

QString DirectoryTree::TypedText() const {
    return mTyped->text();
}

// What people type or paste: a path, one from their home or from the directory shown, an address.
QString DirectoryTree::TypedPath() const {
    const QString Text = mTyped->text();
    if (Text == ReadableText(mPath)) return mPath;
    if (Text == u"~" || Text.startsWith(u"~/"))
        return QStandardPaths::writableLocation(QStandardPaths::HomeLocation) + Text.mid(1);
    if (Text.startsWith(u"file:")) return FileOfUrl(QUrl(Text));
    return AbsolutePath(Text, mPath);
}

bool DirectoryTree::TakeTyped() {
    const QString Path = TypedPath();
    if (!FolderExists(Path)) return false;
    SetPath(Path);
    mProposals->End();
    return true;
}

// Enter in the typed path goes there, and does not press the window's default button as well.
void DirectoryTree::keyPressEvent(QKeyEvent* Event) {
    const bool Enter = Event->key() == Qt::Key_Return || Event->key() == Qt::Key_Enter;
    if (!Enter || !mTyped->hasFocus()) QWidget::keyPressEvent(Event);
}

void DirectoryTree::TreeMoved(const QString& Path) {
    if (Path.isEmpty() || Path == mPath) return;
    mPath = Path;
    ShowPath();
    ShowPlace();
    Q_EMIT Change();
}

}  // namespace neb
