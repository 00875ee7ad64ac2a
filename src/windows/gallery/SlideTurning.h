// Turns slides of an album, many of them under a bar with a button to stop. Used where an album is
// looked through.
#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

#include "controls/forms/Progress.h"

namespace neb {

class frmProgress;

class SlideTurning : private ProgressParent {
  public:
    // Quarters: clockwise where positive.
    SlideTurning(std::int32_t AlbumID, std::vector<std::int32_t> SlideIDs, int Quarters);
    ~SlideTurning() override;
    // Returns when all is done or the user has stopped it; tells in a box of those that could not
    // be turned, which are as they were.
    void Run();

  private:
    void StartOperation() override;
    void Turn(std::int32_t SlideID);
    void TryToTurn(std::int32_t SlideID);

    const std::int32_t mAlbumID;
    const std::vector<std::int32_t> mSlideIDs;
    const int mQuarters;
    std::shared_ptr<frmProgress> mProgress;
    QStringList mProblems;
};

}  // namespace neb
