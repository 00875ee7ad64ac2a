// Flags as texts: in the settings file, and in the cells of lists.
#pragma once

#include <QString>

namespace neb {

QString FlagText(bool On);  // "True" or "False", as it is written

// A flag in the settings file: "TRUE", "T", "1", "-1", "YES", "ON" in any case, and nothing at
// all, are true; everything else is false.
bool FlagValue(const QString& Text);
// A flag in a cell of a list: "True" in any case, "-1" and "1" are true; everything else is false.
bool IsChecked(const QString& Text);

}  // namespace neb
