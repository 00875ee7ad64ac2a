// Memory for the pixels that another process decodes. What the system takes its time to give is
// taken while that one is at work, so that a picture that is waited for comes no later than if it
// were decoded here. Used by OneReading.
#pragma once

#include <QImage>
#include <cstdlib>
#include <utility>

namespace neb {

class PixelsAhead {
  public:
    PixelsAhead() = default;
    ~PixelsAhead() { std::free(mAt); }
    PixelsAhead(const PixelsAhead&) = delete;
    PixelsAhead& operator=(const PixelsAhead&) = delete;

    // Most: what has been granted to the one who decodes.
    void Take(qint64 Bytes, qint64 Most) {
        constexpr qint64 Page = 4096, Little = 1 << 20;
        if (mAt || Bytes < Little || Bytes > Most) return;
        mAt = static_cast<uchar*>(std::malloc(static_cast<size_t>(Bytes)));
        mBytes = mAt ? Bytes : 0;
        for (qint64 At = 0; At < mBytes; At += Page) mAt[At] = 0;
    }
    // Format_RGB32; null where there is no memory.
    QImage PictureOf(QSize Size) {
        const qsizetype Line = qsizetype(Size.width()) * 4;
        if (!mAt || Line * Size.height() != mBytes) return QImage(Size, QImage::Format_RGB32);
        uchar* const At = std::exchange(mAt, nullptr);
        return QImage(At, Size.width(), Size.height(), Line, QImage::Format_RGB32, std::free, At);
    }

  private:
    uchar* mAt = nullptr;
    qint64 mBytes = 0;
};

}  // namespace neb
