// What became of the pictures of one import, and how the user is told. The import windows have one
// from the import that they share.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

namespace neb {

struct ImportTally {
    int Of = 0;                // pictures that were chosen
    std::vector<int> Entered;  // the rows that are in the album now, from 0, ascending
    QStringList LeftOut;       // a line each: the file, and why
    QString Problem;           // what ended the import before its end; empty: nothing did

    // Whether the user stopped it before all pictures had been tried.
    bool IsStopped() const { return Problem.isEmpty() && Tried() < Of; }
    bool IsWhole() const { return Tried() == Of && LeftOut.isEmpty() && Problem.isEmpty(); }
    // Which of those that came in a row is, from 1; 0: it did not.
    std::int32_t PlaceOf(int Row) const;
    // Shows the box at the end of an import.
    void Tell() const;
    // The list of those left out, for a box that has room for it; empty: there are none.
    QString Details() const;

  private:
    int Tried() const { return static_cast<int>(Entered.size()) + int(LeftOut.size()); }
    QString Text() const;
};

}  // namespace neb
