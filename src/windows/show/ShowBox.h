// The plain boxes of a running show. The show goes on behind them, so that the same trouble may
// come round before anybody has answered.
#pragma once

#include <QString>

namespace neb {

class Form;

// A box that comes up once what runs now is over; the call returns at once. It does not come up
// when one of these words is up already (a show that nobody attends to must not pile them up), nor
// when the window has been unloaded in the meantime.
void TellLater(Form& Of, const QString& Message);

}  // namespace neb
