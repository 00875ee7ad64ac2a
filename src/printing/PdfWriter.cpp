#include "printing/PdfWriter.h"

#include <cairo-pdf.h>

#include <exception>

#include "printing/FileBeside.h"
#include "printing/TextLines.h"
#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {
namespace {

constexpr double PointsToTheInch = 72;
// Beyond this nobody sees a difference on paper.
constexpr double MostDotsToTheInch = 600;
constexpr int NumberOfStandIn = -1;

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

Surface Owned(cairo_surface_t* Made) {
    return {Made, &cairo_surface_destroy};
}

// How the unit square of a stored picture comes upright, for the eight EXIF orientations.
constexpr cairo_matrix_t Turns[] = {{1, 0, 0, 1, 0, 0},   {-1, 0, 0, 1, 1, 0}, {-1, 0, 0, -1, 1, 1},
                                    {1, 0, 0, -1, 0, 1},  {0, 1, 1, 0, 0, 0},  {0, 1, -1, 0, 1, 0},
                                    {0, -1, -1, 0, 1, 1}, {0, -1, 1, 0, 0, 1}};

// A picture as the library takes it.
struct PdfPicture {
    Surface Pixels = Owned(nullptr);
    int Orientation = 1;
};

void Attach(cairo_surface_t* To, const char* Kind, const QByteArray& Bytes) {
    auto* Kept = new QByteArray(Bytes);
    cairo_surface_set_mime_data(
        To, Kind, reinterpret_cast<const uchar*>(Kept->constData()),
        static_cast<unsigned long>(Kept->size()),
        [](void* Data) { delete static_cast<QByteArray*>(Data); }, Kept);
}

// One dot holds its place, for the library takes the size from the file's bytes, and would touch
// all the pixels of a larger one.
PdfPicture AsItIs(const QByteArray& Bytes, const PlainJpeg& Plain) {
    PdfPicture Made{Owned(cairo_image_surface_create(CAIRO_FORMAT_RGB24, 1, 1)), Plain.Orientation};
    Attach(Made.Pixels.get(), CAIRO_MIME_TYPE_JPEG, Bytes);
    return Made;
}

// Format: of the pixels, which are as the library's.
PdfPicture FromPixels(const QImage& Image, cairo_format_t Format = CAIRO_FORMAT_RGB24) {
    PdfPicture Made{Owned(cairo_image_surface_create(Format, Image.width(), Image.height()))};
    uchar* const Into = cairo_image_surface_get_data(Made.Pixels.get());
    if (!Into) throw Fault(tr("There is not enough memory for the picture."));
    const int Stride = cairo_image_surface_get_stride(Made.Pixels.get());
    for (int Y = 0; Y < Image.height(); ++Y)
        std::copy_n(Image.constScanLine(Y), qsizetype(Image.width()) * 4, Into + Y * Stride);
    cairo_surface_mark_dirty(Made.Pixels.get());
    return Made;
}

PdfPicture Prepared(const PrintPicture& Picture, QSizeF Inches) {
    const QByteArray Bytes = FileBytesOf(Picture);
    if (const auto Plain = ReadPlainJpeg(Bytes)) return AsItIs(Bytes, *Plain);
    return FromPixels(PixelsOf(Picture, (Inches * MostDotsToTheInch).toSize()));
}

// Under its name the library knows it again on later pages; the same one at another size differs.
PdfPicture Named(PdfPicture Picture, int Number) {
    cairo_surface_t* const Pixels = Picture.Pixels.get();
    const int Parts[] = {Number, cairo_image_surface_get_width(Pixels),
                         cairo_image_surface_get_height(Pixels)};
    Attach(Pixels, CAIRO_MIME_TYPE_UNIQUE_ID,
           QByteArray(reinterpret_cast<const char*>(Parts), sizeof Parts));
    return Picture;
}

void AddPath(cairo_t* Paper, const QPainterPath& Path) {
    for (int I = 0; I < Path.elementCount(); ++I) {
        const QPainterPath::Element At = Path.elementAt(I);
        if (At.isMoveTo()) cairo_move_to(Paper, At.x, At.y);
        if (At.isLineTo()) cairo_line_to(Paper, At.x, At.y);
        if (!At.isCurveTo()) continue;
        // its other two points follow as elements of their own
        const QPainterPath::Element Second = Path.elementAt(++I), End = Path.elementAt(++I);
        cairo_curve_to(Paper, At.x, At.y, Second.x, Second.y, End.x, End.y);
    }
}

class PdfFile {
  public:
    PdfFile(const PrintDocument& Document, const QString& Path)
        : mDocument(Document),
          mPath(Path),
          mFile(Path),
          mSurface(MakeSurface()),
          mPaper(cairo_create(mSurface.get())) {
        cairo_pdf_surface_set_metadata(mSurface.get(), CAIRO_PDF_METADATA_CREATOR,
                                       "NEB Slide Show");
        if (!mDocument.Title().isEmpty())
            cairo_pdf_surface_set_metadata(mSurface.get(), CAIRO_PDF_METADATA_TITLE,
                                           mDocument.Title().toUtf8().constData());
    }
    ~PdfFile() {
        mOver = true;
        cairo_destroy(mPaper);
    }
    PdfFile(const PdfFile&) = delete;
    PdfFile& operator=(const PdfFile&) = delete;

    // False as soon as GoOn says so.
    bool DrawPages(const PrintGoOn& GoOn) {
        for (int Page = 1; Page <= mDocument.PageCount(); ++Page) {
            if (!DrawPage(Page, GoOn)) return false;
            cairo_show_page(mPaper);
            ThrowIfBroken();
        }
        return true;
    }
    void Finish() {
        cairo_surface_finish(mSurface.get());
        ThrowIfBroken();
        mFile.TakePlace();
    }

  private:
    cairo_surface_t* Stream() {
        const QSizeF Size = mDocument.PageSize() * PointsToTheInch;
        return cairo_pdf_surface_create_for_stream(
            [](void* Self, const uchar* Data, unsigned Length) {
                return static_cast<PdfFile*>(Self)->Take(Data, Length);
            },
            this, Size.width(), Size.height());
    }
    Surface MakeSurface() { return Owned(Stream()); }
    // The library is no place through which a fault may fly.
    cairo_status_t Take(const uchar* Data, unsigned Length) noexcept {
        if (mProblem || mOver) return CAIRO_STATUS_WRITE_ERROR;
        try {
            mFile.Write(reinterpret_cast<const char*>(Data), Length);
            return CAIRO_STATUS_SUCCESS;
        } catch (...) {
            mProblem = std::current_exception();
            return CAIRO_STATUS_WRITE_ERROR;
        }
    }
    void ThrowIfBroken() const {
        if (mProblem) std::rethrow_exception(mProblem);
        const cairo_status_t OfPaper = cairo_status(mPaper);
        const cairo_status_t Is = OfPaper ? OfPaper : cairo_surface_status(mSurface.get());
        if (Is == CAIRO_STATUS_SUCCESS) return;
        throw Fault(
            tr("The PDF file cannot be made. (%1)").arg(QLatin1String(cairo_status_to_string(Is))),
            mPath);
    }

    bool DrawPage(int Page, const PrintGoOn& GoOn) {
        PdfPicture Picture;
        int Held = -1;
        for (const PlacedPicture& Placed : mDocument.PlacesOn(Page)) {
            if (Placed.Picture != Held) Picture = PictureFor(Placed);
            Held = Placed.Picture;
            Draw(Picture, Placed.Place);
            if (GoOn && !GoOn({++mDone, mDocument.PlaceCount()})) return false;
        }
        for (const PlacedText& Text : mDocument.TextsOn(Page)) {
            Draw(InkOf(Text));
            if (GoOn && !GoOn({mDone, mDocument.PlaceCount()})) return false;
        }
        return true;
    }
    PdfPicture PictureFor(const PlacedPicture& Placed) const {
        const QSizeF Inches = Placed.Place.size();
        try {
            return Named(Prepared(mDocument.Picture(Placed.Picture), Inches), Placed.Picture);
        } catch (const Fault&) {
            return Named(Prepared(mDocument.StandIn(), Inches), NumberOfStandIn);
        }
    }
    void Draw(const PdfPicture& Picture, const QRectF& Place) {
        const double Width = cairo_image_surface_get_width(Picture.Pixels.get());
        const double Height = cairo_image_surface_get_height(Picture.Pixels.get());
        cairo_save(mPaper);
        cairo_scale(mPaper, PointsToTheInch, PointsToTheInch);
        cairo_translate(mPaper, Place.x(), Place.y());
        cairo_scale(mPaper, Place.width(), Place.height());
        cairo_transform(mPaper, &Turns[Picture.Orientation - 1]);
        cairo_scale(mPaper, 1 / Width, 1 / Height);
        cairo_set_source_surface(mPaper, Picture.Pixels.get(), 0, 0);
        cairo_paint(mPaper);
        cairo_restore(mPaper);
    }

    void Draw(const TextInk& Ink) {
        DrawOutlines(Ink.Outlines);
        for (const TextInk::Emoji& Each : Ink.Emojis)
            Draw(FromPixels(Each.Picture, CAIRO_FORMAT_ARGB32), Each.Place);
    }
    void DrawOutlines(const QPainterPath& Outlines) {
        cairo_save(mPaper);
        cairo_scale(mPaper, PointsToTheInch, PointsToTheInch);
        AddPath(mPaper, Outlines);
        cairo_set_source_rgb(mPaper, 0, 0, 0);
        cairo_fill(mPaper);
        cairo_restore(mPaper);
    }

    const PrintDocument& mDocument;
    const QString mPath;
    std::exception_ptr mProblem;
    bool mOver = false;  // nothing more is to be written
    int mDone = 0;
    FileBeside mFile;
    Surface mSurface;
    cairo_t* const mPaper;
};

}  // namespace

bool WritePdf(const PrintDocument& Document, const QString& Path, const PrintGoOn& GoOn) {
    PdfFile File(Document, Path);
    if (!File.DrawPages(GoOn)) return false;
    File.Finish();
    return true;
}

}  // namespace neb
