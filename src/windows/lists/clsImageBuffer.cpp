#include "windows/lists/clsImageBuffer.h"

#include "controls/forms/frmLoadSlide.h"
#include "controls/forms/frmLoading.h"
#include "controls/grid/FlexGrid.h"
#include "db/AlbumSums.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "pictures/ImgX.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr double Overshoot = 1.005;  // of the painted picture over the box, clipped
constexpr int Passes = 2;

QString SmallName(const QString& FileName) {
    return GetFileBaseName(FileName) + QStringLiteral("Small.bmp");
}

QString SmallFile(const QString& FileName) {
    return GetFilePath(FileName) + SmallName(FileName);
}

QString FullPath(std::int32_t AlbumID, const QString& SlideLoc) {
    return SlidePath(DBEngine->DBPath(), AlbumID, SlideLoc);
}

QImage LoadPicture(const QString& FileName) {
    ImgX Picture;
    Picture.Load(FileName);
    return Picture.Picture();
}

// The picture stretched over the box, half a per cent larger than it.
QImage PaintThumbnail(const QString& FileName) {
    const QImage Source = LoadPicture(FileName);
    const QSize Inside(static_cast<int>(std::lround(Source.width() / Overshoot)),
                       static_cast<int>(std::lround(Source.height() / Overshoot)));
    return Source.copy(QRect({}, Inside.expandedTo({1, 1})))
        .scaled(ThumbnailSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage Built(const QString& FileName) {
    QImage Painted;
    for (int Pass = 0; Pass < Passes; ++Pass) Painted = PaintThumbnail(FileName);
    return Painted;
}

std::int32_t KeyIn(const FlexGrid& Grid, int Row, int Col) {
    return static_cast<std::int32_t>(std::get<double>(Grid.CellData(Row, Col)));
}

}  // namespace

clsImageBuffer::~clsImageBuffer() {
    BufferGrid = nullptr;
    mLoadSlideForm.reset();
    mLoadingForm.reset();
}

int clsImageBuffer::FindSlide(std::int32_t SlideID) const {
    return BufferGrid->FindRow(ColSlideID, SlideID);
}

void clsImageBuffer::SetKeys(std::int32_t AlbumID, const clsNEBSlide& Slide) {
    BufferGrid->SetTextMatrix(mRow, ColText, Slide.SlideText);
    BufferGrid->SetTextMatrix(mRow, ColSlideID, QString::number(Slide.SlideID));
    BufferGrid->SetCellData(mRow, ColSlideID, double(Slide.SlideID));
    BufferGrid->SetTextMatrix(mRow, ColAlbumID, QString::number(AlbumID));
    BufferGrid->SetCellData(mRow, ColAlbumID, double(AlbumID));
}

void clsImageBuffer::AddSlide(std::int32_t AlbumID, const clsNEBSlide& Slide, const QString& Path) {
    if (BufferGrid->Cols() <= ColAlbumID) {
        BufferGrid->SetCols(ColAlbumID + 1);
        BufferGrid->SetKeyColumn(ColSlideID);
    }
    mRow = BufferGrid->AddItem();
    SetKeys(AlbumID, Slide);
    BufferGrid->SetTextMatrix(mRow, ColPath, Path);
}

bool clsImageBuffer::LoadSlide(FlexGrid& TargetGrid, std::int32_t TargetRow, std::int32_t AlbumID,
                               const clsNEBSlide& Slide,
                               const std::shared_ptr<frmLoading>& LoadingForm, bool KeepCaption) {
    const int Found = BufferGrid->Rows() > 0 ? FindSlide(Slide.SlideID) : -1;
    if (Found >= 0) {
        mRow = Found;
        const bool Renewed = RenewPath(AlbumID, FullPath(AlbumID, Slide.SlideLoc));
        CopyTexts(TargetGrid, TargetRow, KeepCaption);
        if (Renewed || ThumbnailStale(BufferGrid->TextMatrix(mRow, ColPath), mRow))
            RunLoad(LoadingForm);
    } else {
        AddSlide(AlbumID, Slide, FullPath(AlbumID, Slide.SlideLoc));
        RunLoad(LoadingForm);
        CopyTexts(TargetGrid, TargetRow, false);
    }
    TargetGrid.SetCellPicture(TargetRow, ColPicture, BufferGrid->CellPicture(mRow, ColPicture));
    return true;
}

// A slide that was listed before it had its picture, or has another one by now.
bool clsImageBuffer::RenewPath(std::int32_t AlbumID, const QString& Path) {
    if (BufferGrid->TextMatrix(mRow, ColPath) == Path) return false;
    BufferGrid->SetTextMatrix(mRow, ColPath, Path);
    BufferGrid->SetTextMatrix(mRow, ColAlbumID, QString::number(AlbumID));
    BufferGrid->SetCellData(mRow, ColAlbumID, double(AlbumID));
    BufferGrid->SetCellPicture(mRow, ColPicture, {});
    return true;
}

void clsImageBuffer::CopyTexts(FlexGrid& TargetGrid, std::int32_t TargetRow,
                               bool KeepCaption) const {
    if (!KeepCaption)
        TargetGrid.SetTextMatrix(TargetRow, ColText, BufferGrid->TextMatrix(mRow, ColText));
    for (int Col : {ColSlideID, ColPath})
        TargetGrid.SetTextMatrix(TargetRow, Col, BufferGrid->TextMatrix(mRow, Col));
}

bool clsImageBuffer::UpdateSlide(std::int32_t AlbumID, const clsNEBSlide& Slide, bool Force) {
    const int Found = BufferGrid->Rows() > 0 ? FindSlide(Slide.SlideID) : -1;
    if (Found < 0) {
        AddSlide(AlbumID, Slide, FullPath(AlbumID, Slide.SlideLoc));
        RunHiddenLoad();
        return true;
    }
    mRow = Found;
    SetKeys(AlbumID, Slide);
    const QString Path = BufferGrid->TextMatrix(mRow, ColPath);
    // for an outside picture the answer of a comparison is what has always been kept here
    const QString NewPath = !HoldsSeparator(Slide.SlideLoc) ? FullPath(AlbumID, Slide.SlideLoc)
                            : Slide.SlideLoc == Path        ? QStringLiteral("True")
                                                            : QStringLiteral("False");
    const bool Stale = ThumbnailStale(Path, mRow);
    if (Path != NewPath || Stale || Force) {
        BufferGrid->SetTextMatrix(mRow, ColPath, NewPath);
        RunHiddenLoad();
    }
    return true;
}

void clsImageBuffer::ClearAlbum(std::int32_t AlbumID) {
    for (int Row = BufferGrid->Rows() - 1; Row >= 0; --Row)
        if (KeyIn(*BufferGrid, Row, ColAlbumID) == AlbumID) BufferGrid->RemoveItem(Row);
}

void clsImageBuffer::RunLoad(const std::shared_ptr<frmLoading>& LoadingForm) {
    if (!LoadingForm) return RunHiddenLoad();
    if (mLoadingForm) std::exchange(mLoadingForm, nullptr)->Unload();
    mLoadingForm = LoadingForm;
    LoadingForm->LoadSlide(*this);
}

void clsImageBuffer::RunHiddenLoad() {
    if (mLoadSlideForm) std::exchange(mLoadSlideForm, nullptr)->Unload();
    mLoadSlideForm = NewForm<frmLoadSlide>();
    const auto Shown = mLoadSlideForm;
    Shown->LoadSlide(*this);
}

void clsImageBuffer::DoActivity() {
    mBusy = true;
    try {
        ReadThumbnail(BufferGrid->TextMatrix(mRow, ColPath), *BufferGrid, mRow);
    } catch (...) {
        EndLoad();
        throw;
    }
    EndLoad();
}

// Releases whichever window carried the load; a caller's own stays open.
void clsImageBuffer::EndLoad() {
    if (mLoadingForm) {
        std::exchange(mLoadingForm, nullptr)->ClearAltParent();
    } else if (mLoadSlideForm) {
        mLoadSlideForm->ClearParent();
        std::exchange(mLoadSlideForm, nullptr)->Unload();
    }
    mBusy = false;
}

void clsImageBuffer::Show(const QImage& Picture) {
    if (mLoadingForm) mLoadingForm->ShowPicture(Picture);
}

// Null when it is not there, not trusted or cannot be read.
QImage clsImageBuffer::TrustedThumbnail(const QString& FileName) const {
    const QString Small = SmallFile(FileName);
    if (!UseSmallFiles || !FileExists(Small)) return {};
    try {
        return LoadPicture(Small);
    } catch (const Fault&) {
        return {};
    }
}

QImage clsImageBuffer::Thumbnail(const QString& FileName) const {
    if (FileName.isEmpty() || !FileExists(FileName)) return {};
    const QImage Trusted = TrustedThumbnail(FileName);
    if (!Trusted.isNull()) return Trusted;
    return Built(FileName);
}

bool clsImageBuffer::ReadThumbnail(const QString& FileName, FlexGrid& Grid, int Row) {
    if (FileName.isEmpty() || !FileExists(FileName)) return true;
    const bool Exists = FileExists(SmallFile(FileName));
    if (Exists) StampThumbnail(FileName, Row);
    const QImage Trusted = TrustedThumbnail(FileName);
    Grid.SetCellPicture(Row, ColPicture, Trusted.isNull() ? Built(FileName) : Trusted);
    Show(Grid.CellPicture(Row, ColPicture));
    if (Trusted.isNull() && (UseSmallFiles || !Exists)) SaveThumbnail(Grid, Row);
    return true;
}

void clsImageBuffer::SaveThumbnail(const FlexGrid& Grid, int Row) const {
    if (ReadOnlyDB) return;
    const QString Path = SlidesFolder(DBEngine->DBPath(), KeyIn(Grid, Row, ColAlbumID)) +
                         ThumbnailName(KeyIn(Grid, Row, ColSlideID));
    try {
        const QByteArray Bytes = ThumbnailBmp(Grid.CellPicture(Row, ColPicture));
        if (NameExists(Path))
            StoreAnew(Path, Bytes);
        else
            StoreNew(Path, Bytes);  // not flushed: a thousand of them are made while a list is read
    } catch (const Fault&) {
        // the picture in the row is good; the next request tries again
    }
}

// The name is looked for without its directory, and the stamp that is found is not kept: so every
// request reads the small file again, on which the windows rely after a save.
bool clsImageBuffer::ThumbnailStale(const QString& FileName, int Row) const {
    const auto Time = FileTime(SmallName(FileName));
    if (!Time) return UseSmallFiles;
    const CellValue& Stamp = BufferGrid->CellData(Row, ColPath);
    return !std::holds_alternative<QDateTime>(Stamp) || std::get<QDateTime>(Stamp) != *Time;
}

void clsImageBuffer::StampThumbnail(const QString& FileName, int Row) {
    if (const auto Time = FileTime(SmallName(FileName)))
        BufferGrid->SetCellData(Row, ColPath, *Time);
    BufferGrid->SetCellData(Row, ColPath, std::monostate());
}

}  // namespace neb
