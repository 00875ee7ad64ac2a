// The pictures of a FlexGrid as they are painted: asked for and made ready when a row comes into
// view, and kept as long as it is there. FlexGrid owns one.
#pragma once

#include <QHash>
#include <QObject>
#include <functional>
#include <map>

#include "controls/grid/ShapedPicture.h"

namespace neb {

class FlexGridModel;

// Gives the picture of a row. Asked on the thread of the windows, while the row is painted.
using PictureSource = std::function<ShapedPicture(int Row)>;

class GridPictures : public QObject {
  public:
    GridPictures(const FlexGridModel& Model, QObject* Owner);

    void SetSource(int Col, PictureSource Source);  // an empty one: the cells' own
    // What is shown in the cell: what the source gives, else the cell's own picture.
    ShapedPicture Shown(int Row, int Col) const;
    // The same, ready for a screen of this scale.
    const QImage& Ready(int Row, int Col, double Scale);

    void Forget(int First, int Last);  // rows; what is shown in them is asked for anew
    void KeepOnly(int First, int Last);
    int Count() const { return static_cast<int>(mReady.size()); }

  private:
    struct Entry {
        double Scale = 0;
        QImage Picture;
    };

    const FlexGridModel& mModel;
    QHash<int, PictureSource> mSources;           // by column
    std::map<std::pair<int, int>, Entry> mReady;  // by row and column
};

}  // namespace neb
