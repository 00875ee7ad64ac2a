// How the import windows read directories and files: chosen, set by the caller, found or dropped.
#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QProgressBar>

#include "albums/modPictureFiles.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/frmLoading.h"
#include "controls/grid/FlexGrid.h"
#include "pictures/ImgX.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/modNumbers.h"
#include "ui_ImportForm.h"
#include "windows/frame/modUserInput.h"
#include "windows/import/ImportForm.h"
#include "windows/import/frmDirSelect.h"
#include "windows/import/frmFindGraphics.h"

namespace neb {
namespace {

// The thumbnail of a picture; a file that is gone by now has none. Throws Fault.
std::optional<QImage> ThumbnailOf(const QString& Path) {
    if (!FileExists(Path)) return QImage();
    return MakeThumbnail(Path);
}

QString PercentComplete(double Part, double Whole) {
    return Format(Part / Whole * 100, "##0") + QStringLiteral("% Complete");
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

void MoveBar(frmLoading& Loading, int Value, int Max) {
    Loading.pgbLoadingProgress()->setValue(Value);
    Loading.pgbLoadingProgress()->setToolTip(PercentComplete(Value, Max));
    Loading.Refresh();
    DoEvents();
}

}  // namespace

void ImportForm::ReadUnderLoading() {
    ReleaseLoading();
    if (mImportDir.isEmpty() && mNamed.isEmpty()) return DoActivity();
    mLoadingForm = NewForm<frmLoading>();
    const auto Shown = mLoadingForm;
    Shown->SupportsAbort(true);
    Shown->ShowProgressMeter(*this);
}

void ImportForm::ReleaseLoading() {
    if (!mLoadingForm) return;
    mLoadingForm->ClearParent();
    std::exchange(mLoadingForm, nullptr)->Unload();
}

void ImportForm::DoActivity() {
    const auto Held = shared_from_this();
    const PointerScope Working(Pointer::Hourglass);
    mBusy = true;
    mAbort = false;
    ReadDirectory();
    mBusy = false;
    mInForm_Load = false;
}

// Whether the work is to end: the user asked for it, or the window was closed meanwhile.
bool ImportForm::Stopped() {
    if (mAborted && mInForm_Load) Unload();
    return mAbort || mAborted;
}

void ImportForm::ReadDirectory() {
    const QStringList Named = std::exchange(mNamed, {});
    if (mImportDir.isEmpty() && Named.isEmpty()) return;
    mLoadingForm->SupportsAbort(true);
    mLoadingForm->setWindowTitle(QStringLiteral("Reading Slides ..."));
    DoEvents();
    if (Stopped()) return;
    const QStringList Files = CollectFiles(Named);
    if (Files.isEmpty()) {
        mInForm_Load = false;
        return;
    }
    LoadPictures(Files);
}

QStringList ImportForm::CollectFiles(const QStringList& Named) {
    const KeepGoing GoOn = [this] {
        DoEvents();
        return !mAbort && !mAborted;
    };
    if (Named.isEmpty()) return ScanDirectory(WithSeparator(mImportDir), mRecurseDir, GoOn);
    QStringList Files;
    for (const QString& Path : Named)
        if (Path.endsWith(u'/'))
            Files += ScanDirectory(Path, mRecurseDir, GoOn);
        else if (IsPictureName(Path))
            Files += Path;
    return Files;
}

void ImportForm::LoadPictures(const QStringList& Files) {
    const int Count = static_cast<int>(Files.size());
    const auto Loading = mLoadingForm;
    if (!Loading || Stopped()) return;
    StartBar(*Loading, QStringLiteral("Loading Slides ..."), Count);
    if (Stopped()) return;
    mUi->flxNonSelected->SetRedraw(false);
    mUi->flxSelected->SetRedraw(false);
    AheadQueue<QString, std::optional<QImage>> Ahead({Files.begin(), Files.end()}, &ThumbnailOf);
    for (int I = 0; I < Count && LoadPicture(Ahead, Files[I]); ++I) {
        MoveBar(*Loading, I + 1, Count);
        if (mAbort || mAborted) break;
    }
    mUi->flxNonSelected->SetRedraw(true);
    mUi->flxSelected->SetRedraw(true);
    UpdateButtons();
}

// False when the work was stopped while the picture was waited for. A picture that cannot be
// decoded leaves no row.
bool ImportForm::LoadPicture(AheadQueue<QString, std::optional<QImage>>& Ahead,
                             const QString& Path) {
    while (!Ahead.Wait(10)) {
        DoEvents();
        if (mAbort || mAborted) return false;
    }
    try {
        AddRow(Path, *Ahead.Take());
    } catch (const Fault&) {
        return true;
    }
    return true;
}

void ImportForm::AddRow(const QString& Path, const QImage& Thumbnail) {
    FlexGrid& Grid = *mUi->flxNonSelected;
    const int Row = Grid.AddItem();
    Grid.SetTextMatrix(Row, ColCaption, GetFileBaseName(Path));
    Grid.SetTextMatrix(Row, ColPath, Path);
    if (Thumbnail.isNull()) return;
    Grid.SetCellPicture(Row, ColPicture, Thumbnail);
    if (mLoadingForm) mLoadingForm->ShowPicture(Thumbnail);
}

void ImportForm::SortFiles(QStringList& Paths) {
    const int Last = static_cast<int>(Paths.size());
    if (mLoadingForm) StartBar(*mLoadingForm, QStringLiteral("Sorting Slides ..."), Last);
    std::stable_sort(Paths.begin(), Paths.end(), [](const QString& A, const QString& B) {
        return GetFileName(A) < GetFileName(B);
    });
    if (mLoadingForm) MoveBar(*mLoadingForm, Last, Last);
    if (mAborted && mInForm_Load) Unload();
}

bool ImportForm::AskDiscardRemaining() {
    if (mUi->flxNonSelected->Rows() == 0) return false;
    return AskYesNo(QStringLiteral("Do you want to discard the remaining non-selected graphics?"),
                    QStringLiteral("Discard Confirmation"));
}

void ImportForm::ImportAnotherDirectory() {
    if (AskDiscardRemaining()) mUi->flxNonSelected->SetRows(0);
    UpdateButtons();
    const auto Selector = NewForm<frmDirSelect>();
    QString Chosen = Selector->SelectDirectory();
    if (Chosen.isEmpty() || !IsLoaded()) return;
    Chosen = WithSeparator(Chosen);
    if (IsReserved(Chosen)) return;
    mRecurseDir = Selector->RecurseDir();
    mImportDir = Chosen;
    DirectoryChosen(Chosen);
    ReadUnderLoading();
    UpdateButtons();
}

void ImportForm::ImportFoundGraphics() {
    if (AskDiscardRemaining()) mUi->flxNonSelected->SetRows(0);
    UpdateButtons();
    mBusy = true;
    mAbort = false;
    const auto Finder = NewForm<frmFindGraphics>();
    try {
        Finder->ShowModal();
    } catch (const Fault&) {
        // what was found until then can still be brought in
    }
    mBusy = false;
    if (Finder->FileCnt() < 1 || !IsLoaded()) return;
    for (int I = 1; I <= Finder->FileCnt(); ++I) mNamed.append(Finder->Files(I));
    ReadUnderLoading();
    UpdateButtons();
}

// Whether no work is under way and no other window holds the user's attention.
bool ImportForm::IsFree() const {
    const QWidget* Modal = QApplication::activeModalWidget();
    return IsLoaded() && !mBusy && (!Modal || Modal == this);
}

void ImportForm::dragEnterEvent(QDragEnterEvent* Event) {
    if (IsFree() && Event->mimeData()->hasUrls()) Event->acceptProposedAction();
}

void ImportForm::dropEvent(QDropEvent* Event) {
    QStringList Paths;
    for (const QUrl& Url : Event->mimeData()->urls())
        if (Url.isLocalFile()) Paths.append(AsDropped(Url.toLocalFile()));
    if (Paths.isEmpty() || !IsFree()) return;
    Event->acceptProposedAction();
    // the question waits until the drag is over, so that the source is not held up
    QMetaObject::invokeMethod(
        this, [this, Paths] { ReadDropped(Paths); }, Qt::QueuedConnection);
}

void ImportForm::ReadDropped(const QStringList& Paths) {
    if (!IsFree() || std::any_of(Paths.begin(), Paths.end(), &IsReserved)) return;
    const auto Held = shared_from_this();
    if (AskDiscardRemaining()) mUi->flxNonSelected->SetRows(0);
    mNamed = Paths;
    if (FolderExists(Paths.front())) DirectoryChosen(Paths.front());
    ReadUnderLoading();
    UpdateButtons();
}

}  // namespace neb
