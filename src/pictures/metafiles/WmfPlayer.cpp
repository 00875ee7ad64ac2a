#include "pictures/metafiles/WmfPlayer.h"

#include <unordered_map>

#include "pictures/formats/PictureFaults.h"
#include "pictures/metafiles/DrawnExtent.h"

namespace neb {
namespace {

constexpr qint64 PlaceableHeader = 22, FileHeader = 18, RecordHeader = 6;
constexpr int EndFunction = 0, SetOriginFunction = 0x020B, SetExtentFunction = 0x020C,
              EscapeFunction = 0x0626;
constexpr int DotsAnInch = 96;
constexpr int LongestFrame = 1 << 20;

bool IsPlaceable(const ByteView& Bytes) {
    return Bytes.U32(0) == 0x9AC6CDD7;
}

qint64 FirstRecord(const ByteView& Bytes) {
    return FileHeader + (IsPlaceable(Bytes) ? PlaceableHeader : 0);
}

std::unordered_map<int, WmfHandler> AllHandlers() {
    std::unordered_map<int, WmfHandler> All;
    for (const auto& Rows :
         {WmfStateHandlers(), WmfShapeHandlers(), WmfTextHandlers(), WmfBitmapHandlers()})
        for (const WmfHandlerRow& Row : Rows) All[Row.Function] = Row.Handle;
    return All;
}

WmfHandler HandlerFor(int Function) {
    static const auto All = AllHandlers();
    const auto Found = All.find(Function);
    return Found == All.end() ? nullptr : Found->second;
}

// What of a drawing becomes the picture. Files name frames that are too small, or that would have
// the right size and lie beside the drawing; one that reaches absurdly far has a frame with a
// reason.
QRect SeenOf(QSize Frame, QRect Drawn) {
    constexpr int TooFar = 4;
    const QRect Whole({}, Frame);
    if (Drawn.isEmpty() || Whole.contains(Drawn)) return Whole;
    if (Frame.isEmpty()) return Drawn;
    if (Drawn.width() > Frame.width() * TooFar || Drawn.height() > Frame.height() * TooFar)
        return Whole;
    const QRect Both = Whole | Drawn;
    const QSize Much = Frame * 1.1;
    const bool IsBeside =
        Drawn.size().boundedTo(Frame) == Drawn.size() && Both.size().boundedTo(Much) != Both.size();
    return IsBeside ? Drawn : Both;
}

}  // namespace

WmfPlayer::WmfPlayer(const QByteArray& Wmf) : mBytes(Wmf) {
    ReadRecords(FirstRecord(mBytes));
    ReadFrame();
    mSeen = SeenOf(FrameSize(), Drawn());
}

// Everything that is more than a trace of a pixel counts.
QRect WmfPlayer::Drawn() const {
    constexpr double Trace = 0.25;
    DrawnExtent Device;
    QPainter Painter(&Device);
    PlayAt(Painter, FrameSize().isEmpty() ? QSize(1, 1) : FrameSize());
    Painter.end();
    const QRectF Extent = Device.Extent().adjusted(Trace, Trace, -Trace, -Trace);
    return Extent.isValid() ? Extent.toAlignedRect() : QRect();
}

void WmfPlayer::ReadRecords(qint64 At) {
    while (mBytes.Has(At, RecordHeader)) {
        const qint64 Length = qint64(mBytes.U32(At)) * 2;
        const int Function = mBytes.U16(At + 4);
        if (Function == EndFunction) return;
        if (Length < RecordHeader) ThrowDamaged();
        if (!mBytes.Has(At, Length)) break;
        mRecords.push_back({Function, At + RecordHeader, Length - RecordHeader});
        At += Length;
    }
    ThrowEndsEarly();
}

void WmfPlayer::ReadFrame() {
    const auto Corner = [this](int At) { return QPoint(mBytes.I16(At), mBytes.I16(At + 2)); };
    if (IsPlaceable(mBytes)) {
        const QPoint Size = Corner(10) - Corner(6);
        mFrame = QRect(Corner(6), QSize(Size.x(), Size.y()));
        mUnitsAnInch = std::max<int>(1, mBytes.U16(14));
        return;
    }
    for (const Record& Each : mRecords) {
        const WmfArgs Args(mBytes.Part(Each.At, Each.Length));
        const QPoint Point = Args.PointBackwards(0);
        if (Each.Function == SetOriginFunction) mFrame.moveTopLeft(Point);
        if (Each.Function != SetExtentFunction) continue;
        mFrame.setSize({Point.x(), Point.y()});
        return;
    }
}

QSize WmfPlayer::FrameSize() const {
    const QSize Units(std::abs(mFrame.width()), std::abs(mFrame.height()));
    if (!mUnitsAnInch || Units.isEmpty()) return Units;
    return (QSizeF(Units) * DotsAnInch / mUnitsAnInch)
        .toSize()
        .expandedTo(QSize(1, 1))
        .boundedTo({LongestFrame, LongestFrame});
}

void WmfPlayer::Play(QPainter& Painter, QSize Size) const {
    const double Across = double(Size.width()) / mSeen.width(),
                 Down = double(Size.height()) / mSeen.height();
    const QSize Frame = FrameSize().isEmpty() ? QSize(1, 1) : FrameSize();
    Painter.translate(-mSeen.x() * Across, -mSeen.y() * Down);
    PlayAt(Painter, {std::max(1, static_cast<int>(std::lround(Frame.width() * Across))),
                     std::max(1, static_cast<int>(std::lround(Frame.height() * Down)))});
}

void WmfPlayer::PlayAt(QPainter& Painter, QSize Size) const {
    WmfCanvas Canvas(Painter, Size, mFrame.isEmpty() ? QRect(0, 0, 1, 1) : mFrame);
    for (const Record& Each : mRecords) {
        if (const WmfHandler Handle = HandlerFor(Each.Function))
            Handle(Canvas, WmfArgs(mBytes.Part(Each.At, Each.Length)));
    }
}

QByteArray CarriedEmf(const QByteArray& Wmf) {
    // Behind the escape's number and byte count: the mark, six fields, then a piece.
    constexpr int MarkAt = 4, PieceLengthAt = 26, LeftAt = 30, PieceAt = 38;
    const ByteView Bytes(Wmf);
    QByteArray Emf;
    for (qint64 At = FirstRecord(Bytes); Bytes.Has(At, RecordHeader);) {
        const qint64 Length = qint64(Bytes.U32(At)) * 2;
        if (Length < RecordHeader || !Bytes.Has(At, Length)) break;
        const ByteView Args(Bytes.Part(At + RecordHeader, Length - RecordHeader));
        At += Length;
        if (Bytes.U16(At - Length + 4) != EscapeFunction || !Args.Is(MarkAt, "WMFC")) continue;
        const QByteArrayView Piece = Args.Part(PieceAt, Args.U32(PieceLengthAt));
        Emf.append(Piece.data(), Piece.size());
        if (Args.U32(LeftAt) == 0) return Emf;
    }
    return {};
}

}  // namespace neb
