// What Quick Show and the import filter ask before pictures that were selected would go.
#include "IntakeHarness.h"
#include "controls/picture/XShow.h"
#include "windows/frame/Openers.h"
#include "windows/import/frmQuickShow.h"
#include "windows/show/frmSlideShowProjector.h"

namespace neb {
namespace {

using namespace harness;

class ImportAsks : public Intake {
  protected:
    ImportAsks() { MakePictures(3); }
    ~ImportAsks() override {
        if (Window) Drop(*Window);
        TheOpeners() = {};
    }
    void ExpectAsk(BoxAnswer Answer) {
        Boxes.Expect(u"Are you sure you want to discard the selected pictures?"_s,
                     u"Discard Changes Confirmation"_s, BoxIcon::Question, Answer);
    }
    void OpenQuickShow(const QString& Name) {
        auto Made = NewForm<frmQuickShow>();
        Made->SetImportDir(Pics.Path());
        ShowActive(*Made);
        In<QLineEdit>(*Made, "txtName").setText(Name);
        Window = Made;
    }
    std::shared_ptr<ImportForm> Window;
};

TEST_F(ImportAsks, QuickShowKeepsItsSelectionOrDiscardsIt) {
    OpenQuickShow(u"Trip"_s);
    Press(*Window, "cmdMoveRightAll");
    ExpectAsk(BoxAnswer::Cancel);
    EXPECT_FALSE(Window->close());
    ExpectAsk(BoxAnswer::Cancel);
    Press(*Window, "cmdCancel");
    ExpectAsk(BoxAnswer::Cancel);
    QTest::keyClick(Window.get(), Qt::Key_Escape);
    EXPECT_EQ("a,b,c", CaptionsOf(Selected(*Window)));
    ExpectAsk(BoxAnswer::Discard);
    EXPECT_TRUE(Window->close());
    EXPECT_TRUE(Engine.Albums.empty());
}

TEST_F(ImportAsks, QuickShowMakesTheShowAndDoesNotRunItWhenTheWindowIsToClose) {
    OpenQuickShow(u"Trip"_s);
    Press(*Window, "cmdMoveRightAll");
    ExpectAsk(BoxAnswer::Save);
    EXPECT_TRUE(Window->close());
    EXPECT_FALSE(Window->IsLoaded());
    ASSERT_EQ(1u, Engine.Albums.size());
    EXPECT_EQ(3u, Engine.Albums[0]->SlideShows.at(0)->Details.size());
    EXPECT_FALSE(Open<frmSlideShowProjector>());
}

TEST_F(ImportAsks, QuickShowStaysWhenItsSaveIsRefused) {
    OpenQuickShow({});
    Press(*Window, "cmdMoveRightAll");
    ExpectAsk(BoxAnswer::Save);
    Boxes.Expect(u"You must specify a name for the new slideshow."_s);
    EXPECT_FALSE(Window->close());
    EXPECT_EQ("a,b,c", CaptionsOf(Selected(*Window)));
}

TEST_F(ImportAsks, WhatWasKeptIsNotKeptTwiceWhereTheWindowStays) {
    OpenQuickShow(u"Trip"_s);
    Press(*Window, "cmdMoveRightAll");
    ExpectAsk(BoxAnswer::Save);
    EXPECT_TRUE(Window->QueryUnload());
    EXPECT_TRUE(Window->IsLoaded());
    EXPECT_TRUE(Window->close());
    EXPECT_EQ(1u, Engine.Albums.size());
}

TEST_F(ImportAsks, TheFilterBringsThemInAndLeadsNowhereWhenItIsToClose) {
    int Opened = 0;
    TheOpeners().SlideShowMgr = [&](std::int32_t, std::int32_t) { ++Opened; };
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    auto Filter = LoadFilter(AlbumID, Pics.Path());
    Filter->SetLoadSlideShowMgr(true);
    ShowActive(*Filter);
    Window = Filter;
    Press(*Window, "cmdMoveRightAll");
    ExpectAsk(BoxAnswer::Cancel);
    QTest::keyClick(Window.get(), Qt::Key_Escape);
    EXPECT_TRUE(Window->IsLoaded());
    ExpectAsk(BoxAnswer::Save);
    Boxes.Expect(u"3 slides successfully imported."_s);
    EXPECT_TRUE(Window->close());
    EXPECT_EQ(3u, Engine.GetAlbum(AlbumID)->Slides.size());
    EXPECT_EQ(0, Opened);
}

TEST_F(ImportAsks, NothingWhileNothingIsSelected) {
    OpenQuickShow(u"Trip"_s);
    Press(*Window, "cmdMoveRightAll");
    Press(*Window, "cmdMoveLeftAll");
    EXPECT_TRUE(Window->close());
}

}  // namespace
}  // namespace neb
