// A document to be printed: pages of pictures, each at a place in inches from the page's edge. It
// is composed once (StartDoc, DrawPicture, NewPage, EndDoc) and then looked at, printed and written
// alike. Pictures are kept by reference and read when they are wanted (PrintPicture.h), so that a
// thousand pages take next to no memory. Used by what composes sheets, by PdfWriter and by the
// preview.
#pragma once

#include <QHash>
#include <QPainter>
#include <span>
#include <vector>

#include "printing/PageLayouts.h"
#include "printing/PrintPicture.h"

namespace neb {

// What long printing tells and asks while it runs, in pictures: false ends it.
struct PrintProgress {
    int Done = 0;
    int Total = 0;
};
using PrintGoOn = std::function<bool(const PrintProgress& Now)>;

// Inches as the document takes them, such as "1.5in", and back. Throws Fault for what is no such
// text.
QString InchText(double Inches);
double InchesIn(const QString& Text);

// Sheets of paper, upright, in inches.
inline constexpr QSizeF LetterPaper{8.5, 11.0};
inline constexpr QSizeF A4Paper{210 / 25.4, 297 / 25.4};
// The paper that the user's country prints on.
QSizeF PaperOfCountry();

struct PlacedPicture {
    int Picture = 0;  // its number in the document
    QRectF Place;     // inches from the page's top left corner
};

// Left: where a text begins, which for one that is read from right to left is the right.
enum class TextSide { Left, Right };

// A text within a place: as many lines as have room, the last one cut short where there is more.
struct PlacedText {
    QString Text;
    QRectF Place;  // inches from the page's top left corner
    TextSide Side = TextSide::Left;
};

class PrintDocument {
  public:
    // StandIn is drawn in place of a picture that cannot be read.
    explicit PrintDocument(PrintPicture StandIn, QSizeF Paper = LetterPaper);

    // What the user calls it: an album's name, say. Empty for none; not kept in a file.
    const QString& Title() const { return mTitle; }
    void SetTitle(const QString& Title) { mTitle = Title; }
    PageTurn Orientation() const { return mOrientation; }
    void SetOrientation(PageTurn Turn) { mOrientation = Turn; }
    const QSizeF& Paper() const { return mPaper; }  // inches, upright
    QSizeF PageSize() const;                        // inches, turned

    // As texts with their unit. The places of pictures do not depend on them.
    const QMarginsF& Margins() const { return mMargins; }  // inches
    void SetMarginLeft(const QString& Text) { mMargins.setLeft(InchesIn(Text)); }
    void SetMarginRight(const QString& Text) { mMargins.setRight(InchesIn(Text)); }
    void SetMarginTop(const QString& Text) { mMargins.setTop(InchesIn(Text)); }
    void SetMarginBottom(const QString& Text) { mMargins.setBottom(InchesIn(Text)); }

    void Clear();  // no pages are left
    // A document with an empty first page; what was composed before goes.
    void StartDoc();
    // These throw Fault outside StartDoc and EndDoc.
    void NewPage();
    // X, Y, Width and Height as texts in inches. Throws Fault when they are none, or no size.
    void DrawPicture(const PrintPicture& Picture, const QString& X, const QString& Y,
                     const QString& Width, const QString& Height);
    void DrawPicture(const PrintPicture& Picture, const QRectF& Inches);  // throws alike
    void DrawText(const PlacedText& Text);  // an empty one is not kept
    void EndDoc();

    int PageCount() const { return static_cast<int>(mPageStarts.size()); }
    int PlaceCount() const { return static_cast<int>(mPlaces.size()); }
    int PictureCount() const { return static_cast<int>(mPictures.size()); }  // numbers from 0
    // Pages from 1, as the user counts them.
    std::span<const PlacedPicture> PlacesOn(int Page) const;
    std::span<const PlacedText> TextsOn(int Page) const;
    const PrintPicture& Picture(int Number) const { return mPictures[Number]; }
    const PrintPicture& StandIn() const { return mStandIn; }

    // The smallest box around all that stands on a page, in inches; empty for an empty page.
    QRectF ContentOf(int Page) const;

    // Draws a page with its top left corner at the painter's origin, Scale units of the painter to
    // the inch. Throws Fault when not even the picture that stands in can be read.
    void PaintPage(QPainter& Painter, int Page, double Scale) const;

  private:
    void MustBeOpen() const;
    int NumberOf(const PrintPicture& Picture);
    // A picture of a page at one size, and all the places where it is drawn one after the other.
    struct ToDraw {
        int Number;
        PrintPicture Picture;
        QSize Dots;
        std::vector<QRectF> Targets;
    };
    std::vector<ToDraw> ToDrawOn(int Page, const QPainter& Painter, double Scale) const;

    PrintPicture mStandIn;
    QString mTitle;
    QSizeF mPaper;
    PageTurn mOrientation = PageTurn::Portrait;
    QMarginsF mMargins;
    bool mOpen = false;
    std::vector<PrintPicture> mPictures;  // each once
    QHash<QString, int> mByPath;
    QHash<QByteArray, int> mByBytes;
    using ShelfPart = std::pair<const PictureShelf*, std::pair<qint64, qint64>>;
    QHash<ShelfPart, int> mByPart;
    // Where the places and the texts of a page begin among those of all pages.
    struct PageStart {
        std::size_t Place = 0, Text = 0;
    };
    std::vector<PlacedPicture> mPlaces;
    std::vector<PlacedText> mTexts;
    std::vector<PageStart> mPageStarts;
};

}  // namespace neb
