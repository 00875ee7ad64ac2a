// Reads pictures for the transition view, ahead of time on a worker thread where it is asked to.
// Used by XShow alone.
#pragma once

#include <QThreadPool>
#include <functional>
#include <future>
#include <memory>

#include "pictures/XShowFit.h"

namespace neb {

// Reads a picture file; called on any thread; throws Fault when it cannot be decoded.
using PictureReader = std::function<QImage(const QString& File)>;

struct LoadedPicture {
    QImage Source;       // Format_RGB32
    QImage Fitted;       // as it lies in the view of Layout; null when not yet made
    XShowLayout Layout;  // of Fitted
};

class XShowLoader {
  public:
    XShowLoader();
    ~XShowLoader();  // waits for a reading that is under way

    static void SetReader(PictureReader Reader);

    // Begins to read a file and to fit it to a view; one file at a time, the latest counts.
    void Prefetch(const QString& File, const XShowLayout& Layout);
    // The picture, read ahead or read now. Throws Fault.
    LoadedPicture Load(const QString& File, const XShowLayout& Layout);

  private:
    struct Ahead;
    std::unique_ptr<Ahead> mAhead;
    QThreadPool mPool;
};

}  // namespace neb
