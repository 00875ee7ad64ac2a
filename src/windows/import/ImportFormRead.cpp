// How the import windows read directories and files: chosen, set by the caller,
// found or dropped.
#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>

#include "controls/grid/FlexGrid.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/Texts.h"
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

bool IsReserved(const QString& Path) {
    return IsReservedForAlbums(Path, AppPath());
}

QString AsDropped(const QString& Path) {
    return FolderExists(Path) ? WithSeparator(Path) : Path;
}

}  // namespace

// Of several the first folder, else that of the first picture.
QString ImportForm::FolderToRead() const {
    const QStringList& Named = mSource.Named;
    const auto Folder = std::find_if(Named.begin(), Named.end(),
                                     [](const QString& Each) { return Each.endsWith(u'/'); });
    if (Folder != Named.end()) return *Folder;
    if (!Named.isEmpty()) return GetFilePath(Named.front());
    return mSource.Directory.isEmpty() ? QString() : WithSeparator(mSource.Directory);
}

// What is named is read once: stopped or not, the next read is of what is
// chosen then.
std::optional<ReadingReport> ImportForm::ReadNamed() {
    const PictureReading::Source From = mSource;
    mSource.Named.clear();
    if (From.Directory.isEmpty() && From.Named.isEmpty()) return std::nullopt;
    const std::optional<ReadingReport> Report = mReading->Read(From);
    UpdateButtons();
    return Report;
}

void ImportForm::TellOf(const std::optional<ReadingReport>& Report) {
    if (!Report || !IsLoaded()) return;
    mUi->wdgPassedOver->ShowReport(*Report);
    if (Report->HasMissing()) Report->Tell();
}

void ImportForm::ReadOpened() {
    const int First = mUi->flxNonSelected->Rows();
    const std::optional<ReadingReport> Report = ReadNamed();
    if (IsLoaded() && mUi->flxNonSelected->Rows() > First) PicturesOpened(First);
    TellOf(Report);
}

void ImportForm::SortFiles(QStringList& Paths) {
    mReading->SortFiles(Paths);
}

void ImportForm::DropRemaining() {
    const bool Drops = mUi->flxNonSelected->Rows() > 0 &&
                       AskYesNo(tr("Do you want to discard the remaining non-selected graphics?"),
                                tr("Discard Confirmation"));
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
    ReadOpened();
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
    TellOf(ReadNamed());
}

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
    DirectoryChosen(FolderToRead());
    ReadOpened();
}

}  // namespace neb
