// A window that is opened on no album in particular opens on the one in hand: that of the window in
// front, else the one that was chosen last.
#include "windows/frame/AlbumInHand.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "BulkRig.h"
#include "windows/frame/Openers.h"
#include "windows/slides/frmSlideDBM.h"

namespace neb {
namespace {

using namespace harness;

class AlbumInHandTest : public BulkRig {
  protected:
    AlbumInHandTest() {
        Attic = MakeAlbum(u"Attic"_s);
        AddSlide(u"rose"_s);
        Main.setCentralWidget(Area);
        Main.resize(1000, 700);
        Main.show();
        TheOpeners().ShowAsChild = [this](Form& Child) {
            const auto Held = Child.shared_from_this();
            Area->addSubWindow(&Child)->setAttribute(Qt::WA_DeleteOnClose, false);
            Child.Load();
            Child.ShowModeless();
        };
    }
    ~AlbumInHandTest() override {
        const LettingGo Answers;
        for (const auto& Each : LoadedForms()) Each->Unload();
        TheOpeners() = {};
    }
    Window BulkOn(std::int32_t ID) {
        const Window Made = NewForm<frmSlideMgrBulk>();
        Made->LoadAlbumMgr(ID);
        return Made;
    }
    void BringUp(const Window& Which) {
        Area->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(Which->parentWidget()));
    }

    std::int32_t Attic = 0;
    QMainWindow Main;
    QMdiArea* Area = new QMdiArea;
};

TEST_F(AlbumInHandTest, IsThatOfTheWindowInFrontElseTheOneChosenLast) {
    EXPECT_EQ(0, AlbumInHand());
    const Window One = BulkOn(AlbumID), Other = BulkOn(Attic);
    EXPECT_EQ(Attic, AlbumInHand());
    BringUp(One);
    EXPECT_EQ(AlbumID, AlbumInHand());
    EXPECT_EQ("Bulk Slide Manager - Garden", Title(BulkOn(0)));
    AlbumsOf(Other).setCurrentIndex(AlbumsOf(Other).findData(AlbumID));
    for (const auto& Each : LoadedForms())
        if (Each != Others) Each->Unload();
    EXPECT_EQ(AlbumID, AlbumInHand()) << "no window is there any more";
    EXPECT_EQ("Bulk Slide Manager - Garden", Title(BulkOn(0)));
}

TEST_F(AlbumInHandTest, IsNoneOnceItIsDeletedOrTheAlbumsAreOthers) {
    BulkOn(AlbumID)->Unload();
    EXPECT_EQ(AlbumID, AlbumInHand());
    Engine.DeleteAlbum(AlbumID);
    EXPECT_EQ(0, AlbumInHand());
    BulkOn(Attic)->Unload();
    EXPECT_EQ(Attic, AlbumInHand());
    BroadcastChangesOf(Engine);
    EXPECT_EQ(0, AlbumInHand());
}

TEST_F(AlbumInHandTest, TheSlideManagerOpensOnItWithItsSlides) {
    const Window Bulk = BulkOn(AlbumID);
    BulkOn(Attic)->Unload();
    BringUp(Bulk);
    const auto Slides = NewForm<frmSlideDBM>();
    Slides->LoadSlideMgr();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Slides->HeldAlbum() == AlbumID; }));
    EXPECT_EQ("Slide Manager - Garden", Slides->windowTitle().toStdString());
    EXPECT_EQ(2, In<QComboBox>(*Slides, "cboSlides").count());
}

}  // namespace
}  // namespace neb
