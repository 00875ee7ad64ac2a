// Captions typed among the thumbnails.
#include "GalleryRig.h"
#include "support/modDEValidation.h"

namespace neb {
namespace {

using namespace harness;

class AlbumPageCaption : public GalleryRig {
  protected:
    AlbumPageCaption() { AddSlides({u"a"_s, u"b"_s, u"c"_s, u"d"_s}); }
    std::string StoredCaptions() {
        Album().SortSlides();
        QStringList All;
        for (const NameIndexEntry& Row : Album().SlideIndex) All << Row.Name;
        return All.join(u'|').toStdString();
    }
};

TEST_F(AlbumPageCaption, F2EditsInPlaceAndEnterStores) {
    Open();
    Press(Qt::Key_F2);
    ASSERT_NE(nullptr, Field());
    EXPECT_EQ("a", Field()->selectedText().toStdString());
    EXPECT_TRUE(Field()->geometry().intersects(TileAt(0)));
    Type(u"aa"_s);
    Press(Qt::Key_Return);
    Settle();
    EXPECT_EQ(nullptr, Field());
    EXPECT_EQ("aa|b|c|d", StoredCaptions());
    EXPECT_EQ("aa|b|c|d", Captions());
    EXPECT_EQ(&Tiles(), QApplication::focusWidget());
    EXPECT_EQ(nullptr, harness::Open<frmSlideScreen>()) << "Enter ends here";
}

TEST_F(AlbumPageCaption, EscLeavesItAsItWas) {
    Open();
    Press(Qt::Key_F2);
    Type(u"zzz"_s);
    Press(Qt::Key_Escape);
    Settle();
    EXPECT_EQ(nullptr, Field());
    EXPECT_EQ("a|b|c|d", StoredCaptions());
    EXPECT_EQ(0, Home->LeftCount) << "Esc ends here";
}

TEST_F(AlbumPageCaption, AClickOnTheCaptionOfTheChosenSlideEditsItAndOneOnItsPictureDoesNot) {
    Open();
    ClickOn(CaptionAt(1));
    QTest::qWait(QApplication::doubleClickInterval() + 100);
    EXPECT_EQ(nullptr, Field()) << "it was not chosen before";
    ClickOn(PictureAt(1));
    QTest::qWait(QApplication::doubleClickInterval() + 100);
    EXPECT_EQ(nullptr, Field());
    ClickOn(CaptionAt(1));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Field() != nullptr; }, 2000));
    Type(u"bb"_s);
    ClickOn(PictureAt(3));
    Settle();
    EXPECT_EQ("a|bb|c|d", StoredCaptions()) << "a click elsewhere stores";
}

TEST_F(AlbumPageCaption, TabStoresAndGoesToTheNextCaptionWhereverTheSlideGoes) {
    Open();
    Press(Qt::Key_F2);
    Type(u"x"_s);
    Press(Qt::Key_Tab);
    Settle();
    EXPECT_EQ("b|c|d|x", Captions());
    EXPECT_EQ("b", InHand());
    ASSERT_NE(nullptr, Field());
    EXPECT_EQ("b", Field()->text().toStdString());
    Type(u"y"_s);
    Press(Qt::Key_Tab);
    Settle();
    Type(u"z"_s);
    Press(Qt::Key_Backtab);
    Settle();
    EXPECT_EQ("d|x|y|z", StoredCaptions());
}

TEST_F(AlbumPageCaption, ASlideThatGoesElsewhereByItsCaptionStaysInViewAndInHand) {
    AddMany(300);
    Open();
    Press(Qt::Key_F2);
    Type(u"zz last"_s);
    Press(Qt::Key_Return);
    Settle();
    EXPECT_EQ("zz last", InHand());
    EXPECT_EQ("zz last", Chosen());
    EXPECT_TRUE(IsInView(Slides().Count() - 1));
}

TEST_F(AlbumPageCaption, QuotesBecomeTypographicAndNoCaptionIsLongerThanItMayBe) {
    Open();
    Press(Qt::Key_F2);
    Type(u"\"e\""_s);
    Press(Qt::Key_Return);
    Settle();
    EXPECT_EQ("\u201Ce\u201D", Slide(1).SlideText.toStdString());
    Press(Qt::Key_F2);
    ASSERT_NE(nullptr, Field());
    EXPECT_EQ(MaxCaption, Field()->maxLength());
    EXPECT_NE(nullptr, Field()->findChild<QLabel*>(u"lblCaptionCount"_s));
}

TEST_F(AlbumPageCaption, WhatIsTypedStaysWhenTheSlidesChangeElsewhere) {
    Open();
    Press(Qt::Key_F2);
    Type(u"half"_s);
    Changes(Engine).SaveCaption(AlbumID, 4, u"0 first"_s)->Now();
    Changes(Engine).SaveCaption(AlbumID, 1, u"other"_s)->Now();
    Changes(Engine).DeleteSlide(AlbumID, 2)->Now();
    AddSlide(u"new"_s);
    Changes(Engine).RenameAlbum(AlbumID, u"Park"_s)->Now();
    Settle();
    ASSERT_NE(nullptr, Field());
    EXPECT_EQ("half", Field()->text().toStdString());
    EXPECT_TRUE(Field()->hasFocus());
    Press(Qt::Key_Return);
    Settle();
    EXPECT_EQ("half", Slide(1).SlideText.toStdString());
    EXPECT_EQ("0 first|c|half|new", Captions());
}

TEST_F(AlbumPageCaption, WhatIsTypedIsStoredWhenTheWindowClosesOrThePageIsLeft) {
    Open();
    Press(Qt::Key_F2);
    Type(u"one"_s);
    // the main window writes all albums when it is told to close
    Home->OnClose = [&] { EXPECT_EQ("one", Slide(1).SlideText.toStdString()); };
    Home->close();
    Home->OnClose = {};
    EXPECT_EQ("one", Slide(1).SlideText.toStdString());
    Open();
    Press(Qt::Key_F2);
    Type(u"two"_s);
    harness::Press(Page(), "cmdBack");
    EXPECT_EQ("c|d|one|two", StoredCaptions());
}

TEST_F(AlbumPageCaption, AReadOnlyDatabaseTellsWhyNothingIsEdited) {
    ReadOnlyDB = true;
    Open();
    Boxes.Expect(u"The database is read-only:\nits slides cannot be changed."_s,
                 u"Read-Only Database"_s, BoxIcon::Information, BoxAnswer::Ok);
    Press(Qt::Key_F2);
    EXPECT_EQ(nullptr, Field());
    EXPECT_EQ(1, Boxes.ShownCount());
    ClickOn(CaptionAt(0));
    QTest::qWait(QApplication::doubleClickInterval() + 100);
    EXPECT_EQ(nullptr, Field());
    Boxes.Expect(u"The database is read-only:\nits slides cannot be changed."_s);
    Press(Qt::Key_Delete);
    EXPECT_EQ("a|b|c|d", StoredCaptions());
}

}  // namespace
}  // namespace neb
