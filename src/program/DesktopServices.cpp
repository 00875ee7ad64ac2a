#include "program/DesktopServices.h"

#include "InitAssets.h"
#include "controls/picture/XShow.h"
#include "pictures/ImgX.h"

namespace neb {
namespace {

QImage ReadPicture(const QString& File) {
    ImgX Picture;
    Picture.Load(File);
    return Picture.Picture();
}

}  // namespace

DesktopServices::DesktopServices() {
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
    XShow::SetReader(&ReadPicture);
}

DesktopServices::~DesktopServices() {
    TheServices().Boxes = nullptr;
    TheServices().Dialogs = nullptr;
    TheServices().Blanking = nullptr;
    TheServices().Sound = nullptr;
    TheServices().Drives = nullptr;
    TheServices().Printers = nullptr;
    TheServices().Mail = nullptr;
    TheServices().Media = nullptr;
}

}  // namespace neb
