// What the pages of the preview look like, dot by dot, on plain and on fine screens.
#include <QProcess>

#include "PreviewRig.h"
#include "harness/ChildRole.h"
#include "harness/Heartbeat.h"

namespace neb {
namespace {

using namespace harness;

class PreviewPixels : public PreviewRig {
  protected:
    double Ratio() { return View().devicePixelRatioF(); }
    // The box around the picture of a page, in dots of the paper as it stands on the screen.
    void ExpectPictureInPlace(int Page) {
        const double Scale = View().Zoom() / 100 * View().logicalDpiX() * Ratio();
        const QPointF Corner = QPointF(View().PlaceOf(Page).topLeft()) * Ratio();
        const QRectF Is = tests::WhereIs(Seen(), ColourOfPage(Page), 1);
        EXPECT_NEAR(Corner.x() + PicturePlace.left() * Scale, Is.left(), 1) << View().Zoom();
        EXPECT_NEAR(Corner.y() + PicturePlace.top() * Scale, Is.top(), 1) << View().Zoom();
        EXPECT_NEAR(PicturePlace.width() * Scale, Is.width(), 1) << View().Zoom();
        EXPECT_NEAR(PicturePlace.height() * Scale, Is.height(), 1) << View().Zoom();
    }
    QRgb Dot(const QImage& Image, QPoint At) { return Image.pixel(At * Ratio()); }
    static void WaitOut(Heartbeat& Heart, int Beats) {
        const int From = Heart.Beats();
        EXPECT_TRUE(QTest::qWaitFor([&] { return Heart.Beats() >= From + Beats; }, 30000));
    }
};

TEST_F(PreviewPixels, StandWhereTheyAreOnThePaperAtEveryZoom) {
    Show(2);
    EXPECT_EQ(qEnvironmentVariable("QT_SCALE_FACTOR", u"1"_s).toDouble(), Ratio());
    for (const double Zoom : {50, 100, 200, 87}) {
        View().SetZoom(Zoom);
        View().SetScrollTop(0);
        View().SetScrollLeft(0);
        ExpectPictureInPlace(1);
    }
    View().SetZoom(200);
    View().SetScrollTop(30);
    View().SetScrollLeft(40);
    ExpectPictureInPlace(1);
    View().SetView(PageView::WholePage);
    ExpectPictureInPlace(1);
}

// A line as thin as a dot of the screen is seen as one.
TEST_F(PreviewPixels, AreAsFineAsTheScreen) {
    const auto Made = std::make_shared<PrintDocument>(PictureOf(Qt::gray));
    const double Dots = 96 * qEnvironmentVariable("QT_SCALE_FACTOR", u"1"_s).toDouble();
    QImage Lines(64, 8, QImage::Format_RGB32);
    for (int X = 0; X < 64; ++X)
        for (int Y = 0; Y < 8; ++Y) Lines.setPixel(X, Y, X % 2 ? 0xFFFFFFFF : 0xFF000000);
    QByteArray Bytes;
    QBuffer Buffer(&Bytes);
    Lines.save(&Buffer, "PNG");
    Made->StartDoc();
    tests::Place(*Made, {.Path = {}, .Bytes = Bytes}, {0.5, 0.5, 64 / Dots, 8 / Dots});
    Made->EndDoc();
    Show(Made);
    const QImage Image = Seen();
    const QPoint At = (QPointF(View().PlaceOf(1).topLeft()) * Ratio()).toPoint() +
                      QPointF(Dots / 2, Dots / 2).toPoint();
    for (int X = 0; X < 64; ++X)
        EXPECT_LT(tests::Distance(Lines.pixel(X, 4), Image.pixel(At + QPoint(X, 4))), 30) << X;
}

// The scaling of a display is fixed when a program starts.
TEST_F(PreviewPixels, AreTheSameOnScreensOfEveryScaling) {
    for (const char* Scale : {"2", "1.5"}) {
        QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
        Environment.insert(u"QT_SCALE_FACTOR"_s, QString::fromLatin1(Scale));
        QProcess Copy;
        Copy.setProcessEnvironment(Environment);
        Copy.setProcessChannelMode(QProcess::MergedChannels);
        const QString Fine = Scale[1] ? u""_s : u":PreviewPixels.AreAsFine*"_s;
        Copy.start(QCoreApplication::applicationFilePath(),
                   {u"--gtest_filter=PreviewPixels.StandWhere*"_s + Fine});
        ASSERT_TRUE(Copy.waitForFinished(30000));
        const QByteArray Said = Copy.readAll();
        EXPECT_EQ(0, Copy.exitCode()) << Scale << ": " << Said.toStdString();
        EXPECT_TRUE(Said.contains(Scale[1] ? "PASSED  ] 1 test" : "PASSED  ] 2 tests"))
            << Said.toStdString();
    }
}

TEST_F(PreviewPixels, PaperStaysWhiteOnAGroundThatIsNot) {
    for (const QColor Around : {QColor(0xEF, 0xEF, 0xEF), QColor(0x2A, 0x2A, 0x2A)}) {
        QPalette Palette;
        Palette.setColor(QPalette::Window, Around);
        Palette.setColor(QPalette::WindowText, Around.lightness() > 128 ? Qt::black : Qt::white);
        Show(1);
        Window->setPalette(Palette);
        View().SetView(PageView::WholePage);
        const QImage Image = Seen();
        const QRect Paper = View().PlaceOf(1);
        EXPECT_EQ(QColor(Qt::white).rgb(), Dot(Image, Paper.bottomRight() - QPoint(9, 9)));
        const QColor Ground = Dot(Image, {Paper.left() - 14, Paper.center().y()});
        const QColor Edge = Dot(Image, {Paper.left() - 2, Paper.center().y()});
        EXPECT_LT(Ground.lightness(), 220);
        EXPECT_LT(Edge.lightness(), Ground.lightness()) << "the sheet lies on it";
        EXPECT_TRUE(Window->Unload());
    }
}

TEST_F(PreviewPixels, AreSeenCoarseUntilTheyAreThereAtANewSize) {
    Show(1);
    Settle();
    View().SetZoom(200);
    View().SetScrollTop(0);
    View().SetScrollLeft(0);
    const QRect Paper = View().PlaceOf(1);
    const QPoint Middle = Paper.topLeft() + (PicturePlace.center() * 192).toPoint();
    const QImage Image = Port()->grab().toImage();
    EXPECT_FALSE(View().IsSharp());
    EXPECT_LT(tests::Distance(Dot(Image, Middle), ColourOfPage(1).rgb()), 30);
    EXPECT_TRUE(Shows(1));
}

TEST_F(PreviewPixels, ShowThatTheViewHasTheFocus) {
    Show(1);
    const QImage With = Seen();
    Zooms().setFocus();
    EXPECT_NE(With, Seen());
    View().setFocus();
    EXPECT_EQ(With, Seen());
}

TEST_F(PreviewPixels, APageThatCannotBePaintedSaysWhyOnThePaper) {
    const PrintPicture Gone{.Path = u"/nowhere/gone.jpg"_s, .Bytes = {}};
    const auto Made = std::make_shared<PrintDocument>(Gone);
    Made->StartDoc();
    tests::Place(*Made, Gone, PicturePlace);
    Made->NewPage();
    tests::Place(*Made, PictureOf(ColourOfPage(2)), PicturePlace);
    Made->EndDoc();
    Show(Made);
    View().SetView(PageView::WholePage);
    const QImage Image = Seen();
    const QRect Paper = View().PlaceOf(1);
    int Written = 0;
    for (int X = Paper.left() + 20; X < Paper.right() - 20; ++X)
        Written += qGray(Dot(Image, {X, Paper.center().y()})) < 200 ||
                   qGray(Dot(Image, {X, Paper.center().y() - 8})) < 200;
    EXPECT_GT(Written, 10);
    Key(Qt::Key_PageDown);
    EXPECT_TRUE(Shows(2));
}

// Eight large photographs on each of a thousand pages.
SharedDocument LargeDocument(const TempFolder& Folder) {
    QStringList Paths;
    for (int I = 0; I < 8; ++I) {
        Paths << Folder / u"%1.jpg"_s.arg(I);
        tests::SaveJpeg(Paths.back(), tests::Noise({1600, 1200}, quint32(I)));
    }
    const auto Made = std::make_shared<PrintDocument>(PictureOf(Qt::gray));
    Made->StartDoc();
    for (int Page = 1; Page <= 1000; ++Page) {
        if (Page > 1) Made->NewPage();
        tests::Place(*Made, PictureOf(ColourOfPage(Page)), PicturePlace);
        for (int I = 0; I < 8; ++I)
            tests::Place(*Made, {.Path = Paths[I], .Bytes = {}},
                         {1.0 + I % 2 * 3, 2.0 + I / 2 * 2, 2.5, 1.8});
    }
    Made->EndDoc();
    return Made;
}

TEST_F(PreviewPixels, OfFarPagesComeWhileTheWindowLives) {
    const TempFolder Folder;
    Show(LargeDocument(Folder));
    Heartbeat Heart;
    for (const int Page : {900, 20, 410, 900}) {
        View().TurnTo(Page);
        EXPECT_FALSE(Port()->visibleRegion().isEmpty());
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(Shows(900));
    View().SetView(PageView::Thumbnails);
    WaitOut(Heart, 20);
    View().SetView(PageView::WholePage);
    EXPECT_TRUE(Shows(900));
    EXPECT_LT(Heart.LongestStandstill(), 100);
}

TEST_F(PreviewPixels, AreNoLongerWaitedForWhenTheWindowCloses) {
    const TempFolder Folder;
    for (int I = 0; I < 3; ++I) {
        Show(LargeDocument(Folder));
        View().SetView(PageView::TwoPages);
        View().TurnTo(500);
        QCoreApplication::processEvents();
        EXPECT_FALSE(View().IsSharp()) << "nothing is under way";
        EXPECT_TRUE(Window->Unload());
        Window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

int CloseAndEnd() {
    static const TempFolder Folder;
    const auto Window = NewForm<frmPrintPreview>();
    Window->ShowDocument(LargeDocument(Folder));
    Window->ShowModeless();
    QCoreApplication::processEvents();
    Window->VSPrinter1().grab();
    if (Window->VSPrinter1().IsSharp()) return 2;
    Window->Unload();
    return 0;
}

const ChildRole Ends("preview-closed-at-the-end", &CloseAndEnd);

// A program that ends takes away what its threads paint with.
TEST_F(PreviewPixels, MayStillBePaintedWhenTheProgramEnds) {
    for (int I = 0; I < 8; ++I) {
        QProcess Copy;
        Copy.start(QCoreApplication::applicationFilePath(),
                   {u"--role"_s, u"preview-closed-at-the-end"_s});
        ASSERT_TRUE(Copy.waitForFinished(20000));
        EXPECT_EQ(QProcess::NormalExit, Copy.exitStatus()) << I;
        EXPECT_EQ(0, Copy.exitCode()) << I;
    }
}

}  // namespace
}  // namespace neb
