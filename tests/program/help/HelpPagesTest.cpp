// The pages of the help among themselves: all of them can be read, reached and found, and lead
// nowhere else.
#include <QFileInfo>
#include <QImage>
#include <QSet>
#include <QXmlStreamReader>

#include "HelpRig.h"

namespace neb {
namespace {

// What the elements of a page say in an attribute: the addresses of its links, say.
QStringList AttributesIn(const QString& Page, QStringView Element, const QString& Attribute) {
    QStringList All;
    QXmlStreamReader Xml(HelpSource(Page));
    while (!Xml.atEnd())
        if (Xml.readNext() == QXmlStreamReader::StartElement && Xml.name() == Element)
            All << Xml.attributes().value(Attribute).toString();
    return All;
}

QString FileBehind(const QString& Page, const QString& Address) {
    const QString Folder = QFileInfo(kHelpSource + "en/" + Page).path();
    return QDir::cleanPath(Folder + '/' + Address.section('#', 0, 0));
}

class HelpPagesTest : public ::testing::Test {
  protected:
    HelpPagesTest() { LayHelpInto(mProgram.Path()); }
    ~HelpPagesTest() override { QFile::remove(mProgram.Path() + "help"); }
    HelpBook Book(const QString& Language = "en") const {
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
        const HelpBook Its = Book();
        for (const HelpFind& Each : Its.Find(Words)) Pages << Each.Link.Page;
        return Pages;
    }
    harness::TempFolder mProgram;
};

TEST_F(HelpPagesTest, EachCanBeReadAndBearsItsTitleAsItsHeading) {
    EXPECT_GT(HelpPages().size(), 60);
    for (const QString& Page : HelpPages()) {
        QXmlStreamReader Xml(HelpSource(Page));
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

TEST_F(HelpPagesTest, TheirLinksLeadToPages) {
    int Links = 0;
    for (const QString& Page : HelpPages())
        for (const QString& Address : AttributesIn(Page, u"a", "href")) {
            ++Links;
            EXPECT_TRUE(QFileInfo(FileBehind(Page, Address)).isFile())
                << Page.toStdString() << ": " << Address.toStdString();
            const QString Place = Address.section('#', 1);
            EXPECT_TRUE(Place.isEmpty() ||
                        ReadFile(FileBehind(Page, Address)).contains(("id=\"" + Place).toUtf8()))
                << Address.toStdString();
        }
    EXPECT_GT(Links, 300);
}

TEST_F(HelpPagesTest, TheirPicturesAreThereAndNoOthers) {
    QSet<QString> Shown;
    for (const QString& Page : HelpPages())
        for (const QString& Address : AttributesIn(Page, u"img", "src")) {
            Shown << FileBehind(Page, Address);
            EXPECT_GT(QImage(FileBehind(Page, Address)).width(), 200) << Address.toStdString();
        }
    qint64 Bytes = 0;
    for (const QFileInfo& Each : QDir(kHelpSource + "en/pictures").entryInfoList(QDir::Files)) {
        EXPECT_TRUE(Shown.contains(Each.filePath())) << Each.filePath().toStdString();
        Bytes += Each.size();
    }
    EXPECT_GT(Shown.size(), 30);
    EXPECT_LT(Bytes, 1'500'000);
}

TEST_F(HelpPagesTest, SayNothingOfColoursSoThatAnyDesktopCanBeRead) {
    for (const QString& Page : HelpPages())
        for (const char* Word : {"color", "style=", "<font", "bgcolor"})
            EXPECT_FALSE(HelpSource(Page).contains(QLatin1String(Word))) << Page.toStdString();
}

TEST_F(HelpPagesTest, TheContentsListEachOfThemOnce) {
    QStringList Listed = PagesIn(Book().Contents());
    Listed << "contents"
           << "index";
    Listed.sort();
    EXPECT_EQ(HelpPages().join('\n').toStdString(), Listed.join('\n').toStdString());
}

TEST_F(HelpPagesTest, TheIndexIsSortedAndLeadsToEachOfThem) {
    QStringList Terms;
    const HelpBook Its = Book();
    for (const HelpSection& Letter : Its.Index())
        for (const HelpLink& Link : Letter.Links) {
            Terms << Link.Title;
            EXPECT_EQ(Letter.Title.toStdString(), Link.Title.left(1).toUpper().toStdString());
        }
    QStringList Sorted = Terms;
    Sorted.sort(Qt::CaseInsensitive);
    EXPECT_EQ(Sorted.join('\n').toStdString(), Terms.join('\n').toStdString());
    EXPECT_EQ(0, Sorted.removeDuplicates());
    EXPECT_GT(Terms.size(), 200);
    const QStringList Led = PagesIn(Its.Index());
    for (const QString& Page : PagesIn(Its.Contents()))
        EXPECT_TRUE(Led.contains(Page)) << Page.toStdString();
}

TEST_F(HelpPagesTest, SearchingFindsThePagesThatHaveAllWordsWhateverTheirCase) {
    EXPECT_TRUE(Found("MICROPHONE").contains("albums/sound-recorder"));
    EXPECT_TRUE(Found("subtitle srt").contains("shows/film"));
    EXPECT_FALSE(Found("subtitle microphone").contains("shows/film"));
    EXPECT_EQ(QStringList(), Found("xylophone"));
    EXPECT_EQ(QStringList(), Found("  "));
    EXPECT_EQ("paper/print-preview", Found("print preview").value(0).toStdString())
        << "the page of that title before those that only name it";
}

TEST_F(HelpPagesTest, WhatIsFoundShowsTheWordsAroundIt) {
    const HelpBook Its = Book();
    for (const HelpFind& Each : Its.Find("microphone"))
        EXPECT_TRUE(Each.Excerpt.contains("microphone", Qt::CaseInsensitive))
            << Each.Excerpt.toStdString();
}

TEST_F(HelpPagesTest, AnotherLanguageIsTakenWhereThereIsOneElseEnglish) {
    EXPECT_TRUE(Book("de").FileOf("contents").endsWith("help/en/contents.html"));
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
