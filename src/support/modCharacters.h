// Characters as people see them: a letter with its accents, an emoji of several parts, a flag is
// one. Used wherever a text is counted or shortened, so that none is ever cut in halves,
// and where one is shown among the words of another.
#pragma once

#include <QString>

namespace neb {

qsizetype CountCharacters(const QString& Text);
// The start of the text: whole characters, no more than Most UTF-16 units in all.
QString FirstUnits(const QString& Text, qsizetype Most);
// UTF-16 units of an emoji at the end of the text, with all of its parts; 0 where there is none.
qsizetype EmojiAtEnd(const QString& Text);
// A name to be shown within words of ours, or beside numbers: where it has letters that are read
// from right to left it keeps its own order, and leaves ours alone. For the eye only: the marks
// that do so are none of the name's.
QString InOwnDirection(const QString& Name);

}  // namespace neb
