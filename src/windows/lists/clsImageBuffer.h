// The program's one store of slide thumbnails. Every window that shows an album as a list of
// little pictures asks it for each slide; it fills a row of the asking window's grid.
//
// The rows live in a hidden grid of the main window, one a slide, found by the slide's number.
// Each request reads the small bitmap file again, so that a thumbnail deleted by a save is built
// anew without any word between the windows and the buffer; so is one that cannot be read. The path
// of the picture is the slide's own at each request.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>

#include "controls/forms/Progress.h"

QT_BEGIN_NAMESPACE
class QImage;
QT_END_NAMESPACE

namespace neb {

class FlexGrid;
class clsNEBSlide;
class frmLoadSlide;
class frmLoading;

class clsImageBuffer : public ProgressParent {
  public:
    ~clsImageBuffer() override;

    FlexGrid* BufferGrid = nullptr;  // the main window's flxBuffer
    // True: a thumbnail file that exists is trusted and read. False: it is built anew each time.
    bool UseSmallFiles = false;

    // Columns of the buffer; 1 to 4 are those of every target grid, too.
    enum Column { ColPicture = 1, ColText = 2, ColPath = 3, ColSlideID = 4, ColAlbumID = 5 };

    // Drops the rows of an album.
    void ClearAlbum(std::int32_t AlbumID);
    // Brings the row of a slide up to date; Force reads its picture in any case. Always true.
    bool UpdateSlide(std::int32_t AlbumID, const clsNEBSlide& Slide, bool Force);
    // Fills columns 1 to 4 of a row. The load runs inside LoadingForm when given, else in a window
    // of its own that is never seen. KeepCaption leaves the caption of a known slide alone.
    // Always true; a picture that cannot be decoded is a Fault.
    bool LoadSlide(FlexGrid& TargetGrid, std::int32_t TargetRow, std::int32_t AlbumID,
                   const clsNEBSlide& Slide, const std::shared_ptr<frmLoading>& LoadingForm,
                   bool KeepCaption);
    // The thumbnail of a picture of any database: from the small file beside it when that is there
    // and trusted and can be read, else built. Keeps and writes nothing; null when there is no such
    // picture, a Fault when it cannot be decoded.
    QImage Thumbnail(const QString& FileName) const;
    void DoActivity() override;  // for the progress windows alone

  private:
    int FindSlide(std::int32_t SlideID) const;
    bool RenewPath(std::int32_t AlbumID, const QString& Path);
    QImage TrustedThumbnail(const QString& FileName) const;
    void AddSlide(std::int32_t AlbumID, const clsNEBSlide& Slide, const QString& Path);
    void SetKeys(std::int32_t AlbumID, const clsNEBSlide& Slide);
    void CopyTexts(FlexGrid& TargetGrid, std::int32_t TargetRow, bool KeepCaption) const;
    void RunLoad(const std::shared_ptr<frmLoading>& LoadingForm);
    void RunHiddenLoad();
    void EndLoad();
    bool ThumbnailStale(const QString& FileName, int Row) const;
    void StampThumbnail(const QString& FileName, int Row);
    bool ReadThumbnail(const QString& FileName, FlexGrid& Grid, int Row);
    void SaveThumbnail(const FlexGrid& Grid, int Row) const;
    void Show(const QImage& Picture);

    std::shared_ptr<frmLoadSlide> mLoadSlideForm;
    std::shared_ptr<frmLoading> mLoadingForm;
    bool mBusy = false;
    std::int32_t mRow = 0;
};

}  // namespace neb
