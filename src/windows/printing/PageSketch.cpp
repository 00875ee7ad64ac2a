#include "windows/printing/PageSketch.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "controls/speech/SpokenRole.h"

namespace neb {
namespace {

constexpr int SentenceChars = 34, SentenceLines = 3;
constexpr int Shadow = 3;  // pixels
// Paper is white, whatever the desktop's colours are.
const QColor SketchPaper(Qt::white), Edge(0x80, 0x80, 0x80), Grey(0xb4, 0xb9, 0xc0),
    Frame(0x7a, 0x80, 0x88), Ink(0x9a, 0x9a, 0x9a), Warning(0xb0, 0x3a, 0x2e);

// A text fills about so much of its place.
QRectF LineIn(const QRectF& Place, double PartOfWidth, bool AtRight = false) {
    const double Width = Place.width() * PartOfWidth, Height = Place.height() * 0.4;
    return {AtRight ? Place.right() - Width : Place.left(), Place.center().y() - Height / 2, Width,
            Height};
}

}  // namespace

SketchedPage EmptyPage(QSizeF Paper, PageTurn Turn) {
    return {Turn == PageTurn::Landscape ? Paper.transposed() : Paper};
}

SketchedPage FirstSheet(QSizeF Paper, const CellGrid& Grid, int Pictures, QSize Shape,
                        SketchedFoot Foot) {
    SketchedPage Page = EmptyPage(Paper, Grid.Turn);
    const QSizeF Drawn = SizeInCell(Grid, Shape);
    const int Cells = Grid.CellsPerPage();
    for (int I = 0; I < (Grid.WholeSheet ? Cells : std::min(Pictures, Cells)); ++I) {
        const QRectF Cell = CellAt(Grid, I);
        Page.Pictures.emplace_back(Cell.topLeft(), Drawn);
        if (Grid.CaptionHeight > 0)
            Page.Lines.push_back(LineIn(CaptionPlace(Grid, Cell, Drawn), 0.6));
    }
    if (Foot.Name) Page.Lines.push_back(LineIn(FootPlace(Grid.Turn), 0.3));
    if (Foot.PageNumber) Page.Lines.push_back(LineIn(FootPlace(Grid.Turn), 0.06, true));
    return Page;
}

SketchedPage SlidePage(QSizeF Paper, PageTurn Turn, QSizeF Size) {
    SketchedPage Page = EmptyPage(Paper, Turn);
    if (!Size.isEmpty()) Page.Pictures.emplace_back(SlidePlace(), Size);
    return Page;
}

QString Counted(int Number, const QString& One, const QString& Many) {
    return QStringLiteral("%1 %2").arg(Number).arg(Number == 1 ? One : Many);
}

PageSketch::PageSketch(QWidget* Parent) : QWidget(Parent), mSentence(new QLabel(this)) {
    SpeakAs(*this, QAccessible::Graphic);
    mSentence->setObjectName(QStringLiteral("lblPages"));
    mSentence->setWordWrap(true);
    mSentence->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto* Layout = new QVBoxLayout(this);
    Layout->setContentsMargins(0, 0, 0, 0);
    Layout->addStretch();
    Layout->addWidget(mSentence);
    FitToFont();
}

// The longest sentence has room, so that the window stays as it is while numbers are typed.
void PageSketch::FitToFont() {
    const QFontMetrics Letters(font());
    mSentence->setMinimumHeight(SentenceLines * Letters.lineSpacing());
    const int Most = screen()->availableSize().width() / 3;  // it has neighbours
    setMinimumWidth(std::max(230, std::min(Most, SentenceChars * Letters.averageCharWidth())));
    setMinimumHeight(minimumWidth() * 3 / 4 + mSentence->minimumHeight());
}

void PageSketch::changeEvent(QEvent* Event) {
    QWidget::changeEvent(Event);
    if (Event->type() == QEvent::FontChange) FitToFont();
}

QSize PageSketch::sizeHint() const {
    return {std::max(300, minimumWidth()), std::max(330, minimumHeight())};
}

void PageSketch::SetPicture(const QImage& Picture) {
    mPicture = Picture;
    update();
}

void PageSketch::Show(SketchedPage Page, const QString& Sentence) {
    mPage = std::move(Page);
    mSentence->setText(Sentence);
    update();
}

QString PageSketch::Sentence() const {
    return mSentence->text();
}

QRectF PageSketch::PaperRect() const {
    const QRectF Room(0, 0, width() - Shadow - 1,
                      mSentence->y() - layout()->spacing() - Shadow - 1);
    QRectF Place(QPointF(), mPage.Size.scaled(Room.size(), Qt::KeepAspectRatio));
    Place.moveCenter(Room.center());
    Place.moveTopLeft(Place.topLeft().toPoint());  // crisp edges
    return Place;
}

void PageSketch::DrawPicture(QPainter& Painter, const QRectF& Place) const {
    if (mPicture.isNull())
        Painter.fillRect(Place, Grey);
    else
        Painter.drawImage(Place, mPicture);
    Painter.setBrush(Qt::NoBrush);
    Painter.setPen(mPage.IsRight ? QPen(Frame, 0) : QPen(Warning, 0, Qt::DashLine));
    Painter.drawRect(Place);
}

void PageSketch::paintEvent(QPaintEvent*) {
    const QRectF Sheet = PaperRect();
    if (Sheet.isEmpty()) return;
    QPainter Painter(this);
    Painter.setRenderHint(QPainter::SmoothPixmapTransform);
    Painter.fillRect(Sheet.translated(Shadow, Shadow), QColor(0, 0, 0, 70));
    Painter.fillRect(Sheet, SketchPaper);
    const double Scale = Sheet.width() / mPage.Size.width();
    const auto Placed = [&](const QRectF& Inches) {
        return QRectF(Sheet.topLeft() + Inches.topLeft() * Scale, Inches.size() * Scale);
    };
    Painter.setClipRect(Sheet);
    for (const QRectF& Each : mPage.Pictures) DrawPicture(Painter, Placed(Each));
    for (const QRectF& Each : mPage.Lines) Painter.fillRect(Placed(Each), Ink);
    Painter.setClipping(false);
    Painter.setPen(QPen(Edge, 0));
    Painter.setBrush(Qt::NoBrush);
    Painter.drawRect(Sheet);
}

}  // namespace neb
