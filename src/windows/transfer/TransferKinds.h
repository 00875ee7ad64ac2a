// The four windows that transfer albums and shows, as a table of what differs between them.
#pragma once

#include <QString>

namespace neb {

enum class TransferWindow { AlbumExport, AlbumImport, SlideShowExport, SlideShowImport };

// An export goes from the program's own database to another one, an import the other way.
struct TransferKind {
    TransferWindow Which;
    bool Exports;
    bool OfShows;
    const char* Name;   // of the window
    const char* Title;  // of the window
    const char* Icon;
    // The controls whose names say which side the other database is on.
    const char *txtDB, *cmdDBBrowse, *cmdDBFolder, *cmdStart;
    const char *StartText, *StartName, *StartTip;
    const char* DirectoryName;  // for a screen reader
    const char* DirectoryTip;
    const char* NoDirectory;  // when none is named
    const char* WhatNow;      // as long as none is chosen
    const char* Adjective;    // of a transfer that adds
    const char* Running;      // the title while it runs
    const char* Done;         // afterwards; %1 is a name, %2 what came along
};

const TransferKind& KindOf(TransferWindow Which);

}  // namespace neb
