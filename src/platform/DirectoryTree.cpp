#include "platform/DirectoryTree.h"

#include <QComboBox>
#include <QCompleter>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QTreeView>
#include <QVBoxLayout>

#include "support/modHostFiles.h"

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

// Media and drives that a user would look for, not the system's own mounts.
void AddVolumes(QComboBox& Drives) {
    for (const QStorageInfo& Volume : QStorageInfo::mountedVolumes()) {
        const QString Root = Volume.rootPath();
        const bool Media = Root.startsWith(u"/media/") || Root.startsWith(u"/run/media/") ||
                           Root.startsWith(u"/mnt") || Root.contains(u':');
        if (Volume.isReady() && Media) AddPlace(Drives, Volume.displayName(), Root);
    }
    AddPlace(Drives, QObject::tr("Computer"), QStringLiteral("/"));
}

}  // namespace

DirectoryTree::DirectoryTree(QWidget* Parent)
    : QWidget(Parent),
      mTyped(new QLineEdit(this)),
      mTree(new QTreeView(this)),
      mModel(new QFileSystemModel(this)) {
    auto* Layout = new QVBoxLayout(this);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->addWidget(mTyped);
    Layout->addWidget(mTree);
    SetUpTree();
    mTyped->setAccessibleName(tr("Directory"));
    mTyped->setToolTip(tr("The directory; type a path and press Enter to go there"));
    mTyped->setCompleter(new QCompleter(mModel, mTyped));
    connect(mTyped, &QLineEdit::editingFinished, this, &DirectoryTree::TypedPath);
    setFocusProxy(mTree);
    SetPath(FirstPlace());
}

void DirectoryTree::SetUpTree() {
    mModel->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    mModel->setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
    mModel->setRootPath(QStringLiteral("/"));
    mTree->setModel(mModel);
    mTree->setHeaderHidden(true);
    mTree->setUniformRowHeights(true);
    for (int Col = 1; Col < mModel->columnCount(); ++Col) mTree->hideColumn(Col);
    mTree->setAccessibleName(tr("Directories"));
    connect(mTree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& Index) { TreeMoved(mModel->filePath(Index)); });
}

void DirectoryTree::SetPath(const QString& Path) {
    if (!FolderExists(Path)) return;
    const QString Host = ResolvePath(Path);
    const QModelIndex Index = mModel->index(Host);
    mTree->setCurrentIndex(Index);
    mTree->expand(Index);
    mTree->scrollTo(Index, QAbstractItemView::PositionAtCenter);
    TreeMoved(Host);
}

void DirectoryTree::SetDrives(QComboBox* Drives) {
    AddUserPlaces(*Drives);
    AddVolumes(*Drives);
    Drives->setCurrentIndex(Drives->findData(mPath));
    connect(Drives, &QComboBox::activated, this,
            [this, Drives] { SetPath(Drives->currentData().toString()); });
}

void DirectoryTree::TypedPath() {
    if (FolderExists(mTyped->text()))
        SetPath(mTyped->text());
    else
        mTyped->setText(mPath);
}

// Enter in the typed path goes there, and does not press the window's default button as well.
void DirectoryTree::keyPressEvent(QKeyEvent* Event) {
    const bool Enter = Event->key() == Qt::Key_Return || Event->key() == Qt::Key_Enter;
    if (!Enter || !mTyped->hasFocus()) QWidget::keyPressEvent(Event);
}

void DirectoryTree::TreeMoved(const QString& Path) {
    if (Path.isEmpty() || Path == mPath) return;
    mPath = Path;
    mTyped->setText(Path);
    Q_EMIT Change();
}

}  // namespace neb
