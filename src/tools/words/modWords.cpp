#include "tools/words/modWords.h"

namespace neb {

std::optional<QString> TakeOption(QStringList& Words, const QString& Name) {
    const qsizetype At = Words.indexOf(Name);
    if (At < 0) return std::nullopt;
    const QString Value = Words.value(At + 1);
    Words.remove(At, std::min<qsizetype>(2, Words.size() - At));
    return Value;
}

std::optional<int> WholeNumber(const QString& Text, int Low, int High) {
    bool Sound = false;
    const int Value = Text.toInt(&Sound);
    return Sound && Value >= Low && Value <= High ? std::optional(Value) : std::nullopt;
}

std::optional<QSize> SizeOf(const QString& Text) {
    const auto Width = WholeNumber(Text.section(u'x', 0, 0), 1, 16384);
    const auto Height = WholeNumber(Text.section(u'x', 1), 1, 16384);
    return Width && Height ? std::optional(QSize(*Width, *Height)) : std::nullopt;
}

QString Counted(int Number, const char* What) {
    const QString Text = QString::number(Number) + u' ' + QLatin1String(What);
    return Number == 1 ? Text : Text + u's';
}

}  // namespace neb
