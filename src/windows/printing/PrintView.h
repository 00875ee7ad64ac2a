// The pages of a print document on the screen: at a scale in percent, as a whole page, at the
// window's width, two side by side, or as thumbnails. Pages are painted beside the window when they
// come into sight. The preview's VSPrinter1.
#pragma once

#include <QAbstractScrollArea>
#include <memory>
#include <optional>

#include "printing/PrintDocument.h"
#include "windows/printing/PageImages.h"
#include "windows/printing/PrintViewLayout.h"

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

    // From 1, also where there are no pages; set, the nearest page there is.
    int PreviewPage() const { return mLook.Page; }
    void SetPreviewPage(int Page);
    // As a page is turned: it is seen from its top left corner.
    void TurnTo(int Page);

    PageView View() const { return mLook.View; }
    void SetView(PageView View);
    QString ViewName() const;  // empty of ByZoom
    // Percent, as it is now in any view. Set, it is the view ByZoom, within LeastZoom and MostZoom.
    double Zoom() const;
    void SetZoom(double Percent);
    void ZoomIn() { ZoomBy(1); }
    void ZoomOut() { ZoomBy(-1); }

    // Pixels of the screen from the top left corner of what is shown; held within it.
    int ScrollLeft() const;
    int ScrollTop() const;
    void SetScrollLeft(int Pixels);
    void SetScrollTop(int Pixels);

    // The texts of the views that can be chosen, split at |, each with its mnemonic. The view's
    // actions() are these and the steps of the zoom.
    static QString NavigationMenu();

    // Where a page stands in the viewport; null when it is not shown.
    QRect PlaceOf(int Page) const;
    // Whether all that is in sight is painted as sharp as it can be.
    bool IsSharp() const;

  Q_SIGNALS:
    void EndOfDocument();
    void PageChanged();
    void ViewChanged();  // the view or the zoom

  protected:
    void paintEvent(QPaintEvent* Event) override;
    void resizeEvent(QResizeEvent* Event) override;
    void changeEvent(QEvent* Event) override;
    void focusInEvent(QFocusEvent* Event) override;
    void focusOutEvent(QFocusEvent* Event) override;
    void contextMenuEvent(QContextMenuEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void wheelEvent(QWheelEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;
    void mouseMoveEvent(QMouseEvent* Event) override;
    void mouseReleaseEvent(QMouseEvent* Event) override;
    void mouseDoubleClickEvent(QMouseEvent* Event) override;

  private:
    struct Look {
        PageView View = PageView::ByZoom;
        double Zoom = 100;  // of ByZoom, kept in the other views
        int Page = 1;
    };
    // What the mouse is about.
    struct Hand {
        std::optional<QPoint> From;  // where a button was pressed, or the last point of a drag
        bool Opened = false;         // the first of two clicks chose a thumbnail
        int Wheel = 0;               // turns that are not yet a whole step
    };

    void MakeActions();
    void Change(Look Now);
    void Follow();
    void Relayout();
    PrintViewState State() const;
    void ShowInGrid();
    void ZoomBy(int Steps);
    void ZoomAround(double Percent, QPoint At, int Page);
    void ZoomAtPointer(double Percent, QPoint At);
    void OpenThumbnail(int Page);

    QPoint Scrolled() const { return {ScrollLeft(), ScrollTop()}; }
    bool IsGrid() const { return mLook.View == PageView::Thumbnails; }
    bool CanScroll() const;
    std::vector<PrintViewLayout::Sheet> InSight() const;
    PageRequest RequestFor(const PrintViewLayout::Sheet& Sheet) const;
    std::vector<PageRequest> RequestsFor(const std::vector<PrintViewLayout::Sheet>& Sheets) const;
    std::vector<PrintViewLayout::Sheet> Beside() const;

    void PaintSheet(QPainter& Painter, const PrintViewLayout::Sheet& Sheet) const;
    void PaintPaper(QPainter& Painter, const PrintViewLayout::Sheet& Sheet) const;
    int PagesBy(int Key) const;
    bool ZoomByKey(int Key);
    QPoint Middle() const;
    void PopUpMenu(QPoint At);
    int WheelSteps(int Turned);
    void WheelPages(QWheelEvent* Event);
    void ShowHand(Qt::CursorShape Now);

    std::shared_ptr<const PrintDocument> mDocument;
    std::unique_ptr<PageImages> mImages;
    Look mLook;
    PageView mFormer = PageView::ByZoom;  // before the thumbnails
    Hand mHand;
    PrintViewLayout mLayout;
};

}  // namespace neb
