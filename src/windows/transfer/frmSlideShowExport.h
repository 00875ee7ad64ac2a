// Takes a slide show, with the slides that it uses, from the program's database to another one.
#pragma once

#include "windows/transfer/TransferForm.h"

namespace neb {

class frmSlideShowExport : public TransferForm {
    Q_OBJECT

  public:
    frmSlideShowExport();
};

}  // namespace neb
