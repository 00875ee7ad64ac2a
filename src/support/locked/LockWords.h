// A LockReport in words. Used by nebctl and the About window.
#pragma once

#include <QString>
#include <QStringList>

#include "support/locked/LockReport.h"

namespace neb {

// What both have.
LockReport Weaker(const LockReport& One, const LockReport& Other);

// A sentence for the About window.
QString LockSentence(const LockReport& Report);
// A line a measure, with what it means, for a terminal.
QStringList LockLines(const LockReport& Report);

}  // namespace neb
