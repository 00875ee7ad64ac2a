// Every text that people read is translated, and the translation fits where its source stands.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

using namespace Qt::StringLiterals;

const QString Root = QStringLiteral(NEB_SOURCE_DIR "/");

struct Entry {
    QString Source, Words;
};

std::vector<Entry> EntriesOf(const QString& Path) {
    QFile File(Path);
    EXPECT_TRUE(File.open(QIODevice::ReadOnly));
    QXmlStreamReader Xml(&File);
    std::vector<Entry> Found;
    while (!Xml.atEnd()) {
        Xml.readNext();
        if (!Xml.isStartElement()) continue;
        if (Xml.name() == u"source")
            Found.push_back({Xml.readElementText(), {}});
        else if (Xml.name() == u"translation")
            Found.back().Words = Xml.readElementText();
    }
    EXPECT_FALSE(Xml.hasError()) << Xml.errorString().toStdString();
    return Found;
}

std::vector<Entry> AllEntries() {
    const QDir Folder(Root + u"translations"_s);
    std::vector<Entry> All;
    for (const QString& Name : Folder.entryList({u"*.ts"_s}))
        for (const Entry& Each : EntriesOf(Folder.filePath(Name))) All.push_back(Each);
    EXPECT_GT(All.size(), 1000u);
    return All;
}

// What of a text matches, in an order of its own.
QStringList Sorted(const QRegularExpression& Of, const QString& Text) {
    QStringList Found;
    for (const auto& Match : Of.globalMatch(Text)) Found << Match.captured();
    Found.sort();
    return Found;
}

template <class Same>
void ExpectOfAll(const Same& IsSame) {
    for (const Entry& Each : AllEntries())
        EXPECT_TRUE(IsSame(Each.Source, Each.Words))
            << Each.Source.toStdString() << "\n  as: " << Each.Words.toStdString();
}

}  // namespace

TEST(Translations, HaveEveryTextThatPeopleReadAndNoOther) {
    QProcess Script;
    Script.setProcessChannelMode(QProcess::MergedChannels);
    Script.start(Root + u"scripts/translations"_s, {u"--check"_s});
    ASSERT_TRUE(Script.waitForFinished(60'000));
    EXPECT_EQ(0, Script.exitCode())
        << Script.readAll().toStdString() << "scripts/translations brings them up to date.";
}

TEST(Translations, KeepThePlacesOfTheValues) {
    static const QRegularExpression Places(u"%[1-9n]"_s);
    ExpectOfAll([](const QString& Source, const QString& Words) {
        return Sorted(Places, Source) == Sorted(Places, Words);
    });
}

// "&&" is a sign, not a key.
TEST(Translations, HaveAKeyWhereTheSourceHasOne) {
    static const QRegularExpression Keys(u"(?<!&)&(?!&)\\w"_s,
                                         QRegularExpression::UseUnicodePropertiesOption);
    ExpectOfAll([](const QString& Source, const QString& Words) {
        return Sorted(Keys, Source).size() == Sorted(Keys, Words).size();
    });
}

// Pieces of sentences are put together by them; menus are parted by them, and filters.
TEST(Translations, BeginAndEndWithTheSameBlanksAndPartAlike) {
    static const QRegularExpression Head(u"^\\s*"_s), Tail(u"\\s*$"_s), Parts(u"[|\t]"_s);
    ExpectOfAll([](const QString& Source, const QString& Words) {
        const auto Same = [&](const QRegularExpression& Of) {
            return Sorted(Of, Source) == Sorted(Of, Words);
        };
        return Same(Head) && Same(Tail) && Same(Parts);
    });
}

// The toolkit reads them, in whatever language.
TEST(Translations, LeaveKeysAsTheyAre) {
    static const QRegularExpression Key(u"^(Ctrl|Alt|Shift)\\+[\\w+]+$"_s);
    ExpectOfAll([](const QString& Source, const QString& Words) {
        return !Key.match(Source).hasMatch() || Source == Words;
    });
}
