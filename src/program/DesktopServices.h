// Makes an application object NEB Slide Show: its name and version, and the desktop's own services
// in place. The program's entry and the guided demonstration hold one.
#pragma once

#include "controls/directories/Drives.h"
#include "controls/forms/DesktopBoxes.h"
#include "program/ScreenBlanking.h"
#include "program/desktop/DesktopColours.h"
#include "program/desktop/DesktopMail.h"
#include "program/desktop/DesktopMedia.h"
#include "program/desktop/DesktopMotion.h"
#include "program/desktop/DesktopPrinters.h"
#include "program/desktop/DesktopSettings.h"
#include "sound/devices/SdlSoundDevices.h"

namespace neb {

class DesktopServices {
  public:
    DesktopServices();   // after the application object
    ~DesktopServices();  // the services are gone
    DesktopServices(const DesktopServices&) = delete;
    DesktopServices& operator=(const DesktopServices&) = delete;

  private:
    DesktopBoxes mBoxes;
    DesktopFileDialogs mDialogs;
    DesktopScreenBlanking mBlanking;
    SdlSoundDevices mSound;
    DesktopDrives mDrives;
    DesktopPrinters mPrinters;
    DesktopMail mMail;
    DesktopMedia mMedia;
    DesktopSettings mSettings;
    DesktopMotion mMotion;
    DesktopColours mColours{mSettings};
};

}  // namespace neb
