#include "windows/import/PictureRows.h"

#include <QHash>
#include <QScopeGuard>
#include <algorithm>
#include <numeric>

#include "controls/grid/FlexGrid.h"
#include "support/modFUFL.h"
#include "support/modText.h"

namespace neb {
namespace {

// The places, from 0, that these pictures have in the order.
std::vector<int> PlacesInOrder(std::vector<PictureInOrder> Pictures, PictureOrder Order) {
    QHash<QString, QList<int>> Places;  // a path may stand there twice
    for (const PictureInOrder& Each : Pictures) Places[Each.Path];
    for (size_t I = Pictures.size(); I > 0; --I)
        Places[Pictures[I - 1].Path].append(static_cast<int>(I) - 1);
    SortPictures(Pictures, Order);
    std::vector<int> Sorted;
    for (const PictureInOrder& Each : Pictures) Sorted.push_back(Places[Each.Path].takeLast());
    return Sorted;
}

// Moves rows so that the one that stands at First + Wanted[I] comes to First + I.
void Arrange(FlexGrid& Grid, int First, const std::vector<int>& Wanted) {
    std::vector<int> Now(Wanted.size());
    std::iota(Now.begin(), Now.end(), 0);
    for (size_t I = 0; I < Wanted.size(); ++I) {
        const auto To = Now.begin() + static_cast<std::ptrdiff_t>(I);
        const auto From = std::find(To, Now.end(), Wanted[I]);
        if (From == To) continue;
        Grid.SetRowPosition(First + static_cast<int>(From - Now.begin()),
                            First + static_cast<int>(I));
        std::rotate(To, From, From + 1);
    }
}

}  // namespace

PictureRows::PictureRows(FlexGrid& NonSelected, FlexGrid& Selected)
    : mNonSelected(NonSelected), mSelected(Selected) {
    for (FlexGrid* Grid : {&mNonSelected, &mSelected})
        Grid->SetPictureSource(ColPicture, [this, Grid](int Row) { return ShownIn(*Grid, Row); });
}

// A row that is being made has no number yet.
ShapedPicture PictureRows::ShownIn(const FlexGrid& Grid, int Row) {
    const bool Made = Grid.CellData(Row, ColPicture) != CellValue();
    return Made ? mSpool->Shown(NumberOf(Grid, Row)) : ShapedPicture();
}

int PictureRows::NumberOf(const FlexGrid& Grid, int Row) const {
    return static_cast<int>(std::get<double>(Grid.CellData(Row, ColPicture)));
}

void PictureRows::Add(const QString& Path, const ListedPicture& Picture, const PictureFacts& Facts,
                      bool OwnWords) {
    const bool First = mNonSelected.Rows() == 0 && mSelected.Rows() == 0;
    if (First) mSpool = std::make_unique<ThumbnailSpool>();
    const int Number = mSpool->Put(Picture, Facts), Row = mNonSelected.AddItem();
    mNonSelected.SetCellData(Row, ColPicture, static_cast<double>(Number));
    mNonSelected.SetTextMatrix(Row, ColPath, Path);
    mNonSelected.SetTextMatrix(Row, ColCaption, Proposed(mNonSelected, Row, OwnWords));
}

void PictureRows::Sort(PictureOrder Order, int First) {
    SortIn(mNonSelected, Order, First);
}

void PictureRows::SortSelected(PictureOrder Order) {
    SortIn(mSelected, Order, 0);
}

void PictureRows::SortIn(FlexGrid& Grid, PictureOrder Order, int First) {
    std::vector<PictureInOrder> Pictures;
    for (int Row = First; Row < Grid.Rows(); ++Row)
        Pictures.push_back({Grid.TextMatrix(Row, ColPath), mSpool->Facts(NumberOf(Grid, Row))});
    const std::vector<int> Wanted = PlacesInOrder(std::move(Pictures), Order);
    if (std::is_sorted(Wanted.begin(), Wanted.end())) return;
    Grid.SetRedraw(false);
    const auto Painted = qScopeGuard([&Grid] { Grid.SetRedraw(true); });
    Arrange(Grid, First, Wanted);
}

QString PictureRows::Proposed(const FlexGrid& Grid, int Row, bool OwnWords) const {
    const QString& Path = Grid.TextMatrix(Row, ColPath);
    return OwnWords ? ProposedCaption(Path, mSpool->Facts(NumberOf(Grid, Row)))
                    : CaptionByName(Path);
}

void PictureRows::ProposeIn(FlexGrid& Grid, bool OwnWords) {
    Grid.SetRedraw(false);
    const auto Painted = qScopeGuard([&Grid] { Grid.SetRedraw(true); });
    for (int Row = 0; Row < Grid.Rows(); ++Row)
        if (Grid.CellData(Row, ColCaption) == CellValue())
            Grid.SetTextMatrix(Row, ColCaption, Proposed(Grid, Row, OwnWords));
}

void PictureRows::ProposeCaptions(bool OwnWords) {
    ProposeIn(mNonSelected, OwnWords);
    ProposeIn(mSelected, OwnWords);
}

void PictureRows::NoteTyped(FlexGrid& Grid, int Row, bool OwnWords) {
    const bool Typed = Grid.TextMatrix(Row, ColCaption) != Proposed(Grid, Row, OwnWords);
    Grid.SetCellData(Row, ColCaption, Typed ? CellValue(1.0) : CellValue());
}

bool PictureRows::HasTyped() const {
    for (int Row = 0; Row < mSelected.Rows(); ++Row)
        if (mSelected.CellData(Row, ColCaption) != CellValue()) return true;
    return false;
}

QStringList PictureRows::SelectedPaths() const {
    QStringList Paths;
    for (int Row = 0; Row < mSelected.Rows(); ++Row)
        Paths.append(mSelected.TextMatrix(Row, ColPath));
    return Paths;
}

PictureToImport PictureRows::Selected(int Row) {
    const bool WasLeftOut = mSelected.CellData(Row, ColPath) != CellValue();
    return {mSelected.TextMatrix(Row, ColPath), mSelected.TextMatrix(Row, ColCaption),
            WasLeftOut ? QImage() : mSpool->Thumbnail(NumberOf(mSelected, Row))};
}

void PictureRows::MarkLeftOut(int Row) {
    mSelected.SetCellData(Row, ColPath, 1.0);
}

void PictureRows::DropSelected(const std::vector<int>& Rows) {
    if (static_cast<int>(Rows.size()) == mSelected.Rows()) return mSelected.SetRows(0);
    mSelected.SetRedraw(false);
    const auto Painted = qScopeGuard([this] { mSelected.SetRedraw(true); });
    std::for_each(Rows.rbegin(), Rows.rend(), [this](int Row) { mSelected.RemoveItem(Row); });
}

}  // namespace neb
