// A small drawing of a page as it is going to be printed, to scale: grey pictures in 4:3 or the
// picture itself, captions and the foot as lines; below it a sentence about the pages. The print
// dialogs show it beside their fields, and it follows what is typed.
#pragma once

#include <QImage>
#include <QWidget>
#include <vector>

#include "printing/PageLayouts.h"

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace neb {

// In inches, from the page's top left corner.
struct SketchedPage {
    QSizeF Size;  // of the page, as it lies
    std::vector<QRectF> Pictures = {};
    std::vector<QRectF> Lines = {};  // of text
    bool IsRight = true;             // false: it cannot be printed so, and is drawn as an outline
};

// What stands at the foot of each page.
struct SketchedFoot {
    bool Name = false;
    bool PageNumber = false;
};

// A page without anything on it.
SketchedPage EmptyPage(QSizeF Paper, PageTurn Turn);
// The first page of sheets with so many pictures of that shape.
SketchedPage FirstSheet(QSizeF Paper, const CellGrid& Grid, int Pictures, QSize Shape,
                        SketchedFoot Foot = {});
// A page with a single picture.
SketchedPage SlidePage(QSizeF Paper, PageTurn Turn, QSizeF Size);

// "1 slide", "24 slides".
QString Counted(int Number, const QString& One, const QString& Many);

class PageSketch : public QWidget {
    Q_OBJECT

  public:
    explicit PageSketch(QWidget* Parent = nullptr);

    // Drawn in the pictures' places from now on; a null one: grey.
    void SetPicture(const QImage& Picture);
    void Show(SketchedPage Page, const QString& Sentence);
    const SketchedPage& Page() const { return mPage; }
    QString Sentence() const;
    // Where the paper stands, in the widget's own pixels.
    QRectF PaperRect() const;

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* Event) override;
    void changeEvent(QEvent* Event) override;

  private:
    void FitToFont();
    void DrawPicture(QPainter& Painter, const QRectF& Place) const;

    QLabel* mSentence;
    SketchedPage mPage;
    QImage mPicture;
};

}  // namespace neb
