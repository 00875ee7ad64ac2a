// Prints an album: all its slides, or some, in the order of their captions, on contact sheets.
#pragma once

#include "windows/printing/SheetForm.h"

namespace neb {

class frmPrintAlbum : public SheetForm {
    Q_OBJECT

  public:
    frmPrintAlbum();

    // Shows the window modally, with this album chosen; 0: the first one.
    void PrintAlbum(std::int32_t AlbumID);
    // The same of some of its slides.
    void PrintSlides(std::int32_t AlbumID, const std::vector<std::int32_t>& SlideIDs);

  protected:
    Answer<SheetMatter> Matter() const override;
    int SlideCount() const override;

  private:
    std::set<std::int32_t> mOnly;  // slides that are printed; empty: all
};

}  // namespace neb
