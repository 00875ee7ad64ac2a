#include "windows/transfer/frmAlbumExport.h"

namespace neb {

frmAlbumExport::frmAlbumExport() : TransferForm(TransferWindow::AlbumExport) {}

}  // namespace neb
