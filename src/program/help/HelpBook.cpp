#include "program/help/HelpBook.h"

#include <QUrl>
#include <QXmlStreamReader>
#include <algorithm>

#include "support/files/modHostFiles.h"
#include "support/modFind.h"

namespace neb {
namespace {

constexpr char Ending[] = ".html";
constexpr qsizetype Around = 60;  // letters of an excerpt on each side of what was found

QString FolderOf(const QString& File) {
    return File.left(File.lastIndexOf(u'/') + 1);
}

// Without the detours by ".." that a link may take.
QString Straight(const QString& Path) {
    return QUrl::fromLocalFile(Path).adjusted(QUrl::NormalizePathSegments).toLocalFile();
}

// Blocks stand apart; what is set off inside a line does not.
bool IsInLine(QStringView Element) {
    return Element == u"b" || Element == u"i" || Element == u"a" || Element == u"kbd";
}

// What stands up to the end of the element that has just begun.
QString TextUpToEnd(QXmlStreamReader& Xml) {
    return Xml.readElementText(QXmlStreamReader::IncludeChildElements).simplified();
}

QString WithoutEnding(QString Address) {
    return Address.replace(QLatin1String(Ending), QString());
}

// A heading begins a section, a link below it is one of its pages.
std::vector<HelpSection> ReadSections(const QString& File) {
    QXmlStreamReader Xml(ReadFile(File));
    std::vector<HelpSection> Sections;
    while (Xml.readNextStartElement() || !Xml.atEnd()) {
        if (!Xml.isStartElement()) continue;
        if (Xml.name() == u"h2") Sections.push_back({TextUpToEnd(Xml), {}});
        if (Xml.name() != u"a" || !Xml.isStartElement() || Sections.empty()) continue;
        const QString Page =
            WithoutEnding(Xml.attributes().value(QLatin1String("href")).toString());
        Sections.back().Links.push_back({TextUpToEnd(Xml), Page});
    }
    return Sections;
}

QString ReadText(const QString& File) {
    QXmlStreamReader Xml(ReadFile(File));
    QString Text;
    bool InBody = false;
    while (!Xml.atEnd()) {
        const auto Token = Xml.readNext();
        if (Token == QXmlStreamReader::StartElement && Xml.name() == u"body") InBody = true;
        if (Token == QXmlStreamReader::StartElement && !IsInLine(Xml.name())) Text += u' ';
        if (InBody && Token == QXmlStreamReader::Characters) Text += Xml.text();
    }
    return Text.simplified();
}

// The folder that the cover names for the language, or for its first one.
QString FolderNamedBy(const QString& Cover, const QString& Language) {
    QXmlStreamReader Xml(ReadFile(Cover));
    QString First, Its;
    while (!Xml.atEnd()) {
        if (Xml.readNext() != QXmlStreamReader::StartElement || Xml.name() != u"a") continue;
        const QString Folder = FolderOf(Xml.attributes().value(QLatin1String("href")).toString());
        if (First.isEmpty()) First = Folder;
        if (Xml.attributes().value(QLatin1String("hreflang")) == Language) Its = Folder;
    }
    return FolderOf(Cover) + (Its.isEmpty() ? First : Its);
}

QStringList WordsOf(const QString& Text) {
    return Text.split(u' ', Qt::SkipEmptyParts);
}

// Of the first of the words, by letters that may be others in case or accents.
QString ExcerptOf(const QString& Text, const QString& Sought) {
    const QString First = WordsOf(BareLetters(Sought)).value(0);
    const QStringList Words = WordsOf(Text);
    qsizetype At = 0;
    while (At < Words.size() && !BareLetters(Words[At]).contains(First)) ++At;
    const qsizetype Place = Words.mid(0, At).join(u' ').size();
    const qsizetype From = std::max<qsizetype>(0, Text.lastIndexOf(u' ', Place - Around) + 1);
    const QString Cut = Text.mid(From, 2 * Around);
    return (From > 0 ? QStringLiteral("… ") : QString()) + Cut.left(Cut.lastIndexOf(u' ')) +
           QStringLiteral(" …");
}

}  // namespace

HelpBook::HelpBook(const QString& Cover, const QString& Language)
    : mFolder(FolderNamedBy(Cover, Language)),
      mContents(ReadSections(FileOf(QStringLiteral("contents")))),
      mIndex(ReadSections(FileOf(QStringLiteral("index")))) {}

QString HelpBook::FileOf(const QString& Page) const {
    return mFolder + Page.section(u'#', 0, 0) + QLatin1String(Ending);
}

QString HelpBook::PageAt(const QString& File) const {
    const QString Clean = Straight(File), Folder = Straight(mFolder);
    return Clean.startsWith(Folder) ? WithoutEnding(Clean.mid(Folder.size())) : QString();
}

const std::vector<HelpBook::PageText>& HelpBook::Texts() const {
    if (!mTexts.empty()) return mTexts;
    for (const HelpSection& Section : mContents)
        for (const HelpLink& Link : Section.Links)
            mTexts.push_back({Link, ReadText(FileOf(Link.Page))});
    return mTexts;
}

std::vector<HelpFind> HelpBook::Find(const QString& Words) const {
    std::vector<HelpFind> InTitle, InText;
    for (const PageText& Each : Texts()) {
        if (!FoundIn(Each.Text, Words)) continue;
        const bool IsTitle = FoundIn(Each.Link.Title, Words);
        (IsTitle ? InTitle : InText).push_back({Each.Link, ExcerptOf(Each.Text, Words)});
    }
    InTitle.insert(InTitle.end(), InText.begin(), InText.end());
    return InTitle;
}

}  // namespace neb
