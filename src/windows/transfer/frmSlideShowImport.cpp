#include "windows/transfer/frmSlideShowImport.h"

namespace neb {

frmSlideShowImport::frmSlideShowImport() : TransferForm(TransferWindow::SlideShowImport) {}

}  // namespace neb
