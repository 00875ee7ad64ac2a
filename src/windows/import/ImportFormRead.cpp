// How the import windows read directories and files: chosen, set by the caller,
// found or dropped.
#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QProgressBar>
#include <numeric>

#include "albums/PictureOrder.h"
#include "albums/modPictureFiles.h"
#include "controls/forms/frmLoading.h"
#include "controls/grid/FlexGrid.h"
#include "pictures/ImgX.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "ui_ImportForm.h"
#include "windows/frame/modUserInput.h"
#include "windows/import/ImportForm.h"
#include "windows/import/frmDirSelect.h"
#include "windows/import/frmFindGraphics.h"

namespace neb {
namespace {

// The thumbnail of a picture; a file that is gone by now has none. Throws
// Fault.
std::optional<QImage> ThumbnailOf(const QString& Path) {
    if (!FileExists(Path)) return QImage();
    return MakeThumbnail(Path);
}

bool IsReserved(const QString& Path) {
    return IsReservedForAlbums(Path, AppPath());
}

QString AsDropped(const QString& Path) {
    return FolderExists(Path) ? WithSeparator(Path) : Path;
}

void StartBar(frmLoading& Loading, const QString& Title, int Max) {
    Loading.setWindowTitle(Title);
    Loading.pgbLoadingProgress()->setMaximum(Max);
    Loading.pgbLoadingProgress()->setValue(0);
    Loading.Refresh();
}

}  // namespace

// The files of one read and their thumbnails, which are made ahead.
struct ImportForm::FoundPictures {
    QStringList Files;
    std::optional<AheadQueue<QString, std::optional<QImage>>> Thumbnails;

    SlideReading::KeyList Take(const QStringList& All) {
        Files = All;
        Thumbnails.emplace(std::vector<QString>(Files.begin(), Files.end()), &ThumbnailOf);
        SlideReading::KeyList Places(static_cast<size_t>(Files.size()));
        std::iota(Places.begin(), Places.end(), 0);
        return Places;
    }
};

// What is named is read once: stopped or not, the next read is of what is
// chosen then.
void ImportForm::ReadPictures() {
    const Source From = mSource;
    mSource.Named.clear();
    if (From.Directory.isEmpty() && From.Named.isEmpty()) return;
    mReading.Read(Reading(From));
    UpdateButtons();
}

SlideReading::Order ImportForm::Reading(const Source& From) {
    const auto Found = std::make_shared<FoundPictures>();
    return {
        .Keys = [=, this] { return std::optional(Found->Take(CollectFiles(From))); },
        .MakeRow = [=, this](std::int32_t Place, int) { LoadPicture(*Found, Found->Files[Place]); },
        .Grids = {mUi->flxNonSelected, mUi->flxSelected},
        .Shows = SlideReading::Bar::CountAndText,
        .MayStop = true,
        .KeysTitle = QStringLiteral("Reading Slides ...")};
}

QStringList ImportForm::CollectFiles(const Source& From) {
    const KeepGoing GoOn = [this] { return mReading.Yield(); };
    if (From.Named.isEmpty())
        return ScanDirectory(WithSeparator(From.Directory), From.Recurse, GoOn);
    QStringList Files;
    for (const QString& Path : From.Named)
        if (Path.endsWith(u'/'))
            Files += ScanDirectory(Path, From.Recurse, GoOn);
        else if (IsPictureName(Path))
            Files += Path;
    return Files;
}

// A picture that cannot be decoded leaves no row.
void ImportForm::LoadPicture(FoundPictures& Found, const QString& Path) {
    while (!Found.Thumbnails->Wait(10))
        if (!mReading.Yield()) return;
    try {
        AddRow(Path, *Found.Thumbnails->Take());
    } catch (const std::exception&) {
        return;
    }
}

void ImportForm::AddRow(const QString& Path, const QImage& Thumbnail) {
    FlexGrid& Grid = *mUi->flxNonSelected;
    const int Row = Grid.AddItem();
    Grid.SetTextMatrix(Row, ColCaption, CaptionByName(Path));
    Grid.SetTextMatrix(Row, ColPath, Path);
    if (Thumbnail.isNull()) return;
    Grid.SetCellPicture(Row, ColPicture, Thumbnail);
    mReading.Window()->ShowPicture(Thumbnail);
}

void ImportForm::SortFiles(QStringList& Paths) {
    const int Last = static_cast<int>(Paths.size());
    if (mReading.Window()) StartBar(*mReading.Window(), QStringLiteral("Sorting Slides ..."), Last);
    std::stable_sort(Paths.begin(), Paths.end(), [](const QString& A, const QString& B) {
        return GetFileName(A) < GetFileName(B);
    });
    mReading.Yield();
}

void ImportForm::DropRemaining() {
    const bool Drops =
        mUi->flxNonSelected->Rows() > 0 &&
        AskYesNo(QStringLiteral("Do you want to discard the remaining non-selected graphics?"),
                 QStringLiteral("Discard Confirmation"));
    if (Drops) mUi->flxNonSelected->SetRows(0);
    UpdateButtons();
}

void ImportForm::ImportAnotherDirectory() {
    DropRemaining();
    const auto Selector = NewForm<frmDirSelect>();
    QString Chosen = Selector->SelectDirectory();
    if (Chosen.isEmpty() || !IsLoaded()) return;
    Chosen = WithSeparator(Chosen);
    if (IsReserved(Chosen)) return;
    mSource = {Chosen, Selector->RecurseDir(), {}};
    DirectoryChosen(Chosen);
    ReadPictures();
}

void ImportForm::ImportFoundGraphics() {
    DropRemaining();
    const auto Finder = NewForm<frmFindGraphics>();
    try {
        During(Phase::Searching, [Finder] { Finder->ShowModal(); });
    } catch (const Fault&) {
        // what was found until then can still be brought in
    }
    if (Finder->FileCnt() < 1 || !IsLoaded()) return;
    for (int I = 1; I <= Finder->FileCnt(); ++I) mSource.Named.append(Finder->Files(I));
    ReadPictures();
}

// Whether no work is under way and no other window holds the user's attention.
bool ImportForm::IsFree() const {
    const QWidget* Modal = QApplication::activeModalWidget();
    return IsLoaded() && !IsBusy() && (!Modal || Modal == this);
}

void ImportForm::dragEnterEvent(QDragEnterEvent* Event) {
    if (IsFree() && Event->mimeData()->hasUrls()) Event->acceptProposedAction();
}

void ImportForm::dropEvent(QDropEvent* Event) {
    QStringList Paths;
    for (const QUrl& Url : Event->mimeData()->urls())
        if (Url.isLocalFile()) Paths.append(AsDropped(FileOfUrl(Url)));
    if (Paths.isEmpty() || !IsFree()) return;
    Event->acceptProposedAction();
    // the question waits until the drag is over, so that the source is not held
    // up
    QMetaObject::invokeMethod(
        this, [this, Paths] { Command([this, Paths] { ReadDropped(Paths); }); },
        Qt::QueuedConnection);
}

void ImportForm::ReadDropped(const QStringList& Paths) {
    if (!IsFree() || std::any_of(Paths.begin(), Paths.end(), &IsReserved)) return;
    DropRemaining();
    mSource.Named = Paths;
    if (FolderExists(Paths.front())) DirectoryChosen(Paths.front());
    ReadPictures();
}

}  // namespace neb
