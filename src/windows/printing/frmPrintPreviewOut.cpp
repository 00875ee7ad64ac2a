// The document leaves the window, or comes into it: printed, saved, loaded, mailed.
#include "ui_frmPrintPreview.h"
#include "windows/printing/PrintView.h"
#include "windows/printing/frmPrintPreview.h"

namespace neb {

void frmPrintPreview::SetDefaultPrinter(const QString&) {}

bool frmPrintPreview::TryClearReadOnly(const QString&) {
    return true;
}

bool frmPrintPreview::IsBusy() const {
    return false;
}

bool frmPrintPreview::Form_Unload() {
    AutoSave();
    return true;
}

void frmPrintPreview::Print(bool) {}

void frmPrintPreview::Save() {}

void frmPrintPreview::LoadDocument() {}

void frmPrintPreview::Mail() {}

void frmPrintPreview::AutoSave() {}

}  // namespace neb
