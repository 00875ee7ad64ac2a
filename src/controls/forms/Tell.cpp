#include "controls/forms/Tell.h"

namespace neb {

BoxAnswer ShowBox(const BoxRequest& Request) {
    return MsgBox(Request.Text, Request.Title, Request.Icon, Request.Buttons);
}

}  // namespace neb
