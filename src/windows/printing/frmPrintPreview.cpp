#include "windows/printing/frmPrintPreview.h"

#include "ui_frmPrintPreview.h"
#include "windows/printing/PrintView.h"

namespace neb {

frmPrintPreview::frmPrintPreview() : mUi(std::make_unique<Ui::frmPrintPreview>()) {
    mUi->setupUi(this);
    MakeMenu();
    ConnectButtons();
}

frmPrintPreview::~frmPrintPreview() = default;

PrintView& frmPrintPreview::VSPrinter1() {
    return *mUi->VSPrinter1;
}

void frmPrintPreview::ShowDocument(std::shared_ptr<const PrintDocument> Document) {
    mUi->VSPrinter1->SetDocument(std::move(Document));
}

bool frmPrintPreview::ShowPreview() {
    mPrinted = false;
    ShowModal();
    return mPrinted;
}

void frmPrintPreview::Form_Load() {}

void frmPrintPreview::MakeMenu() {}

void frmPrintPreview::ConnectButtons() {
    On(mUi->cmdPrint, &QPushButton::clicked, &frmPrintPreview::PrintNow);
    On(mUi->cmdSave, &QPushButton::clicked, &frmPrintPreview::Save);
    On(mUi->cmdLoad, &QPushButton::clicked, &frmPrintPreview::LoadDocument);
    On(mUi->cmdEmail, &QPushButton::clicked, &frmPrintPreview::Mail);
    On(mUi->cmdExit, &QPushButton::clicked, &frmPrintPreview::Close);
    On(mUi->mnuPrint, &QAction::triggered, &frmPrintPreview::PrintByDialog);
    On(mUi->mnuSave, &QAction::triggered, &frmPrintPreview::Save);
    On(mUi->mnuOpen, &QAction::triggered, &frmPrintPreview::LoadDocument);
    On(mUi->mnuMail, &QAction::triggered, &frmPrintPreview::Mail);
    On(mUi->mnuExit, &QAction::triggered, &frmPrintPreview::Close);
    connect(mUi->VSPrinter1, &PrintView::EndOfDocument, this, &frmPrintPreview::EndOfDocument);
}

void frmPrintPreview::EndOfDocument() {
    mUi->lblTotalPages->setText(QString::number(mUi->VSPrinter1->PageCount()));
}

}  // namespace neb
