#include "windows/compose/TwoLists.h"

#include <QAbstractItemView>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <unordered_set>

#include "controls/grid/FlexGrid.h"
#include "controls/grid/GridRows.h"
#include "db/clsNEBAlbum.h"
#include "support/modNumbers.h"
#include "windows/lists/SlideGrids.h"
#include "windows/lists/SlideRows.h"
#include "windows/lists/clsImageBuffer.h"

namespace neb {
namespace {

void RemoveRows(FlexGrid& Grid, std::vector<int> Rows) {
    if (static_cast<int>(Rows.size()) == Grid.Rows()) return Grid.SetRows(0);
    std::sort(Rows.rbegin(), Rows.rend());
    for (int Row : Rows) Grid.RemoveItem(Row);
}

}  // namespace

std::optional<int> TypedPlace(const QString& Text, int Rows) {
    bool IsNumber = false;
    const double Number = Text.trimmed().toDouble(&IsNumber);
    if (!IsNumber || !std::isfinite(Number)) return {};
    const std::int32_t Place = CInt(Number);
    if (Place < 1 || Place > Rows) return {};
    return Place - 1;
}

TwoLists::TwoLists(FlexGrid& NonSelected, FlexGrid& Selected, QWidget& Owner, bool Editable)
    : QObject(&Owner), mNonSelected(NonSelected), mSelected(Selected), mAll(*new FlexGrid(&Owner)) {
    mAll.setObjectName(QStringLiteral("flxBuffer"));
    mAll.setAccessibleName(FlexGrid::tr("All slides of the album"));
    mAll.hide();
    SetUpSlideColumns(mAll, false, false);
    mAll.SetRedraw(false);
    SetUpSlideColumns(mNonSelected, false, false);
    SetUpSlideColumns(mSelected, true, Editable);
    mSelected.SetKeyPressEdit(&FixQuoteKeyInGrid);
    mSelected.setEditTriggers(mSelected.editTriggers() | QAbstractItemView::SelectedClicked);
    for (FlexGrid* Grid : {&mNonSelected, &mSelected}) SetUpGrid(*Grid, Editable);
    connect(&mSelected, &FlexGrid::AfterEdit, this, &TwoLists::AfterEdit);
}

// A double click shows the picture; a cell is edited by typing, by F2 or Enter, or by a second
// click on it, as names are in a list of files.
void TwoLists::SetUpGrid(FlexGrid& Grid, bool Editable) {
    Grid.SetEditOnDblClick(false);
    Grid.SetRowDrag(Editable ? QStringLiteral("slides") : QString());
}

void TwoLists::SayWhatToDo(bool HasAlbums, bool IsChosen) {
    mNonSelected.SetEmptyText(
        !HasAlbums  ? tr("There is no album yet.\nMake one with New Album in the Album menu.")
        : !IsChosen ? tr("Choose an album above to see its slides here.")
        : mAll.Rows() == 0
            ? tr("This album has no slides.\nAdd some with Slide Manager in the Album menu.")
            : tr("Every slide of the album is in the show."));
    mSelected.SetEmptyText(
        IsChosen ? tr("Move slides here:\nthe show plays them in this order.")
                 : tr("Choose an album and a slide show above to see its slides here."));
}

void TwoLists::Clear() {
    for (FlexGrid* Grid : {&mNonSelected, &mSelected, &mAll}) Grid->SetRows(0);
    Renumber();
}

void TwoLists::Renumber() {
    NumberRows(mSelected);
    Q_EMIT Counted(mNonSelected.Rows(), mSelected.Rows());
}

void TwoLists::FinishEdits() {
    mSelected.FinishEdit();
}

void TwoLists::ReadSlide(std::int32_t AlbumID, const clsNEBSlide& Slide,
                         const std::shared_ptr<frmLoading>& Loading) {
    const int Known = RowOfSlide(mAll, Slide.SlideID);
    LoadSlideRow(mAll, Known >= 0 ? Known : mAll.AddItem(), AlbumID, Slide, Loading);
}

void TwoLists::RefreshSlide(std::int32_t AlbumID, const clsNEBSlide& Slide,
                            const std::shared_ptr<frmLoading>& Loading) {
    const std::int32_t SlideID = Slide.SlideID;
    const bool IsNew = RowOfSlide(mAll, SlideID) < 0;
    ReadSlide(AlbumID, Slide, Loading);
    const int Row = RowOfSlide(mAll, SlideID);
    if (Row < 0) return;
    if (IsNew) return CopySlideRow(mAll, Row, mNonSelected, mNonSelected.AddItem());
    for (FlexGrid* Grid : {&mNonSelected, &mSelected}) RefreshSlideRow(mAll, Row, *Grid);
}

void TwoLists::Reset() {
    mSelected.SetRows(0);
    mNonSelected.SetRows(0);
    mNonSelected.SetRows(mAll.Rows());
    for (int Row = 0; Row < mAll.Rows(); ++Row) CopySlideRow(mAll, Row, mNonSelected, Row);
    Renumber();
}

void TwoLists::TakeShow(const std::vector<ShowSlide>& Slides, const KeepGoing& GoesOn) {
    const QuietGrids Quiet(mNonSelected, mSelected);
    Reset();
    const std::vector<int> Taken = PutIntoShow(Slides, GoesOn);
    RemoveRows(mNonSelected, Taken);
    Renumber();
}

// The rows of the other list that went into the show.
std::vector<int> TwoLists::PutIntoShow(const std::vector<ShowSlide>& Slides,
                                       const KeepGoing& GoesOn) {
    std::vector<int> Taken;
    for (const ShowSlide& Slide : Slides) {
        if (!GoesOn()) break;
        const int Source = RowOfSlide(mNonSelected, Slide.SlideID);
        if (Source < 0 || RowOfSlide(mSelected, Slide.SlideID) >= 0) continue;
        const int Row = mSelected.AddItem();
        CopySlideRow(mNonSelected, Source, mSelected, Row);
        if (!Slide.SlideText.isEmpty())
            mSelected.SetTextMatrix(Row, clsImageBuffer::ColText, Slide.SlideText);
        Taken.push_back(Source);
    }
    return Taken;
}

std::vector<ShowSlide> TwoLists::Slides() const {
    std::vector<ShowSlide> All;
    for (int Row = 0; Row < mSelected.Rows(); ++Row)
        All.push_back({SlideIn(mSelected, Row), mSelected.TextMatrix(Row, clsImageBuffer::ColText),
                       mSelected.TextMatrix(Row, ColOwnText)});
    return All;
}

SlideOrder TwoLists::Order() const {
    SlideOrder All;
    for (int Row = 0; Row < mSelected.Rows(); ++Row) All.push_back(SlideIn(mSelected, Row));
    return All;
}

void TwoLists::Rearrange(const std::set<std::int32_t>& Moved, const std::function<void()>& Do) {
    const SlideOrder Before = Order();
    Do();
    const SlideOrder After = Order();
    if (After != Before) Q_EMIT Rearranged(Before, After, Moved);
}

std::vector<std::int32_t> TwoLists::GoneFrom(const clsNEBAlbum& Album, std::int32_t Hint) const {
    const auto& There = Album.Slides;
    const bool IsOneLess = mAll.Rows() == static_cast<int>(There.size()) + 1;
    if (IsOneLess && RowOfSlide(mAll, Hint) >= 0 &&
        std::none_of(There.begin(), There.end(),
                     [Hint](const auto& Slide) { return Slide->SlideID == Hint; }))
        return {Hint};
    std::unordered_set<std::int32_t> Known;
    for (const auto& Slide : There) Known.insert(Slide->SlideID);
    std::vector<std::int32_t> Gone;
    for (int Row = 0; Row < mAll.Rows(); ++Row)
        if (const std::int32_t SlideID = SlideIn(mAll, Row); !Known.contains(SlideID))
            Gone.push_back(SlideID);
    return Gone;
}

void TwoLists::DropSlides(const std::vector<std::int32_t>& SlideIDs) {
    Rearrange({}, [&] {
        for (FlexGrid* Grid : {&mNonSelected, &mSelected, &mAll}) {
            std::vector<int> Rows;
            for (std::int32_t SlideID : SlideIDs)
                if (const int Row = RowOfSlide(*Grid, SlideID); Row >= 0) Rows.push_back(Row);
            RemoveRows(*Grid, std::move(Rows));
        }
        Renumber();
    });
}

void TwoLists::MoveIntoShow(bool All) {
    Move(mNonSelected, mSelected, All);
}

void TwoLists::MoveOutOfShow(bool All) {
    Move(mSelected, mNonSelected, All);
}

void TwoLists::Move(FlexGrid& From, FlexGrid& To, bool All) {
    const std::vector<int> Rows = RowsToMove(From, All);
    if (Rows.empty()) return;
    Rearrange({}, [&] {
        const QuietGrids Quiet(From, To);
        From.GiveRows(Rows, To);
        if (&To == &mNonSelected)  // a place is one in the show
            for (int Row = To.Rows() - static_cast<int>(Rows.size()); Row < To.Rows(); ++Row)
                To.SetTextMatrix(Row, ColPlace, {});
        Renumber();
    });
    if (From.Rows() > 0) From.SetRow(std::min(Rows.front(), From.Rows() - 1));
    To.EnsureRowVisible(To.Rows() - 1);
}

void TwoLists::MoveBy(int Step) {
    const int Row = mSelected.Row(), NewRow = Row + Step;
    if (Row < 0 || NewRow < 0 || NewRow >= mSelected.Rows()) return;
    MoveTo(Row, NewRow);
}

void TwoLists::MoveTo(int Row, int NewRow) {
    Rearrange({SlideIn(mSelected, Row)}, [&] {
        mSelected.SetRedraw(false);
        mSelected.SetRowPosition(Row, NewRow);
        Renumber();
        mSelected.SetRedraw(true);
    });
    StandOn(NewRow);
}

bool TwoLists::GoTo(std::int32_t SlideID) {
    const int Row = RowOfSlide(mSelected, SlideID);
    if (Row < 0) return false;
    StandOn(Row);
    mSelected.setFocus();
    return true;
}

void TwoLists::StandOn(int Row) {
    mSelected.SetRow(Row);
    mSelected.EnsureRowVisible(Row);
}

// A caption stands as it was typed; a place takes the slide there, or is put back.
void TwoLists::AfterEdit(int Row, int Col) {
    if (Col != ColPlace) return FitCaption(mSelected, Row, Col);
    const QString& Typed = mSelected.TextMatrix(Row, ColPlace);
    const int NewRow = TypedPlace(Typed, mSelected.Rows()).value_or(Row);
    if (NewRow == Row) return mSelected.SetTextMatrix(Row, ColPlace, QString::number(Row + 1));
    MoveTo(Row, NewRow);
}

void TwoLists::TakeDragged(FlexGrid& From, FlexGrid& To, int Before) {
    if (&To == &mNonSelected && &From == &mSelected) return MoveOutOfShow(false);
    if (&To != &mSelected) return;
    const std::vector<int> Rows = RowsToMove(From, false);
    const int Count = static_cast<int>(Rows.size());
    if (Count == 0) return;
    const QuietGrids Quiet(mNonSelected, mSelected);
    const int First =
        Before - (&From == &mSelected
                      ? static_cast<int>(std::count_if(Rows.begin(), Rows.end(),
                                                       [=](int Row) { return Row < Before; }))
                      : 0);
    std::set<std::int32_t> Moved;
    if (&From == &mSelected)
        for (const int Row : Rows) Moved.insert(SlideIn(mSelected, Row));
    Rearrange(Moved, [&] { PutBefore(From, Rows, Before); });
    mSelected.SetRow(First);
    for (int Row = First; Row < First + Count; ++Row) mSelected.SelectRow(Row);
}

// Rows of either list.
void TwoLists::PutBefore(FlexGrid& From, std::vector<int> Rows, int Before) {
    if (&From == &mNonSelected) {
        const int Count = static_cast<int>(Rows.size());
        mNonSelected.GiveRows(Rows, mSelected);
        std::iota(Rows.begin(), Rows.end(), mSelected.Rows() - Count);
    }
    mSelected.MoveRowsBefore(Rows, Before);
    Renumber();
}

}  // namespace neb
