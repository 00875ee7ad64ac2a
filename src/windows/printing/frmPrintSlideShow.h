// Prints a slide show: its slides in their running order, on contact sheets.
#pragma once

#include "windows/printing/SheetForm.h"

namespace neb {

class clsNEBAlbum;
class clsNEBSlideShow;

class frmPrintSlideShow : public SheetForm {
    Q_OBJECT

  public:
    frmPrintSlideShow();

    // Shows the window modally, with that album and that show chosen; 0 and 0: the first of each.
    void PrintSlideShow(std::int32_t AlbumID, std::int32_t SlideShowID);

  protected:
    Answer<> IsChosen() const override;
    Answer<SheetMatter> Matter() const override;
    int SlideCount() const override;
    bool CanPrint() const override;
    QString WhatToDo() const override;
    void AlbumChosen() override;

  private:
    std::int32_t SlideShowID() const;  // as chosen; 0 for none
    void LoadSlideShows();

    std::int32_t mSlideShowID = 0;
};

}  // namespace neb
