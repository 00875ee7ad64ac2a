#include "windows/slides/FindParts.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <optional>

#include "support/modFind.h"

namespace neb {
namespace {

QString ExactLetters(QStringView Text) {
    QString Letters = Text.toString().normalized(QString::NormalizationForm_C);
    for (QChar& Each : Letters) {
        if (Each == u'‘' || Each == u'’') Each = u'\'';
        if (Each == u'“' || Each == u'”') Each = u'"';
    }
    return Letters;
}

// One character that a reader sees: where it stands, and where its letters end among those of all.
struct Seen {
    qsizetype At, LettersEnd;
};

struct Letters {
    QString All;
    std::vector<Seen> Characters;
    qsizetype End = 0;  // of the text
};

Letters LettersOf(QStringView Text, QString (*Of)(QStringView)) {
    Letters Found{.End = Text.size()};
    QTextBoundaryFinder Finder(QTextBoundaryFinder::Grapheme, Text.data(), Text.size());
    for (qsizetype At = 0, Next = 0; (Next = Finder.toNextBoundary()) > 0; At = Next) {
        Found.All += Of(Text.mid(At, Next - At));
        Found.Characters.push_back({At, Found.All.size()});
    }
    return Found;
}

// Of the character whose letters end there; -1 where none does. Where some have none, the last of
// them: an unseen mark belongs to what stands before it.
qsizetype EndingAt(const Letters& In, qsizetype LettersEnd) {
    const auto After = std::ranges::upper_bound(In.Characters, LettersEnd, {}, &Seen::LettersEnd);
    if (After == In.Characters.begin() || (After - 1)->LettersEnd != LettersEnd) return -1;
    return After - 1 - In.Characters.begin();
}

std::optional<TextPart> PartAt(const Letters& In, qsizetype From, qsizetype To) {
    const qsizetype Before = EndingAt(In, From), Last = EndingAt(In, To);
    if (Last < 0 || (From > 0 && Before < 0)) return {};
    const auto& All = In.Characters;
    const qsizetype First = All[size_t(Before + 1)].At;
    const qsizetype End = size_t(Last) + 1 < All.size() ? All[size_t(Last) + 1].At : In.End;
    return TextPart{First, End - First};
}

}  // namespace

std::vector<TextPart> PartsLike(QStringView Text, QStringView Sought, Likeness How) {
    const auto Of = How == Likeness::Alike ? &BareLetters : &ExactLetters;
    const QString Wanted = Of(Sought);
    std::vector<TextPart> Parts;
    if (Wanted.isEmpty() || !Of(Text).contains(Wanted)) return Parts;
    const Letters In = LettersOf(Text, Of);
    for (qsizetype At = 0; (At = In.All.indexOf(Wanted, At)) >= 0;) {
        const auto Part = PartAt(In, At, At + Wanted.size());
        if (Part) Parts.push_back(*Part);
        At += Part ? Wanted.size() : 1;
    }
    return Parts;
}

QString WithPartsReplaced(const QString& Text, const std::vector<TextPart>& Parts,
                          QStringView With) {
    QString Made;
    qsizetype Rest = 0;
    for (const TextPart& Each : Parts) {
        Made += QStringView(Text).mid(Rest, Each.At - Rest);
        Made += With;
        Rest = Each.At + Each.Length;
    }
    return Made.append(QStringView(Text).mid(Rest));
}

}  // namespace neb
