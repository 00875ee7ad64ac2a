#include "windows/import/frmDirSelect.h"

#include "support/Fault.h"
#include "ui_frmDirSelect.h"

namespace neb {

frmDirSelect::frmDirSelect() : mUi(std::make_unique<Ui::frmDirSelect>()) {
    mUi->setupUi(this);
    On(mUi->cmdSelect, &QPushButton::clicked, &frmDirSelect::Select);
    connect(mUi->cmdCancel, &QPushButton::clicked, this, &frmDirSelect::Unload);
}

frmDirSelect::~frmDirSelect() = default;

void frmDirSelect::Form_Load() {
    mUi->pnlDirectory->Begin();
}

bool frmDirSelect::Form_Unload() {
    mUi->pnlDirectory->End();
    return true;
}

void frmDirSelect::SetRecurseDirOption(bool Offered) {
    Load();
    mUi->pnlDirectory->SetRecurseDirOption(Offered);
}

void frmDirSelect::SetCountGraphics(bool Shown) {
    Load();
    mUi->pnlDirectory->SetCountGraphics(Shown);
}

bool frmDirSelect::RecurseDir() const {
    return mUi->pnlDirectory->RecurseDir();
}

QString frmDirSelect::SelectDirectory() {
    mSelectedDir.clear();
    mUi->pnlDirectory->ClearRecurseDir();
    try {
        ShowModal();
    } catch (const Fault&) {
        mSelectedDir.clear();
    }
    return mSelectedDir;
}

void frmDirSelect::Select() {
    if (!mUi->pnlDirectory->TakeChoice()) return;
    mSelectedDir = mUi->pnlDirectory->Path();
    Unload();
}

}  // namespace neb
