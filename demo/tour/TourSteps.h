// The steps of the demonstration: Quick Show on a folder, Save, the show with its
// music, Preferences, the sound recorder, the end.
#pragma once

#include <QString>

class Tour;

namespace neb {
class frmNEBSlideShow;
}

void AddSteps(Tour& Guide, neb::frmNEBSlideShow& Window, const QString& Folder,
              const QString& ShowName);
