// Find Graphics on media that come and go.
#include <sys/stat.h>

#include "albums/GraphicsSearch.h"
#include "harness/MountedMemory.h"
#include "windows/import/FindGraphicsHarness.h"

namespace neb {
namespace {

using namespace harness;

class FindGraphicsMount : public FindGraphics {
  protected:
    FindGraphicsMount() {
        MakeDirs(Pics / u"stick"_s);
        Stick.emplace(Pics / u"stick"_s);
        Drives.Paths = {Pics / u"stick"_s};
    }
    void SetUp() override {
        if (!Stick->IsThere()) GTEST_SKIP() << "nothing can be mounted here";
    }
    // The last step of a search of Directory in which Do happens before or after "m" is listed.
    SearchStep LastStep(const QString& Directory, bool Before) {
        const auto List = [this, Before](const QString& Dir, std::error_code& Error) {
            if (Before && Dir.endsWith(u"/m/")) Stick->TakeAway();
            auto Entries = ListDir(Dir, Error);
            if (!Before && Dir.endsWith(u"/m/")) Stick->TakeAway();
            return Entries;
        };
        GraphicsSearch Search(Directory, u"*.*"_s, GraphicTypes(), List);
        SearchStep Last;
        while (Search.Wait(10000) && !Search.AtEnd()) Last = Search.Take();
        return Last;
    }
    std::optional<MountedMemory> Stick;
};

TEST_F(FindGraphicsMount, TellsOfAMediumThatIsPulledOutAndKeepsTheRows) {
    constexpr int Count = 600;  // more than the walk may be ahead of the window
    for (int I = 0; I < Count; ++I) Make(u"stick/d%1/p.jpg"_s.arg(I));
    Show();
    AtDirectory(5, [&] { Stick->TakeAway(); });
    Search();
    EXPECT_EQ("1 folder was passed over.", Label("lblPassedOver"));
    Boxes.Expect(u"1 folder could not be opened."_s);
    Press(*Window, "cmdPassedOver");
    const QString Details = Boxes.Last().Details;
    EXPECT_TRUE(Details.contains(u'\n' + Pics / u"stick/d"_s) &&
                Details.endsWith(u": No such device"_s))
        << Details.toStdString();
    EXPECT_GE(Grid().Rows(), 4);
    EXPECT_LT(Grid().Rows(), Count);
    EXPECT_EQ(QString::number(Grid().Rows()) + u" Results"_s,
              QString::fromStdString(Label("lblResults")));
    EXPECT_TRUE(Button("cmdImport").isEnabled());
    EXPECT_EQ("Find Graphics", Window->windowTitle().toStdString());
    EXPECT_TRUE(Button("cmdSearch").isEnabled());
    Search();
    EXPECT_EQ(0, Grid().Rows());
}

TEST_F(FindGraphicsMount, KnowsAMediumBelowTheDirectoryThatIsSearched) {
    Make(u"stick/m/a.jpg"_s);
    const SearchStep Last = LastStep(Pics.Path(), true);
    EXPECT_EQ(Pics / u"stick/m"_s, Last.Directory);
    EXPECT_EQ(std::errc::no_such_device, Last.Error);
}

TEST_F(FindGraphicsMount, KnowsAMediumThatGoesBetweenTheFilesOfADirectory) {
    for (const char* Name : {"stick/m/a.txt", "stick/m/b.jpg", "stick/m/c.jpg"})
        Make(QString::fromLatin1(Name));
    const SearchStep Last = LastStep(Pics / u"stick"_s, false);
    EXPECT_EQ(std::errc::no_such_device, Last.Error);
    EXPECT_TRUE(Last.Files.empty());
}

TEST_F(FindGraphics, FollowsDrivesThatComeAndGoAndKeepsTheChoice) {
    Make({"one/a.jpg", "two/b.jpg", "other/c.jpg"});
    const QString One = Pics / u"one"_s, Two = Pics / u"two"_s, Other = Pics / u"other"_s;
    Drives.Paths = {One};
    Show();
    Browse(Other);
    Drives.Paths = {One, Two};
    Drives.TellChange();
    EXPECT_EQ(QStringList({One, Two, Other, u"All Drives"_s, u"Browse"_s}), PathTexts());
    EXPECT_EQ(Other, Path().currentText());
    Path().setCurrentText(Two);
    Drives.Paths = {One};
    Drives.TellChange();
    EXPECT_EQ(QStringList({One, Other, u"All Drives"_s, u"Browse"_s}), PathTexts());
    EXPECT_EQ("All Drives", Path().currentText().toStdString());
    Search();
    EXPECT_EQ("a.jpg", Names());
}

TEST_F(FindGraphics, FollowsADriveThatComesWhileADirectoryIsChosenInVain) {
    Make({"late/a.jpg"});
    const QString Late = Pics / u"late"_s;
    Show();
    Browse({});
    ASSERT_EQ("Browse", Path().currentText().toStdString());
    WhenOpen<frmDirSelect>([&](frmDirSelect& Selector) {
        Drives.Paths << Late;
        Drives.TellChange();
        Press(Selector, "cmdCancel");
    });
    Search();
    EXPECT_LE(0, Path().findText(Late));
    EXPECT_EQ("Browse", Path().currentText().toStdString());
}

TEST_F(FindGraphics, FollowsADriveThatComesDuringTheSearchWhenThatIsOver) {
    MakeMany(10);
    const QString Late = Pics / u"d000"_s;
    Show();
    AtDirectory(5, [&] {
        Drives.Paths << Late;
        Drives.TellChange();
        EXPECT_EQ(-1, Path().findText(Late));
    });
    Search();
    EXPECT_EQ("10 Results", Label("lblResults"));
    EXPECT_EQ(1, Path().findText(Late));
}

}  // namespace
}  // namespace neb
