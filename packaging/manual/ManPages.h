// The manual pages of the two programs, made of the tables that their own --help prints, so that
// the two never say different things. Used by neb-make-package-files.
#pragma once

#include <QByteArray>

namespace neb {

// The release that the pages tell of: its version, and its date as 2026-11-23.
struct Release {
    QByteArray Version, Date;
};

QByteArray ProgramManPage(const Release& Of);  // neb-slide-show(1)
QByteArray ToolManPage(const Release& Of);     // nebctl(1)

}  // namespace neb
