#include "support/modFind.h"

#include <QStringList>
#include <algorithm>

namespace neb {
namespace {

// Letters that people without them on their keys type as others, and that are no letter with an
// accent.
struct Typed {
    char16_t Letter;
    QStringView As;
};
constexpr Typed Others[] = {
    {u'ø', u"o"}, {u'ł', u"l"},  {u'đ', u"d"},  {u'ð', u"d"},  {u'ħ', u"h"},
    {u'ı', u"i"}, {u'æ', u"ae"}, {u'œ', u"oe"}, {u'þ', u"th"}, {u'ß', u"ss"},
    {u'‘', u"'"}, {u'’', u"'"},  {u'“', u"\""}, {u'”', u"\""},
};

void Append(QChar Unit, QString& Letters) {
    const auto Other = std::ranges::find(Others, Unit.unicode(), &Typed::Letter);
    if (Other != std::end(Others))
        Letters += Other->As;
    else
        Letters += Unit.isDigit() ? QChar(u'0' + Unit.digitValue()) : Unit;
}

// Accents, and the points of Hebrew and Arabic. A vowel of an Indian or a Thai word is a mark, too,
// and so is what makes a Japanese ka a ga: these change the word, and stay.
bool IsAccent(QChar Unit) {
    constexpr int FirstPoint = 10, LastPoint = 36, FirstAccent = 200;
    const int Class = Unit.combiningClass();
    return (Class >= FirstPoint && Class <= LastPoint) || Class >= FirstAccent;
}

// Marks of direction, joiners, the long stroke of Arabic, the choice between emoji and letter.
bool IsUnseen(QChar Unit) {
    const char16_t Code = Unit.unicode();
    return Unit.category() == QChar::Other_Format || Code == 0x0640 ||
           (Code >= 0xFE00 && Code <= 0xFE0F);
}

bool IsPlain(QStringView Text) {
    return std::all_of(Text.begin(), Text.end(), [](QChar Unit) { return Unit.unicode() < 0x80; });
}

}  // namespace

QString BareLetters(QStringView Text) {
    if (IsPlain(Text)) return Text.toString().toLower();
    QString Letters;
    const QString Folded = Text.toString().normalized(QString::NormalizationForm_KD).toCaseFolded();
    for (const QChar Unit : Folded.normalized(QString::NormalizationForm_KD))
        if (!IsAccent(Unit) && !IsUnseen(Unit)) Append(Unit, Letters);
    return Letters;
}

bool FoundIn(QStringView Text, QStringView Sought) {
    const QStringList Words = BareLetters(Sought).split(u' ', Qt::SkipEmptyParts);
    const QString Letters = BareLetters(Text);
    return !Words.isEmpty() &&
           std::ranges::all_of(Words, [&](const QString& Word) { return Letters.contains(Word); });
}

bool BeginsWith(QStringView Text, QStringView Sought) {
    return BareLetters(Text).startsWith(BareLetters(Sought));
}

bool HoldsWhole(QStringView Text, QStringView Sought) {
    return BareLetters(Text).contains(BareLetters(Sought));
}

}  // namespace neb
