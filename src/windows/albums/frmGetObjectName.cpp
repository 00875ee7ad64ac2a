#include "windows/albums/frmGetObjectName.h"

#include "controls/forms/Tell.h"
#include "settings/modNEBSlideShow.h"
#include "support/Texts.h"
#include "support/modDEValidation.h"
#include "ui_frmGetObjectName.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/frame/modUserInput.h"

namespace neb {

frmGetObjectName::frmGetObjectName() : mUi(std::make_unique<Ui::frmGetObjectName>()) {
    mUi->setupUi(this);
    SetAdjective(tr("Object"));
    KeepNameClean(*mUi->txtObjectName);
    On(mUi->cmdSave, &QPushButton::clicked, &frmGetObjectName::Save);
    On(mUi->cmdCancel, &QPushButton::clicked, &frmGetObjectName::Close);
}

frmGetObjectName::~frmGetObjectName() = default;

void frmGetObjectName::SetAdjective(const QString& Noun) {
    mAdjective = Noun;
    setWindowTitle(tr("Get %1 Name").arg(Noun));
    mUi->Label1->setText(tr("%1 Name").arg(Noun));
    mUi->txtObjectName->setAccessibleName(mUi->Label1->text());
    mUi->txtObjectName->setToolTip(tr("Enter the %1 Name.").arg(Noun));
    mUi->cmdSave->setToolTip(tr("Complete the %1 Name Entry.").arg(Noun));
}

QString frmGetObjectName::GetObjectName(const QString& OldName, NameCheck Check) {
    mObjectName.clear();
    mCheck = std::move(Check);
    mUi->txtObjectName->setText(OldName);
    ReturnTo(*mUi->txtObjectName);
    ShowModal();
    return mObjectName;
}

bool frmGetObjectName::MayBe(const QString& Name) const {
    if (!Tell(CheckName(mAdjective, Name))) return false;
    return mCheck ? Tell(mCheck(Name)) : ValidateUserInput(tr("%1 Name").arg(mAdjective), Name);
}

void frmGetObjectName::Save() {
    const QString Name = CleanName(mUi->txtObjectName->text());
    if (!MayBe(Name)) return ReturnTo(*mUi->txtObjectName);
    mObjectName = Name;
    Unload();
}

}  // namespace neb
