// The small drawing of a page: what stands on it, and that it is to scale.
#include "windows/printing/PageSketch.h"

#include <QApplication>

#include "DialogRig.h"
#include "windows/printing/frmPrintAlbum.h"
#include "windows/printing/frmPrintSheet.h"
#include "windows/printing/frmPrintSlide.h"
#include "windows/printing/frmPrintSlideShow.h"

namespace neb {
namespace {

using namespace harness;

std::string AllOf(const std::vector<QRectF>& Places) {
    QStringList All;
    for (const QRectF& Each : Places) All << InchesOf(Each);
    return All.join(u" | "_s).toStdString();
}

CellGrid GridOf(GridWish Wish) {
    auto Grid = GridFor(Wish);
    return *Grid;
}

TEST(PageSketch, TheFirstSheetHasAsManyPicturesAsThereAre) {
    const CellGrid Grid = GridOf({.PerRow = 2, .RowsPerPage = 2});
    // cells of 4.425 by 3.175
    EXPECT_EQ("1 1 4.23333 3.175", AllOf(FirstSheet(LetterPaper, Grid, 1, {4, 3}).Pictures));
    EXPECT_EQ(QSizeF(11, 8.5), FirstSheet(LetterPaper, Grid, 1, {4, 3}).Size);
    EXPECT_EQ(4u, FirstSheet(LetterPaper, Grid, 400, {4, 3}).Pictures.size());
    const CellGrid Whole = GridOf({.PerRow = 2, .RowsPerPage = 2, .WholeSheet = true});
    EXPECT_EQ(4u, FirstSheet(LetterPaper, Whole, 1, {4, 3}).Pictures.size());
    EXPECT_TRUE(FirstSheet(LetterPaper, Grid, 4, {4, 3}).Lines.empty());
}

TEST(PageSketch, CaptionsAndTheFootAreLinesWithinTheirPlaces) {
    const CellGrid Grid = GridOf({.PerRow = 2, .RowsPerPage = 1, .Captions = true});
    const SketchedPage Page = FirstSheet(LetterPaper, Grid, 2, {4, 3}, {true, true});
    ASSERT_EQ(4u, Page.Lines.size());
    for (int I = 0; I < 2; ++I) {
        const QRectF Place = CaptionPlace(Grid, CellAt(Grid, I), Page.Pictures[I].size());
        EXPECT_TRUE(Place.contains(Page.Lines[I]));
    }
    EXPECT_TRUE(FootPlace(Grid.Turn).contains(Page.Lines[2]));
    EXPECT_TRUE(FootPlace(Grid.Turn).contains(Page.Lines[3]));
    EXPECT_LT(Page.Lines[2].right(), Page.Lines[3].left());
}

TEST(PageSketch, DrawsThePaperToScaleAndThePicturesInTheirPlaces) {
    PageSketch Sketch;
    Sketch.resize(400, 500);
    Sketch.Show(SlidePage({10, 20}, PageTurn::Portrait, {3, 5}), u"3 by 5 inches"_s);
    Sketch.show();
    const QRectF Paper = Sketch.PaperRect();
    EXPECT_NEAR(0.5, Paper.width() / Paper.height(), 1e-6);
    EXPECT_GT(Paper.height(), 380);
    const QImage Shot = Sketch.grab().toImage();
    const double Scale = Paper.width() / 10 * Shot.devicePixelRatio();
    const auto At = [&](double X, double Y) {
        return Shot.pixelColor(
            (Paper.topLeft() * Shot.devicePixelRatio() + QPointF(X, Y) * Scale).toPoint());
    };
    EXPECT_EQ(QColor(Qt::white), At(0.5, 0.5));
    EXPECT_EQ(QColor(Qt::white), At(4.5, 3));
    EXPECT_EQ(QColor(Qt::white), At(2, 6.5));
    EXPECT_NE(QColor(Qt::white), At(1.3, 1.3));
    EXPECT_NE(QColor(Qt::white), At(3.7, 5.7));
    QImage Red(6, 10, QImage::Format_RGB32);
    Red.fill(Qt::red);
    Sketch.SetPicture(Red);
    const QImage WithPicture = Sketch.grab().toImage();
    EXPECT_EQ(
        QColor(Qt::red),
        WithPicture.pixelColor(
            (Paper.topLeft() * Shot.devicePixelRatio() + QPointF(2.5, 3.5) * Scale).toPoint()));
}

class PrintLooks : public DialogRig {
  protected:
    void ForEach(const std::function<void(Form&)>& Do) {
        const QString Path = MakePicture(Pics / u"rose.png"_s, 60, 40);
        const auto Slide = NewForm<frmPrintSlide>();
        const auto Sheet = NewForm<frmPrintSheet>();
        Within<frmPrintAlbum>([&] { NewForm<frmPrintAlbum>()->PrintAlbum(AlbumID); }, Do);
        Within<frmPrintSlideShow>([&] { NewForm<frmPrintSlideShow>()->PrintSlideShow(AlbumID, 0); },
                                  Do);
        Within<frmPrintSlide>([&] { Slide->PrintSlide(Path); }, Do);
        Within<frmPrintSheet>([&] { Sheet->PrintSlide(Path, {}); }, Do);
    }
};

TEST_F(PrintLooks, NothingIsCutInLargeLetters) {
    AddShow(u"Walk"_s, {AddSlide(u"rose"_s)});
    const QFont Before = QApplication::font();
    for (const double Points : {Before.pointSizeF(), 20.0}) {
        QFont Large = Before;
        Large.setPointSizeF(Points);
        QApplication::setFont(Large);
        ForEach([&](Form& W) {
            if (W.findChild<QLineEdit*>(u"txtSlidesPerRow"_s)) {
                Click(W, "optPortrait");
                Retype(W, "txtSlidesPerRow", u"1000"_s);
            } else {
                Retype(W, "txtWidth", u"1000"_s);
            }
            QCoreApplication::processEvents();
            for (const QWidget* Part : W.findChildren<QWidget*>()) {
                const bool Says =
                    qobject_cast<const QAbstractButton*>(Part) || qobject_cast<const QLabel*>(Part);
                if (!Says || !Part->isVisible()) continue;
                const int Needed = Part->hasHeightForWidth() ? Part->heightForWidth(Part->width())
                                                             : Part->sizeHint().height();
                EXPECT_GE(Part->height(), Needed) << Part->objectName().toStdString();
                if (Part->hasHeightForWidth()) continue;
                EXPECT_GE(Part->width(), Part->sizeHint().width())
                    << Part->objectName().toStdString();
            }
        });
    }
    QApplication::setFont(Before);
}

TEST_F(PrintLooks, TheSizeStaysWhileNumbersAreTyped) {
    AddShow(u"Walk"_s, {AddSlide(u"rose"_s)});
    ForEach([&](Form& W) {
        const QSize Before = W.size();
        const char* Field = W.findChild<QLineEdit*>(u"txtWidth"_s) ? "txtWidth" : "txtSlidesPerRow";
        for (const QString& Each : {u"0"_s, u"1000"_s, u"2"_s}) {
            Retype(W, Field, Each);
            QCoreApplication::processEvents();
            EXPECT_EQ(Before, W.size());
        }
    });
}

TEST_F(PrintLooks, EveryControlHasANameATipAndALetterOfItsOwn) {
    AddShow(u"Walk"_s, {AddSlide(u"rose"_s)});
    ForEach([&](Form& W) {
        QString Letters;
        int Count = 0;
        for (const QWidget* Part : W.findChildren<QWidget*>()) {
            QString Labelled;
            if (auto* Button = qobject_cast<const QAbstractButton*>(Part))
                Labelled = Button->text();
            if (auto* Label = qobject_cast<const QLabel*>(Part); Label && Label->buddy())
                Labelled = Label->text();
            if (!Part->isVisible()) continue;
            const QString Keys = QKeySequence::mnemonic(Labelled).toString();
            if (!Keys.isEmpty()) {
                EXPECT_FALSE(Letters.contains(Keys.back())) << Labelled.toStdString();
                Letters += Keys.back();
                ++Count;
            }
            if (Part->focusPolicy() == Qt::NoFocus || Part->inherits("QComboBoxPrivateContainer") ||
                Part->objectName().startsWith(u"qt_"))
                continue;
            EXPECT_NE("", Part->accessibleName().toStdString()) << Part->objectName().toStdString();
            if (Part->inherits("QGroupBox")) continue;
            EXPECT_NE("", Part->toolTip().toStdString()) << Part->objectName().toStdString();
        }
        EXPECT_GE(Count, 6);
    });
}

TEST_F(PrintLooks, TabGoesFromTheTopToTheBottom) {
    AddShow(u"Walk"_s, {AddSlide(u"rose"_s)});
    ForEach([&](Form& W) {
        // the window begins with the first number, behind the choice of the page
        auto& Begin =
            In<QWidget>(W, W.findChild<QWidget*>(u"cboAlbum"_s) ? "cboAlbum" : "optLandscape");
        Begin.setFocus();
        int Before = -1;
        QSet<QWidget*> Seen;
        for (QWidget* At = &Begin; At && !Seen.contains(At);) {
            Seen << At;
            const int Place = At->mapTo(&W, QPoint(0, At->height() / 2)).y();
            EXPECT_GE(Place, Before - 2) << At->objectName().toStdString();
            Before = Place;
            QTest::keyClick(At, Qt::Key_Tab);
            At = QApplication::focusWidget();
        }
        EXPECT_GE(Seen.size(), 6);
    });
}

}  // namespace
}  // namespace neb
