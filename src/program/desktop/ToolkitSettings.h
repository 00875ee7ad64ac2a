// What the settings file of the desktop's usual toolkit says (settings.ini), where no portal tells
// it.
#pragma once

#include <QByteArray>
#include <QString>

namespace neb {

// The value of a key in such a file; empty where there is none.
QString ToolkitSetting(const QByteArray& File, const char* Key);
// The same of the user's own file in this folder of settings, the newer one first.
QString ToolkitSettingIn(const QString& ConfigFolder, const char* Key);
QString ToolkitSetting(const char* Key);

}  // namespace neb
