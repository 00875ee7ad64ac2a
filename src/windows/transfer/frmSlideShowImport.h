// Brings a slide show, with the slides that it uses, from another database into the program's own.
#pragma once

#include "windows/transfer/TransferForm.h"

namespace neb {

class frmSlideShowImport : public TransferForm {
    Q_OBJECT

  public:
    frmSlideShowImport();
};

}  // namespace neb
