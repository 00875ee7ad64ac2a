#include "controls/grid/GridPictures.h"

#include "controls/grid/FlexGridModel.h"

namespace neb {

// While the model is quiet nothing is painted; at the end of that it tells of all rows.
GridPictures::GridPictures(const FlexGridModel& Model, QObject* Owner)
    : QObject(Owner), mModel(Model) {
    using Told = QAbstractItemModel;
    const auto All = [this] { mReady.clear(); };
    connect(&Model, &Told::rowsInserted, this, All);
    connect(&Model, &Told::rowsRemoved, this, All);
    connect(&Model, &Told::rowsMoved, this, All);
    connect(&Model, &Told::modelReset, this, All);
    connect(
        &Model, &Told::dataChanged, this,
        [this](const QModelIndex& From, const QModelIndex& To) { Forget(From.row(), To.row()); });
}

void GridPictures::SetSource(int Col, PictureSource Source) {
    mSources[Col] = std::move(Source);
    mReady.clear();
}

ShapedPicture GridPictures::Shown(int Row, int Col) const {
    const auto Source = mSources.constFind(Col);
    if (Source != mSources.cend() && *Source) return (*Source)(Row);
    const FlexCell& Cell = mModel.Store().Cell(Row, Col);
    return {Cell.Picture, Cell.Shape};
}

const QImage& GridPictures::Ready(int Row, int Col, double Scale) {
    if (const auto Known = mReady.find({Row, Col});
        Known != mReady.end() && Known->second.Scale == Scale)
        return Known->second.Picture;
    // the source may make the grid forget while it is asked
    QImage Picture = FittedPicture(Shown(Row, Col), Scale);
    Entry& Made = mReady[{Row, Col}];
    Made = {Scale, std::move(Picture)};
    return Made.Picture;
}

void GridPictures::Forget(int First, int Last) {
    mReady.erase(mReady.lower_bound({First, 0}), mReady.lower_bound({Last + 1, 0}));
}

void GridPictures::KeepOnly(int First, int Last) {
    mReady.erase(mReady.begin(), mReady.lower_bound({First, 0}));
    mReady.erase(mReady.lower_bound({Last + 1, 0}), mReady.end());
}

}  // namespace neb
