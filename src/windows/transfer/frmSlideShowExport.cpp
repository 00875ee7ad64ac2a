#include "windows/transfer/frmSlideShowExport.h"

namespace neb {

frmSlideShowExport::frmSlideShowExport() : TransferForm(TransferWindow::SlideShowExport) {}

}  // namespace neb
