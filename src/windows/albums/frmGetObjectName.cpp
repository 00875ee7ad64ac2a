#include "windows/albums/frmGetObjectName.h"

#include "controls/forms/Tell.h"
#include "settings/modNEBSlideShow.h"
#include "ui_frmGetObjectName.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/frame/modUserInput.h"

namespace neb {

frmGetObjectName::frmGetObjectName() : mUi(std::make_unique<Ui::frmGetObjectName>()) {
    mUi->setupUi(this);
    SetAdjective(QStringLiteral("Object"));
    KeepQuotesClean(*mUi->txtObjectName);
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

QString frmGetObjectName::GetObjectName(const QString& OldName) {
    mObjectName.clear();
    mUi->txtObjectName->setText(OldName);
    mUi->txtObjectName->selectAll();
    mUi->txtObjectName->setFocus();
    ShowModal();
    return mObjectName;
}

void frmGetObjectName::Save() {
    const QString Name = mUi->txtObjectName->text();
    if (!Tell(CheckName(mAdjective, Name))) return;
    if (!ValidateUserInput(mAdjective + QStringLiteral(" Name"), Name)) return;
    mObjectName = Name;
    Unload();
}

}  // namespace neb
