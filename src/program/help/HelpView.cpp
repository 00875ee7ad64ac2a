#include "program/help/HelpView.h"

#include <QEvent>
#include <QImage>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>

#include "controls/fields/HintColour.h"

namespace neb {
namespace {

constexpr int LeastZoom = -4, MostZoom = 12;
constexpr double Enough = 4.5;  // the contrast of a link to its ground
constexpr int Margin = 12;

QColor Between(const QColor& One, const QColor& Other, double Share) {
    return QColor::fromRgbF(float(One.redF() + (Other.redF() - One.redF()) * Share),
                            float(One.greenF() + (Other.greenF() - One.greenF()) * Share),
                            float(One.blueF() + (Other.blueF() - One.blueF()) * Share));
}

// Dark desktops often leave links at the dark blue of light ones.
QColor ReadableLink(const QPalette& Palette) {
    const QColor Link = Palette.color(QPalette::Link), Text = Palette.color(QPalette::Text);
    for (double Share = 0; Share < 1; Share += 0.05)
        if (const QColor Tried = Between(Link, Text, Share);
            Contrast(Tried, Palette.color(QPalette::Base)) >= Enough)
            return Tried;
    return Text;
}

QTextEdit::ExtraSelection SetOff(const QTextCursor& Place, const QPalette& Palette) {
    QTextEdit::ExtraSelection Made;
    Made.cursor = Place;
    Made.format.setBackground(Palette.highlight());
    Made.format.setForeground(Palette.highlightedText());
    return Made;
}

}  // namespace

HelpView::HelpView(QWidget* Parent) : QTextBrowser(Parent) {
    setOpenLinks(true);
    // one that came and went with the height of pictures would change their width, and so on
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    document()->setDocumentMargin(Margin);
    Dress();
}

void HelpView::Dress() {
    document()->setDefaultStyleSheet(
        QStringLiteral("a { color: %1 } td, th { padding: 3px 8px } th { text-align: left } "
                       "kbd { font-weight: bold } p, li { margin-top: 4px; margin-bottom: 4px }")
            .arg(ReadableLink(palette()).name()));
}

void HelpView::Show(const QString& Address) {
    QUrl Url = QUrl::fromLocalFile(Address.section(u'#', 0, 0));
    Url.setFragment(Address.section(u'#', 1));
    setSource(Url);
}

// Marks belong to the page on which they were found.
void HelpView::doSetSource(const QUrl& Name, QTextDocument::ResourceType Type) {
    setExtraSelections({});
    QTextBrowser::doSetSource(Name, Type);
}

void HelpView::Mark(const QStringList& Words) {
    QList<ExtraSelection> Found;
    for (const QString& Word : Words)
        for (auto At = document()->find(Word); !At.isNull(); At = document()->find(Word, At))
            Found << SetOff(At, palette());
    setExtraSelections(Found);
    const auto First =
        std::min_element(Found.begin(), Found.end(),
                         [](const auto& A, const auto& B) { return A.cursor < B.cursor; });
    if (First == Found.end()) return;
    QTextCursor Place = First->cursor;
    Place.clearSelection();
    setTextCursor(Place);
    ensureCursorVisible();
}

bool HelpView::FindNext(const QString& Text, bool Backward) {
    const auto Way = Backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (Text.isEmpty()) return true;
    if (find(Text, Way)) return true;
    const QTextCursor Before = textCursor();
    moveCursor(Backward ? QTextCursor::End : QTextCursor::Start);
    if (find(Text, Way)) return true;
    setTextCursor(Before);
    return false;
}

void HelpView::SetZoom(int Steps) {
    const int Wanted = std::clamp(Steps, LeastZoom, MostZoom);
    if (Wanted == mZoom) return;
    zoomIn(Wanted - mZoom);
    mZoom = Wanted;
}

void HelpView::wheelEvent(QWheelEvent* Event) {
    if (!(Event->modifiers() & Qt::ControlModifier)) return QTextBrowser::wheelEvent(Event);
    if (Event->angleDelta().y() != 0) SetZoom(mZoom + (Event->angleDelta().y() > 0 ? 1 : -1));
    Event->accept();
}

QVariant HelpView::loadResource(int Type, const QUrl& Name) {
    if (Type != QTextDocument::ImageResource) return QTextBrowser::loadResource(Type, Name);
    const QImage Picture(source().resolved(Name).toLocalFile());
    mPictureWidth = viewport()->width() - 2 * Margin;
    if (Picture.width() <= mPictureWidth || mPictureWidth <= 0) return Picture;
    return Picture.scaledToWidth(mPictureWidth, Qt::SmoothTransformation);
}

void HelpView::ReadAnew() {
    if (source().isEmpty()) return;
    const int Place = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(Place);
}

// Pictures that were made narrower for the page as it was.
void HelpView::resizeEvent(QResizeEvent* Event) {
    QTextBrowser::resizeEvent(Event);
    const bool IsOther = mPictureWidth > 0 && viewport()->width() - 2 * Margin != mPictureWidth;
    if (IsOther) QMetaObject::invokeMethod(this, &HelpView::ReadAnew, Qt::QueuedConnection);
}

void HelpView::changeEvent(QEvent* Event) {
    QTextBrowser::changeEvent(Event);
    if (Event->type() != QEvent::PaletteChange) return;
    Dress();
    ReadAnew();
}

}  // namespace neb
