// Prints an album: all its slides, in the order of their captions, on contact sheets.
#pragma once

#include "windows/printing/SheetForm.h"

namespace neb {

class frmPrintAlbum : public SheetForm {
    Q_OBJECT

  public:
    frmPrintAlbum();

    // Shows the window modally, with this album chosen; 0: the first one.
    void PrintAlbum(std::int32_t AlbumID);

  protected:
    Answer<SheetMatter> Matter() const override;
    int SlideCount() const override;
};

}  // namespace neb
