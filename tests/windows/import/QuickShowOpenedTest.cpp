// What is opened in Quick Show: all of it is selected and named, one Enter makes the show and runs
// it, and of a picture the show begins there.
#include <QComboBox>
#include <QDropEvent>
#include <QMimeData>

#include "IntakeHarness.h"
#include "controls/picture/XShow.h"
#include "windows/import/frmQuickShow.h"
#include "windows/lists/frmPicturePopup.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/show/modSlideShows.h"

namespace neb {
namespace {

using namespace harness;

class QuickShowOpened : public Intake {
  protected:
    QuickShowOpened() {
        XShow::SetReader([](const QString& File) {
            ImgX Picture;
            Picture.Load(File);
            return Picture.Picture();
        });
        Fill(u"Garden"_s, 3);
    }
    ~QuickShowOpened() override {
        XShow::SetReader({});
        Intake::Drop(*Window);
    }
    // a.jpg, b.jpg, ... in a folder.
    void Fill(const QString& Folder, int Count) {
        for (int I = 0; I < Count; ++I)
            MakePicture(Pics / Folder + u'/' + QChar(u'a' + I) + u".jpg"_s, 40 + I, 30);
    }
    void Show(const QStringList& Named, const QString& At = {}) {
        Window->Open(Named, At);
        ShowActive(*Window);
        QCoreApplication::processEvents();
    }
    void ShowGarden() { Show({Pics / u"Garden/"_s}); }
    QLineEdit& Name() { return In<QLineEdit>(*Window, "txtName"); }
    std::string Text() { return Name().text().toStdString(); }
    std::string Right() { return CaptionsOf(Selected(*Window)); }
    std::string Left() { return CaptionsOf(NonSelected(*Window)); }
    // The key goes to whatever has the keyboard; the show is left when it has come.
    void PressEnterAndLeaveTheShow() {
        WhenOpen<frmSlideShowProjector>(
            [this](frmSlideShowProjector& Projector) {
                RanSeq = CurrentSlideSeq;
                QTest::keyClick(&Projector, Qt::Key_Escape);
            },
            [] { return CurrentSlideSeq > 0; });
        ASSERT_TRUE(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    void DropOn(const QStringList& Paths) {
        QMimeData Data;
        QList<QUrl> Urls;
        for (const QString& Path : Paths) Urls << QUrl::fromLocalFile(Path);
        Data.setUrls(Urls);
        QDragEnterEvent Enter({9, 9}, Qt::CopyAction, &Data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(Window.get(), &Enter);
        QDropEvent Event({9, 9}, Qt::CopyAction, &Data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(Window.get(), &Event);
        QCoreApplication::processEvents();
    }

    std::shared_ptr<frmQuickShow> Window = NewForm<frmQuickShow>();
    std::int32_t RanSeq = 0;  // 0: no show has run
};

TEST_F(QuickShowOpened, OneEnterMakesTheShowOfAFolderAndRunsIt) {
    ShowGarden();
    EXPECT_EQ("a,b,c", Right());
    EXPECT_EQ("", Left());
    EXPECT_EQ("Garden", Text());
    EXPECT_EQ("Garden", Name().selectedText().toStdString()) << "to be typed over at once";
    PressEnterAndLeaveTheShow();
    EXPECT_EQ(1, RanSeq);
    EXPECT_EQ(0, Boxes.ShownCount());
    ASSERT_EQ(1u, Engine.Albums.size());
    EXPECT_EQ("Garden", Engine.Albums[0]->AlbumName.toStdString());
    EXPECT_EQ(3u, Engine.Albums[0]->SlideShows.at(0)->Details.size());
}

TEST_F(QuickShowOpened, ASecondShowOfTheFolderHasANameOfItsOwn) {
    MakeAlbum(u"GARDEN"_s);
    ShowGarden();
    EXPECT_EQ("Garden (2)", Text());
    PressEnterAndLeaveTheShow();
    EXPECT_EQ(1, RanSeq);
    EXPECT_EQ(2u, Engine.Albums.size());
}

TEST_F(QuickShowOpened, ANameThatWasTakenMeanwhileGivesWayToTheNext) {
    ShowGarden();
    EXPECT_EQ("Garden", Text());
    MakeAlbum(u"Garden"_s);
    PressEnterAndLeaveTheShow();
    EXPECT_EQ(1, RanSeq);
    ASSERT_EQ(2u, Engine.Albums.size());
    EXPECT_EQ("Garden (2)", Engine.Albums[1]->AlbumName.toStdString());
}

TEST_F(QuickShowOpened, EnterInAListShowsThePictureAndSavesNothing) {
    ShowGarden();
    Selected(*Window).setFocus();
    Selected(*Window).setCurrentIndex(Selected(*Window).model()->index(1, ImportForm::ColPicture));
    QString Seen;
    WhenOpen<frmPicturePopup>([&](frmPicturePopup& Popup) {
        Seen = Popup.windowTitle();
        Popup.Unload();
    });
    QTest::keyClick(&Selected(*Window), Qt::Key_Return);
    EXPECT_FALSE(Seen.isEmpty());
    NonSelected(*Window).setFocus();
    QTest::keyClick(&NonSelected(*Window), Qt::Key_Return);
    EXPECT_TRUE(Engine.Albums.empty());
    EXPECT_TRUE(Window->IsLoaded());
}

TEST_F(QuickShowOpened, EnterOnAnotherButtonPressesThatOne) {
    ShowGarden();
    In<QPushButton>(*Window, "cmdMoveLeftAll").setFocus();
    QTest::keyClick(&In<QPushButton>(*Window, "cmdMoveLeftAll"), Qt::Key_Return);
    EXPECT_EQ("a,b,c", Left());
    In<QPushButton>(*Window, "cmdCancel").setFocus();
    QTest::keyClick(&In<QPushButton>(*Window, "cmdCancel"), Qt::Key_Return);
    EXPECT_FALSE(Window->IsLoaded());
    EXPECT_TRUE(Engine.Albums.empty());
}

TEST_F(QuickShowOpened, OfAPictureItsFolderIsThereAndTheShowBeginsWithIt) {
    Fill(u"Garden"_s, 26);
    Window->resize(Window->width(), 300);
    const QString Opened = Pics / u"Garden/t.jpg"_s;
    Show({Pics / u"Garden/"_s, Opened}, Opened);
    auto& List = Selected(*Window);
    EXPECT_EQ(26, List.Rows());
    ASSERT_EQ(19, List.Row());
    EXPECT_EQ("t", List.TextMatrix(List.Row(), ImportForm::ColCaption).toStdString());
    const QRect Row = List.visualRect(List.model()->index(19, ImportForm::ColPicture));
    EXPECT_TRUE(List.viewport()->rect().contains(Row.center())) << "it is in view";
    EXPECT_EQ("Garden", Text());
    PressEnterAndLeaveTheShow();
    EXPECT_EQ(20, RanSeq);
}

TEST_F(QuickShowOpened, WhereThePictureWasTakenOutTheShowBeginsWithTheFirst) {
    Show({Pics / u"Garden/"_s, Pics / u"Garden/b.jpg"_s}, Pics / u"Garden/b.jpg"_s);
    EXPECT_EQ(1, Selected(*Window).Row());
    Press(*Window, "cmdMoveLeftOne");
    EXPECT_EQ("a,c", Right());
    Name().setFocus();
    PressEnterAndLeaveTheShow();
    EXPECT_EQ(1, RanSeq);
}

TEST_F(QuickShowOpened, ThePlaceIsCountedAmongThoseThatCameIn) {
    Show({Pics / u"Garden/"_s, Pics / u"Garden/c.jpg"_s}, Pics / u"Garden/c.jpg"_s);
    WriteFile(Pics / u"Garden/a.jpg"_s, "no picture any more");
    Boxes.Expect(
        u"2 of 3 pictures have come into the slide show. 1 could not be read.\nDo you want to "
        "play the slide show as it is?"_s,
        BoxAnswer::Yes);
    PressEnterAndLeaveTheShow();
    EXPECT_EQ(2, RanSeq);
}

TEST_F(QuickShowOpened, AHiddenPictureThatIsOpenedByItselfIsThere) {
    MakePicture(Pics / u"Garden/.b2.jpg"_s);
    Show({Pics / u"Garden/"_s, Pics / u"Garden/.b2.jpg"_s}, Pics / u"Garden/.b2.jpg"_s);
    EXPECT_EQ(4, Selected(*Window).Rows());
    EXPECT_GE(Selected(*Window).Row(), 0);
}

TEST_F(QuickShowOpened, SeveralFoldersAndPicturesAreAllOfThemEachOnce) {
    Fill(u"Lake"_s, 2);
    MakePicture(Pics / u"x.png"_s);
    Show({Pics / u"x.png"_s, Pics / u"Lake/"_s, Pics / u"Garden/"_s, Pics / u"Lake/b.jpg"_s});
    EXPECT_EQ("x,a,b,c,a,b", Right());
    EXPECT_EQ("Lake", Text()) << "the first folder's";
}

TEST_F(QuickShowOpened, PicturesAloneAreThoseAndNoOthers) {
    Show({Pics / u"Garden/c.jpg"_s, Pics / u"Garden/a.jpg"_s});
    EXPECT_EQ("a,c", Right());
    EXPECT_EQ("Garden", Text());
}

TEST_F(QuickShowOpened, WhatIsDroppedIsAddedAndATypedNameStays) {
    Fill(u"Lake"_s, 2);
    ShowGarden();
    DropOn({Pics / u"Lake"_s});
    EXPECT_EQ("a,b,c,a,b", Right());
    EXPECT_EQ("Garden", Text());
    QTest::keyClicks(&Name(), u"Mine"_s);
    EXPECT_EQ("Mine", Text());
    Press(*Window, "cmdMoveLeftAll");
    Boxes.Expect(u"Do you want to discard the remaining non-selected graphics?"_s, BoxAnswer::Yes);
    DropOn({Pics / u"Lake"_s});
    EXPECT_EQ("a,b", Right());
    EXPECT_EQ("Mine", Text());
}

TEST_F(QuickShowOpened, NobodyIsAskedAboutWhatTheWindowHasChosenItself) {
    ShowGarden();
    EXPECT_TRUE(Window->Unload());
    EXPECT_TRUE(Engine.Albums.empty());
}

TEST_F(QuickShowOpened, AskedIsAboutACaptionANameAndASelectionOfOnesOwn) {
    const auto ExpectAsked = [this](const char* What) {
        const int Before = Boxes.ShownCount();
        Boxes.Expect(u"Are you sure you want to discard the selected pictures?"_s,
                     BoxAnswer::Cancel);
        EXPECT_FALSE(Window->Unload()) << What;
        EXPECT_EQ(Before + 1, Boxes.ShownCount()) << What;
    };
    ShowGarden();
    auto& List = Selected(*Window);
    ASSERT_TRUE(List.EditCell(0, ImportForm::ColCaption));
    QTest::keyClicks(QApplication::focusWidget(), u"Rose"_s);
    ExpectAsked("a caption");
    EXPECT_EQ("Rose,b,c", Right());
    Intake::Drop(*Window);

    Window = NewForm<frmQuickShow>();
    ShowGarden();
    QTest::keyClicks(&Name(), u"Mine"_s);
    ExpectAsked("a name");
    Intake::Drop(*Window);

    Window = NewForm<frmQuickShow>();
    ShowGarden();
    Selected(*Window).SetRow(1);
    Press(*Window, "cmdMoveLeftOne");
    ExpectAsked("a selection");
}

TEST_F(QuickShowOpened, TheOrderThatIsChosenIsThatOfWhatTheWindowHasChosen) {
    for (const auto& [File, Day] : {std::pair("a", 3), {"b", 1}, {"c", 2}}) {
        QFile Picture(Pics / u"Garden/%1.jpg"_s.arg(QLatin1String(File)));
        ASSERT_TRUE(Picture.open(QIODevice::ReadWrite));
        ASSERT_TRUE(Picture.setFileTime(QDateTime({2020, 1, Day}, {12, 0}),
                                        QFileDevice::FileModificationTime));
    }
    ShowGarden();
    auto& Order = In<QComboBox>(*Window, "cboOrder");
    const auto Other = [&Order] {
        Order.setFocus();
        QTest::keyClick(&Order, Order.currentIndex() == 0 ? Qt::Key_Down : Qt::Key_Up);
    };
    EXPECT_EQ("a,b,c", Right());
    Other();
    EXPECT_EQ("b,c,a", Right());
    EXPECT_TRUE(Window->QueryUnload()) << "it is as the window has chosen still";
    Selected(*Window).SetRow(0);
    Press(*Window, "cmdMoveLeftOne");
    Press(*Window, "cmdMoveRightAll");
    EXPECT_EQ("c,a,b", Right());
    Other();
    EXPECT_EQ("c,a,b", Right()) << "the order is the user's own now";
    Other();
}

TEST_F(QuickShowOpened, NothingIsChosenWhereNothingMayBeMade) {
    ReadOnlyDB = true;
    ShowGarden();
    EXPECT_EQ("a,b,c", Left());
    EXPECT_EQ("", Right());
}

TEST_F(QuickShowOpened, AWindowWithNothingInItWaitsForWhatIsOpenedNext) {
    ShowActive(*Window);
    EXPECT_TRUE(Window->IsWaitingEmpty());
    const QString Opened = Pics / u"Garden/b.jpg"_s;
    Window->Open({Pics / u"Garden/"_s, Opened}, Opened);
    QCoreApplication::processEvents();
    EXPECT_EQ("a,b,c", Right());
    EXPECT_EQ(1, Selected(*Window).Row());
    EXPECT_FALSE(Window->IsWaitingEmpty());
}

}  // namespace
}  // namespace neb
