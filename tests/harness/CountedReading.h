// For a test that asks who reads a picture: what would go to the processes behind the door is
// counted, and done in this process.
#pragma once

#include <atomic>

#include "pictures/workers/ReadingHere.h"

namespace neb::harness {

class CountedReading : public ReadingHere {
  public:
    CountedReading() { SetPictureReader(this); }
    ~CountedReading() override { SetPictureReader(nullptr); }
    DecodedPicture Decode(const QByteArray& Bytes, const NeededSize& Needed) override {
        ++mCount;
        return ReadingHere::Decode(Bytes, Needed);
    }
    // Pictures read behind the door since the last question.
    int Count() { return mCount.exchange(0); }

  private:
    std::atomic<int> mCount = 0;
};

}  // namespace neb::harness
