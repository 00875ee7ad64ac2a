// Pictures of the kinds that came later, in the counts and walks: taken, or passed over where they
// are switched off.
#include <gtest/gtest.h>

#include "albums/GraphicsSearch.h"
#include "albums/modPictureFiles.h"
#include "harness/TempFolder.h"
#include "harness/WithoutExtraFormats.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace harness;
using namespace Qt::StringLiterals;

class ExtraFormats : public ::testing::Test {
  protected:
    ExtraFormats() {
        for (const char* Name : {"IMG_1.HEIC", "b.avif", "c.GIF", "d.jp2", "e.webp", "f.mpo",
                                 "g.jpg", "h.hif", "notes.heic.txt"})
            WriteFile(Pics / QString::fromUtf8(Name), "x");
    }
    std::string Scan() const {
        QStringList Names;
        for (const QString& Path : ScanDirectory(Pics.Path(), false, [] { return true; }))
            Names << Path.mid(Pics.Path().size());
        return Names.join(u' ').toStdString();
    }
    std::int32_t Count() const {
        JobState Counted;
        return CountGraphicFiles(Pics.Path(), false, Counted);
    }

    TempFolder Pics;
};

TEST_F(ExtraFormats, AreScannedAndCounted) {
    EXPECT_EQ("b.avif c.GIF d.jp2 e.webp f.mpo g.jpg h.hif IMG_1.HEIC", Scan());
    EXPECT_EQ(8, Count());
}

TEST_F(ExtraFormats, AreNeitherWhereTheyAreSwitchedOff) {
    const WithoutExtraFormats Off;
    EXPECT_EQ("g.jpg", Scan());
    EXPECT_EQ(1, Count());
}

TEST_F(ExtraFormats, HaveEntriesOfTheirOwnAmongTheTypes) {
    const QStringList Types = GraphicTypes();
    EXPECT_EQ("WMF AVIF GIF HEIC/HEIF/HIF JP2/J2K/JPF/JPX MPO WEBP",
              Types.mid(11).join(u' ').toStdString());
    for (const char* Known : {".HEIC", ".HEIF", ".HIF", ".AVIF", ".GIF", ".JP2", ".J2K", ".MPO"})
        EXPECT_TRUE(IsSelectedType(QString::fromLatin1(Known), Types)) << Known;
    EXPECT_TRUE(IsSelectedType(u".HIF"_s, {u"HEIC/HEIF/HIF"_s}));
    EXPECT_FALSE(IsSelectedType(u".AVIF"_s, {u"HEIC/HEIF/HIF"_s}));
}

}  // namespace
}  // namespace neb
