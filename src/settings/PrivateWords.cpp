#include "settings/PrivateWords.h"

#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <system_error>
#include <vector>

#include "db/clsDBEngine.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr int LastSystemReason = 133;

struct Word {
    QString Folded;
    qsizetype From = 0, End = 0;
};

bool IsOfWord(QChar Sign) {
    return Sign.isLetterOrNumber() || Sign.isMark() || Sign.isSurrogate();
}

std::vector<Word> WordsOf(const QString& Text) {
    std::vector<Word> All;
    for (qsizetype At = 0; At < Text.size();) {
        qsizetype End = At;
        while (End < Text.size() && IsOfWord(Text[End])) ++End;
        if (End > At) All.push_back({Text.mid(At, End - At).toCaseFolded(), At, End});
        At = End + 1;
    }
    return All;
}

// How many words from this one on are the name; 0: they are another.
size_t LengthOf(const QStringList& Name, const std::vector<Word>& Words, size_t At) {
    const size_t Count = static_cast<size_t>(Name.size());
    if (At + Count > Words.size()) return 0;
    for (size_t I = 0; I < Count; ++I)
        if (Words[At + I].Folded != Name[qsizetype(I)]) return 0;
    return Count;
}

const QSet<QString>& SystemReasons() {
    static const QSet<QString> All = [] {
        QSet<QString> Made;
        for (int Code = 1; Code <= LastSystemReason; ++Code)
            Made << QString::fromStdString(std::generic_category().message(Code));
        return Made;
    }();
    return All;
}

QString SystemReasonAtEnd(const QString& Line) {
    const qsizetype Colon = Line.lastIndexOf(u": ");
    const QString Reason = Line.mid(Colon + 2);
    return Colon >= 0 && SystemReasons().contains(Reason) ? QStringLiteral(": ") + Reason
                                                          : QString();
}

// Blanks and colons may be part of it: nothing behind its beginning is safe.
QString WithoutPaths(const QString& Line) {
    static const QRegularExpression Begin(QStringLiteral(
        R"((?<![\w.])(?:~?/(?=\S)|\\\\|[A-Za-z]:[\\/]|[A-Za-z][\w+.-]*:/)|[^\s/]*[\w.]/\S)"));
    const QRegularExpressionMatch Found = Begin.match(Line);
    if (!Found.hasMatch()) return Line;
    return Line.left(Found.capturedStart()) + QStringLiteral("(a path)") + SystemReasonAtEnd(Line);
}

// Which of the words before it belong to its name, nobody knows.
QString WithoutFiles(QString Line) {
    static const QRegularExpression File(
        QStringLiteral(R"([^\s:()](?:[^:()]*[^\s:()])?\.[A-Za-z][A-Za-z0-9]{1,4}(?!\w))"));
    return Line.replace(File, QStringLiteral("(a file)"));
}

QString WithoutQuoted(QString Line) {
    static const QRegularExpression Quoted(
        QStringLiteral("\".*\"|(?<!\\w)'.*'|[\u201C\u201E].*[\u201D\u201C]|\u00AB.*\u00BB"));
    return Line.replace(Quoted, QStringLiteral("(a name)"));
}

QString WithoutAddresses(QString Line) {
    static const QRegularExpression Address(QStringLiteral(R"(\S+@\S+)"));
    return Line.replace(Address, QStringLiteral("(an address)"));
}

}  // namespace

PrivateWords::PrivateWords(const QStringList& Names) {
    for (const QString& Each : Names) {
        QStringList Words;
        for (const Word& One : WordsOf(Each)) Words << One.Folded;
        if (Words.isEmpty()) continue;
        QList<QStringList>& Alike = mNames[Words.front()];
        if (!Alike.contains(Words)) Alike << Words;
    }
    for (QList<QStringList>& Alike : mNames)  // the longest counts
        std::ranges::sort(Alike, std::greater(), [](const auto& Each) { return Each.size(); });
}

QString PrivateWords::WithoutNames(const QString& Text) const {
    const std::vector<Word> Words = WordsOf(Text);
    QString Made;
    qsizetype Kept = 0;
    for (size_t At = 0; At < Words.size();) {
        size_t Length = 0;
        for (const QStringList& Name : mNames.value(Words[At].Folded))
            if ((Length = LengthOf(Name, Words, At)) > 0) break;
        if (Length > 0) {
            Made += Text.mid(Kept, Words[At].From - Kept) + QStringLiteral("(a name)");
            Kept = Words[At + Length - 1].End;
        }
        At += std::max<size_t>(Length, 1);
    }
    return Made + Text.mid(Kept);
}

QString PrivateWords::WithoutAll(const QString& Line) const {
    return WithoutFiles(
        WithoutPaths(WithoutAddresses(WithoutQuoted(WithoutNames(Line.simplified())))));
}

namespace {

void NameShow(const clsNEBSlideShow& Show, QStringList& To) {
    To << Show.SlideShowName;
    for (const auto& Each : Show.Details) To << Each->SlideText;
    for (const auto& Each : Show.SoundTracks) To << GetFileName(Each->SoundTrackLoc);
}

}  // namespace

QStringList NamesIn(const clsDBEngine& Engine) {
    QStringList All;
    for (const auto& Album : Engine.Albums) {
        All << Album->AlbumName;
        for (const auto& Each : Album->Slides)
            All << Each->SlideText << GetFileName(Each->SlideLoc)
                << GetFileName(Each->SoundTrackLoc);
        for (const auto& Each : Album->SlideShows) NameShow(*Each, All);
    }
    return All;
}

}  // namespace neb
