// A question that is answered by a line of text. The print preview asks by it where to mail to.
#pragma once

#include "controls/forms/Form.h"

namespace neb {

namespace Ui {
class frmInputBox;
}

class frmInputBox : public Form {
    Q_OBJECT

  public:
    frmInputBox();
    ~frmInputBox() override;

    // Shows the window modally: the text entered, or empty after Cancel.
    QString InputBox(const QString& Prompt, const QString& Title);

  private:
    void Take();
    void Close() { Unload(); }

    std::unique_ptr<Ui::frmInputBox> mUi;
    QString mAnswer;
};

}  // namespace neb
