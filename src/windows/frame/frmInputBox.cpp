#include "windows/frame/frmInputBox.h"

#include "ui_frmInputBox.h"

namespace neb {

frmInputBox::frmInputBox() : mUi(std::make_unique<Ui::frmInputBox>()) {
    mUi->setupUi(this);
    On(mUi->cmdOkay, &QPushButton::clicked, &frmInputBox::Take);
    On(mUi->cmdCancel, &QPushButton::clicked, &frmInputBox::Close);
}

frmInputBox::~frmInputBox() = default;

QString frmInputBox::InputBox(const QString& Prompt, const QString& Title) {
    setWindowTitle(Title);
    mUi->lblPrompt->setText(Prompt);
    mUi->txtAnswer->setAccessibleName(Prompt);
    ShowModal();
    return mAnswer;
}

void frmInputBox::Take() {
    mAnswer = mUi->txtAnswer->text();
    Unload();
}

}  // namespace neb
