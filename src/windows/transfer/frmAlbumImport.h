// Brings an album, with its slides and shows, from another database into the program's own.
#pragma once

#include "windows/transfer/TransferForm.h"

namespace neb {

class frmAlbumImport : public TransferForm {
    Q_OBJECT

  public:
    frmAlbumImport();
};

}  // namespace neb
