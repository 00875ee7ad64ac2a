// Words found and replaced in the bulk slide manager, and captions set for many slides at once: all
// of it with the keyboard, and none of it stored before Save.
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QSpinBox>

#include "BulkRig.h"
#include "support/modDEValidation.h"
#include "windows/slides/FindRow.h"
#include "windows/slides/frmSetCaptions.h"

namespace neb {
namespace {

using namespace harness;

class SlideMgrBulkFind : public BulkRig {
  protected:
    void Open(const QStringList& Captions) {
        AddSlides(Captions);
        W = OpenBulk(AlbumID);
        GridOf(W).setFocus();
        GridOf(W).SetRow(0);
    }
    static void Press(Qt::Key Key, Qt::KeyboardModifiers Modifiers = {}) {
        ASSERT_TRUE(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Key, Modifiers);
    }
    static void Write(const QString& Words) {
        auto* Field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_TRUE(Field);
        Field->selectAll();
        QTest::keyClicks(Field, Words);
    }
    static std::string Focus() { return QApplication::focusWidget()->objectName().toStdString(); }
    std::string Said() const { return In<QLabel>(*W, "lblFound").text().toStdString(); }
    std::string Status() const { return In<QLabel>(*W, "lblStatus").text().toStdString(); }
    std::string Marks() const { return Column(GridOf(W), 0).join(u'|').toStdString(); }
    bool IsUp() const { return In<FindRow>(*W, "wdgFind").isVisible(); }

    Window W;
};

TEST_F(SlideMgrBulkFind, GoesFromCaptionToCaptionAndAroundAndLeavesByEsc) {
    Open({u"a Rose"_s, u"b fern"_s, u"c rosé"_s, u"d rose, rose"_s});
    EXPECT_FALSE(IsUp());
    Press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(IsUp());
    EXPECT_EQ("txtFind", Focus());
    Write(u"rose"_s);
    for (const int Row : {0, 2, 3}) {
        Press(Qt::Key_Return);
        EXPECT_EQ(Row, GridOf(W).Row());
        EXPECT_TRUE(GridOf(W).IsSelected(Row));
    }
    EXPECT_EQ("Caption 3 of 3", Said());
    EXPECT_EQ("txtFind", Focus());
    Press(Qt::Key_F3);
    EXPECT_EQ(0, GridOf(W).Row());
    EXPECT_EQ("Caption 1 of 3, from the top again", Said());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(IsUp());
    EXPECT_EQ("flxAlbum", Focus());
    EXPECT_TRUE(W->IsLoaded());
    Press(Qt::Key_F3);
    EXPECT_EQ("txtFind", Focus()) << "the words are there again";
    Press(Qt::Key_F3);
    EXPECT_EQ(2, GridOf(W).Row());
    Write(u"tulip"_s);
    EXPECT_EQ("", Said());
    Press(Qt::Key_Return);
    EXPECT_EQ("No caption holds it.", Said());
    EXPECT_EQ(2, GridOf(W).Row());
}

TEST_F(SlideMgrBulkFind, EnterOnAButtonOfTheRowPressesItAndEscInTheListLeavesTheRow) {
    Open({u"a rose"_s, u"b rose"_s});
    Press(Qt::Key_F, Qt::ControlModifier);
    Write(u"rose"_s);
    In<QPushButton>(*W, "cmdReplaceAll").setFocus();
    Press(Qt::Key_Return);
    EXPECT_EQ("a |b ", Shown(W));
    GridOf(W).setFocus();
    Press(Qt::Key_Escape);
    EXPECT_FALSE(IsUp());
    EXPECT_TRUE(W->IsLoaded());
    Drop(*W);
}

TEST_F(SlideMgrBulkFind, TellsCaseAndAccentsApartWhereItIsAskedTo) {
    Open({u"a Rose"_s, u"b rosé"_s, u"c rose"_s});
    Press(Qt::Key_F, Qt::ControlModifier);
    Write(u"rose"_s);
    In<QCheckBox>(*W, "chkExact").setChecked(true);
    Press(Qt::Key_Return);
    EXPECT_EQ(2, GridOf(W).Row());
    EXPECT_EQ("Caption 1 of 1", Said());
}

TEST_F(SlideMgrBulkFind, ReplacesOneAfterTheOtherOrAllAndSaveStoresThem) {
    Open({u"a rose"_s, u"b fern"_s, u"c Rose, rose"_s, u"d rose"_s});
    Press(Qt::Key_F, Qt::ControlModifier);
    Write(u"rose"_s);
    Press(Qt::Key_H, Qt::ControlModifier);
    EXPECT_EQ("txtReplace", Focus());
    Write(u"Mary's"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ("a Mary’s|b fern|c Rose, rose|d rose", Shown(W));
    EXPECT_EQ(2, GridOf(W).Row()) << "and on to the next";
    EXPECT_EQ("*|||", Marks());
    harness::Press(*W, "cmdReplaceAll");
    EXPECT_EQ("a Mary’s|b fern|c Mary’s, Mary’s|d Mary’s", Shown(W));
    EXPECT_EQ("Replaced 3 times, in 2 captions.", Said());
    EXPECT_EQ("*||*|*", Marks());
    EXPECT_EQ("4 slides, 1 selected, 3 captions (*) are not saved", Status());
    EXPECT_EQ("a rose", CaptionInAlbum(1));
    ExpectDone(u"3 slides successfully saved."_s);
    Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ("a Mary’s", CaptionInAlbum(1));
    EXPECT_EQ("|||", Marks());
    EXPECT_EQ("Album Add Slides 1 0", Heard());
}

TEST_F(SlideMgrBulkFind, ReplacingIsTakenBackByCancel) {
    Open({u"a rose"_s, u"b rose"_s});
    Press(Qt::Key_H, Qt::ControlModifier);
    EXPECT_EQ("txtFind", Focus()) << "first what is sought";
    Write(u"rose"_s);
    harness::Press(*W, "cmdReplaceAll");
    EXPECT_EQ("a |b ", Shown(W));
    harness::Press(*W, "cmdCancel");
    EXPECT_EQ("a rose|b rose", Shown(W));
    EXPECT_EQ("|", Marks());
}

TEST_F(SlideMgrBulkFind, WhatWouldBecomeTooLongStaysAsItIs) {
    Open({u"a rose"_s, u"b rose "_s + QString(MaxCaption - 10, u'x')});
    Press(Qt::Key_F, Qt::ControlModifier);
    Write(u"rose"_s);
    In<QLineEdit>(*W, "txtReplace").setText(u"a whole garden"_s);
    harness::Press(*W, "cmdReplaceAll");
    EXPECT_EQ("Replaced 1 times, in 1 captions. 1 would have become too long and stay.", Said());
    EXPECT_EQ("*|", Marks());
}

TEST_F(SlideMgrBulkFind, InAReadOnlyDatabaseItFindsAndReplacesNothing) {
    AddSlides({u"a rose"_s, u"b rose"_s});
    ReadOnlyDB = true;
    W = OpenBulk(AlbumID);
    GridOf(W).setFocus();
    Press(Qt::Key_H, Qt::ControlModifier);
    Write(u"b rose"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(1, GridOf(W).Row());
    for (const char* Off : {"txtReplace", "cmdReplace", "cmdReplaceAll", "cmdSetCaptions"})
        EXPECT_FALSE(In<QWidget>(*W, Off).isEnabled()) << Off;
}

TEST_F(SlideMgrBulkFind, ManySlidesGetOneCaptionWithANumberEach) {
    Open({u"a"_s, u"b"_s, u"c"_s});
    GridOf(W).SelectRow(2);
    std::string Preview;
    WhenOpen<frmSetCaptions>([&](frmSetCaptions& Asks) {
        Activate(Asks);
        EXPECT_EQ("txtPattern", Focus());
        EXPECT_FALSE(In<QSpinBox>(Asks, "spnFirst").isEnabled());
        QTest::keyClicks(QApplication::focusWidget(), u"It's garden "_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_N, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return In<QSpinBox>(Asks, "spnFirst").isEnabled(); }));
        In<QSpinBox>(Asks, "spnFirst").setValue(9);
        Preview = (Column(In<FlexGrid>(Asks, "flxPreview"), 0) +
                   Column(In<FlexGrid>(Asks, "flxPreview"), 1))
                      .join(u'|')
                      .toStdString();
        EXPECT_EQ("2 slides are selected.", In<QLabel>(Asks, "lblCount").text().toStdString());
        QTest::keyClick(&In<QLineEdit>(Asks, "txtPattern"), Qt::Key_Return);
    });
    Press(Qt::Key_F2, Qt::ShiftModifier);
    EXPECT_EQ("a|c|It’s garden 9|It’s garden 10", Preview);
    EXPECT_EQ("It’s garden 9|b|It’s garden 10", Shown(W));
    EXPECT_EQ("*||*", Marks());
    EXPECT_EQ("a", CaptionInAlbum(1)) << "not before Save";
    Activate(*W);
    EXPECT_EQ("flxAlbum", Focus());
    ExpectDone(u"2 slides successfully saved."_s);
    Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ("It’s garden 10", CaptionInAlbum(3));
}

TEST_F(SlideMgrBulkFind, EnterEmptiesNoCaptions) {
    Open({u"a"_s, u"b"_s});
    GridOf(W).SelectRow(1);
    for (const bool ByEnter : {true, false}) {
        WhenOpen<frmSetCaptions>([ByEnter](frmSetCaptions& Asks) {
            Activate(Asks);
            EXPECT_EQ("C&lear Captions", In<QPushButton>(Asks, "cmdOkay").text().toStdString());
            if (ByEnter) return void(QTest::keyClick(&Asks, Qt::Key_Return));
            QTest::mouseClick(&In<QPushButton>(Asks, "cmdOkay"), Qt::LeftButton);
        });
        harness::Press(*W, "cmdSetCaptions");
        EXPECT_EQ(ByEnter ? "a|b" : "|", Shown(W));
    }
}

TEST_F(SlideMgrBulkFind, LeavingTheQuestionLeavesTheCaptions) {
    Open({u"a"_s, u"b"_s});
    WhenOpen<frmSetCaptions>([](frmSetCaptions& Asks) {
        Activate(Asks);
        QTest::keyClicks(QApplication::focusWidget(), u"x"_s);
        QTest::keyClick(&Asks, Qt::Key_Escape);
    });
    harness::Press(*W, "cmdSetCaptions");
    EXPECT_EQ("a|b", Shown(W));
    GridOf(W).ClearSelection();
    harness::Press(*W, "cmdSetCaptions");
    EXPECT_EQ("First select the slides to caption.", Status());
}

TEST_F(SlideMgrBulkFind, TheMenuKeyOffersWhatCanBeDone) {
    Open({u"a"_s});
    QStringList Offered;
    QTimer::singleShot(0, [&] {
        auto* Menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(Menu);
        for (const QAction* Each : Menu->actions())
            if (!Each->isSeparator()) Offered << Each->text().remove(u'&').section(u'\t', 0, 0);
        Menu->close();
    });
    QContextMenuEvent Asked(QContextMenuEvent::Keyboard, {});
    QApplication::sendEvent(GridOf(W).viewport(), &Asked);
    EXPECT_EQ("Edit Caption|Set Captions...|Find and Replace...|Show the Picture|Delete Slides",
              Offered.join(u'|').toStdString());
}

TEST_F(SlideMgrBulkFind, AMarkStaysWhenAnotherWindowChangesTheAlbum) {
    Open({u"a"_s, u"b"_s, u"c"_s});
    Edit(W, 1, u"Rose"_s);
    EXPECT_EQ("|*|", Marks());
    BroadcastEvent(u"Album"_s, u"Add Slides"_s, nullptr, {AlbumID, 0});
    EXPECT_EQ("a|Rose|c", Shown(W));
    EXPECT_EQ("|*|", Marks());
    EXPECT_NE(std::string::npos, Status().find("1 caption (*) is not saved"));
    Edit(W, 1, u"b"_s);
    EXPECT_EQ("||", Marks()) << "typed back";
    Drop(*W);
}

}  // namespace
}  // namespace neb
