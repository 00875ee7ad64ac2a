// JPEG by libjpeg itself: it can leave pixels away that nobody needs while it decodes, and it
// tells when a file ends too early.
#include <csetjmp>
#include <cstdio>

// Wants the sizes of <cstdio>.
#include <jpeglib.h>

#include <jerror.h>

#include "pictures/decoders/PictureColour.h"
#include "pictures/formats/DecodeHost.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/PictureOrientation.h"
#include "pictures/formats/TiffTags.h"
#include "support/work/WorkTimer.h"

namespace neb {
namespace {

constexpr int ExifMarker = JPEG_APP0 + 1, ProfileMarker = JPEG_APP0 + 2;
// No real file has as many passes over the picture; a hostile one may, to keep us busy.
constexpr int MostScans = 300;
constexpr int MostMilliseconds = 8000;
constexpr auto ScreenOrder = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? JCS_EXT_BGRX : JCS_EXT_XRGB;

class JpegReader {
  public:
    explicit JpegReader(const PictureSource& Source);
    ~JpegReader() { jpeg_destroy_decompress(&mInfo); }
    JpegReader(const JpegReader&) = delete;
    JpegReader& operator=(const JpegReader&) = delete;
    DecodedPicture Decode();

  private:
    // Every call into the library goes through here: what it reports by a jump arrives as a
    // Fault. Step must own nothing, since a jump runs no destructors.
    template <class Step>
    void Guard(Step Do) {
        if (setjmp(mJump)) ThrowWhatHappened();
        Do();
    }
    void ReadHeader();
    void ReadExif();
    void ReadProfile();
    void ChooseScale(const NeededSize& Needed);
    void ChooseColours();
    qint64 BytesNeeded() const;
    static QImage Canvas(QSize Size);
    void ReadLines();
    void ThrowIfCut() const;
    QImage Finish();
    [[noreturn]] void ThrowWhatHappened() const;

    static JpegReader& Of(j_common_ptr Info) {
        return *static_cast<JpegReader*>(Info->client_data);
    }
    static void OnError(j_common_ptr Info);
    static void OnMessage(j_common_ptr Info, int Level);
    static void OnProgress(j_common_ptr Info);

    const PictureSource& mSource;
    jpeg_decompress_struct mInfo = {};
    jpeg_error_mgr mErrors = {};
    jpeg_progress_mgr mProgress = {};
    std::jmp_buf mJump;
    WorkTimer mTime;
    unsigned mSteps = 0;
    char mMessage[JMSG_LENGTH_MAX] = {};
    QImage mPicture;
    QByteArray mProfile;
    int mOrientation;
    bool mEnded = false;  // the library met the end of the file
    bool mLost = false;   // and had to make up pixels
    bool mTooLong = false;
};

JpegReader::JpegReader(const PictureSource& Source)
    : mSource(Source), mOrientation(OrientationOf(Source.Bytes)) {
    mInfo.err = jpeg_std_error(&mErrors);
    mErrors.error_exit = OnError;
    mErrors.emit_message = OnMessage;
    mErrors.output_message = [](j_common_ptr) {};
    mProgress.progress_monitor = OnProgress;
    mInfo.client_data = this;
}

void JpegReader::OnError(j_common_ptr Info) {
    Info->err->format_message(Info, Of(Info).mMessage);
    std::longjmp(Of(Info).mJump, 1);
}

void JpegReader::OnMessage(j_common_ptr Info, int Level) {
    if (Level >= 0) return;
    const int Code = Info->err->msg_code;
    if (Code == JWRN_JPEG_EOF) Of(Info).mEnded = true;
    if (Code == JWRN_HIT_MARKER) Of(Info).mLost = true;
}

void JpegReader::OnProgress(j_common_ptr Info) {
    JpegReader& Self = Of(Info);
    // It comes with every line: to look at the clock as often would cost more than it tells.
    constexpr unsigned StepsBetweenLooks = 16;
    const bool IsInTime =
        ++Self.mSteps % StepsBetweenLooks != 0 || Self.mTime.Milliseconds() < MostMilliseconds;
    if (Self.mInfo.input_scan_number <= MostScans && IsInTime) return;
    Self.mTooLong = true;
    std::longjmp(Self.mJump, 1);
}

void JpegReader::ThrowWhatHappened() const {
    if (mEnded) ThrowEndsEarly();
    if (mTooLong) ThrowDamaged();
    ThrowDamaged(QString::fromLatin1(mMessage));
}

void JpegReader::ReadHeader() {
    Guard([this] {
        jpeg_create_decompress(&mInfo);
        mInfo.progress = &mProgress;
        jpeg_mem_src(&mInfo, reinterpret_cast<const uchar*>(mSource.Bytes.constData()),
                     static_cast<unsigned long>(mSource.Bytes.size()));
        jpeg_save_markers(&mInfo, ExifMarker, 0xFFFF);
        jpeg_save_markers(&mInfo, ProfileMarker, 0xFFFF);
        jpeg_read_header(&mInfo, TRUE);
    });
}

void JpegReader::ReadExif() {
    for (const auto* Marker = mInfo.marker_list; Marker; Marker = Marker->next) {
        const QByteArrayView Bytes(Marker->data, Marker->data_length);
        if (Marker->marker != ExifMarker || !Bytes.startsWith(QByteArrayView("Exif\0\0", 6)))
            continue;
        const TiffTags Tags(Bytes.sliced(6));
        if (Tags.IsAdobeRgb()) mProfile = AdobeRgbProfile();
        return;
    }
}

void JpegReader::ReadProfile() {
    JOCTET* Bytes = nullptr;
    unsigned int Length = 0;
    if (!jpeg_read_icc_profile(&mInfo, &Bytes, &Length)) return;
    mProfile = QByteArray(reinterpret_cast<const char*>(Bytes), Length);
    std::free(Bytes);
}

void JpegReader::ChooseScale(const NeededSize& Needed) {
    mInfo.scale_denom = 8;
    mInfo.scale_num = 8;
    const QSize Full(static_cast<int>(mInfo.image_width), static_cast<int>(mInfo.image_height));
    const QSize Least =
        Needed ? UprightSize(Needed(UprightSize(Full, mOrientation)), mOrientation) : Full;
    // The eighths between these are slower to decode than more pixels are.
    for (unsigned Eighths : {4U, 2U, 1U}) {
        const auto Scaled = [Eighths](int Side) { return int((Side * Eighths + 7) / 8); };
        if (Scaled(Full.width()) < Least.width() || Scaled(Full.height()) < Least.height()) break;
        mInfo.scale_num = Eighths;
    }
    Guard([this] { jpeg_calc_output_dimensions(&mInfo); });
}

void JpegReader::ChooseColours() {
    const auto Space = mInfo.jpeg_color_space;
    const bool Inks = Space == JCS_CMYK || Space == JCS_YCCK;
    const bool Grey = Space == JCS_GRAYSCALE;
    mInfo.out_color_space = Inks ? JCS_CMYK : Grey ? JCS_GRAYSCALE : ScreenOrder;
}

// The coefficients of all pixels stay in memory where the picture comes in several passes.
qint64 JpegReader::BytesNeeded() const {
    const qint64 Pixels = qint64(mInfo.output_width) * mInfo.output_height;
    qint64 Blocks = 0;
    if (jpeg_has_multiple_scans(const_cast<j_decompress_ptr>(&mInfo)))
        for (int C = 0; C < mInfo.num_components; ++C)
            Blocks += qint64(mInfo.comp_info[C].width_in_blocks + 4) *
                      (mInfo.comp_info[C].height_in_blocks + 4);
    return Pixels * (mOrientation == 1 ? 4 : 8) + Blocks * qint64(sizeof(JBLOCK)) +
           mSource.Bytes.size();
}

QImage JpegReader::Canvas(QSize Size) {
    const qsizetype Line = qsizetype(Size.width()) * 4;
    uchar* const Place = TheDecodeHost().PlaceFor(Line * Size.height());
    if (!Place) return QImage(Size, QImage::Format_RGB32);
    return QImage(Place, Size.width(), Size.height(), Line, QImage::Format_RGB32);
}

void JpegReader::ReadLines() {
    const bool Grey = mInfo.out_color_space == JCS_GRAYSCALE;
    const QSize Size(static_cast<int>(mInfo.output_width), static_cast<int>(mInfo.output_height));
    mPicture = Grey ? QImage(Size, QImage::Format_Grayscale8) : Canvas(Size);
    if (mPicture.isNull()) ThrowTooLarge(mPicture.size());
    uchar* const Bits = mPicture.bits();
    const qsizetype Stride = mPicture.bytesPerLine();
    Guard([this, Bits, Stride] {
        jpeg_start_decompress(&mInfo);
        while (mInfo.output_scanline < mInfo.output_height) {
            JSAMPROW Lines[8];
            for (int I = 0; I < 8; ++I) Lines[I] = Bits + (mInfo.output_scanline + I) * Stride;
            const JDIMENSION Left = mInfo.output_height - mInfo.output_scanline;
            jpeg_read_scanlines(&mInfo, Lines, std::min(Left, 8U));
        }
    });
}

// A file that has only lost its closing mark has all its pixels.
void JpegReader::ThrowIfCut() const {
    const bool Passes = jpeg_has_multiple_scans(const_cast<j_decompress_ptr>(&mInfo));
    if (mLost || (mEnded && Passes)) ThrowEndsEarly();
}

QImage JpegReader::Finish() {
    if (mInfo.out_color_space != JCS_CMYK) return ToScreenColours(std::move(mPicture), mProfile);
    for (int Y = 0; Y < mPicture.height(); ++Y) {
        auto* Line = reinterpret_cast<QRgb*>(mPicture.scanLine(Y));
        // Ink is stored as the paper that is left.
        std::for_each(Line, Line + mPicture.width(), [](QRgb& Pixel) { Pixel = ~Pixel; });
    }
    InksToScreenColours(mPicture, mProfile);
    return std::move(mPicture);
}

DecodedPicture JpegReader::Decode() {
    ReadHeader();
    ReadExif();
    ReadProfile();
    ChooseScale(mSource.Needed);
    ChooseColours();
    const QSize Full(static_cast<int>(mInfo.image_width), static_cast<int>(mInfo.image_height));
    const DecodeBudget Budget(Full, BytesNeeded());
    ReadLines();
    ThrowIfCut();
    return {Upright(Finish(), mOrientation), UprightSize(Full, mOrientation)};
}

}  // namespace

DecodedPicture DecodeJpeg(const PictureSource& Source) {
    return JpegReader(Source).Decode();
}

}  // namespace neb
