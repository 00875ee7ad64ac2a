// What is handed out beside the programs: versions, types of files, and whose work is in it.
#include <gtest/gtest.h>

#include <QDir>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QSet>

#include "ToolOutput.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

const QString Source = QStringLiteral(NEB_SOURCE_DIR "/");
const QString Built = QStringLiteral(NEB_BINARY_DIR "/");

QString TextOf(const QString& Name) {
    return QString::fromUtf8(ReadFile(Source + Name));
}

QStringList Captured(const QString& Text, const char* Pattern) {
    QStringList Found;
    auto Each =
        QRegularExpression(QString::fromLatin1(Pattern), QRegularExpression::MultilineOption)
            .globalMatch(Text);
    while (Each.hasNext()) Found << Each.next().captured(1);
    return Found;
}

TEST(Package, BothProgramsTellTheVersionOfTheProject) {
    EXPECT_EQ("NEB Slide Show " NEB_VERSION "\n",
              OutputOf(Built + "bin/neb-slide-show", {"--version"}).Out.toStdString());
    EXPECT_EQ("nebctl (NEB Slide Show) " NEB_VERSION "\n",
              OutputOf(Built + "bin/nebctl", {"--version"}).Out.toStdString());
}

TEST(Package, TheChangesBeginWithThisVersion) {
    const QStringList Headings = Captured(TextOf("CHANGELOG.md"), "^## \\[(.*)\\]");
    const int At = Headings.value(0) == "Unreleased" ? 1 : 0;
    EXPECT_EQ(NEB_VERSION, Headings.value(At).toStdString());
}

// The libraries that a program or a part of it is linked with.
QStringList LinkedWith(const QString& File) {
    return Captured(OutputOf("readelf", {"-d", File}).Out, "NEEDED.*\\[(.*)\\]");
}

TEST(Package, TheNoticesNameEveryLibraryAndNoneThatIsNotUsed) {
    QSet<QString> Linked;
    for (const char* Each : {"bin/neb-slide-show", "bin/nebctl", "lib/neb-slide-show/neb-pictures",
                             "lib/neb-slide-show/neb-metafiles", "lib/neb-slide-show/neb-sounds",
                             "lib/neb-slide-show/neb-films.so"})
        for (const QString& Library : LinkedWith(Built + QString::fromLatin1(Each)))
            Linked << Library;
    ASSERT_GT(Linked.size(), 30);
    Linked << "libXss.so.1";  // asked for by its name, where an X server is
    QSet<QString> Told;
    for (const QString& Row : Captured(TextOf("packaging/THIRD-PARTY.md"), "^\\|.*\\| (`.*`) \\|$"))
        for (const QString& Name : Captured(Row, "`([^`]+)`")) Told << Name;
    for (const QString& Name : std::as_const(Told)) {
        const QRegularExpression Files("^" +
                                       QRegularExpression::escape(Name).replace("\\*", "[^.]*") +
                                       "(-[0-9][^/]*)?\\.so\\b");
        const auto Before = Linked.size();
        for (const QString& Library : QSet<QString>(Linked))
            if (Files.match(Library).hasMatch()) Linked.remove(Library);
        EXPECT_LT(Linked.size(), Before) << Name.toStdString() << " is not used";
    }
    EXPECT_EQ("", QStringList(Linked.values()).join(' ').toStdString()) << "not in the notices";
}

class PackageTypes : public ::testing::Test {
  protected:
    PackageTypes() {
        MakeDirs(mHome / "mime/packages");
        WriteFile(mHome / "mime/packages/neb-slide-show.xml",
                  ReadFile(Source + "packaging/neb-slide-show.xml"));
        mBefore = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", QDir::cleanPath(mHome.Path()).toUtf8());
        const Output Made = OutputOf("update-mime-database", {mHome / "mime"});
        EXPECT_EQ(0, Made.Code) << Made.Err.toStdString();
    }
    ~PackageTypes() override {
        mBefore.isEmpty() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", mBefore);
    }
    static std::string TypeOf(const QString& File) {
        return QMimeDatabase().mimeTypeForFile(File).name().toStdString();
    }
    harness::TempFolder mHome;
    QByteArray mBefore;
};

TEST_F(PackageTypes, PrintDocumentsAreToldFromPrinterDescriptionsByTheirContent) {
    for (const QString& Name : QDir(Source + "tests/data/print").entryList({"*.ppd"}))
        EXPECT_EQ("application/x-neb-print-document", TypeOf(Source + "tests/data/print/" + Name));
    WriteFile(mHome / "printer.ppd", "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n");
    EXPECT_EQ("application/vnd.cups-ppd", TypeOf(mHome / "printer.ppd"));
}

TEST(Package, FoldersAndPrintDocumentsAreOpenedByTheProgram) {
    const QString Types =
        Captured(TextOf("packaging/neb-slide-show.desktop"), "^MimeType=(.*)").value(0);
    EXPECT_TRUE(Types.split(';').contains("inode/directory"));
    EXPECT_TRUE(Types.split(';').contains("application/x-neb-print-document"));
}

TEST(Package, EveryPictureThatTheStoreShowsIsKept) {
    const QStringList Shown = Captured(TextOf("packaging/org.neb.SlideShow.metainfo.xml.in"),
                                       "<image>@NEB_HOMEPAGE@(.*)</image>");
    EXPECT_GE(Shown.size(), 3);
    for (const QString& Picture : Shown)
        EXPECT_TRUE(FileExists(Source + "docs/" + Picture)) << Picture.toStdString();
}

}  // namespace
}  // namespace neb
