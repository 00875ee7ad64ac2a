#include "support/modCharacters.h"

#include <QTextBoundaryFinder>
#include <algorithm>

namespace neb {

qsizetype CountCharacters(const QString& Text) {
    QTextBoundaryFinder Finder(QTextBoundaryFinder::Grapheme, Text);
    qsizetype Count = 0;
    while (Finder.toNextBoundary() >= 0) ++Count;
    return Count;
}

QString FirstUnits(const QString& Text, qsizetype Most) {
    const bool IsHalf = !Text.isEmpty() && Text.back().isHighSurrogate();  // a field cuts so
    if (Text.size() <= Most) return Text.chopped(IsHalf ? 1 : 0);
    QTextBoundaryFinder Finder(QTextBoundaryFinder::Grapheme, Text);
    Finder.setPosition(Most);
    const qsizetype End = Finder.isAtBoundary() ? Most : Finder.toPreviousBoundary();
    return Text.left(std::max<qsizetype>(0, End));
}

// The marks of a word are not meant: they are typed one by one, and taken back so.
qsizetype EmojiAtEnd(const QString& Text) {
    QTextBoundaryFinder Finder(QTextBoundaryFinder::Grapheme, Text);
    Finder.toEnd();
    const qsizetype Start = Finder.toPreviousBoundary();
    if (Start < 0) return 0;
    const QStringView Last = QStringView(Text).sliced(Start);
    const auto IsPart = [](QChar Unit) {
        return Unit.isSurrogate() || Unit == QChar(0xFE0F) || Unit == QChar(0x20E3);
    };
    return std::any_of(Last.begin(), Last.end(), IsPart) ? Last.size() : 0;
}

QString InOwnDirection(const QString& Name) {
    const auto ReadsFromTheRight = [](char32_t Letter) {
        const QChar::Direction Way = QChar::direction(Letter);
        return Way == QChar::DirR || Way == QChar::DirAL;
    };
    const QList<uint> Letters = Name.toUcs4();
    if (std::none_of(Letters.begin(), Letters.end(), ReadsFromTheRight)) return Name;
    return QChar(0x2068) + Name + QChar(0x2069);  // first strong isolate, and its end
}

}  // namespace neb
