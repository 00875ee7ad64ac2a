#include "controls/forms/Progress.h"

#include "controls/forms/Form.h"

namespace neb {

std::shared_ptr<Form> HoldIfForm(ProgressParent& Parent) {
    auto* Window = dynamic_cast<Form*>(&Parent);
    return Window ? std::static_pointer_cast<Form>(Window->weak_from_this().lock()) : nullptr;
}

}  // namespace neb
