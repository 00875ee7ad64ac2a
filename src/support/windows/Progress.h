// What long work offers to the window that carries it. The window is shown modally and calls the
// work from its own first activation, so that a caller reads as straight-line code while the
// user sees a bar and can touch nothing else.
#pragma once

namespace neb {

class ProgressParent {
  public:
    virtual ~ProgressParent() = default;
    virtual void DoActivity() {}      // the work under frmLoading and frmLoadSlide
    virtual void StartOperation() {}  // the work under frmProgress
    virtual void DoAbort() {}         // raises the parent's abort flag and returns
};

}  // namespace neb
