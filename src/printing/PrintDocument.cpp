#include "printing/PrintDocument.h"

#include <QLocale>

#include "printing/TextLines.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/modNumbers.h"
#include "support/work/AheadQueue.h"

namespace neb {
namespace {

const QString Unit = QStringLiteral("in");

// The number under which a key is known, or the next one.
template <class Key>
int KnownAs(QHash<Key, int>& Known, const Key& Wanted, int Next) {
    const auto Found = Known.constFind(Wanted);
    if (Found != Known.constEnd()) return *Found;
    Known.insert(Wanted, Next);
    return Next;
}

// Those of the page out of those of all pages.
template <class Placed, class Start>
std::span<const Placed> OfPage(const std::vector<Placed>& All, const std::vector<Start>& Starts,
                               std::size_t Start::*First, int Page) {
    const Start& At = Starts.at(static_cast<std::size_t>(Page) - 1);
    const auto Next = static_cast<std::size_t>(Page);
    const std::size_t End = Next < Starts.size() ? Starts[Next].*First : All.size();
    return std::span(All).subspan(At.*First, End - At.*First);
}

void DrawSmoothly(QPainter& Painter, const QRectF& Target, const QImage& Pixels) {
    Painter.save();
    Painter.setRenderHint(QPainter::SmoothPixmapTransform);
    Painter.drawImage(Target, Pixels);
    Painter.restore();
}

QImage PixelsOrStandIn(const PrintPicture& Picture, const PrintPicture& StandIn, QSize Most) {
    try {
        return PixelsOf(Picture, Most);
    } catch (const Fault&) {
        return PixelsOf(StandIn, Most);
    }
}

void DrawInk(QPainter& Painter, const TextInk& Ink, double Scale) {
    const QTransform ToDots = QTransform::fromScale(Scale, Scale);
    Painter.save();
    Painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    Painter.fillPath(ToDots.map(Ink.Outlines), Qt::black);
    for (const TextInk::Emoji& Each : Ink.Emojis)
        Painter.drawImage(ToDots.mapRect(Each.Place), Each.Picture);
    Painter.restore();
}

}  // namespace

QString InchText(double Inches) {
    return ShortestDecimal(Inches) + Unit;
}

double InchesIn(const QString& Text) {
    bool Sound = Text.endsWith(Unit);
    const double Inches = Sound ? QStringView(Text).chopped(Unit.size()).toDouble(&Sound) : 0;
    if (!Sound || !std::isfinite(Inches))
        throw Fault(tr("\"%1\" is no measure in inches.").arg(Text));
    return Inches;
}

QSizeF PaperOfCountry() {
    using enum QLocale::Country;
    constexpr QLocale::Territory OnLetter[] = {
        UnitedStates, Canada,    Mexico,    Belize, Chile,      Colombia,    CostaRica,
        ElSalvador,   Guatemala, Nicaragua, Panama, PuertoRico, Philippines, Venezuela};
    const auto Country = QLocale::system().territory();
    return std::ranges::find(OnLetter, Country) != std::end(OnLetter) ? LetterPaper : A4Paper;
}

PrintDocument::PrintDocument(PrintPicture StandIn, QSizeF Paper)
    : mStandIn(std::move(StandIn)), mPaper(Paper) {}

QSizeF PrintDocument::PageSize() const {
    return mOrientation == PageTurn::Landscape ? mPaper.transposed() : mPaper;
}

void PrintDocument::Clear() {
    mPictures.clear();
    mByPath.clear();
    mByBytes.clear();
    mByPart.clear();
    mPlaces.clear();
    mTexts.clear();
    mPageStarts.clear();
    mOpen = false;
}

void PrintDocument::StartDoc() {
    Clear();
    mPageStarts.emplace_back();
    mOpen = true;
}

void PrintDocument::MustBeOpen() const {
    if (!mOpen) throw Fault(tr("The document is not being composed."));
}

void PrintDocument::NewPage() {
    MustBeOpen();
    mPageStarts.push_back({mPlaces.size(), mTexts.size()});
}

void PrintDocument::DrawPicture(const PrintPicture& Picture, const QString& X, const QString& Y,
                                const QString& Width, const QString& Height) {
    DrawPicture(Picture, QRectF(InchesIn(X), InchesIn(Y), InchesIn(Width), InchesIn(Height)));
}

void PrintDocument::DrawPicture(const PrintPicture& Picture, const QRectF& Inches) {
    MustBeOpen();
    const double Sum = Inches.x() + Inches.y() + Inches.width() + Inches.height();
    if (!(Inches.width() > 0 && Inches.height() > 0 && std::isfinite(Sum)))
        throw Fault(tr("A picture of %1 by %2 cannot be drawn.")
                        .arg(InchText(Inches.width()), InchText(Inches.height())));
    mPlaces.push_back({NumberOf(Picture), Inches});
}

void PrintDocument::DrawText(const PlacedText& Text) {
    MustBeOpen();
    if (!Text.Text.isEmpty()) mTexts.push_back(Text);
}

void PrintDocument::EndDoc() {
    MustBeOpen();
    mOpen = false;
}

int PrintDocument::NumberOf(const PrintPicture& Picture) {
    const int Next = static_cast<int>(mPictures.size());
    const ShelfPart Part{Picture.Shelf.get(), {Picture.At, Picture.Length}};
    const int Number = Picture.Shelf            ? KnownAs(mByPart, Part, Next)
                       : Picture.Path.isEmpty() ? KnownAs(mByBytes, Picture.Bytes, Next)
                                                : KnownAs(mByPath, Picture.Path, Next);
    if (Number == Next) mPictures.push_back(Picture);
    return Number;
}

std::span<const PlacedPicture> PrintDocument::PlacesOn(int Page) const {
    return OfPage(mPlaces, mPageStarts, &PageStart::Place, Page);
}

std::span<const PlacedText> PrintDocument::TextsOn(int Page) const {
    return OfPage(mTexts, mPageStarts, &PageStart::Text, Page);
}

QRectF PrintDocument::ContentOf(int Page) const {
    QRectF Content;
    for (const PlacedPicture& Each : PlacesOn(Page)) Content |= Each.Place;
    for (const PlacedText& Each : TextsOn(Page)) Content |= Each.Place;
    return Content;
}

std::vector<PrintDocument::ToDraw> PrintDocument::ToDrawOn(int Page, const QPainter& Painter,
                                                           double Scale) const {
    std::vector<ToDraw> All;
    for (const PlacedPicture& Placed : PlacesOn(Page)) {
        const QRectF Target(Placed.Place.topLeft() * Scale, Placed.Place.size() * Scale);
        const QSize Dots = Painter.deviceTransform().mapRect(Target).size().toSize();
        // A sheet shows one picture many times.
        const bool Again =
            !All.empty() && All.back().Number == Placed.Picture && All.back().Dots == Dots;
        if (Again)
            All.back().Targets.push_back(Target);
        else
            All.push_back({Placed.Picture, Picture(Placed.Picture), Dots, {Target}});
    }
    return All;
}

// The pictures are read side by side on all processors.
void PrintDocument::PaintPage(QPainter& Painter, int Page, double Scale) const {
    AheadQueue<ToDraw, QImage> Ahead(ToDrawOn(Page, Painter, Scale),
                                     [StandIn = mStandIn](const ToDraw& Is) {
                                         return PixelsOrStandIn(Is.Picture, StandIn, Is.Dots);
                                     });
    while (!Ahead.AtEnd()) {
        const std::vector<QRectF> Targets = Ahead.Next().Targets;
        const QImage Pixels = Ahead.Take();
        for (const QRectF& Target : Targets) DrawSmoothly(Painter, Target, Pixels);
    }
    for (const PlacedText& Text : TextsOn(Page)) DrawInk(Painter, InkOf(Text), Scale);
}

}  // namespace neb
