#include "intake/frmDirSelect.h"

#include "intake/modPictureFiles.h"
#include "platform/DirectoryTree.h"
#include "shell/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/modHostFiles.h"
#include "support/windows/ScreenPointer.h"
#include "ui_frmDirSelect.h"

namespace neb {
namespace {

QString MemoryFile() {
    return AppPath() + QStringLiteral("DS.ini");
}

}  // namespace

QString ReadLastDirectory() {
    try {
        if (!FileExists(MemoryFile())) return {};
        QByteArray Line = ReadFile(MemoryFile()).split('\n').value(0);
        if (Line.endsWith('\r')) Line.chop(1);
        return QString::fromUtf8(Line);
    } catch (const Fault&) {
        return {};
    }
}

void WriteLastDirectory(const QString& Directory) {
    try {
        DeleteFile(MemoryFile());
        WriteFile(MemoryFile(), Directory.toUtf8() + '\n');
    } catch (const Fault&) {
        // a program folder that cannot be written remembers nothing
    }
}

frmDirSelect::frmDirSelect() : mUi(std::make_unique<Ui::frmDirSelect>()) {
    mUi->setupUi(this);
    mUi->Dir1->SetDrives(mUi->Drive1);
    connect(mUi->Dir1, &DirectoryTree::Change, this, &frmDirSelect::ShowCount);
    connect(mUi->chkRecurseDir, &QCheckBox::clicked, this, &frmDirSelect::RecurseClicked);
    connect(mUi->cmdSelect, &QPushButton::clicked, this, &frmDirSelect::Select);
    connect(mUi->cmdCancel, &QPushButton::clicked, this, &frmDirSelect::Unload);
}

frmDirSelect::~frmDirSelect() = default;

void frmDirSelect::Form_Load() {
    SetCountGraphics(true);
    SetRecurseDirOption(true);
    const QString Last = ReadLastDirectory();
    if (FolderExists(Last)) mUi->Dir1->SetPath(Last);
}

// The window is there at once; the count of what it shows follows.
void frmDirSelect::Form_Activate() {
    if (!std::exchange(mActivated, true)) ShowCount();
}

bool frmDirSelect::Form_Unload() {
    ++mCounting;
    WriteLastDirectory(mUi->Dir1->Path());
    return true;
}

void frmDirSelect::SetRecurseDirOption(bool Offered) {
    Load();
    mRecurseDirOption = Offered;
    mUi->chkRecurseDir->setVisible(Offered);
}

void frmDirSelect::SetCountGraphics(bool Shown) {
    Load();
    mCountGraphics = Shown;
    mUi->lblDirSummary->setVisible(Shown);
}

QString frmDirSelect::SelectDirectory() {
    mSelectedDir.clear();
    mRecurseDir = false;
    try {
        ShowModal();
    } catch (const Fault&) {
        mSelectedDir.clear();
    }
    return mSelectedDir;
}

void frmDirSelect::RecurseClicked() {
    if (!mRecurseDirOption) return;
    mRecurseDir = mUi->chkRecurseDir->isChecked();
    ShowCount();
}

// The count goes on while the user steps to another directory, which then has its own.
void frmDirSelect::ShowCount() {
    if (!mCountGraphics || !mActivated || !IsLoaded()) return;
    const auto Held = shared_from_this();
    const int Mine = ++mCounting;
    const PointerScope Working(Pointer::Hourglass);
    const auto Poll = YieldingPoll([this, Mine] { return mCounting == Mine; });
    const std::int32_t Count = CountGraphicFiles(mUi->Dir1->Path(), mRecurseDir, Poll);
    if (mCounting != Mine) return;
    mUi->lblDirSummary->setText(QString::number(Count) +
                                QStringLiteral(" graphics files detected."));
}

void frmDirSelect::Select() {
    if (!mUi->Dir1->TakeTyped()) {
        MsgBox(tr("There is no directory of this name.") + u'\n' + mUi->Dir1->TypedText());
        return;
    }
    mSelectedDir = mUi->Dir1->Path();
    mRecurseDir = mUi->chkRecurseDir->isChecked();
    Unload();
}

}  // namespace neb
