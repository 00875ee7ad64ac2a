#include "support/modText.h"

#include <unicode/translit.h>

#include <array>
#include <unordered_map>

namespace neb {
namespace {

// Windows-1252, 0x80 to 0x9F, as Microsoft's table has it; the open codes map to themselves.
constexpr std::array<char16_t, 32> High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

const std::unordered_map<char16_t, char>& HighCodes() {
    static const auto Codes = [] {
        std::unordered_map<char16_t, char> Map;
        for (size_t I = 0; I < High.size(); ++I) Map[High[I]] = static_cast<char>(0x80 + I);
        return Map;
    }();
    return Codes;
}

bool AppendDirect(char16_t Unit, QByteArray& Out) {
    if (Unit < 0x80 || (Unit >= 0xA0 && Unit < 0x100)) {
        Out.append(static_cast<char>(Unit));
        return true;
    }
    const auto Found = HighCodes().find(Unit);
    if (Found == HighCodes().end()) return false;
    Out.append(Found->second);
    return true;
}

// Scripts in Latin letters, accents that the code page lacks dropped.
QString InLatinLetters(const QString& Text) {
    static const std::unique_ptr<icu::Transliterator> Latin = [] {
        UErrorCode Status = U_ZERO_ERROR;
        return std::unique_ptr<icu::Transliterator>(
            icu::Transliterator::createInstance("Any-Latin; Latin-ASCII", UTRANS_FORWARD, Status));
    }();
    if (!Latin) return Text;
    icu::UnicodeString Work(reinterpret_cast<const char16_t*>(Text.utf16()),
                            static_cast<int32_t>(Text.size()));
    Latin->transliterate(Work);
    return QString(reinterpret_cast<const QChar*>(Work.getBuffer()), Work.length());
}

QByteArray ClosestEquivalent(const QString& Character) {
    QByteArray Out;
    if (!AppendDirect(Character.normalized(QString::NormalizationForm_C)[0].unicode(), Out))
        for (const QChar Unit : InLatinLetters(Character)) AppendDirect(Unit.unicode(), Out);
    return Out.isEmpty() ? QByteArray("?") : Out;
}

// The characters that a user sees as one: a base with its combining marks, a surrogate pair.
qsizetype ClusterLength(QStringView Text) {
    qsizetype Length = Text[0].isHighSurrogate() && Text.size() > 1 ? 2 : 1;
    while (Length < Text.size() && Text[Length].isMark()) ++Length;
    return Length;
}

}  // namespace

QByteArray ToAnsi(QStringView Text) {
    QByteArray Out;
    Out.reserve(Text.size());
    for (qsizetype I = 0; I < Text.size();) {
        const qsizetype Length = ClusterLength(Text.sliced(I));
        if (Length > 1 || !AppendDirect(Text[I].unicode(), Out))
            Out.append(ClosestEquivalent(Text.sliced(I, Length).toString()));
        I += Length;
    }
    return Out;
}

QString FromAnsi(const char* Bytes, qsizetype Length) {
    QString Text = QString::fromLatin1(Bytes, Length);
    for (qsizetype I = 0; I < Length; ++I) {
        const auto Code = static_cast<unsigned char>(Bytes[I]);
        if (Code >= 0x80 && Code < 0xA0) Text[I] = QChar(High[Code - 0x80]);
    }
    return Text;
}

}  // namespace neb
