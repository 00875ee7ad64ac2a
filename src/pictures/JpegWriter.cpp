#include "pictures/JpegWriter.h"

#include <csetjmp>
#include <cstdio>

// Wants the sizes of <cstdio>.
#include <jpeglib.h>

#include "pictures/formats/PictureFaults.h"
#include "support/Texts.h"

namespace neb {
namespace {

class Writer {
  public:
    Writer();
    ~Writer();
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
    QByteArray Encode(const QImage& Picture, int Quality);

  private:
    void Describe(const QImage& Picture, int Quality);
    void WriteLines(const uchar* Bits, qsizetype Stride);
    static void OnError(j_common_ptr Info);

    jpeg_compress_struct mInfo = {};
    jpeg_error_mgr mErrors = {};
    std::jmp_buf mJump;
    uchar* mBytes = nullptr;
    unsigned long mLength = 0;
};

Writer::Writer() {
    mInfo.err = jpeg_std_error(&mErrors);
    mErrors.error_exit = OnError;
    mErrors.output_message = [](j_common_ptr) {};
    mInfo.client_data = this;
}

Writer::~Writer() {
    jpeg_destroy_compress(&mInfo);
    std::free(mBytes);
}

void Writer::OnError(j_common_ptr Info) {
    std::longjmp(static_cast<Writer*>(Info->client_data)->mJump, 1);
}

void Writer::Describe(const QImage& Picture, int Quality) {
    mInfo.image_width = static_cast<JDIMENSION>(Picture.width());
    mInfo.image_height = static_cast<JDIMENSION>(Picture.height());
    mInfo.input_components = 4;
    mInfo.in_color_space = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? JCS_EXT_BGRX : JCS_EXT_XRGB;
    jpeg_set_defaults(&mInfo);
    jpeg_set_quality(&mInfo, Quality, TRUE);
    for (int C = 0; C < mInfo.num_components; ++C)
        mInfo.comp_info[C].h_samp_factor = mInfo.comp_info[C].v_samp_factor = 1;
}

void Writer::WriteLines(const uchar* Bits, qsizetype Stride) {
    jpeg_start_compress(&mInfo, TRUE);
    while (mInfo.next_scanline < mInfo.image_height) {
        auto* Line = const_cast<JSAMPROW>(Bits + mInfo.next_scanline * Stride);
        jpeg_write_scanlines(&mInfo, &Line, 1);
    }
    jpeg_finish_compress(&mInfo);
}

QByteArray Writer::Encode(const QImage& Picture, int Quality) {
    if (setjmp(mJump))
        throw Fault(tr("The picture cannot be written as JPEG: it is empty or too "
                       "large."),
                    {}, FaultNotSaved);
    jpeg_create_compress(&mInfo);
    jpeg_mem_dest(&mInfo, &mBytes, &mLength);
    Describe(Picture, Quality);
    WriteLines(Picture.constBits(), Picture.bytesPerLine());
    return {reinterpret_cast<const char*>(mBytes), static_cast<qsizetype>(mLength)};
}

}  // namespace

QByteArray EncodeJpeg(const QImage& Picture, int Quality) {
    return Writer().Encode(Picture, Quality);
}

}  // namespace neb
