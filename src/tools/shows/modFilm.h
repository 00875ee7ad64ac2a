// nebctl film: makes a film of a show, as the projector plays it. The database is only read.
#pragma once

#include <QStringList>

#include "tools/words/ToolIO.h"

namespace neb {

int RunFilm(const QStringList& Arguments, ToolIO& IO);

}  // namespace neb
