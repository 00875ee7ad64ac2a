// Fills a print document: sheets of many pictures in cells, or a single picture at a size of its
// own. Used by the printing windows and by nebctl.
#pragma once

#include <QStringList>

#include "printing/PrintDocument.h"

namespace neb {

struct ComposedSheets {
    bool Whole = true;       // false: it was ended before the last picture
    QStringList StoodInFor;  // the pictures that cannot be read, each once for every place
};

// What comes onto sheets.
struct SheetContents {
    QStringList Paths;          // the picture files, in their order
    QStringList Captions = {};  // of the pictures, where the grid has room for them
    QString Name = {};          // at the foot of each page; empty: none
    bool PageNumbers = false;   // at the foot of each page
};

// Composes a document of its own; without pictures it has no page. GoOn hears of every picture and
// may be empty. Throws Fault when a picture cannot be read and the document's stand-in neither.
ComposedSheets ComposeSheets(PrintDocument& Into, const CellGrid& Grid,
                             const SheetContents& Contents, const PrintGoOn& GoOn = {});

// Composes one page of one picture. Refused as its size is. Throws as ComposeSheets does.
Answer<> ComposeSlide(PrintDocument& Into, const SlideWish& Wish, const QString& Path);

}  // namespace neb
