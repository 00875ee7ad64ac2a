// What of a document a sheet of paper cannot show: what lies beyond its edges, and what lies where
// the printer does not reach. Told before paper is spent.
#pragma once

#include <QStringList>
#include <vector>

#include "printing/PrintDocument.h"

namespace neb {

// A sheet as it is printed on, turned as the page is.
struct PrintSheet {
    QSizeF Size;      // inches
    QMarginsF Blank;  // inches from each edge that stay white whatever is printed
};

// A sentence for each kind of thing that is cut off; Pages from 1, each of the document.
QStringList ReachWarnings(const PrintDocument& Document, const std::vector<int>& Pages,
                          const PrintSheet& Sheet);

}  // namespace neb
