// Where in a text another one stands, and the text with each such place replaced: for windows in
// which captions are found and replaced. Letters are taken whole: what looks like one letter is
// never found in part.
#pragma once

#include <QString>
#include <QStringView>
#include <vector>

namespace neb {

enum class Likeness {
    Alike,  // case, accents and the forms of quotes do not matter (modFind)
    Exact   // only the forms of quotes do not: who types a straight one means any
};

struct TextPart {
    qsizetype At = 0;
    qsizetype Length = 0;  // in the text that is searched; may differ from that of what is sought
    bool operator==(const TextPart&) const = default;
};

// From the beginning, none over another; an empty text, or one of accents alone, is nowhere.
std::vector<TextPart> PartsLike(QStringView Text, QStringView Sought, Likeness How);
QString WithPartsReplaced(const QString& Text, const std::vector<TextPart>& Parts,
                          QStringView With);

}  // namespace neb
