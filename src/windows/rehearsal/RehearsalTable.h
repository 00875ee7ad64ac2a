// A rehearsed show as rows of texts: what stands in the table of the rehearsal's window, and on
// paper. Used by these two.
#pragma once

#include <QStringList>

#include "printing/TablePages.h"
#include "show/rehearsal/RehearsalSheet.h"

namespace neb {

enum CueColumn {
    CueSlide,
    CueFrom,
    CueLength,
    CueCaption,
    CueTrack,
    CueClip,
    CueSoundDoes,
    CueProblems,
    CueColumns
};

struct CueColumnLook {
    const char* Heading;
    double Share;  // of the width
    bool Right;    // numbers stand under each other
    int Letters;   // wide on the screen; 0: as much as there is
};
const CueColumnLook& LookOf(int Col);

QStringList CueTextsOf(const RehearsalRow& Row);
TableToPrint TableOf(const RehearsalSheet& Sheet);

}  // namespace neb
