#include "windows/import/PictureReading.h"

#include <QProgressBar>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "albums/modPictureFiles.h"
#include "controls/forms/Form.h"
#include "controls/forms/frmLoading.h"
#include "controls/grid/FlexGrid.h"
#include "support/ReasonOf.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/modText.h"
#include "support/work/AheadQueue.h"
#include "windows/import/ImportOptions.h"

namespace neb {
namespace {

// What is read of a file before its row is made.
struct ReadPicture {
    ListedPicture Picture;
    PictureFacts Facts;
};

// A file that is gone by now has neither. Throws Fault.
ReadPicture ReadFrom(const QString& Path, int Side) {
    if (!FileExists(Path)) return {};
    return {ReadForList(Path, Side), FactsOfFile(Path)};
}

QString WithReason(const QString& Path, const QString& Reason) {
    return ReadableText(Path) + QStringLiteral(": ") + Reason;
}

}  // namespace

// The files of one reading, which are read ahead, and what becomes of them.
struct PictureReading::Found {
    QStringList Files;
    std::optional<AheadQueue<QString, ReadPicture>> Ahead;
    ReadingReport Report;
};

PictureReading::PictureReading(Form& Window, const ImportOptions& Options, FlexGrid& NonSelected,
                               FlexGrid& Selected)
    : mWindow(Window),
      mOptions(Options),
      mLists{&NonSelected, &Selected},
      mRows(NonSelected, Selected),
      mReading(Window) {}

// Those that were there before stay above. Stopped or not, the rows are in the order that the
// window shows.
std::optional<ReadingReport> PictureReading::Read(const Source& From) {
    const auto Pictures = std::make_shared<Found>();
    const int First = mLists.front()->Rows();
    const SlideReading::End End = mReading.Read(Order(From, Pictures));
    if (End == SlideReading::End::Again || !mWindow.IsLoaded()) return std::nullopt;
    if (mOptions.Order() == PictureOrder::ByTime) mRows.Sort(PictureOrder::ByTime, First);
    if (End != SlideReading::End::Done) return std::nullopt;
    return Pictures->Report;
}

SlideReading::Order PictureReading::Order(const Source& From, const std::shared_ptr<Found>& To) {
    return {.Keys =
                [=, this] {
                    Collect(From, *To);
                    BeginAhead(*To);
                    SlideReading::KeyList Places(static_cast<size_t>(To->Files.size()));
                    std::iota(Places.begin(), Places.end(), 0);
                    return std::optional(Places);
                },
            .MakeRow = [=, this](std::int32_t, int Number) { MakeRow(*To, Number); },
            .Grids = mLists,
            .Shows = SlideReading::Bar::CountAndText,
            .MayStop = true,
            .KeysTitle = tr("Reading Slides ...")};
}

// When they were taken is known when they have been read: then they are sorted once more. Who names
// a folder and a picture of it means that picture once.
void PictureReading::Collect(const Source& From, Found& To) {
    if (From.Named.isEmpty()) return TakeDirectory(From.Directory, From.Recurse, To);
    for (const QString& Path : From.Named) TakeNamed(From, To, Path);
    SortByName(To.Files);
    To.Files.removeDuplicates();
}

void PictureReading::TakeNamed(const Source& From, Found& To, const QString& Path) {
    if (Path.endsWith(u'/'))
        TakeDirectory(Path, From.Recurse, To);
    else if (IsPictureName(Path))
        To.Files << Path;
    else
        To.Report.OtherFiles << ReadableText(Path);
}

void PictureReading::TakeDirectory(const QString& Directory, bool Recurse, Found& To) {
    const Scan Seen =
        ScanPictures(WithSeparator(Directory), Recurse, [this] { return mReading.Yield(); });
    To.Files += Seen.Files;
    for (const QString& Each : Seen.OtherFiles) To.Report.OtherFiles << ReadableText(Each);
    for (const Scan::Folder& Each : Seen.UnreadableFolders)
        To.Report.Folders << WithReason(Each.Path, Each.Reason);
}

void PictureReading::BeginAhead(Found& Pictures) {
    Pictures.Ahead.emplace(
        std::vector<QString>(Pictures.Files.begin(), Pictures.Files.end()),
        [Side = ListedSide()](const QString& Path) { return ReadFrom(Path, Side); });
}

// So many pixels of the screen has the longer side of a picture in a list.
int PictureReading::ListedSide() const {
    return static_cast<int>(std::ceil(PictureSide * mWindow.devicePixelRatioF()));
}

void PictureReading::MakeRow(Found& Pictures, int Number) {
    while (!Pictures.Ahead->Wait(10))
        if (!mReading.Yield()) return;
    TakeNext(Pictures, Pictures.Files[Number - 1]);
}

void PictureReading::TakeNext(Found& Pictures, const QString& Path) try {
    const ReadPicture Read = Pictures.Ahead->Take();
    const ListedPicture& Listed = Read.Picture;
    mRows.Add(Path, Listed, Read.Facts, mOptions.OwnWords());
    if (Listed.Thumbnail.isNull()) return;
    const QImage& Sharp = Listed.Shown.isNull() ? Listed.Thumbnail : Listed.Shown;
    mReading.Window()->ShowPicture(
        FittedPicture({Sharp, Listed.Full}, mWindow.devicePixelRatioF()));
} catch (const std::exception& Problem) {
    Pictures.Report.Unreadable << WithReason(Path, SentenceOf(Problem));
}

void PictureReading::SortFiles(QStringList& Paths) {
    if (const auto& Loading = mReading.Window()) {
        Loading->setWindowTitle(tr("Sorting Slides ..."));
        Loading->pgbLoadingProgress()->setMaximum(static_cast<int>(Paths.size()));
        Loading->pgbLoadingProgress()->setValue(0);
        Loading->Refresh();
    }
    std::stable_sort(Paths.begin(), Paths.end(), [](const QString& A, const QString& B) {
        return GetFileName(A) < GetFileName(B);
    });
    mReading.Yield();
}

}  // namespace neb
