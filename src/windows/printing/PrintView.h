// The pages of a print document on the screen: at a scale in percent, as a whole page, at the
// window's width, two side by side, or as thumbnails. Pages are painted beside the window when they
// come into sight. The preview's VSPrinter1.
#pragma once

#include <QAbstractScrollArea>
#include <memory>

#include "printing/PrintDocument.h"

namespace neb {

class PrintView : public QAbstractScrollArea {
    Q_OBJECT

  public:
    explicit PrintView(QWidget* Parent = nullptr);
    ~PrintView() override;

    // Shows the first page of a finished document; announces EndOfDocument.
    void SetDocument(std::shared_ptr<const PrintDocument> Document);
    const std::shared_ptr<const PrintDocument>& Document() const { return mDocument; }
    int PageCount() const { return mDocument ? mDocument->PageCount() : 0; }

  Q_SIGNALS:
    void EndOfDocument();

  private:
    std::shared_ptr<const PrintDocument> mDocument;
};

}  // namespace neb
