#include "program/DesktopServices.h"

#include <QApplication>
#include <QStandardPaths>

#include "InitAssets.h"
#include "controls/picture/XShow.h"
#include "pictures/PictureOfFile.h"
#include "sound/RecorderJobs.h"

namespace neb {
namespace {

constexpr std::chrono::milliseconds RecorderEnd{3000};  // a microphone that is still being opened

}  // namespace

DesktopServices::DesktopServices()
    : mMotion(mSettings, QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)) {
    InitAssets();
    QApplication::setApplicationName(QStringLiteral("neb-slide-show"));
    QApplication::setApplicationDisplayName(QStringLiteral("NEB Slide Show"));
    QApplication::setApplicationVersion(QStringLiteral(NEB_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("neb-slide-show"));
    TheServices().Boxes = &mBoxes;
    TheServices().Dialogs = &mDialogs;
    TheServices().Blanking = &mBlanking;
    TheServices().Sound = &mSound;
    TheServices().Drives = &mDrives;
    TheServices().Printers = &mPrinters;
    TheServices().Mail = &mMail;
    TheServices().Media = &mMedia;
    TheMotionWish() = &mMotion;
    XShow::SetReader(&PictureOfFile);
}

DesktopServices::~DesktopServices() {
    RecorderJobs::AwaitAll(RecorderEnd);
    XShow::SetReader({});
    TheServices().Boxes = nullptr;
    TheServices().Dialogs = nullptr;
    TheServices().Blanking = nullptr;
    TheServices().Sound = nullptr;
    TheServices().Drives = nullptr;
    TheServices().Printers = nullptr;
    TheServices().Mail = nullptr;
    TheServices().Media = nullptr;
    TheMotionWish() = nullptr;
}

}  // namespace neb
