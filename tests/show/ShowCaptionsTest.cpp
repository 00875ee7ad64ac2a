#include "show/captions/ShowCaptions.h"

#include <gtest/gtest.h>

#include "db/clsDBEngine.h"
#include "harness/TempFolder.h"

namespace neb {
namespace {

class TheCaptions : public ::testing::Test {
  protected:
    TheCaptions() {
        mEngine.SetDBPath(mFolder / QStringLiteral("db/"));
        mEngine.InitializeDB();
        mEngine.SaveAlbum(mAlbum, QStringLiteral("Holiday"));
        Album().SaveSlideShow(mShow, QStringLiteral("Lake"), 0, mEngine);
    }

    clsNEBAlbum& Album() { return *mEngine.GetAlbum(mAlbum); }
    void Add(const char* OfSlide, const char* OfShow = "") {
        std::int32_t ID = 0;
        Album().SaveSlide(ID, QString::fromUtf8(OfSlide), {}, {}, false, false, mEngine);
        auto& Show = *Album().GetSlideShow(mShow);
        Show.SaveDetail(ID, static_cast<std::int32_t>(Show.Details.size()) + 1,
                        QString::fromUtf8(OfShow));
    }
    ShowCaptions Captions() const { return {&mEngine, mAlbum, mShow}; }
    std::int32_t Find(const char* Wanted, std::int32_t Present = 1) const {
        return Captions().Find(QString::fromUtf8(Wanted), Present);
    }

    harness::TempFolder mFolder;
    clsDBEngine mEngine;
    std::int32_t mAlbum = 0, mShow = 0;
};

TEST_F(TheCaptions, AreThoseOfTheShowElseThoseOfTheSlides) {
    Add("Slide", "Show");
    Add("Tom & Anna\r\nat the lake");
    Add("");
    EXPECT_EQ(3, Captions().Count());
    EXPECT_EQ("Show", Captions().At(1).toStdString());
    EXPECT_EQ("Tom & Anna at the lake", Captions().At(2).toStdString());
    EXPECT_EQ("", Captions().At(3).toStdString());
    EXPECT_EQ("", Captions().At(0).toStdString());
    EXPECT_EQ("", Captions().At(4).toStdString());
}

TEST_F(TheCaptions, FindASlideByItsNumber) {
    for (const char* Text : {"a 3", "b", "c"}) Add(Text);
    EXPECT_EQ(1, Find("1"));
    EXPECT_EQ(3, Find(" 3 ")) << "though a caption holds the figure";
    EXPECT_EQ(0, Find("4"));
    EXPECT_EQ(0, Find("0"));
    EXPECT_EQ(0, Find("-1"));
}

TEST_F(TheCaptions, FindASlideByItsNumberInTheDigitsOfAnyScript) {
    for (const char* Text : {"a", "b", "c"}) Add(Text);
    EXPECT_EQ(3, Find("\u0663"));
    EXPECT_EQ(0, Find("\u0664"));
}

TEST_F(TheCaptions, AreFoundInEveryScript) {
    for (const char* Text :
         {"x", "Ёлка дома", "水曜日の朝", "שָׁלוֹם 2024", "Family 👩‍👩‍👧"})
        Add(Text);
    EXPECT_EQ(2, Find("елка"));
    EXPECT_EQ(3, Find("水曜"));
    EXPECT_EQ(4, Find("שלום"));
    EXPECT_EQ(5, Find("👩‍👩‍👧"));
    EXPECT_EQ(0, Find("木"));
}

TEST_F(TheCaptions, FindANumberAmongTheWordsWhenTheShowIsNotSoLong) {
    Add("Summer 1999");
    Add("Winter 2001");
    EXPECT_EQ(2, Find("2001"));
}

TEST_F(TheCaptions, FindTheNextSlideThatHasAllTheWords) {
    for (const char* Text : {"The lake", "The old mill", "A mill, old", "Lake and mill"}) Add(Text);
    EXPECT_EQ(2, Find("mill"));
    EXPECT_EQ(3, Find("mill", 2)) << "goes on from the present slide";
    EXPECT_EQ(2, Find("old mill", 3)) << "and round";
    EXPECT_EQ(4, Find("mill lake"));
    EXPECT_EQ(1, Find("the lake", 1)) << "the present one last";
    EXPECT_EQ(3, Find("mill", 6)) << "from a place behind the end, as from its way round";
    EXPECT_EQ(0, Find("boat"));
    EXPECT_EQ(0, Find("mill boat"));
    EXPECT_EQ(0, Find(" "));
}

TEST_F(TheCaptions, AreFoundInAnyCaseAndWithoutAccents) {
    Add("x");
    Add("Caf\xC3\xA9 in K\xC3\xB6ln");
    EXPECT_EQ(2, Find("CAFE koln"));
    EXPECT_EQ(2, Find("caf\xC3\xA9"));
}

TEST_F(TheCaptions, OfAShowThatIsNotThereAreNone) {
    Add("x");
    for (const ShowCaptions& None :
         {ShowCaptions(nullptr, mAlbum, mShow), ShowCaptions(&mEngine, 77, mShow),
          ShowCaptions(&mEngine, mAlbum, 77)}) {
        EXPECT_EQ(0, None.Count());
        EXPECT_EQ("", None.At(1).toStdString());
        EXPECT_EQ(0, None.Find(QStringLiteral("x"), 1));
        EXPECT_EQ(0, None.Find(QStringLiteral("1"), 1));
    }
}

}  // namespace
}  // namespace neb
