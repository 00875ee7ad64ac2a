// Lists the slides of an album of any database, by caption, with thumbnails. For a look into it
// before a transfer; changes nothing.
#pragma once

#include "windows/transfer/ViewerForm.h"

namespace neb {

namespace Ui {
class frmAlbumView;
}

class frmAlbumView : public ViewerForm {
    Q_OBJECT

  public:
    frmAlbumView();
    ~frmAlbumView() override;

    // Fills and shows the window; returns after its close when a modal window is open, else at
    // once. An album that is not there gives an empty list.
    void ViewAlbum(clsDBEngine& objDB, std::int32_t AlbumID, const QString& AlbumTitle);

  protected:
    std::optional<std::vector<std::int32_t>> SortedKeys(clsNEBAlbum& Album) override;
    Answer<ViewedSlide> SlideOf(clsNEBAlbum& Album, std::int32_t Key, int Number) override;
    QStringList CaptionsOf(clsNEBAlbum& Album, const clsNEBSlide& Slide) const override;
    QString NamesIn(const clsNEBAlbum& Album) const override;

  private:
    std::unique_ptr<Ui::frmAlbumView> mUi;
};

}  // namespace neb
