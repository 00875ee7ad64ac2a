// A box for messages too long for a message box: a text field that scrolls, and one button.
#pragma once

#include <QString>

#include "controls/forms/Form.h"

namespace neb {

namespace Ui {
class frmMsgBoxEx;
}

class frmMsgBoxEx : public Form {
    Q_OBJECT

  public:
    frmMsgBoxEx();
    ~frmMsgBoxEx() override;

    // Shows the text modally under a normal pointer, which is put back afterwards. Options is
    // kept for callers that pass box flags; there is one button. Always 0.
    int ShowMsgBox(const QString& Title, const QString& ErrText, int Options = 0);

  private:
    std::unique_ptr<Ui::frmMsgBoxEx> mUi;
};

}  // namespace neb
