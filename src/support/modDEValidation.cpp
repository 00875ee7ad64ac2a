#include "support/modDEValidation.h"

#include <algorithm>

#include "support/Texts.h"
#include "support/modCharacters.h"
#include "support/modText.h"

namespace neb {
namespace {

constexpr std::int16_t Backspace = 8;

struct QuotePair {
    std::int16_t Opening, Other;
};
constexpr QuotePair SingleQuotes{145, 146};
constexpr QuotePair DoubleQuotes{147, 148};

bool IsStraightQuote(char16_t Code) {
    return Code == u'\'' || Code == u'"';
}

std::int16_t QuoteFor(char16_t Typed, QStringView Before) {
    const QuotePair& Pair = Typed == u'\'' ? SingleQuotes : DoubleQuotes;
    const bool Opening = Before.isEmpty() || Before.back() == u' ' || Before.back() == u'\n';
    return Opening ? Pair.Opening : Pair.Other;
}

QChar FromCode(std::int16_t Code) {
    static const QString Typographic = FromAnsi("\x91\x92\x93\x94", 4);
    return Typographic[Code - SingleQuotes.Opening];
}

bool IsDigit(char16_t Code) {
    return Code >= u'0' && Code <= u'9';
}

}  // namespace

QString ConvertQuotes(const QString& Text) {
    QString Out = Text;
    for (qsizetype I = 0; I < Text.size(); ++I)
        if (IsStraightQuote(Text[I].unicode()))
            Out[I] = FromCode(QuoteFor(Text[I].unicode(), QStringView(Text).first(I)));
    return Out;
}

void FixQuoteKey(const EntryState& Field, std::int16_t& KeyAscii) {
    const auto Code = static_cast<char16_t>(KeyAscii);
    if (IsStraightQuote(Code))
        KeyAscii = QuoteFor(Code, QStringView(Field.Text).left(Field.SelStart));
}

void FixQuoteKeyInGrid(const EntryState& Editor, std::int16_t& KeyAscii) {
    FixQuoteKey(Editor, KeyAscii);
}

// Somebody may have pasted a whole book, and it is asked at each key. Most of what is too much goes
// at once, unless its first letters need no bytes; the rest in steps that shrink with it.
QString FitToRecord(const QString& Text) {
    const auto Over = [](const QString& Of) { return ToAnsi(Of).size() - RecordTextBytes; };
    QString Fitting = FirstUnits(Text, MaxCaption);
    if (const QString First = FirstUnits(Fitting, RecordTextBytes + 1); Over(First) > 0)
        Fitting = First;
    for (qsizetype TooMany; (TooMany = Over(Fitting)) > 0;)
        Fitting = FirstUnits(Fitting, Fitting.size() - std::max<qsizetype>(1, TooMany / 8));
    return Fitting;
}

QString CleanText(const QString& Text) {
    return FirstUnits(ConvertQuotes(Text), MaxCaption);
}

QString CleanName(const QString& Text) {
    return ComposedName(ConvertQuotes(Text));
}

QString ComposedName(const QString& Name) {
    return Name.normalized(QString::NormalizationForm_C);
}

QString CaselessName(const QString& Name) {
    return ComposedName(Name).toUpper();
}

bool IsNumericText(const QString& Text, QString& Message, bool AllowNegative) {
    for (qsizetype I = 0; I < Text.size(); ++I) {
        const char16_t Code = Text[I].unicode();
        if (IsDigit(Code) || (Code == u'-' && AllowNegative && I == 0)) continue;
        const int Units = Text[I].isHighSurrogate() ? 2 : 1;
        Message = tr("'%1' is not a Numeric Digit.").arg(Text.mid(I, Units));
        return false;
    }
    return true;
}

void FilterNumericKey(const EntryState& Editor, std::int16_t& KeyAscii, bool AllowNegative) {
    const bool Passes = KeyAscii == Backspace || IsDigit(static_cast<char16_t>(KeyAscii)) ||
                        (KeyAscii == '-' && AllowNegative && Editor.SelStart == 0);
    if (!Passes) KeyAscii = 0;
}

}  // namespace neb
