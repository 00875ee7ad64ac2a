// The steps of the demonstration: Quick Show on a folder, Save, the show, Preferences,
// the end.
#pragma once

#include <QString>

class Tour;

namespace neb {
class frmNEBSlideShow;
}

void AddSteps(Tour& Guide, neb::frmNEBSlideShow& Window, const QString& Folder,
              const QString& ShowName);
