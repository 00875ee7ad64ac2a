// The two lists of the slide show manager: slides go from one to the other and change places.
#include <algorithm>
#include <numeric>

#include "albums/modLoadShow.h"
#include "controls/grid/FlexGrid.h"
#include "controls/grid/GridRows.h"
#include "settings/modNEBSlideShow.h"
#include "ui_frmSlideShowDBM.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/lists/SlideGrids.h"
#include "windows/lists/SlideRows.h"
#include "windows/lists/clsImageBuffer.h"
#include "windows/lists/frmPicturePopup.h"

namespace neb {

void frmSlideShowDBM::RenumberSelected() {
    NumberRows(*mUi->flxSelected);
    mUi->lblSelectedCnt->setText(QString::number(mUi->flxSelected->Rows()));
    mUi->lblNonSelectedCnt->setText(QString::number(mUi->flxNonSelected->Rows()));
    OfferPlaces();
}

// The row behind those that went is selected, so that slide after slide can be moved.
void frmSlideShowDBM::Move(FlexGrid& From, FlexGrid& To, bool All) {
    const std::vector<int> Rows = RowsToMove(From, All);
    if (Rows.empty()) return;
    {
        const QuietGrids Quiet(From, To);
        From.GiveRows(Rows, To);
        if (&To == mUi->flxNonSelected)  // a place is one in the show
            for (int Row = To.Rows() - static_cast<int>(Rows.size()); Row < To.Rows(); ++Row)
                To.SetTextMatrix(Row, ColPlace, {});
        RenumberSelected();
    }
    if (From.Rows() > 0) From.SetRow(std::min(Rows.front(), From.Rows() - 1));
    To.EnsureRowVisible(To.Rows() - 1);
}

void frmSlideShowDBM::MoveRightOne() {
    Move(*mUi->flxNonSelected, *mUi->flxSelected, false);
}

void frmSlideShowDBM::MoveRightAll() {
    Move(*mUi->flxNonSelected, *mUi->flxSelected, true);
}

void frmSlideShowDBM::MoveLeftOne() {
    Move(*mUi->flxSelected, *mUi->flxNonSelected, false);
}

void frmSlideShowDBM::MoveLeftAll() {
    Move(*mUi->flxSelected, *mUi->flxNonSelected, true);
}

void frmSlideShowDBM::MoveBy(int Step) {
    FlexGrid& Grid = *mUi->flxSelected;
    const int Row = Grid.Row(), NewRow = Row + Step;
    if (Row < 0 || NewRow < 0 || NewRow >= Grid.Rows()) return;
    Grid.SetRowPosition(Row, NewRow);
    RenumberSelected();
    Grid.EnsureRowVisible(NewRow);
    Grid.SetRow(NewRow);
}

// A caption stands as it was typed; a place takes the slide there, or is put back.
void frmSlideShowDBM::AfterEdit(int Row, int Col) {
    FlexGrid& Grid = *mUi->flxSelected;
    if (Col != ColPlace) return FitCaption(Grid, Row, Col);
    const int NewRow = TypedPlace(Grid.TextMatrix(Row, ColPlace), Grid.Rows()).value_or(Row);
    if (NewRow == Row) return Grid.SetTextMatrix(Row, ColPlace, QString::number(Row + 1));
    Grid.SetRedraw(false);
    Grid.SetRowPosition(Row, NewRow);
    RenumberSelected();
    Grid.SetRedraw(true);
    Grid.SetRow(NewRow);
    Grid.EnsureRowVisible(NewRow);
}

// Rows that were dragged: into the show at the place where they were let go, out of it at the end.
// The list of the album has no order of its own.
void frmSlideShowDBM::RowsDropped(FlexGrid& From, FlexGrid& To, int Before) {
    FlexGrid &Show = *mUi->flxSelected, &Album = *mUi->flxNonSelected;
    if (IsBusy() || ReadOnlyDB) return;
    FinishEdits();
    if (&To == &Album && &From == &Show) return MoveLeftOne();
    if (&To != &Show) return;
    std::vector<int> Rows = RowsToMove(From, false);
    const int Count = static_cast<int>(Rows.size());
    if (Count == 0) return;
    const QuietGrids Quiet(Album, Show);
    if (&From == &Album) {
        Album.GiveRows(Rows, Show);
        std::iota(Rows.begin(), Rows.end(), Show.Rows() - Count);
    }
    const int First =
        Before - static_cast<int>(std::count_if(Rows.begin(), Rows.end(),
                                                [=](int Row) { return Row < Before; }));
    Show.MoveRowsBefore(Rows, Before);
    RenumberSelected();
    Show.SetRow(First);
    for (int Row = First; Row < First + Count; ++Row) Show.SelectRow(Row);
}

void frmSlideShowDBM::ShowPicture(const FlexGrid& Grid, int Row) {
    const auto Held = shared_from_this();
    PopUpPicture(Grid.TextMatrix(Row, clsImageBuffer::ColPath));
}

}  // namespace neb
