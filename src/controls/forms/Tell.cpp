#include "controls/forms/Tell.h"

namespace neb {

BoxAnswer ShowBox(const BoxRequest& Request) {
    MessageBoxes* Boxes = TheServices().Boxes;
    return Boxes ? Boxes->Show(Request)
                 : MsgBox(Request.Text, Request.Title, Request.Icon, Request.Buttons);
}

}  // namespace neb
