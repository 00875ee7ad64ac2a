#include "albums/transfer/TransferProgress.h"

#include <algorithm>
#include <cmath>

#include "support/Grouped.h"
#include "support/Texts.h"

namespace neb {
namespace {

constexpr double LeastSeconds = 2;  // before that nothing can be said about the rest

QString TimeText(double Seconds) {
    if (Seconds < 50) {
        const int Rounded = std::max(5, static_cast<int>(std::ceil(Seconds / 5)) * 5);
        return tr("about %1 seconds").arg(Rounded);
    }
    const int Minutes = std::max(1, static_cast<int>(std::lround(Seconds / 60)));
    if (Minutes == 1) return tr("about a minute");
    if (Minutes < 90) return tr("about %1 minutes").arg(Minutes);
    return tr("about %1 hours").arg(std::lround(Seconds / 3600));
}

}  // namespace

QString TimeLeftText(qint64 Bytes, qint64 OfBytes, double Seconds) {
    if (Bytes <= 0 || Bytes > OfBytes || Seconds < LeastSeconds) return {};
    return QStringLiteral(", ") +
           TimeText(Seconds * static_cast<double>(OfBytes - Bytes) / static_cast<double>(Bytes));
}

QString ProgressText(const TransferProgress& Now, double Seconds) {
    if (Now.At == TransferProgress::Stage::Looking) return tr("Looking at what is to be copied");
    if (Now.At == TransferProgress::Stage::Writing) return tr("Writing the records");
    QStringList Parts;
    if (Now.OfPictures > 0)
        Parts << tr("picture %1 of %2")
                     .arg(Grouped(std::min(Now.Pictures, Now.OfPictures)), Grouped(Now.OfPictures));
    Parts
        << tr("%1 of %2").arg(ShortSize(std::min(Now.Bytes, Now.OfBytes)), ShortSize(Now.OfBytes));
    return Parts.join(QStringLiteral(", ")) + TimeLeftText(Now.Bytes, Now.OfBytes, Seconds);
}

}  // namespace neb
