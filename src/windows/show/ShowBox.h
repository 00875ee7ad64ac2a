// The plain boxes of a running show. The show goes on behind them, so that the same trouble may
// come round before anybody has answered.
#pragma once

#include <QString>

namespace neb {

// Nothing when a box of these words is up already: a show that nobody attends to must not pile
// them up.
void TellOnce(const QString& Message);

}  // namespace neb
