// Two rules of the bulk slide manager that nobody misses until they break: an album that was not
// chosen never comes into the window by itself, and a caption that is what is stored is no edit.
#include "BulkRig.h"

namespace neb {
namespace {

using namespace harness;

class SlideMgrBulkRules : public BulkRig {
  protected:
    static void Tell(const QString& EventType, const EventKeys& Keys) {
        BroadcastEvent(u"Album"_s, EventType, nullptr, Keys);
    }
    std::int32_t MakeAlbumWithASlide(const QString& Name) {
        const std::int32_t Made = MakeAlbum(Name);
        std::int32_t SlideID = 0;
        Engine.GetAlbum(Made)->SaveSlide2(SlideID, u"of "_s + Name, {}, {}, false, false, Engine);
        return Made;
    }
    void DeleteAlbumOf(const Window& Bulk) {
        Engine.DeleteAlbum(AlbumID);
        Tell(u"Delete"_s, {AlbumID});
        ExpectNothingChosen(Bulk, 0);
    }
    static void ExpectNothingChosen(const Window& Bulk, int Albums) {
        EXPECT_EQ(Albums, AlbumsOf(Bulk).count());
        EXPECT_EQ(-1, AlbumsOf(Bulk).currentIndex());
        EXPECT_EQ("Bulk Slide Manager", Title(Bulk));
        EXPECT_EQ("", Shown(Bulk));
    }
    // The caption changes in another window, which tells of it.
    void ChangeElsewhere(std::int32_t SlideID, const QString& Caption) {
        Album().GetSlide(SlideID)->SlideText = Caption;
        Tell(u"Add Slides"_s, {AlbumID, SlideID});
    }
};

TEST_F(SlideMgrBulkRules, AfterItsAlbumWasDeletedANewOneIsListedAndNotChosen) {
    AddSlides({u"a"_s});
    const Window Bulk = OpenBulk(AlbumID);
    DeleteAlbumOf(Bulk);
    const std::int32_t Attic = MakeAlbumWithASlide(u"Attic"_s);
    Tell(u"Insert"_s, {Attic});
    ExpectNothingChosen(Bulk, 1);
    AlbumsOf(Bulk).setCurrentIndex(0);
    EXPECT_EQ("of Attic", Shown(Bulk));
}

TEST_F(SlideMgrBulkRules, AfterItsAlbumWasDeletedARenamedOneIsNotChosenEither) {
    AddSlides({u"a"_s});
    const Window Bulk = OpenBulk(AlbumID);
    DeleteAlbumOf(Bulk);
    std::int32_t Attic = MakeAlbumWithASlide(u"Attic"_s);
    Tell(u"Insert"_s, {Attic});
    ASSERT_TRUE(Engine.SaveAlbum(Attic, u"Roof"_s));
    Tell(u"Update"_s, {Attic});
    ExpectNothingChosen(Bulk, 1);
    EXPECT_EQ("Roof", AlbumsOf(Bulk).itemText(0).toStdString());
}

TEST_F(SlideMgrBulkRules, ACaptionTypedBackToTheStoredOneIsNoEdit) {
    AddSlides({u"a"_s, u"b"_s});
    const Window Bulk = OpenBulk(AlbumID);
    Edit(Bulk, 0, u"Rose"_s);
    ChangeElsewhere(1, u"apple"_s);
    EXPECT_EQ("Rose|b", Shown(Bulk)) << "what is typed stays";
    Edit(Bulk, 0, u"apple"_s);
    ChangeElsewhere(1, u"zinnia"_s);
    EXPECT_EQ("zinnia|b", Shown(Bulk)) << "nothing is typed any more";
    SaveExpecting(Bulk, u"0 slides successfully saved."_s);
    EXPECT_EQ("zinnia", CaptionInAlbum(1));
}

TEST_F(SlideMgrBulkRules, ACaptionThatWasOpenedAndLeftAsItIsIsNoEdit) {
    AddSlides({u"a"_s, u"b"_s});
    const Window Bulk = OpenBulk(AlbumID);
    TypeInto(Bulk, 0, u"a"_s);
    QTest::keyClick(&EditorOf(Bulk), Qt::Key_Return);
    ChangeElsewhere(1, u"zinnia"_s);
    EXPECT_EQ("zinnia|b", Shown(Bulk));
}

}  // namespace
}  // namespace neb
