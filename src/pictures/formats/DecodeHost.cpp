#include "pictures/formats/DecodeHost.h"

#include <QSemaphore>
#include <atomic>

#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"

namespace neb {
namespace {

constexpr qint64 ShareBytes = 1 << 20;
constexpr int BudgetShares = 820;

QSemaphore& FreeShares() {
    static QSemaphore Shares(BudgetShares);
    return Shares;
}

int SharesOf(qint64 Bytes) {
    return static_cast<int>(std::min<qint64>(Bytes / ShareBytes, BudgetShares) + 1);
}

class ThisProcess : public DecodeHost {
  public:
    void Acquire(QSize Size, qint64 Bytes) override { AcquireMemory(Size, Bytes); }
    void Release(QSize, qint64 Bytes) override { ReleaseMemory(Bytes); }
    QByteArray SvgOf(const QByteArray&) override { ThrowUnknownPicture(); }
};

std::atomic<DecodeHost*> Chosen = nullptr;

}  // namespace

void AcquireMemory(QSize Size, qint64 Bytes) {
    const int Shares = SharesOf(Bytes);
    if (Size.width() > LongestSide || Size.height() > LongestSide || Shares > BudgetShares)
        ThrowTooLarge(Size);
    FreeShares().acquire(Shares);
}

void ReleaseMemory(qint64 Bytes) {
    FreeShares().release(SharesOf(Bytes));
}

void SetDecodeHost(DecodeHost& Host) {
    Chosen = &Host;
}

DecodeHost& TheDecodeHost() {
    static ThisProcess Here;
    DecodeHost* const Host = Chosen;
    return Host ? *Host : Here;
}

DecodeBudget::DecodeBudget(QSize Size, qint64 Bytes) : mSize(Size), mBytes(Bytes) {
    TheDecodeHost().Acquire(mSize, mBytes);
}

DecodeBudget::~DecodeBudget() {
    TheDecodeHost().Release(mSize, mBytes);
}

}  // namespace neb
