// A table on paper: a title, columns with headings on every page, lines of text behind it. Used by
// the rehearsal; no window is needed.
#pragma once

#include <QStringList>

#include "printing/PrintDocument.h"

namespace neb {

struct TableColumn {
    QString Heading;
    double Share = 0;    // of the page's width, all together 1
    bool Right = false;  // texts stand at the right
};

struct TableToPrint {
    QString Title;
    QStringList Intro;  // lines above the table
    std::vector<TableColumn> Columns;
    std::vector<QStringList> Rows;  // a text a column, each cut where it has no room
    QStringList Tail;               // lines behind it, each as long as it wants
};

// Composes a document of its own, on sheets laid across, with the title and the number at the foot
// of each page.
void ComposeTable(PrintDocument& Into, const TableToPrint& Table);

}  // namespace neb
