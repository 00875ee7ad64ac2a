// The commands that the documents show, run as they stand there, one block after the other in one
// shell, on photographs of the test's own.
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>

#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

QString CommandsIn(const QString& Document) {
    static const QRegularExpression Block(u"```sh\n(.*?)```"_s,
                                          QRegularExpression::DotMatchesEverythingOption);
    QString All;
    const QString Text = QString::fromUtf8(ReadFile(NEB_SOURCE_DIR "/docs/" + Document));
    for (auto At = Block.globalMatch(Text); At.hasNext();) All += At.next().captured(1);
    return All;
}

class DocExamples : public ::testing::Test {
  protected:
    DocExamples() {
        QDir().mkpath(mFolder.Path() + "holiday");
        for (int I = 1; I <= 3; ++I) {
            QImage Made(320, 240, QImage::Format_RGB32);
            Made.fill(QColor::fromHsv(90 * I, 150, 200));
            Made.save(mFolder.Path() + u"holiday/Lake %1.jpg"_s.arg(I));
        }
    }
    // With "set -e": what fails ends it. Gives all that was said, with the exit code in front.
    std::string Run(const QString& Commands) const {
        QProcess Shell;
        QProcessEnvironment Its = QProcessEnvironment::systemEnvironment();
        Its.insert(u"PATH"_s, u"" NEB_BINARY_DIR "/bin:"_s + Its.value(u"PATH"_s));
        Its.insert(u"HOME"_s, mFolder.Path().chopped(1));
        Its.remove(u"XDG_CONFIG_HOME"_s);
        Shell.setProcessEnvironment(Its);
        Shell.setWorkingDirectory(mFolder.Path());
        Shell.setProcessChannelMode(QProcess::MergedChannels);
        Shell.start(u"sh"_s, {u"-e"_s, u"-c"_s, Commands});
        Shell.waitForFinished(120'000);
        return std::to_string(Shell.exitCode()) + '\n' + Shell.readAll().toStdString();
    }
    // The albums that the program of this user would have.
    std::string MakeOwnAlbums() const {
        return Run(
            u"mkdir -p 'Documents/NEB/NEB Slide Show' stick && "
            u"nebctl import Documents holiday --album Holiday --show Lake"_s);
    }
    static bool IsWell(const std::string& Said) { return Said.starts_with("0\n"); }
    bool Has(const QString& Path) const { return NameExists(mFolder.Path() + Path); }

    harness::TempFolder mFolder;
};

TEST_F(DocExamples, ThoseForScriptsDoWhatThePageSays) {
    const std::string Said = Run(CommandsIn(u"SCRIPTS.md"_s));
    EXPECT_TRUE(IsWell(Said)) << Said;
    EXPECT_NE(Said.find("Holiday 3 slides"), std::string::npos) << Said;
    EXPECT_NE(Said.find("By the Lake 3 places"), std::string::npos) << Said;
    for (const char* Made : {"holiday.pdf", "holiday.mp4", "stick/Albums.dat", "copy/Albums.dat"})
        EXPECT_TRUE(Has(Made)) << Made;
}

TEST_F(DocExamples, TheKeysThatThePageForScriptsNamesAreInTheRecords) {
    const std::string Said = Run(CommandsIn(u"SCRIPTS.md"_s).section(u"python3"_s, 0, 0));
    const QByteArray Json = ReadFile(mFolder.Path() + "albums.json");
    EXPECT_TRUE(QJsonDocument::fromJson(Json).isObject()) << Said;
    const QString Page = QString::fromUtf8(ReadFile(NEB_SOURCE_DIR "/docs/SCRIPTS.md"));
    static const QRegularExpression Key(u"`([A-Z][A-Za-z]+)`"_s);
    int Keys = 0;
    for (auto At = Key.globalMatch(Page); At.hasNext(); ++Keys) {
        const QString Name = At.next().captured(1);
        EXPECT_TRUE(Json.contains('"' + Name.toUtf8() + '"')) << Name.toStdString();
    }
    EXPECT_GT(Keys, 12);
}

TEST_F(DocExamples, TheScriptForBackupsKeepsAndBringsBack) {
    EXPECT_TRUE(IsWell(MakeOwnAlbums()));
    const std::string Said = Run(CommandsIn(u"BACKUPS.md"_s));
    EXPECT_TRUE(IsWell(Said)) << Said;
    EXPECT_TRUE(Has(u"Documents/NEB/NEB Slide Show/Albums.dat"_s));
    EXPECT_TRUE(Has(u"Documents/NEB/NEB Slide Show of before/Albums.dat"_s));
}

TEST_F(DocExamples, TheScriptForBackupsLeavesNoDayBehindWhenTheCopyIsNotGood) {
    EXPECT_TRUE(IsWell(MakeOwnAlbums()));
    const QString Picture = u"Documents/NEB/NEB Slide Show/Albums/1/Slides/00000001.jpg"_s;
    WriteFile(mFolder.Path() + Picture, "damaged");
    const std::string Said = Run(CommandsIn(u"BACKUPS.md"_s).section(u"mv \"$albums"_s, 0, 0));
    EXPECT_FALSE(IsWell(Said)) << Said;
    const QStringList Days =
        QDir(mFolder.Path() + "Backups").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    ASSERT_EQ(1, Days.size());
    EXPECT_TRUE(Days.front().endsWith(u".new"_s)) << Days.front().toStdString();
}

TEST_F(DocExamples, ThoseForMovingBringAllAlbumsAndOne) {
    EXPECT_TRUE(IsWell(MakeOwnAlbums()));
    const std::string Said =
        Run(CommandsIn(u"MOVING.md"_s) + u"nebctl dump new-home/Documents\n"_s);
    EXPECT_TRUE(IsWell(Said)) << Said;
    EXPECT_NE(Said.find("\"Holiday\""), std::string::npos);
    EXPECT_NE(Said.find("\"Holiday of before\""), std::string::npos);
}

}  // namespace
}  // namespace neb
