// Reads pictures for the transition view on worker threads, ahead of time where it is asked to. A
// medium that hangs holds up nobody who does not want to wait. Used by XShow alone.
#pragma once

#include <functional>
#include <future>
#include <memory>

#include "controls/picture/ReadThreads.h"
#include "pictures/XShowFit.h"

namespace neb {

// Reads a picture file; called on any thread; throws Fault when it cannot be decoded.
using ShownReader = std::function<QImage(const QString& File)>;

struct LoadedPicture {
    QImage Source;       // Format_RGB32
    QImage Fitted;       // as it lies in the view of Layout; null when not yet made
    XShowLayout Layout;  // of Fitted
};

class XShowLoader {
  public:
    // For all views. The readings that are under way with the reader of before are awaited, for a
    // second at most: whoever takes his reader back may go then.
    static void SetReader(ShownReader Reader);

    // Begins to read a file and to fit it to a view; one file at a time, the latest counts.
    void Prefetch(const QString& File, const XShowLayout& Layout);
    // Begins to bring a picture, which may have been read ahead; gives up the one before.
    void Begin(const QString& File, const XShowLayout& Layout);
    // Whether what was begun has come to its end, after at most so many milliseconds.
    bool Wait(int Milliseconds);
    // Waits for the picture that was begun; once. Throws Fault when it cannot be read.
    LoadedPicture Take();

  private:
    struct Reading;
    using Result = std::shared_future<std::shared_ptr<const Reading>>;
    Result Put(ReadThreads::Kind Of, const QString& File, const XShowLayout& Layout, Result Before);

    ReadThreads mThreads;
    QString mAheadFile;
    Result mAhead, mBegun;
};

}  // namespace neb
