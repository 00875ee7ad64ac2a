#include "controls/forms/frmMsgBoxEx.h"

#include "controls/forms/ScreenPointer.h"
#include "ui_frmMsgBoxEx.h"

namespace neb {

frmMsgBoxEx::frmMsgBoxEx() : mUi(std::make_unique<Ui::frmMsgBoxEx>()) {
    mUi->setupUi(this);
    connect(mUi->cmdOkay, &QPushButton::clicked, this, &frmMsgBoxEx::Unload);
}

frmMsgBoxEx::~frmMsgBoxEx() = default;

int frmMsgBoxEx::ShowMsgBox(const QString& Title, const QString& ErrText, int) {
    const PointerScope Normal(Pointer::Default);
    mUi->txtErrorText->setPlainText(ErrText);
    setWindowTitle(Title);
    ShowModal();
    return 0;
}

}  // namespace neb
