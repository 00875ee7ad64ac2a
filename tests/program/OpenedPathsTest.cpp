// What is opened from outside, sorted by what it is, and what is said of the rest.
#include "program/opening/OpenedPaths.h"

#include <gtest/gtest.h>

#include <QDir>

#include "albums/DiscRig.h"
#include "harness/TempFolder.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class OpenedPathsTest : public ::testing::Test {
  protected:
    OpenedPathsTest() {
        MakeDirs(Home / u"Garden"_s);
        for (const char* Name : {"Garden/Rose.jpg", "Garden/b.png", "notes.txt"})
            WriteFile(Home / QString::fromLatin1(Name), "x");
    }
    QString At(const char* Name) const { return Home / QString::fromLatin1(Name); }
    static std::string Told(const OpenedPaths& What) {
        const auto Box = What.Wrong();
        return Box ? (Box->Text + u'|' + Box->Details).toStdString() : "nothing";
    }
    harness::TempFolder Home;
};

TEST_F(OpenedPathsTest, AFolderAndOnePictureOfIt) {
    const OpenedPaths Folder = SortOut({At("Garden")});
    EXPECT_EQ(QStringList{At("Garden/")}, Folder.Named);
    EXPECT_EQ("nothing", Told(Folder));
    const OpenedPaths Picture = SortOut({At("Garden/Rose.jpg")});
    EXPECT_EQ((QStringList{At("Garden/"), At("Garden/Rose.jpg")}), Picture.Named);
    EXPECT_EQ(At("Garden/Rose.jpg"), Picture.AtPicture);
    EXPECT_EQ(At("Garden/Rose.jpg"), SortOut({At("garden/rose.JPG")}).AtPicture)
        << "as it is called on the disk";
}

TEST_F(OpenedPathsTest, SeveralAreThoseAlone) {
    const OpenedPaths Two = SortOut({At("Garden/Rose.jpg"), At("Garden/b.png")});
    EXPECT_EQ((QStringList{At("Garden/Rose.jpg"), At("Garden/b.png")}), Two.Named);
    EXPECT_EQ("", Two.AtPicture.toStdString());
    const OpenedPaths Mixed = SortOut({At("notes.txt"), At("Garden/b.png"), At("Garden")});
    EXPECT_EQ((QStringList{At("Garden/b.png"), At("Garden/"), At("notes.txt")}), Mixed.Named);
    EXPECT_EQ("nothing", Told(Mixed)) << "Quick Show tells of it";
}

TEST_F(OpenedPathsTest, APictureBesideWhatIsNoneDoesNotOpenItsFolder) {
    const OpenedPaths Both = SortOut({At("Garden/Rose.jpg"), At("nowhere.jpg")});
    EXPECT_EQ(QStringList{At("Garden/Rose.jpg")}, Both.Named);
    EXPECT_EQ("", Both.AtPicture.toStdString());
}

TEST_F(OpenedPathsTest, PrintDocumentsAreForThePreview) {
    WriteFile(At("Trip.PPD"), "x");
    const OpenedPaths Both = SortOut({At("Trip.PPD"), At("Garden")});
    EXPECT_EQ(QStringList{At("Trip.PPD")}, Both.Prints);
    EXPECT_EQ(QStringList{At("Garden/")}, Both.Named);
    EXPECT_EQ("nothing", Told(Both));
}

TEST_F(OpenedPathsTest, RelativeOnesAreSeenFromTheWorkingDirectory) {
    const QString Before = QDir::currentPath();
    QDir::setCurrent(Home.Path());
    EXPECT_TRUE(SortOut({"Garden/b.png"}).AtPicture.endsWith("/Garden/b.png"));
    EXPECT_TRUE(SortOut({"Garden/b.png"}).AtPicture.startsWith(u'/'));
    QDir::setCurrent(Before);
}

TEST_F(OpenedPathsTest, WhatCannotBeOpenedIsNamed) {
    EXPECT_EQ("There is no folder or picture nowhere.|", Told(SortOut({"nowhere"})));
    EXPECT_EQ(At("notes.txt").toStdString() + " is no picture.|", Told(SortOut({At("notes.txt")})));
    EXPECT_EQ("2 folders or pictures are not there.|/no/a\n/no/b\n",
              Told(SortOut({"/no/a", At("Garden"), "/no/b"})));
    EXPECT_EQ("There is no folder or picture /no/a.\n" + At("notes.txt").toStdString() +
                  " is no picture.|",
              Told(SortOut({"/no/a", At("notes.txt")})));
}

TEST_F(OpenedPathsTest, AFolderOfAlbumsIsNoFolderOfPictures) {
    harness::TempFolder Albums;
    harness::DiscSource Source{Albums.Path()};
    ASSERT_TRUE(WriteDiscFolder(Source.Engine, Source.All(), At("disc")));
    const OpenedPaths Both = SortOut({At("disc"), At("Garden")});
    EXPECT_EQ(QStringList{At("disc")}, Both.Albums);
    EXPECT_EQ(QStringList{At("Garden/")}, Both.Named);
}

}  // namespace
}  // namespace neb
