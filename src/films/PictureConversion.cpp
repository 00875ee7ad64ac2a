#include "films/PictureConversion.h"

extern "C" {
#include <libavutil/imgutils.h>
}

namespace neb {

void PictureConversion::Convert(const std::uint8_t* Pixels, std::ptrdiff_t Stride, AVFrame& Into) {
    if (Into.format == AV_PIX_FMT_BGR0) {
        av_image_copy_plane(Into.data[0], Into.linesize[0], Pixels, static_cast<int>(Stride),
                            Into.width * 4, Into.height);
        return;
    }
    if (!mScaler) {
        mScaler.reset(sws_getContext(
            Into.width, Into.height, AV_PIX_FMT_BGR0, Into.width, Into.height, AV_PIX_FMT_YUV420P,
            SWS_BILINEAR | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INP, nullptr, nullptr, nullptr));
        const int* C = sws_getCoefficients(SWS_CS_ITU709);
        sws_setColorspaceDetails(mScaler.get(), C, 1, C, 0, 0, 1 << 16, 1 << 16);
    }
    const int S = static_cast<int>(Stride);
    sws_scale(mScaler.get(), &Pixels, &S, 0, Into.height, Into.data, Into.linesize);
}

}  // namespace neb
