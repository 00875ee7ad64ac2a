#include "sound/decoding/SoundDecoderFrames.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <cstring>

namespace neb {

namespace {

constexpr int HeaderLength = 4;
constexpr quint32 KindBits = 0xFFFE0C00;  // sync, version, layer, rate
constexpr quint32 MonoBit = 1;            // where the header has other things
constexpr qint64 MostJunk = 1 << 18;      // bytes before the first frame
constexpr size_t MostParts = 1000;
constexpr int FramesInARow = 3;  // that prove a sound; chance makes no three

constexpr int TitleLength = 128;  // an ID3v1 tag
constexpr int TagHeadLength = 10;
constexpr int ApeFootLength = 32;
constexpr quint32 ApeHasHead = 0x80000000;

// Kilobits a second by index 1 to 14.
using BitRates = std::array<short, 15>;
constexpr BitRates Full1 = {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448};
constexpr BitRates Full2 = {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384};
constexpr BitRates Full3 = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
constexpr BitRates Half1 = {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256};
constexpr BitRates Half23 = {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160};

// A frame has Factor * bits a second / rate slots of Slot bytes.
struct Layer {
    const BitRates& Rates;
    int Factor;
    int Slot;
};
// By the header's layer bits, 1 to 3 for layers III to I: full rates, then halved ones.
constexpr Layer Layers[2][4] = {{{Full3, 0, 0}, {Full3, 144, 1}, {Full2, 144, 1}, {Full1, 12, 4}},
                                {{Full3, 0, 0}, {Half23, 72, 1}, {Half23, 144, 1}, {Half1, 12, 4}}};
constexpr int Rates[3] = {44100, 48000, 32000};
// By the version bits: a quarter of the rate, none, a half, the full one.
constexpr int RateDivisors[4] = {4, 0, 2, 1};

// Seven bits a byte, so that no length looks like a frame.
qint64 TagLength(const QByteArray& Head) {
    if (Head.size() < TagHeadLength || !Head.startsWith("ID3")) return 0;
    qint64 Length = 0;
    for (int I = 6; I < TagHeadLength; ++I) {
        if (Head[I] & 0x80) return TagHeadLength;
        Length = Length << 7 | Head[I];
    }
    const bool HasFoot = Head[5] & 0x10;
    return Length + TagHeadLength + (HasFoot ? TagHeadLength : 0);
}

qint64 ApeLength(SoundSource& Source, qint64 End) {
    const QByteArray Foot = Source.Peek(End - ApeFootLength, ApeFootLength);
    if (!Foot.startsWith("APETAGEX")) return 0;
    const qint64 Length = qFromLittleEndian<quint32>(Foot.constData() + 12);
    const bool HasHead = qFromLittleEndian<quint32>(Foot.constData() + 20) & ApeHasHead;
    const qint64 Whole = Length + (HasHead ? ApeFootLength : 0);
    return Whole <= End ? Whole : 0;
}

// The end of the sound: a cover picture behind it may hold bytes that look like frames.
qint64 EndOfFrames(SoundSource& Source) {
    qint64 End = Source.Length();
    if (Source.Peek(End - TitleLength, 3) == "TAG") End -= TitleLength;
    return End - ApeLength(Source, End);
}

// Goes through a file from frame to frame.
class FrameWalk {
  public:
    explicit FrameWalk(SoundSource& Source) : mSource(Source), mEnd(EndOfFrames(Source)) {}

    std::vector<MpegPart> Run();

  private:
    std::optional<MpegFrame> FrameAt(qint64 At);
    bool BeginsARow(qint64 At, MpegFrame Frame);
    std::optional<MpegFrame> FindRow(qint64 From, qint64 To);
    bool IsLengthHeader(qint64 At, const MpegFrame& Frame);
    bool Add(qint64 At, const MpegFrame& Frame);

    SoundSource& mSource;
    const qint64 mEnd;
    qint64 mAt = 0;
    std::vector<MpegPart> mParts;
};

std::optional<MpegFrame> FrameWalk::FrameAt(qint64 At) {
    unsigned char Header[HeaderLength];
    if (At + HeaderLength > mEnd || mSource.Seek(At, SEEK_SET) < 0 ||
        mSource.Read(Header, HeaderLength) < HeaderLength)
        return {};
    return ReadMpegHeader(Header);
}

// Whether a frame is the first of a row. A short sound may end after two, but then it has to be
// the whole file.
bool FrameWalk::BeginsARow(qint64 At, MpegFrame Frame) {
    const bool FromTheStart = At == 0;
    const quint32 Kind = Frame.Kind;
    for (int Count = 1; Count < FramesInARow; ++Count) {
        At += Frame.Bytes;
        if (At + HeaderLength > mEnd) return FromTheStart && Count > 1;
        const auto Next = FrameAt(At);
        if (!Next || Next->Kind != Kind) return false;
        Frame = *Next;
    }
    return true;
}

// Leaves mAt at the frame that it finds.
std::optional<MpegFrame> FrameWalk::FindRow(qint64 From, qint64 To) {
    constexpr qint64 Step = 4096;
    for (qint64 Base = From; Base < To; Base += Step) {
        const QByteArray Bytes = mSource.Peek(Base, std::min(Step, To - Base) + HeaderLength);
        const auto* Begin = reinterpret_cast<const unsigned char*>(Bytes.constData());
        for (qint64 I = 0; I < Step && I + HeaderLength <= Bytes.size(); ++I) {
            if (Begin[I] != 0xFF) continue;
            const auto Frame = ReadMpegHeader(Begin + I);
            if (!Frame || !BeginsARow(Base + I, *Frame)) continue;
            mAt = Base + I;
            return Frame;
        }
    }
    return {};
}

// The first frame of many files is no music but tells how many frames there are.
bool FrameWalk::IsLengthHeader(qint64 At, const MpegFrame& Frame) {
    const bool IsFull = (Frame.Kind >> 19 & 3) == 3;
    const int Wide = Frame.Channels == 2 ? (IsFull ? 32 : 17) : (IsFull ? 17 : 9);
    char Word[4];
    if (mSource.Seek(At + HeaderLength + Wide, SEEK_SET) < 0 || mSource.Read(Word, 4) < 4)
        return false;
    return std::memcmp(Word, "Xing", 4) == 0 || std::memcmp(Word, "Info", 4) == 0;
}

bool FrameWalk::Add(qint64 At, const MpegFrame& Frame) {
    const bool Joins =
        !mParts.empty() && mParts.back().First.Kind == Frame.Kind && !IsLengthHeader(At, Frame);
    if (!Joins && mParts.size() == MostParts) return false;
    if (!Joins) mParts.push_back({{}, Frame});
    auto& Pieces = mParts.back().Pieces;
    if (!Pieces.empty() && Pieces.back().First + Pieces.back().Length == At)
        Pieces.back().Length += Frame.Bytes;
    else
        Pieces.push_back({At, Frame.Bytes});
    return true;
}

std::vector<MpegPart> FrameWalk::Run() {
    auto Frame = FindRow(0, std::min(mEnd, MostJunk));
    while (Frame && mAt + Frame->Bytes <= mEnd && Add(mAt, *Frame)) {
        mAt += Frame->Bytes;
        Frame = FrameAt(mAt);
        if (!Frame || Frame->Kind != mParts.back().First.Kind) Frame = FindRow(mAt, mEnd);
    }
    return std::move(mParts);
}

}  // namespace

std::optional<MpegFrame> ReadMpegHeader(const unsigned char* Header) {
    const auto Bits = qFromBigEndian<quint32>(Header);
    const quint32 Version = Bits >> 19 & 3, LayerBits = Bits >> 17 & 3;
    const quint32 BitRate = Bits >> 12 & 15, RateIndex = Bits >> 10 & 3;
    if (Bits >> 21 != 0x7FF || Version == 1 || LayerBits == 0) return {};
    if (BitRate == 0 || BitRate == 15 || RateIndex == 3) return {};
    const Layer& Its = Layers[Version == 3 ? 0 : 1][LayerBits];
    MpegFrame Frame;
    Frame.Rate = Rates[RateIndex] / RateDivisors[Version];
    Frame.Channels = (Bits >> 6 & 3) == 3 ? 1 : 2;
    const int Padding = Bits >> 9 & 1;
    Frame.Bytes = (Its.Factor * Its.Rates[BitRate] * 1000 / Frame.Rate + Padding) * Its.Slot;
    Frame.Kind = (Bits & KindBits) | (Frame.Channels == 1 ? MonoBit : 0);
    return Frame;
}

qint64 LeadingTags(SoundSource& Source) {
    qint64 At = 0;
    while (const qint64 Length = TagLength(Source.Peek(At, TagHeadLength))) {
        if (At + Length >= Source.Length()) break;
        At += Length;
    }
    return At;
}

std::vector<MpegPart> FindMpegParts(SoundSource& Source) {
    return FrameWalk(Source).Run();
}

}  // namespace neb
