#include "pictures/formats/PngTexts.h"

namespace neb {
namespace {

// Packed texts may be a thousand times as long as their chunk.
constexpr qint64 LongestPacked = 256 << 10;
constexpr qint64 LongestText = 16 << 20;

QByteArray Unpacked(QByteArrayView Packed) {
    if (Packed.size() > LongestPacked) return {};
    // The unpacker wants a guess of the length in front, and goes on where it is too small.
    QByteArray Input = QByteArray::fromHex("00010000");
    Input.append(Packed.data(), Packed.size());
    return qUncompress(Input);
}

QByteArray TextOrUnpacked(QByteArrayView Text, bool Packed) {
    return Packed ? Unpacked(Text)
                  : Text.first(std::min<qint64>(Text.size(), LongestText)).toByteArray();
}

// Behind the keyword: whether and how it is packed, a language, the keyword in that language.
QByteArray InternationalText(QByteArrayView Rest) {
    if (Rest.size() < 2) return {};
    const qsizetype Language = Rest.indexOf('\0', 2);
    const qsizetype Translated = Language < 0 ? -1 : Rest.indexOf('\0', Language + 1);
    if (Translated < 0) return {};
    return TextOrUnpacked(Rest.sliced(Translated + 1), Rest[0] != 0);
}

QByteArray TextIn(QByteArrayView Type, QByteArrayView Rest) {
    if (Type == "tEXt") return TextOrUnpacked(Rest, false);
    if (Type == "zTXt" && !Rest.isEmpty()) return TextOrUnpacked(Rest.sliced(1), true);
    return Type == "iTXt" ? InternationalText(Rest) : QByteArray();
}

}  // namespace

QByteArray PngText(const ByteView& Png, QByteArrayView Keyword) {
    for (qint64 At = 8; Png.Has(At, 12); At += 12 + qint64(Png.U32(At, true))) {
        const qint64 Length = Png.U32(At, true);
        if (!Png.Has(At + 8, Length) || Length <= Keyword.size()) continue;
        if (!Png.Is(At + 8, Keyword) || Png.U8(At + 8 + Keyword.size()) != 0) continue;
        const QByteArrayView Body = Png.Part(At + 8, Length);
        const QByteArray Text = TextIn(Png.Part(At + 4, 4), Body.sliced(Keyword.size() + 1));
        if (!Text.isEmpty()) return Text;
    }
    return {};
}

// A line break, the name, a line with the length, then the digits.
QByteArray PngRawProfile(const ByteView& Png, QByteArrayView Name) {
    const QByteArray Text = PngText(Png, "Raw profile type " + Name.toByteArray());
    const qsizetype NameEnd = Text.indexOf('\n', 1);
    if (NameEnd < 0) return {};
    const QByteArray Rest = Text.mid(NameEnd + 1).trimmed();
    const qsizetype LengthEnd = Rest.indexOf('\n');
    if (LengthEnd < 0) return {};
    return QByteArray::fromHex(Rest.mid(LengthEnd + 1)).left(Rest.left(LengthEnd).toInt());
}

}  // namespace neb
