// What a list shows of its slides: the thumbnails in the true proportions of the pictures, which
// their files tell; and on a screen with more than one pixel to the logical one the pictures
// themselves, made small. Both are read beside the window, for the rows in view and few more, and
// kept no longer. The lists of slides are set up with one each (SlideRows.h, SlideGrids.h).
#pragma once

#include <QImage>
#include <QObject>
#include <QTimer>
#include <map>
#include <memory>
#include <vector>

#include "controls/grid/ShapedPicture.h"
#include "support/work/Job.h"

namespace neb {

class FlexGrid;

class ListPictures : public QObject {
  public:
    // For a grid with the columns of the image buffer, which owns it.
    explicit ListPictures(FlexGrid& Grid);

    int Kept() const { return static_cast<int>(mKnown.size()); }  // pictures known by now
    bool IsReading() const { return mLook.isActive(); }

  private:
    // The path, and which thumbnail of it: a list that is told of a change has another one.
    using Key = std::pair<QString, qint64>;
    struct Known {
        QSize Shape = {};   // empty: the file does not tell
        QImage Sharp = {};  // null: not read, or it cannot be
        double Scale = 1;   // of the screen for which it was read
    };
    using Shapes = std::map<Key, QSize>;
    struct Reading {
        Key Of;
        std::unique_ptr<Job<Known>> Work;
    };
    struct Range {
        int First, Last;
    };

    ShapedPicture Of(int Row);
    Key KeyOf(int Row) const;
    double Scale() const;
    Range InView() const;
    Range Nearby() const;
    void LearnShapes(int Row);
    bool TakeShapes(int Milliseconds);
    void Look();
    void TakeRead();
    void BeginReading();
    int NextToRead() const;
    bool IsWanted(int Row) const;
    void Begin(int Row);
    void Tell(const Key& Of);
    void DropDistant();

    FlexGrid& mGrid;
    std::map<Key, Known> mKnown;
    std::unique_ptr<Job<Shapes>> mLearning;
    std::vector<Reading> mReading;
    QTimer mLook;
};

}  // namespace neb
