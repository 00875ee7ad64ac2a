// Preferences while other windows change albums and shows: the lists follow, the choice stays.
#include "PreferencesRig.h"
#include "db/Changes.h"
#include "windows/frame/modBroadcast.h"

namespace neb {
namespace {

using namespace test;

class PreferencesFollow : public PreferencesRig {
  protected:
    PreferencesFollow() {
        BroadcastChangesOf(Engine);
        Sea = AddAlbum("Sea", {"Calm", "Storm"});
        AddAlbum("Attic", {"Dust"});
    }
    template <class Answered>
    static void Do(Answered Given) {
        ASSERT_TRUE(Given);
        Given->Now();
    }
    void Choose(const char* Box, const char* Name) const {
        Combo(Box).setCurrentIndex(Combo(Box).findText(QString::fromLatin1(Name)));
        EXPECT_EQ(Combo(Box).currentText(), Name);
    }
    // The entries; a star stands at the chosen one.
    std::string Entries(const char* Name) const {
        QStringList All;
        for (int I = 0; I < Combo(Name).count(); ++I)
            All << Combo(Name).itemText(I) + (I == Combo(Name).currentIndex() ? "*" : "");
        All.removeOne(QString::fromLatin1(""));
        return All.join('|').toStdString();
    }
    std::int32_t ShowID(const char* Name) {
        for (const auto& Each : Engine.GetAlbum(Sea)->SlideShows)
            if (Each->SlideShowName == QLatin1String(Name)) return Each->SlideShowID;
        return 0;
    }
    // With "Storm" of "Sea" chosen; what the lists are afterwards.
    struct Lists {
        std::string Albums, Shows;
    };
    Lists After(const std::function<void()>& Change) {
        Lists Found;
        Open([&] {
            Choose("cboAlbums", "Sea");
            Choose("cboSlideShows", "Storm");
            Type("txtSlideTimeout", "7");
            Change();
            Found = {Entries("cboAlbums"), Entries("cboSlideShows")};
            EXPECT_EQ("7", Text("txtSlideTimeout").text()) << "what is typed stays";
        });
        return Found;
    }

    std::int32_t Sea = 0;
    Changes Door{Engine};
};

TEST_F(PreferencesFollow, ANewAndARenamedAlbumKeepTheChoice) {
    const Lists Found = After([this] {
        Do(Door.MakeAlbum("Barn"));
        Do(Door.RenameAlbum(Sea, "Ocean"));
    });
    EXPECT_NE(std::string::npos, Found.Albums.find("Attic|Barn|")) << Found.Albums;
    EXPECT_NE(std::string::npos, Found.Albums.find("Ocean*")) << Found.Albums;
    EXPECT_EQ("Calm|Storm*", Found.Shows);
}

TEST_F(PreferencesFollow, ADeletedAlbumTakesItsShowsAndTheChoiceAlong) {
    const Lists Found = After([this] { Do(Door.DeleteAlbum(Sea)); });
    EXPECT_EQ(std::string::npos, Found.Albums.find("Sea")) << Found.Albums;
    EXPECT_EQ(std::string::npos, Found.Albums.find("*")) << Found.Albums;
    EXPECT_EQ("", Found.Shows);
}

TEST_F(PreferencesFollow, ShowsComeAndGoAndAreRenamed) {
    const Lists Found = After([this] {
        clsNEBSlideShow Fresh;
        Fresh.SlideShowName = "Breeze";
        Do(Door.SaveShow(Sea, std::move(Fresh)));
        Do(Door.DeleteShow(Sea, ShowID("Calm")));
        clsNEBSlideShow Renamed;
        Renamed.SlideShowID = ShowID("Storm");
        Renamed.SlideShowName = "Tempest";
        Do(Door.SaveShow(Sea, std::move(Renamed)));
    });
    EXPECT_EQ("Breeze|Tempest*", Found.Shows);
}

TEST_F(PreferencesFollow, ADeletedShowThatWasChosenLeavesNoneChosen) {
    const Lists Found = After([this] { Do(Door.DeleteShow(Sea, ShowID("Storm"))); });
    EXPECT_EQ("Calm", Found.Shows);
    EXPECT_NE(std::string::npos, Found.Albums.find("Sea*"));
}

TEST_F(PreferencesFollow, ShowsOfAnotherAlbumDoNotMatter) {
    const std::int32_t Attic = Sea + 1;
    const Lists Found = After([&] {
        clsNEBSlideShow Fresh;
        Fresh.SlideShowName = "More";
        Do(Door.SaveShow(Attic, std::move(Fresh)));
    });
    EXPECT_EQ("Calm|Storm*", Found.Shows);
}

}  // namespace
}  // namespace neb
