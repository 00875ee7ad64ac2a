// Takes an album, with its slides and shows, from the program's database to another one.
#pragma once

#include "windows/transfer/TransferForm.h"

namespace neb {

class frmAlbumExport : public TransferForm {
    Q_OBJECT

  public:
    frmAlbumExport();
};

}  // namespace neb
