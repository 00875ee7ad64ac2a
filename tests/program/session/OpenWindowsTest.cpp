// What stands open when a session ends comes back with it, and nobody is asked twice.
#include "program/session/OpenWindows.h"

#include <QMdiSubWindow>

#include "program/MainWindowRig.h"
#include "program/Workspace.h"
#include "program/session/LoginSession.h"
#include "windows/frame/AlbumInHand.h"
#include "windows/gallery/AlbumPage.h"
#include "windows/home/HomePage.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class OpenWindowsOf : public MainWindow {
  protected:
    void StartWithGarden() {
        Start();
        SaveAlbum(u"Garden"_s);
        SaveAlbum(u"Park"_s);
        mPark = DBEngine->Albums.back()->AlbumID;
        ASSERT_TRUE(DBEngine->Albums.back()->SaveSlideShow(mShow, u"A Walk"_s, 1, *DBEngine));
    }
    WindowPlaces Places() const { return {mWindow->Area(), mWindow->Home()}; }
    QList<OpenWindow> Now() const { return WindowsOpenIn(Places()); }
    void CloseAll() {
        const harness::LettingGo Answers;
        for (const auto& Window : LoadedForms()) Window->Unload();
        DoEvents();
    }
    void Again(const QList<OpenWindow>& Windows) {
        OpenAgain(Places(), Windows);
        DoEvents();
    }

    std::int32_t mPark = 0, mShow = 0;
};

TEST_F(OpenWindowsOf, ComeBackOnTheirAlbumsAndShowsInTheirOrder) {
    StartWithGarden();
    mWindow->Home().ShowAlbum(mPark);
    NoteAlbumInHand(mPark);
    Press("mnuSlideMgr");
    TheOpeners().SlideShowMgr(mPark, mShow);
    Press("mnuAlbumExport");
    DoEvents();
    const QList<OpenWindow> Were = Now();
    ASSERT_EQ(4, Were.size());
    EXPECT_EQ("HomePage", Were[0].Name.toStdString());
    EXPECT_EQ(mPark, Were[0].AlbumID);
    EXPECT_EQ("frmSlideDBM", Were[1].Name.toStdString());
    EXPECT_EQ(mPark, Were[1].AlbumID);
    EXPECT_EQ("frmSlideShowDBM", Were[2].Name.toStdString());
    EXPECT_EQ(mShow, Were[2].SlideShowID);
    EXPECT_EQ("frmAlbumExport", Were[3].Name.toStdString());
    CloseAll();
    EXPECT_EQ(1, Now().size()) << "the home alone";
    Again(Unpacked(Packed(Were, DBPath()), DBPath()));
    EXPECT_EQ(Were, Now());
}

TEST_F(OpenWindowsOf, AMaximisedOneComesBackSo) {
    StartWithGarden();
    Press("mnuSlideMgrBulk");
    mWindow->Area().subWindowList().front()->showMaximized();
    DoEvents();
    const QList<OpenWindow> Were = Now();
    ASSERT_EQ(1, Were.size());
    EXPECT_TRUE(Were[0].IsMaximised);
    CloseAll();
    Again(Were);
    EXPECT_EQ(Were, Now());
}

TEST_F(OpenWindowsOf, WhatIsNotThereAnyMoreIsPassedOver) {
    StartWithGarden();
    Again({{.Name = u"HomePage"_s, .AlbumID = 77},
           {.Name = u"frmRehearsal"_s, .AlbumID = mPark, .SlideShowID = 99},
           {.Name = u"frmNobodyKnows"_s},
           {.Name = u"frmQuickShow"_s, .Folder = u"/not/there/"_s}});
    const QList<OpenWindow> Are = Now();
    ASSERT_EQ(1, Are.size());
    EXPECT_EQ("frmQuickShow", Are[0].Name.toStdString());
}

TEST_F(OpenWindowsOf, AreThoseOfTheirAlbumsAlone) {
    const QList<OpenWindow> Some{{.Name = u"frmSlideDBM"_s, .AlbumID = 3, .IsMaximised = true}};
    EXPECT_EQ(Some, Unpacked(Packed(Some, u"/a/"_s), u"/a/"_s));
    EXPECT_TRUE(Unpacked(Packed(Some, u"/a/"_s), u"/b/"_s).isEmpty());
    EXPECT_TRUE(Unpacked("{damaged", u"/a/"_s).isEmpty());
    EXPECT_TRUE(Unpacked("[]", u""_s).isEmpty());
}

// A window with work that is not saved.
class AskingForm : public Form {
  public:
    int Asked = 0;
    bool Agrees = true;

  protected:
    bool Form_QueryUnload() override { return ++Asked, Agrees; }
};

TEST_F(OpenWindowsOf, AnEndThatAllAgreedToAsksNoMore) {
    StartWithGarden();
    const auto Window = NewForm<AskingForm>();
    TheOpeners().ShowAsChild(*Window);
    EXPECT_TRUE(mWindow->AgreeToEnd());
    EXPECT_EQ(1, Window->Asked);
    EXPECT_TRUE(Window->IsLoaded()) << "the session may still go on";
    EXPECT_TRUE(mWindow->Unload());
    EXPECT_EQ(1, Window->Asked);
}

TEST_F(OpenWindowsOf, WhoGoesOnWorkingIsAskedAnew) {
    StartWithGarden();
    const auto Window = NewForm<AskingForm>();
    TheOpeners().ShowAsChild(*Window);
    EXPECT_TRUE(mWindow->AgreeToEnd());
    mWindow->GoOn();
    Window->Agrees = false;
    EXPECT_FALSE(mWindow->Unload());
    EXPECT_EQ(2, Window->Asked);
    EXPECT_FALSE(mWindow->AgreeToEnd());
    EXPECT_FALSE(mWindow->Unload()) << "nobody has agreed";
    Window->Agrees = true;
}

TEST_F(OpenWindowsOf, TheFileOfASessionIsItsOwnWhateverItIsCalled) {
    EXPECT_EQ(OwnPath() + u"Sessions/117f-1.json"_s, SessionFile(u"117f"_s, u"1"_s));
    EXPECT_EQ(OwnPath() + u"Sessions/etcx-k.json"_s, SessionFile(u"../etc/x"_s, u"k"_s));
}

}  // namespace
}  // namespace neb
