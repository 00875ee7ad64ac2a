#include "windows/transfer/frmAlbumImport.h"

namespace neb {

frmAlbumImport::frmAlbumImport() : TransferForm(TransferWindow::AlbumImport) {}

}  // namespace neb
