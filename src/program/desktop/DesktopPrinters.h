// The desktop's own printers, as the print service and the system's dialog offer them.
#pragma once

#include "printing/PrinterQueues.h"

namespace neb {

class DesktopPrinters : public PrinterQueues {
  public:
    QStringList Devices() override;
    ChosenPrinter Choose(const PrintDocument& Document, const PrintWish& Wish) override;
};

}  // namespace neb
