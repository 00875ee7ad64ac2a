#include "windows/albums/frmGetObjectName.h"

#include "controls/forms/Tell.h"
#include "settings/modNEBSlideShow.h"
#include "support/modDEValidation.h"
#include "ui_frmGetObjectName.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/frame/modUserInput.h"

namespace neb {

frmGetObjectName::frmGetObjectName() : mUi(std::make_unique<Ui::frmGetObjectName>()) {
    mUi->setupUi(this);
    SetAdjective(QStringLiteral("Object"));
    KeepNameClean(*mUi->txtObjectName);
    On(mUi->cmdSave, &QPushButton::clicked, &frmGetObjectName::Save);
    On(mUi->cmdCancel, &QPushButton::clicked, &frmGetObjectName::Close);
}

frmGetObjectName::~frmGetObjectName() = default;

void frmGetObjectName::SetAdjective(const QString& Noun) {
    mAdjective = Noun;
    setWindowTitle(QStringLiteral("Get ") + Noun + QStringLiteral(" Name"));
    mUi->Label1->setText(Noun + QStringLiteral(" Name"));
    mUi->txtObjectName->setAccessibleName(mUi->Label1->text());
    mUi->txtObjectName->setToolTip(QStringLiteral("Enter the ") + Noun + QStringLiteral(" Name."));
    mUi->cmdSave->setToolTip(QStringLiteral("Complete the ") + Noun +
                             QStringLiteral(" Name Entry."));
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
    return mCheck ? Tell(mCheck(Name))
                  : ValidateUserInput(mAdjective + QStringLiteral(" Name"), Name);
}

void frmGetObjectName::Save() {
    const QString Name = CleanName(mUi->txtObjectName->text());
    if (!MayBe(Name)) return ReturnTo(*mUi->txtObjectName);
    mObjectName = Name;
    Unload();
}

}  // namespace neb
