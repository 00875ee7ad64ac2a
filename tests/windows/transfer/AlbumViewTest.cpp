// The viewer of albums: what it lists of the program's own database and of another one, what it
// leaves alone, and how it is opened, used and closed.
#include <QMdiArea>
#include <QMdiSubWindow>

#include "ViewRig.h"
#include "controls/forms/modTwips.h"
#include "windows/frame/Openers.h"

namespace neb {
namespace {

using namespace harness;

class AlbumView : public ViewRig {
  protected:
    ~AlbumView() override { TheOpeners().ShowAsChild = {}; }
};

TEST_F(AlbumView, ListsTheAlbumByCaptionAndEqualCaptionsByID) {
    AddSlides(Engine, {u"pear"_s, u"Apple"_s, u"PEAR"_s});
    const auto View = ViewAlbum(Engine);
    EXPECT_EQ(("Album [" + Db.Path() + ":Garden]").toStdString(),
              View->windowTitle().toStdString());
    EXPECT_EQ("Apple|pear|PEAR", Shown(*View));
    EXPECT_EQ("2|1|3", Shown(*View, ColKey));
    EXPECT_EQ(PicturePath(Engine, 2).toStdString(),
              GridOf(*View).TextMatrix(0, ColFile).toStdString());
    for (int Row = 0; Row < 3; ++Row)
        EXPECT_EQ(QSize(72, 72), GridOf(*View).CellPicture(Row, ColPic).size());
    EXPECT_EQ(6, GridOf(*View).Cols());
    EXPECT_TRUE(GridOf(*View).Redraw());
    EXPECT_TRUE(View->isVisible());
    EXPECT_EQ(nullptr, Open<frmLoading>());
    EXPECT_EQ(3, Store.Rows()) << "the shared thumbnails know them from now on";
    EXPECT_TRUE(FileExists(SmallPath(Engine, 1)));
}

TEST_F(AlbumView, ShowsThePresentCaptionAndNotTheOneTheThumbnailsRemember) {
    AddSlides(Engine, {u"a"_s});
    EXPECT_EQ("a", Shown(*ViewAlbum(Engine)));
    Album(Engine).GetSlide(1)->SlideText = u"Rose"_s;
    EXPECT_EQ("Rose", Shown(*ViewAlbum(Engine)));
}

TEST_F(AlbumView, TakesThePicturesOfAnotherDatabaseFromThere) {
    AddSlide(Engine, u"mine"_s, Qt::red);
    AddSlide(Other, u"theirs"_s, Qt::blue);  // under the same numbers
    ASSERT_EQ(AlbumID, OtherID);
    const auto Mine = ViewAlbum(Engine);
    const auto Theirs = ViewAlbum(Other);
    EXPECT_EQ(("Album [" + OtherDb.Path() + ":Attic]").toStdString(),
              Theirs->windowTitle().toStdString());
    EXPECT_EQ("theirs", Shown(*Theirs));
    EXPECT_EQ("1", Shown(*Theirs, ColKey));
    EXPECT_EQ(PicturePath(Other, 1).toStdString(), Shown(*Theirs, ColFile));
    EXPECT_GT(qRed(ColourIn(*Mine, 0)), 200);
    EXPECT_GT(qBlue(ColourIn(*Theirs, 0)), 200);
    EXPECT_EQ(1, Store.Rows()) << "the shared thumbnails are of the main database alone";
}

TEST_F(AlbumView, NeverWritesIntoAnotherDatabase) {
    AddSlides(Other, {u"a"_s, u"b"_s});
    QImage Grey(72, 72, QImage::Format_RGB32);
    Grey.fill(Qt::gray);
    WriteFile(SmallPath(Other, 1), ThumbnailBmp(Grey));
    Other.FinalizeDB();
    const QStringList Before = Everything(OtherDb.Path());
    EXPECT_GT(Before.size(), 10);
    const auto View = ViewAlbum(Other);
    EXPECT_FALSE(IsBlank(*View, 0) || IsBlank(*View, 1));
    EXPECT_EQ(1, PopupsDuring([&] { DoubleClickCell(GridOf(*View), 1, ColPic); }));
    Press(*View, "cmdClose");
    EXPECT_EQ(Before, Everything(OtherDb.Path()));
    EXPECT_FALSE(FileExists(SmallPath(Other, 2)));
}

TEST_F(AlbumView, NeverWritesIntoAReadOnlyDatabase) {
    AddSlides(Engine, {u"a"_s, u"b"_s});
    Engine.FinalizeDB();
    ReadOnlyDB = true;
    const QStringList Before = Everything(Db.Path());
    const auto View = ViewAlbum(Engine);
    EXPECT_FALSE(IsBlank(*View, 1));
    for (int Col = 0; Col < GridOf(*View).Cols(); ++Col)
        EXPECT_FALSE(GridOf(*View).EditCell(0, Col));
    Press(*View, "cmdClose");
    EXPECT_EQ(Before, Everything(Db.Path()));
}

TEST_F(AlbumView, UsesTheSmallFileOfAnotherDatabaseOnlyWhileThoseAreTrusted) {
    AddSlide(Other, u"a"_s, Qt::red);
    QImage Green(72, 72, QImage::Format_RGB32);
    Green.fill(Qt::green);
    WriteFile(SmallPath(Other, 1), ThumbnailBmp(Green));
    EXPECT_EQ(qRgb(0, 255, 0), ColourIn(*ViewAlbum(Other), 0));
    Buffer.UseSmallFiles = false;
    const auto Built = ViewAlbum(Other);
    EXPECT_GT(qRed(ColourIn(*Built, 0)), 200);
    EXPECT_EQ(QSize(72, 72), GridOf(*Built).CellPicture(0, ColPic).size());
}

TEST_F(AlbumView, BuildsTheThumbnailsOfAnotherDatabaseAsThoseOfItsOwn) {
    QImage Stripes(80, 40, QImage::Format_RGB32);
    for (int Y = 0; Y < 40; ++Y)
        for (int X = 0; X < 80; ++X) Stripes.setPixel(X, Y, qRgb(X * 3, Y * 6, (X * Y) % 256));
    const QString Path = Pics / u"stripes.png"_s;
    ASSERT_TRUE(Stripes.save(Path));
    AddSlide(Engine, u"mine"_s, {}, Path);
    AddSlide(Other, u"theirs"_s, {}, Path);
    EXPECT_EQ(GridOf(*ViewAlbum(Engine)).CellPicture(0, ColPic),
              GridOf(*ViewAlbum(Other)).CellPicture(0, ColPic));
}

TEST_F(AlbumView, APictureThatLiesElsewhereIsTakenFromThere) {
    const QString Outside = MakePicture(Pics / u"far.jpg"_s, 60, 40, Qt::blue);
    for (clsDBEngine* Each : {&Engine, &Other}) {
        AddSlide(*Each, u"far"_s, {}, Outside);
        const auto View = ViewAlbum(*Each);
        EXPECT_EQ(Outside.toStdString(), Shown(*View, ColFile));
        EXPECT_GT(qBlue(ColourIn(*View, 0)), 200);
    }
    EXPECT_FALSE(FileExists(Pics / u"farSmall.bmp"_s));
}

TEST_F(AlbumView, PicturesThatAreMissingOrBadLeaveTheirCellsBlank) {
    for (clsDBEngine* Each : {&Engine, &Other}) {
        AddSlides(*Each, {u"a"_s, u"b"_s, u"c"_s});
        DeleteFile(PicturePath(*Each, 1));
        WriteFile(PicturePath(*Each, 2), "no picture");
        const auto View = ViewAlbum(*Each);
        EXPECT_EQ("a|b|c", Shown(*View));
        EXPECT_EQ("1|2|3", Shown(*View, ColKey));
        EXPECT_TRUE(IsBlank(*View, 0) && IsBlank(*View, 1));
        EXPECT_FALSE(IsBlank(*View, 2));
        EXPECT_EQ(PicturePath(*Each, 2).toStdString(),
                  GridOf(*View).TextMatrix(1, ColFile).toStdString());
    }
}

TEST_F(AlbumView, AnAlbumThatIsEmptyOrGoneSaysSo) {
    const auto Empty = ViewAlbum(Other);
    EXPECT_EQ(0, GridOf(*Empty).Rows());
    const auto Gone = NewForm<frmAlbumView>();
    Gone->ViewAlbum(Other, 99, u"Cellar"_s);
    EXPECT_TRUE(Gone->isVisible());
    EXPECT_EQ(0, GridOf(*Gone).Rows());
    EXPECT_EQ(("Album [" + OtherDb.Path() + ":Cellar]").toStdString(),
              Gone->windowTitle().toStdString());
    EXPECT_NE(Empty->grab().toImage(), Gone->grab().toImage()) << "each has its own text";
    for (const auto& Each : {Empty, Gone}) {
        GridOf(*Each).setFocus();
        QTest::keyClick(&GridOf(*Each), Qt::Key_Down);
        EXPECT_EQ(0, GridOf(*Each).Rows());
    }
}

TEST_F(AlbumView, TheBarCountsTheSlides) {
    AddSlides(Other, {u"a"_s, u"b"_s, u"c"_s});
    std::vector<int> Values;
    int Most = 0;
    SetDoEventsHook([&] {
        const auto* Loading = Open<frmLoading>();
        if (!Loading) return;
        EXPECT_EQ(Pointer::Hourglass, ScreenPointer());
        Values.push_back(Loading->pgbLoadingProgress()->value());
        Most = Loading->pgbLoadingProgress()->maximum();
    });
    ViewAlbum(Other);
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3}), std::vector<int>(Values.end() - 4, Values.end()));
    EXPECT_EQ(3, Most);
}

TEST_F(AlbumView, ClosedDuringTheFillItEndsThere) {
    AddSlides(Other, {u"a"_s, u"b"_s, u"c"_s});
    auto View = NewForm<frmAlbumView>();
    AtValue(1, [&] { View->Unload(); });
    View->ViewAlbum(Other, OtherID, u"Attic"_s);
    EXPECT_FALSE(View->IsLoaded() || View->isVisible());
    EXPECT_EQ(nullptr, Open<frmLoading>());
    EXPECT_EQ(1, GridOf(*View).Rows());
}

TEST_F(AlbumView, AnAlbumThatGoesDuringTheFillEndsIt) {
    AddSlides(Other, {u"a"_s, u"b"_s, u"c"_s});
    AtValue(2, [&] { Other.DeleteAlbum(OtherID); });
    auto View = NewForm<frmAlbumView>();
    View->ViewAlbum(Other, OtherID, u"Attic"_s);
    EXPECT_EQ("a|b", Shown(*View));
    EXPECT_TRUE(GridOf(*View).Redraw());
    EXPECT_TRUE(View->isVisible());
    EXPECT_EQ(nullptr, Open<frmLoading>());
}

TEST_F(AlbumView, ASlideThatGoesDuringTheFillIsLeftOut) {
    AddSlides(Engine, {u"a"_s, u"b"_s, u"c"_s});
    AtValue(1, [&] { Album(Engine).DeleteSlide(2, Engine); });
    EXPECT_EQ("a|c", Shown(*ViewAlbum(Engine)));
}

TEST_F(AlbumView, NeedsTheEngineNoMoreOnceItIsShown) {
    std::shared_ptr<frmAlbumView> View;
    {
        clsDBEngine Brief;
        Brief.SetDBPath(OtherDb.Path());
        Brief.InitializeDB();
        std::int32_t NewID = 0;
        ASSERT_TRUE(Brief.SaveAlbum(NewID, u"Brief"_s));
        std::int32_t SlideID = 0;
        const QString Path = MakePicture(Pics / u"far.jpg"_s);
        Brief.GetAlbum(NewID)->SaveSlide2(SlideID, u"a"_s, Path, {}, false, false, Brief);
        View = NewForm<frmAlbumView>();
        View->ViewAlbum(Brief, NewID, u"Brief"_s);
    }
    View->repaint();
    EXPECT_EQ(1, PopupsDuring([&] { DoubleClickCell(GridOf(*View), 0, ColText); }));
    View->Unload();
}

TEST_F(AlbumView, EverythingCanBeDoneWithoutAMouse) {
    AddSlides(Other, {u"a"_s, u"b"_s});
    const auto View = ViewAlbum(Other);
    Activate(*View);
    EXPECT_EQ(&GridOf(*View), QApplication::focusWidget());
    EXPECT_EQ(0, GridOf(*View).Row());
    EXPECT_EQ(1, PopupsDuring([] { Press(Qt::Key_Return); }));
    Activate(*View);
    Press(Qt::Key_Down);
    EXPECT_EQ(1, PopupsDuring([] { Press(Qt::Key_Enter); }));
    Activate(*View);
    Press(Qt::Key_Tab);
    EXPECT_EQ("cmdClose", QApplication::focusWidget()->objectName().toStdString());
    Press(Qt::Key_Tab);
    EXPECT_EQ(&GridOf(*View), QApplication::focusWidget());
    Type("x");
    EXPECT_EQ("a|b", Shown(*View));
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !View->IsLoaded(); }));
}

TEST_F(AlbumView, EscAndTheButtonCloseIt) {
    AddSlides(Other, {u"a"_s});
    const auto First = ViewAlbum(Other);
    Activate(*First);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(First->IsLoaded());
    const auto Second = ViewAlbum(Other);
    Press(*Second, "cmdClose");
    EXPECT_FALSE(Second->IsLoaded());
}

// A transfer window, say.
TEST_F(AlbumView, StandsAboveAModalWindowThatOpensItAndCanBeUsedThere) {
    AddSlides(Other, {u"a"_s});
    const auto Dialog = NewForm<frmPicturePopup>();
    bool Reached = false;
    QTimer::singleShot(0, Dialog.get(), [&] {
        TheOpeners().ShowAsChild = [](Form&) { ADD_FAILURE() << "out of reach in the frame"; };
        WhenOpen<frmAlbumView>([&](frmAlbumView& View) {
            Reached = QApplication::activeModalWidget() == &View;
            Press(View, "cmdClose");
        });
        ViewAlbum(Other);
        EXPECT_EQ(Dialog.get(), QApplication::activeModalWidget());
        Dialog->Unload();
    });
    Dialog->ShowModal();
    EXPECT_TRUE(Reached);
}

TEST_F(AlbumView, IsAChildOfTheMainWindowFromElsewhereAndClosesOnEscThereToo) {
    AddSlides(Other, {u"a"_s});
    QMdiArea Workspace;
    Workspace.resize(900, 700);
    Workspace.show();
    TheOpeners().ShowAsChild = [&](Form& Child) {
        Workspace.addSubWindow(&Child)->setAttribute(Qt::WA_DeleteOnClose, false);
        Child.ShowModeless();
    };
    const auto First = ViewAlbum(Other);
    const auto Second = ViewAlbum(Other);
    EXPECT_EQ(2, Workspace.subWindowList().size()) << "two can be compared";
    EXPECT_EQ("a", Shown(*Second));
    QTest::keyClick(&GridOf(*Second), Qt::Key_Escape);
    EXPECT_FALSE(Second->IsLoaded());
    EXPECT_EQ(1, Workspace.subWindowList().size());
    First->Unload();
}

TEST_F(AlbumView, RemembersItsSize) {
    const auto View = ViewAlbum(Other);
    EXPECT_GE(View->height(), ToPixels(6315));
    View->resize(900, 500);
    Press(*View, "cmdClose");
    const clsSettings Settings = OpenSettings();
    EXPECT_EQ("7500", Settings.GetValue("frmAlbumView", "Height", {}).toStdString());
    EXPECT_EQ("13500", Settings.GetValue("frmAlbumView", "Width", {}).toStdString());
    EXPECT_EQ(QSize(900, 500), ViewAlbum(Other)->size());
}

TEST_F(AlbumView, ClosesThoughItsPlaceCannotBeRemembered) {
    const auto View = ViewAlbum(Other);
    int Refused = 0;
    SetHostWatcher([&](HostStep, const QString& Path, qint64&) {
        ++Refused;
        throw Fault(u"The disk is full."_s, Path);
    });
    Press(*View, "cmdClose");
    SetHostWatcher({});
    EXPECT_GT(Refused, 0);
    EXPECT_FALSE(View->IsLoaded());
}

}  // namespace
}  // namespace neb
