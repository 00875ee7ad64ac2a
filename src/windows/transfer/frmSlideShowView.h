// Lists the slides of a show of any database, in the order of the show and with the captions that
// it gives them, or else their own. For a look into it before a transfer; changes nothing.
#pragma once

#include "windows/transfer/ViewerForm.h"

namespace neb {

namespace Ui {
class frmSlideShowView;
}

class frmSlideShowView : public ViewerForm {
    Q_OBJECT

  public:
    frmSlideShowView();
    ~frmSlideShowView() override;

    // Fills and shows the window; returns after its close when a modal window is open, else at
    // once. A show that is not there gives an empty list; each detail without a slide gives a box.
    void ViewSlideShow(clsDBEngine& objDB, std::int32_t AlbumID, const QString& AlbumTitle,
                       std::int32_t SlideShowID, const QString& SlideShowTitle);

  protected:
    std::optional<std::vector<std::int32_t>> SortedKeys(clsNEBAlbum& Album) override;
    bool IsThere(clsNEBAlbum& Album) const override;
    Answer<ViewedSlide> SlideOf(clsNEBAlbum& Album, std::int32_t Key, int Number) override;
    QStringList CaptionsOf(clsNEBAlbum& Album, const clsNEBSlide& Slide) const override;
    QString NamesIn(const clsNEBAlbum& Album) const override;
    std::int32_t SlideShowID() const override { return mSlideShowID; }

  private:
    std::unique_ptr<Ui::frmSlideShowView> mUi;
    std::int32_t mSlideShowID = 0;
};

}  // namespace neb
