// The pages of the help among themselves: all of them can be read, reached and found, and lead
// nowhere else.
#include <QFileInfo>
#include <QImage>
#include <QSet>
#include <QXmlStreamReader>
#include <algorithm>

#include "HelpRig.h"
#include "support/modFind.h"

namespace neb {
namespace {

// What the elements of a page say in an attribute: the addresses of its links, say.
QStringList AttributesIn(const QString& Source, QStringView Element, const QString& Attribute) {
    QStringList All;
    QXmlStreamReader Xml(Source);
    while (!Xml.atEnd())
        if (Xml.readNext() == QXmlStreamReader::StartElement && Xml.name() == Element)
            All << Xml.attributes().value(Attribute).toString();
    return All;
}

class HelpLaidDown : public ::testing::Test {
  protected:
    HelpLaidDown() { LayHelpInto(mProgram.Path()); }
    ~HelpLaidDown() override { QFile::remove(mProgram.Path() + "help"); }
    HelpBook Book(const QString& Language) const {
        return HelpBook(mProgram.Path() + kHelpFile, Language);
    }
    static QStringList PagesIn(const std::vector<HelpSection>& Sections) {
        QStringList Pages;
        for (const HelpSection& Section : Sections)
            for (const HelpLink& Link : Section.Links) Pages << Link.Page;
        return Pages;
    }
    QStringList Found(const QString& Words) const {
        QStringList Pages;
        const HelpBook Its = Book("en");
        for (const HelpFind& Each : Its.Find(Words)) Pages << Each.Link.Page;
        return Pages;
    }
    harness::TempFolder mProgram;
};

class HelpPagesTest : public InEachLanguage<HelpLaidDown> {
  protected:
    static QString FileBehind(const QString& Page, const QString& Address) {
        const QString Folder = QFileInfo(kHelpSource + Language() + '/' + Page).path();
        return QDir::cleanPath(Folder + '/' + Address.section('#', 0, 0));
    }
    static QStringList Links(const QString& Page) {
        return AttributesIn(Source(Page), u"a", "href");
    }
    static QStringList Pictures(const QString& Page) {
        return AttributesIn(Source(Page), u"img", "src");
    }
};
INSTANTIATE_TEST_SUITE_P(Languages, HelpPagesTest, ::testing::ValuesIn(HelpLanguages()),
                         &NameOfLanguage);

// What a page has in whatever language: its pictures, the pages to which it leads, how many keys,
// entries of menus, rows and paragraphs.
QStringList MakeOf(const QString& Source) {
    QStringList Made = AttributesIn(Source, u"a", "href");
    for (const QString& Each : AttributesIn(Source, u"img", "src"))
        Made << QFileInfo(Each).fileName();
    for (const char* Each : {"<kbd>", "<b class=\"menu\">", "<i>", "<h2>", "<tr>", "<li>", "<p>"})
        Made << QStringLiteral("%1 %2").arg(Each).arg(Source.count(QLatin1String(Each)));
    Made.sort();
    return Made;
}

TEST_P(HelpPagesTest, TellWhatTheEnglishOnesTell) {
    EXPECT_EQ(HelpPages().join('\n').toStdString(), Pages().join('\n').toStdString());
    for (const QString& Page : Pages()) {
        if (Page == u"index") continue;
        EXPECT_EQ(MakeOf(HelpSource(Page)).join('\n').toStdString(),
                  MakeOf(Source(Page)).join('\n').toStdString())
            << Page.toStdString();
    }
}

TEST_P(HelpPagesTest, AreInTheLanguageThatTheirFolderAndTheCoverName) {
    EXPECT_EQ(Language().toStdString(), SpokenLanguage().toStdString());
    EXPECT_TRUE(
        Book(Language()).FileOf("contents").endsWith("help/" + Language() + "/contents.html"));
    for (const QString& Page : Pages())
        EXPECT_EQ(QStringList(Language()), AttributesIn(Source(Page), u"html", "lang"))
            << Page.toStdString();
}

TEST_P(HelpPagesTest, EachCanBeReadAndBearsItsTitleAsItsHeading) {
    EXPECT_GT(Pages().size(), 60);
    for (const QString& Page : Pages()) {
        QXmlStreamReader Xml(Source(Page));
        QString Title, Heading;
        while (!Xml.atEnd()) {
            if (Xml.readNext() != QXmlStreamReader::StartElement) continue;
            if (Xml.name() == u"title") Title = Xml.readElementText();
            if (Xml.name() == u"h1") Heading = Xml.readElementText();
        }
        EXPECT_FALSE(Xml.hasError()) << Page.toStdString() << Xml.errorString().toStdString();
        EXPECT_FALSE(Title.isEmpty()) << Page.toStdString();
        EXPECT_EQ(Title.toStdString(), Heading.toStdString());
    }
}

TEST_P(HelpPagesTest, TheirLinksLeadToPages) {
    int Count = 0;
    for (const QString& Page : Pages())
        for (const QString& Address : Links(Page)) {
            ++Count;
            EXPECT_TRUE(QFileInfo(FileBehind(Page, Address)).isFile())
                << Page.toStdString() << ": " << Address.toStdString();
            const QString Place = Address.section('#', 1);
            EXPECT_TRUE(Place.isEmpty() ||
                        ReadFile(FileBehind(Page, Address)).contains(("id=\"" + Place).toUtf8()))
                << Address.toStdString();
        }
    EXPECT_GT(Count, 300);
}

TEST_P(HelpPagesTest, TheirPicturesAreThereAndNoOthers) {
    QSet<QString> Shown;
    for (const QString& Page : Pages())
        for (const QString& Address : Pictures(Page)) {
            Shown << FileBehind(Page, Address);
            EXPECT_GT(QImage(FileBehind(Page, Address)).width(), 200) << Address.toStdString();
        }
    qint64 Bytes = 0;
    for (const QFileInfo& Each :
         QDir(kHelpSource + Language() + "/pictures").entryInfoList(QDir::Files)) {
        EXPECT_TRUE(Shown.contains(Each.filePath())) << Each.filePath().toStdString();
        Bytes += Each.size();
    }
    EXPECT_GT(Shown.size(), 30);
    EXPECT_LT(Bytes, 1'500'000);
}

TEST_P(HelpPagesTest, SayNothingOfColoursSoThatAnyDesktopCanBeRead) {
    for (const QString& Page : Pages())
        for (const char* Word : {"color", "style=", "<font", "bgcolor"})
            EXPECT_FALSE(Source(Page).contains(QLatin1String(Word))) << Page.toStdString();
}

TEST_P(HelpPagesTest, TheContentsListEachOfThemOnce) {
    QStringList Listed = PagesIn(Book(Language()).Contents());
    Listed << "contents"
           << "index";
    Listed.sort();
    EXPECT_EQ(Pages().join('\n').toStdString(), Listed.join('\n').toStdString());
}

TEST_P(HelpPagesTest, TheIndexIsSortedAndLeadsToEachOfThem) {
    QStringList Terms;
    const HelpBook Its = Book(Language());
    for (const HelpSection& Letter : Its.Index())
        for (const HelpLink& Link : Letter.Links) {
            Terms << Link.Title;
            const QString First = BareLetters(Link.Title).left(1).toUpper();
            EXPECT_EQ(Letter.Title.toStdString(), First.toStdString()) << Link.Title.toStdString();
        }
    QStringList Sorted = Terms;
    std::ranges::sort(Sorted, {}, [](const QString& Each) { return BareLetters(Each); });
    EXPECT_EQ(Sorted.join('\n').toStdString(), Terms.join('\n').toStdString());
    EXPECT_EQ(0, Sorted.removeDuplicates());
    EXPECT_GT(Terms.size(), 200);
    const QStringList Led = PagesIn(Its.Index());
    for (const QString& Page : PagesIn(Its.Contents()))
        EXPECT_TRUE(Led.contains(Page)) << Page.toStdString();
}

TEST_F(HelpLaidDown, SearchingFindsThePagesThatHaveAllWordsWhateverTheirCase) {
    EXPECT_TRUE(Found("MICROPHONE").contains("albums/sound-recorder"));
    EXPECT_TRUE(Found("subtitle srt").contains("shows/film"));
    EXPECT_FALSE(Found("subtitle microphone").contains("shows/film"));
    EXPECT_EQ(QStringList(), Found("xylophone"));
    EXPECT_EQ(QStringList(), Found("  "));
    EXPECT_EQ("paper/print-preview", Found("print preview").value(0).toStdString())
        << "the page of that title before those that only name it";
}

TEST_F(HelpLaidDown, WhatIsFoundShowsTheWordsAroundIt) {
    const HelpBook Its = Book("en");
    for (const HelpFind& Each : Its.Find("microphone"))
        EXPECT_TRUE(Each.Excerpt.contains("microphone", Qt::CaseInsensitive))
            << Each.Excerpt.toStdString();
}

TEST_F(HelpLaidDown, AnotherLanguageIsTakenWhereThereIsOneElseEnglish) {
    EXPECT_TRUE(Book("xx").FileOf("contents").endsWith("help/en/contents.html"));
    harness::TempFolder Other;
    QDir().mkpath(Other.Path() + "help/eo");
    for (const char* Each : {"contents", "index"})
        WriteFile(Other.Path() + "help/eo/" + Each + ".html",
                  "<html><body><h2>A</h2><a href=\"pri.html\">Pri</a></body></html>");
    QByteArray Cover = ReadFile(kHelpSource + kHelpFile);
    Cover.replace("</ul>", "<li><a hreflang=\"eo\" href=\"help/eo/contents.html\">x</a></li></ul>");
    WriteFile(Other.Path() + kHelpFile, Cover);
    const HelpBook Its(Other.Path() + kHelpFile, "eo");
    ASSERT_EQ(1U, Its.Contents().size());
    EXPECT_EQ("pri", Its.Contents()[0].Links[0].Page.toStdString());
}

}  // namespace
}  // namespace neb
