#include "support/modText.h"

#include <unicode/translit.h>

#include <QTextBoundaryFinder>
#include <algorithm>
#include <array>
#include <unordered_map>
#include <utility>

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

// What a user sees as one character counts as one here: a letter with its accents, a line end, an
// emoji of several parts.
template <typename Take>
void ForEachCharacter(const QString& Text, Take&& TakeOne) {
    QTextBoundaryFinder Finder(QTextBoundaryFinder::Grapheme, Text);
    qsizetype Start = 0;
    for (qsizetype End = Finder.toNextBoundary(); End >= 0; End = Finder.toNextBoundary()) {
        TakeOne(QStringView(Text).sliced(Start, End - Start));
        Start = End;
    }
}

// False, with nothing appended, when not even the letter under the accents is in the code page.
bool AppendCharacter(QStringView Character, QByteArray& Out) {
    if (!AppendDirect(Character[0].unicode(), Out)) return false;
    for (const QChar Unit : Character.sliced(1)) AppendDirect(Unit.unicode(), Out);
    return true;
}

bool IsInvisible(QStringView Character) {
    return std::all_of(Character.begin(), Character.end(), [](QChar Unit) {
        return Unit.category() == QChar::Other_Format || (Unit >= u'\uFE00' && Unit <= u'\uFE0F');
    });
}

// A straight quote must not come into the data by way of a replacement.
QString WithTypographicQuotes(QString Text) {
    return Text.replace(u'\'', u'\u2019').replace(u'"', u'\u201D');
}

void AppendEquivalent(const QString& Run, QByteArray& Out) {
    if (Run.isEmpty()) return;
    ForEachCharacter(WithTypographicQuotes(InLatinLetters(Run)), [&](QStringView Character) {
        if (!AppendCharacter(Character, Out) && !IsInvisible(Character)) Out.append('?');
    });
}

bool NeedsEquivalents(QStringView Text) {
    return std::any_of(Text.begin(), Text.end(), [](QChar Unit) {
        const char16_t Code = Unit.unicode();
        const bool Latin1 = Code < 0x80 || (Code >= 0xA0 && Code < 0x100);
        return !Latin1 && !HighCodes().contains(Code);
    });
}

// Words of another script are turned as a whole: letters may depend on their neighbours.
QByteArray WithEquivalents(const QString& Text) {
    QByteArray Out;
    QString Run;
    ForEachCharacter(Text.normalized(QString::NormalizationForm_C), [&](QStringView Character) {
        QByteArray Direct;
        if (!AppendCharacter(Character, Direct)) {
            Run += Character;
            return;
        }
        AppendEquivalent(std::exchange(Run, {}), Out);
        Out += Direct;
    });
    AppendEquivalent(Run, Out);
    return Out;
}

// Nearly all texts are; they stay the very same.
bool IsWithoutSurrogates(const QString& Text) {
    return std::none_of(Text.begin(), Text.end(), [](QChar Unit) { return Unit.isSurrogate(); });
}

}  // namespace

QByteArray ToAnsi(QStringView Text) {
    if (NeedsEquivalents(Text)) return WithEquivalents(ReadableText(Text.toString()));
    QByteArray Out;
    Out.reserve(Text.size());
    for (const QChar Unit : Text) AppendDirect(Unit.unicode(), Out);
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

bool IsStrayByte(const QString& Text, qsizetype Place) {
    const char16_t Unit = Text[Place].unicode();
    if (Unit < 0xDC80 || Unit > 0xDCFF) return false;
    return Place == 0 || !Text[Place - 1].isHighSurrogate();
}

QString ReadableText(const QString& Text) {
    if (IsWithoutSurrogates(Text)) return Text;
    QString Letters = Text;
    for (qsizetype I = 0; I < Text.size(); ++I) {
        const char Byte = static_cast<char>(Text[I].unicode());
        if (!IsStrayByte(Text, I)) continue;
        const QChar Letter = FromAnsi(&Byte, 1)[0];
        Letters[I] = Letter.isPrint() ? Letter : QChar(u'?');
    }
    return Letters;
}

QString ValidText(const QString& Stored) {
    if (IsWithoutSurrogates(Stored)) return Stored;
    QString Text = ReadableText(Stored);
    for (qsizetype I = 0; I < Text.size(); ++I) {
        if (!Text[I].isSurrogate()) continue;
        const bool IsPair =
            Text[I].isHighSurrogate() && I + 1 < Text.size() && Text[I + 1].isLowSurrogate();
        if (IsPair)
            ++I;
        else
            Text[I] = QChar(QChar::ReplacementCharacter);
    }
    return Text;
}

}  // namespace neb
