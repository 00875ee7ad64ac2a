// What nebctl check has found: each finding is a line on the output as soon as it is known.
#pragma once

#include "tools/words/ToolIO.h"

namespace neb {

class Findings {
  public:
    explicit Findings(ToolIO& IO) : mIO(IO) {}
    void Add(const QString& Text) {
        PrintLine(mIO.Out, Text);
        ++mCount;
    }
    int Count() const { return mCount; }

  private:
    ToolIO& mIO;
    int mCount = 0;
};

}  // namespace neb
