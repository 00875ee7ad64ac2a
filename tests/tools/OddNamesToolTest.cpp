// nebctl on folders and pictures whose names are no text, by the very bytes of the command line.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QJsonDocument>
#include <cstdlib>

#include "harness/TempFolder.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;
using harness::TempFolder;

class OddNamesTool : public ::testing::Test {
  protected:
    void SetUp() override {
        MakeDirs(Database);
        MakeDirs(Pictures + u".thumbs/"_s);
        for (const char* Name : {"Gr\xFC\xDF"
                                 "e.png",
                                 "sub\xE9/a.png", ".hidden.png", ".thumbs/b.png"})
            WritePicture(Pictures + HostName(Name));
        WriteFile(Pictures + HostName("bad\xFC.png"), "no picture");
    }
    void TearDown() override { DeleteTree(Dir / HostName("Bilder \xFC")); }

    static void WritePicture(const QString& Path) {
        QImage Picture(40, 30, QImage::Format_RGB32);
        Picture.fill(Qt::darkGreen);
        QByteArray Bytes;
        QBuffer Buffer(&Bytes);
        Buffer.open(QIODevice::WriteOnly);
        Picture.save(&Buffer, "PNG");
        MakeDirs(Path.left(Path.lastIndexOf(u'/')));
        WriteFile(Path, Bytes);
    }
    // The exit code; what it says is in the files Out and Err. The words have no quotes.
    int Run(const QList<QByteArray>& Words) const {
        QByteArray Line = NEB_BINARY_DIR "/bin/nebctl";
        for (const QByteArray& Each : Words) Line += " '" + Each + '\'';
        Line += " >'" + (Dir / u"Out"_s).toUtf8() + "' 2>'" + (Dir / u"Err"_s).toUtf8() + '\'';
        return WEXITSTATUS(std::system(Line.constData()));
    }
    QByteArray Said(const QString& Where) const { return ReadFile(Dir / Where); }

    TempFolder Dir;
    const QString Database = Dir / HostName("Bilder \xFC/Alben/");
    const QString Pictures = Dir / HostName("Bilder \xFC/Fotos/");
};

TEST_F(OddNamesTool, ImportsPicturesFromThereAndToThere) {
    ASSERT_EQ(0, Run({"import", HostBytes(Database), HostBytes(Pictures), "--album", "Fr\xFChling",
                      "--recurse"}))
        << Said(u"Err"_s).constData();
    EXPECT_EQ("2 pictures imported into the album \"Fr\xC3\xBChling\".\n", Said(u"Out"_s));
    EXPECT_TRUE(Said(u"Err"_s).contains("bad\xC3\xBC.png"));
    EXPECT_TRUE(FileExists(Database + u"Albums.dat"_s));
    EXPECT_EQ(0, Run({"check", HostBytes(Database)})) << Said(u"Out"_s).constData();
}

TEST_F(OddNamesTool, TellsOfThemInText) {
    ASSERT_EQ(0, Run({"import", HostBytes(Database), HostBytes(Pictures), "--album", "Garden"}));
    ASSERT_EQ(0, Run({"dump", HostBytes(Database)}));
    QJsonParseError Error;
    QJsonDocument::fromJson(Said(u"Out"_s), &Error);
    EXPECT_EQ(QJsonParseError::NoError, Error.error);
    EXPECT_TRUE(
        Said(u"Out"_s).contains("Gr\xC3\xBC\xC3\x9F"
                                "e"));
    EXPECT_NE(0, Run({"dump", HostBytes(Dir / HostName("none\xFC"))}));
    EXPECT_TRUE(QString::fromUtf8(Said(u"Err"_s)).contains(u"noneü"_s));
}

}  // namespace
}  // namespace neb
