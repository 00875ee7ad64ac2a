// The deletion of many slides under a bar, for the bulk slide manager: its windows go on answering
// meanwhile.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "albums/BulkSlides.h"
#include "controls/forms/Progress.h"

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace neb {

class frmProgress;

class SlideDeletion : private ProgressParent {
  public:
    // Window: the one that asks, and is not told. IsWanted is asked before and after each slide.
    SlideDeletion(const QWidget& Window, std::int32_t AlbumID, std::vector<std::int32_t> SlideIDs,
                  std::function<bool()> IsWanted);
    ~SlideDeletion() override;
    SlideTally Run();  // returns when the bar has closed

  private:
    void StartOperation() override;

    const QWidget& mWindow;
    std::int32_t mAlbumID;
    std::vector<std::int32_t> mSlideIDs;
    std::function<bool()> mIsWanted;
    std::shared_ptr<frmProgress> mProgress;
    SlideTally mTally;
};

}  // namespace neb
