#include "windows/gallery/TileDelegate.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>

#include "support/modDEValidation.h"
#include "windows/gallery/SlideTiles.h"
#include "windows/gallery/TilePictures.h"

namespace neb {
namespace {

constexpr int Pad = 6, Gap = 4, Lines = 2;  // pixels, and lines of a caption
constexpr int LeastLetters = 24;            // that the field of a small tile shows

QPalette::ColorGroup GroupOf(const QStyleOptionViewItem& Option) {
    return Option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

bool IsSelected(const QStyleOptionViewItem& Option) {
    return Option.state & QStyle::State_Selected;
}

// A little more than the lines: letters reach below them.
int HeightOfWords(const QWidget& View) {
    return Lines * View.fontMetrics().lineSpacing() + View.fontMetrics().descent() / 2;
}

QTextOption Centred(const QString& Text) {
    QTextOption Option(Qt::AlignHCenter);
    // a layout goes by the program's direction and not by the text's
    Option.setTextDirection(Text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    Option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return Option;
}

// The start of the text that these lines have room for, with dots where there is more.
QString Shortened(const QString& Text, const QFont& Font, int Width) {
    QTextLayout Layout(Text, Font);
    Layout.setTextOption(Centred(Text));
    Layout.beginLayout();
    int LastBegins = 0;
    for (int Line = 0; Line < Lines; ++Line) {
        QTextLine Made = Layout.createLine();
        if (!Made.isValid()) break;
        Made.setLineWidth(Width);
        LastBegins = Made.textStart();
    }
    const bool Fits = !Layout.createLine().isValid();
    Layout.endLayout();
    if (Fits) return Text;
    return Text.left(LastBegins) +
           QFontMetrics(Font).elidedText(Text.mid(LastBegins), Qt::ElideRight, Width - 2);
}

}  // namespace

TileDelegate::TileDelegate(SlideTiles& View, TilePictures& Pictures)
    : QStyledItemDelegate(&View), mView(View), mPictures(Pictures) {}

QSize TileDelegate::LeastSize(int Side) const {
    return {Side + 4 * Pad, Side + HeightOfWords(mView) + Gap + 4 * Pad};
}

QRect TileDelegate::CaptionRect(const QRect& Tile) const {
    QRect Room = Tile.adjusted(2 * Pad, 0, -2 * Pad, -2 * Pad);
    Room.setTop(Room.bottom() + 1 - HeightOfWords(mView));
    return Room;
}

QSize TileDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return mView.gridSize();
}

void TileDelegate::paint(QPainter* Painter, const QStyleOptionViewItem& Option,
                         const QModelIndex& Index) const {
    Painter->save();
    PaintGround(*Painter, Option);
    PaintPicture(*Painter, Option, Index.row());
    PaintCaption(*Painter, Option, Index.data(Qt::DisplayRole).toString());
    Painter->restore();
}

// What is chosen stands on a ground of its own; the one in hand has a frame around it.
void TileDelegate::PaintGround(QPainter& Painter, const QStyleOptionViewItem& Option) const {
    const QRectF Tile = QRectF(Option.rect).adjusted(Pad / 2.0, Pad / 2.0, -Pad / 2.0, -Pad / 2.0);
    Painter.setRenderHint(QPainter::Antialiasing);
    const QColor Highlight = Option.palette.color(GroupOf(Option), QPalette::Highlight);
    const bool InHand = Option.state & QStyle::State_HasFocus;
    Painter.setPen(Qt::NoPen);
    if (IsSelected(Option)) Painter.setBrush(Highlight);
    Painter.drawRoundedRect(Tile, Pad, Pad);
    if (!InHand) return;
    const bool On = IsSelected(Option);
    Painter.setBrush(Qt::NoBrush);
    Painter.setPen(QPen(On ? Option.palette.color(QPalette::HighlightedText) : Highlight, 2));
    Painter.drawRoundedRect(Tile.adjusted(2, 2, -2, -2), Pad - 2, Pad - 2);
}

void TileDelegate::PaintPicture(QPainter& Painter, const QStyleOptionViewItem& Option,
                                int Row) const {
    const int Side = mPictures.Side();
    QRect Room(0, Option.rect.top() + 2 * Pad, Side, Side);
    Room.moveLeft(Option.rect.center().x() - Side / 2);
    const TilePicture Shown = mPictures.Of(Row);
    if (Shown.Picture.isNull())
        return PaintStandIn(Painter, Option, Room,
                            Shown.IsUnreadable ? tr("Cannot be read") : QString());
    // one for another size is drawn at this one until the right one comes
    const bool Ready = Shown.Side == mPictures.SideInPixels();
    const QSizeF Pixels = QSizeF(Shown.Picture.size()) / Painter.device()->devicePixelRatioF();
    const QSizeF Size = Ready ? Pixels : Pixels.scaled(Room.size(), Qt::KeepAspectRatio);
    QRectF Place({}, Size);
    Place.moveCenter(QRectF(Room).center());
    if (Ready) Place.moveTopLeft(Place.topLeft().toPoint());  // pixel on pixel
    Painter.setRenderHint(QPainter::SmoothPixmapTransform, !Ready);
    Painter.drawImage(Place, Shown.Picture);
}

// A frame where the picture will be, or words where there is none.
void TileDelegate::PaintStandIn(QPainter& Painter, const QStyleOptionViewItem& Option,
                                const QRect& Room, const QString& Words) const {
    const auto Ink = IsSelected(Option) ? QPalette::HighlightedText : QPalette::PlaceholderText;
    QColor Frame = Option.palette.color(GroupOf(Option), Ink);
    Painter.setBrush(Qt::NoBrush);
    Painter.setPen(Frame);
    Painter.drawText(Room.adjusted(Pad, 0, -Pad, 0), Qt::AlignCenter | Qt::TextWordWrap, Words);
    Frame.setAlphaF(Frame.alphaF() / 3);
    Painter.setPen(Frame);
    const int Less = Room.height() / 8;
    Painter.drawRect(QRectF(Room.adjusted(0, Less, 0, -Less)).adjusted(0.5, 0.5, -0.5, -0.5));
}

void TileDelegate::PaintCaption(QPainter& Painter, const QStyleOptionViewItem& Option,
                                const QString& Caption) const {
    const QString Text = Caption.isEmpty() ? tr("No caption") : Caption.simplified();
    const auto Faint = Caption.isEmpty() ? QPalette::PlaceholderText : QPalette::Text;
    const auto Ink = IsSelected(Option) ? QPalette::HighlightedText : Faint;
    const QRect Room = CaptionRect(Option.rect);
    Painter.setFont(Option.font);
    Painter.setPen(Option.palette.color(GroupOf(Option), Ink));
    Painter.drawText(QRectF(Room), Shortened(Text, Option.font, Room.width()), Centred(Text));
}

QWidget* TileDelegate::createEditor(QWidget* Parent, const QStyleOptionViewItem&,
                                    const QModelIndex& Index) const {
    QLineEdit* Field = NewCaptionField(Parent);
    Field->setAccessibleName(
        tr("Caption of %1").arg(Index.data(Qt::AccessibleTextRole).toString()));
    return Field;
}

// What is being typed stays, whatever becomes of the slide elsewhere.
void TileDelegate::setEditorData(QWidget* Editor, const QModelIndex& Index) const {
    auto* Field = static_cast<QLineEdit*>(Editor);
    if (Field->isModified()) return;
    Field->setText(Index.data(Qt::EditRole).toString());
    Field->selectAll();
}

void TileDelegate::setModelData(QWidget* Editor, QAbstractItemModel*,
                                const QModelIndex& Index) const {
    auto* Field = static_cast<QLineEdit*>(Editor);
    if (!Field->isModified()) return;
    Field->setModified(false);
    Q_EMIT CaptionTyped(Index, CleanText(Field->text()));
}

// As wide as its words ask for: a small tile has no room for them.
void TileDelegate::updateEditorGeometry(QWidget* Editor, const QStyleOptionViewItem& Option,
                                        const QModelIndex&) const {
    const QRect Caption = CaptionRect(Option.rect);
    const int Wanted = Editor->fontMetrics().averageCharWidth() * LeastLetters;
    const int Most = mView.viewport()->width();
    const int Width = std::min(std::max(Caption.width(), Wanted), Most);
    const int Left = std::clamp(Caption.center().x() - Width / 2, 0, Most - Width);
    const int Height = Editor->sizeHint().height();
    Editor->setGeometry(Left, Caption.center().y() - Height / 2, Width, Height);
}

bool TileDelegate::helpEvent(QHelpEvent* Event, QAbstractItemView* View,
                             const QStyleOptionViewItem& Option, const QModelIndex& Index) {
    if (Event->type() != QEvent::ToolTip || !Index.isValid())
        return QStyledItemDelegate::helpEvent(Event, View, Option, Index);
    const QString Text = Index.data(Qt::DisplayRole).toString().simplified();
    const bool IsWhole =
        Shortened(Text, View->font(), CaptionRect(mView.visualRect(Index)).width()) == Text;
    const QString Tip = QStringLiteral("<qt>%1</qt>").arg(Text.toHtmlEscaped());
    QToolTip::showText(Event->globalPos(), IsWhole ? QString() : Tip, View);
    return true;
}

void TileDelegate::End(QWidget* Editor, CaptionKey Asked) {
    const int Step = Asked == CaptionKey::StoreAndNext       ? 1
                     : Asked == CaptionKey::StoreAndPrevious ? -1
                                                             : 0;
    // the next one as the list stands now: with its new caption the slide may go elsewhere
    const QPersistentModelIndex Next =
        mView.currentIndex().siblingAtRow(mView.currentIndex().row() + Step);
    if (Asked != CaptionKey::Leave) Q_EMIT commitData(Editor);
    Q_EMIT closeEditor(Editor, NoHint);
    if (Step != 0 && Next.isValid()) mView.EditCaption(Next);
}

// Enter and Esc end here: they must not open the picture or leave the album.
bool TileDelegate::eventFilter(QObject* Watched, QEvent* Event) {
    const CaptionKey Asked = CaptionKeyOf(*Event);
    if (Asked == CaptionKey::None) return QStyledItemDelegate::eventFilter(Watched, Event);
    End(static_cast<QWidget*>(Watched), Asked);
    return true;
}

}  // namespace neb
