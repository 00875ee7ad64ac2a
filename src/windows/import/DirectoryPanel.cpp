#include "windows/import/DirectoryPanel.h"

#include <QScopeGuard>

#include "albums/modPictureFiles.h"
#include "controls/forms/ScreenPointer.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"
#include "ui_DirectoryPanel.h"

namespace neb {
namespace {

constexpr int AtOnceMs = 30;  // a count that takes no longer is shown without an hourglass
constexpr int LookMs = 50;

const QString MemoryName = QStringLiteral("DS.ini");

// Earlier versions kept it beside the program; and albums that may not be changed any more have it
// from the time when they might.
QString MemoryToRead() {
    for (const QString& Each : {MemoryDir(), SettingsDir(), AppPath()})
        if (FileExists(Each + MemoryName)) return Each + MemoryName;
    return {};
}

}  // namespace

QString ReadLastDirectory() {
    try {
        const QString Memory = MemoryToRead();
        if (Memory.isEmpty()) return {};
        QByteArray Line = ReadFile(Memory).split('\n').value(0);
        if (Line.endsWith('\r')) Line.chop(1);
        return HostName(Line);
    } catch (const Fault&) {
        return {};
    }
}

void WriteLastDirectory(const QString& Directory) {
    try {
        MakeDirs(MemoryDir());
        DeleteFile(MemoryDir() + MemoryName);
        WriteFile(MemoryDir() + MemoryName, HostBytes(Directory) + '\n');
    } catch (const Fault&) {
        // a folder that cannot be written remembers nothing
    }
}

DirectoryPanel::DirectoryPanel(QWidget* Parent)
    : QWidget(Parent), mUi(std::make_unique<Ui::DirectoryPanel>()) {
    mUi->setupUi(this);
    mUi->Dir1->SetDrives(mUi->Drive1);
    connect(mUi->Dir1, &DirectoryTree::Change, this, &DirectoryPanel::GoneTo);
    connect(mUi->chkRecurseDir, &QCheckBox::clicked, this, &DirectoryPanel::RecurseClicked);
    connect(&mLook, &QTimer::timeout, this, &DirectoryPanel::LookAtCount);
}

DirectoryPanel::~DirectoryPanel() {
    StopCount();
}

void DirectoryPanel::Begin() {
    mUi->Dir1->SetPath(ReadLastDirectory());
    mBegun = true;
    StartCount();
}

void DirectoryPanel::End() {
    mBegun = false;
    StopCount();
    WriteLastDirectory(Path());
}

void DirectoryPanel::SetRecurseDirOption(bool Offered) {
    mRecurseDirOption = Offered;
    mUi->chkRecurseDir->setVisible(Offered);
}

void DirectoryPanel::SetCountGraphics(bool Shown) {
    mCountGraphics = Shown;
    mUi->lblDirSummary->setVisible(Shown);
    mUi->lblDirSummary->clear();
    StartCount();
}

QString DirectoryPanel::Path() const {
    return mUi->Dir1->Path();
}

bool DirectoryPanel::TakeChoice() {
    mRecurseDir = mUi->chkRecurseDir->isChecked();
    if (mUi->Dir1->TakeTyped()) return true;
    MsgBox(tr("There is no directory of this name.") + u'\n' + mUi->Dir1->TypedText());
    return false;
}

void DirectoryPanel::GoneTo() {
    StartCount();
    if (mBegun) Q_EMIT DirectoryChosen();
}

void DirectoryPanel::RecurseClicked() {
    if (!mRecurseDirOption) return;
    mRecurseDir = mUi->chkRecurseDir->isChecked();
    StartCount();
}

// Whatever is counted, the window stays alive; and the count of a directory that the user has
// left already is not waited for.
void DirectoryPanel::StartCount() {
    StopCount();
    if (!mCountGraphics || !mBegun) return;
    mCount = std::make_unique<Job<std::int32_t>>(
        [Directory = Path(), Recurse = mRecurseDir](JobState& State) {
            return CountGraphicFiles(Directory, Recurse, State);
        });
    mLook.start(LookMs);
    SetScreenPointer(Pointer::Hourglass);
    mCount->Wait(AtOnceMs);
    LookAtCount();
}

void DirectoryPanel::LookAtCount() {
    if (!mCount->Wait(0)) {
        mUi->lblDirSummary->setText(tr("%1 graphics files so far ...").arg(mCount->SoFar()));
        return;
    }
    const auto Over = qScopeGuard([this] { StopCount(); });
    mUi->lblDirSummary->setText(tr("%1 graphics files detected.").arg(mCount->Take()));
}

void DirectoryPanel::StopCount() {
    if (!mCount) return;
    mCount.reset();
    mLook.stop();
    SetScreenPointer(Pointer::Default);
}

}  // namespace neb
