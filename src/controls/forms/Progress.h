// What long work offers to the window that carries it. The window is shown modally and calls the
// work from its own first activation, so that a caller reads as straight-line code while the
// user sees a bar and can touch nothing else.
#pragma once

#include <memory>

namespace neb {

class Form;

class ProgressParent {
  public:
    virtual ~ProgressParent() = default;
    virtual void DoActivity() {}      // the work under frmLoading and frmLoadSlide
    virtual void StartOperation() {}  // the work under frmProgress
    virtual void DoAbort() {}         // raises the parent's abort flag and returns
};

// A parent that is a window may be closed at a yield, which must not delete it under its own
// work: what this returns keeps it alive. Null for any other parent.
std::shared_ptr<Form> HoldIfForm(ProgressParent& Parent);

}  // namespace neb
