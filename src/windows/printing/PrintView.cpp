#include "windows/printing/PrintView.h"

namespace neb {

PrintView::PrintView(QWidget* Parent) : QAbstractScrollArea(Parent) {}

PrintView::~PrintView() = default;

void PrintView::SetDocument(std::shared_ptr<const PrintDocument> Document) {
    mDocument = std::move(Document);
    Q_EMIT EndOfDocument();
}

}  // namespace neb
