// Printing a single picture: at what size it is offered, how width and height follow each other,
// what is refused, and where it stands.
#include "windows/printing/frmPrintSlide.h"

#include "DialogRig.h"
#include "controls/picture/PictureView.h"
#include "printing/SlidesToPrint.h"

namespace neb {
namespace {

using namespace harness;

class PrintSlide : public DialogRig {
  protected:
    QString Picture(int Width, int Height) {
        return MakePicture(Pics / u"%1 by %2.png"_s.arg(Width).arg(Height), Width, Height);
    }
    void Dialog(const QString& Path, const std::function<void(frmPrintSlide&)>& Do) {
        const auto Window = NewForm<frmPrintSlide>();
        Within<frmPrintSlide>([&] { Window->PrintSlide(Path); }, Do);
    }
    void Dialog(int Width, int Height, const std::function<void(frmPrintSlide&)>& Do) {
        Dialog(Picture(Width, Height), Do);
    }
    static std::string Sizes(const frmPrintSlide& W) {
        return Text(W, "txtWidth") + " by " + Text(W, "txtHeight");
    }
    void ExpectRefused(frmPrintSlide& W, const QString& Text) {
        EXPECT_EQ(Text.toStdString(), Says(W)) << "the drawing says so before";
        EXPECT_FALSE(Sketch(W).Page().IsRight);
        Boxes.Expect(Text, QString(), BoxIcon::Plain, BoxAnswer::Ok);
        EXPECT_EQ(nullptr, Preview(W));
        EXPECT_TRUE(W.IsLoaded());
    }
};

TEST_F(PrintSlide, OpensAtTheLargestSizeWithThePageTurnedToSuitIt) {
    const struct {
        int Width, Height;
        const char* Sizes;
        const char* Turn;
    } Rows[] = {
        {50, 50, "6.5 by 6.5", "optPortrait"}, {40, 80, "4.5 by 9", "optPortrait"},
        {50, 60, "6.5 by 7.8", "optPortrait"}, {80, 60, "8.666666666666666 by 6.5", "optLandscape"},
        {120, 60, "9 by 4.5", "optLandscape"}, {52, 72, "6.5 by 9", "optPortrait"},
        {90, 65, "9 by 6.5", "optLandscape"},
    };
    for (const auto& Row : Rows)
        Dialog(Row.Width, Row.Height, [&](frmPrintSlide& W) {
            EXPECT_EQ(Row.Sizes, Sizes(W));
            EXPECT_TRUE(IsChecked(W, Row.Turn)) << Row.Sizes;
            EXPECT_TRUE(IsChecked(W, "chkMaintainRatio"));
            EXPECT_EQ(QSize(Row.Width, Row.Height),
                      In<PictureView>(W, "imgSlide").Picture().size());
        });
}

TEST_F(PrintSlide, IsSetUpOnceAndKeepsWhatWasTypedWhenItComesToTheFrontAgain) {
    Dialog(60, 40, [](frmPrintSlide& W) {
        Retype(W, "txtWidth", u"3"_s);
        QEvent Again(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&W, &Again);
        QCoreApplication::processEvents();
        EXPECT_EQ("3 by 2", Sizes(W));
    });
}

TEST_F(PrintSlide, WidthAndHeightFollowEachOther) {
    Dialog(60, 40, [](frmPrintSlide& W) {
        EXPECT_EQ("9 by 6", Sizes(W));
        Retype(W, "txtWidth", u"4.5"_s);
        EXPECT_EQ("4.5 by 3", Sizes(W));
        Retype(W, "txtHeight", u"2"_s);
        EXPECT_EQ("3 by 2", Sizes(W));
        Retype(W, "txtHeight", u""_s);
        EXPECT_EQ("0 by ", Sizes(W));
        Retype(W, "txtWidth", u"4,5"_s);
        EXPECT_EQ("4,5 by 3", Sizes(W)) << "as many people write it";
        Retype(W, "txtWidth", u"6 inches"_s);
        EXPECT_EQ("6 inches by 4", Sizes(W));
        Click(W, "chkMaintainRatio");
        Retype(W, "txtWidth", u"5"_s);
        EXPECT_EQ("5 by 4", Sizes(W)) << "not any more";
        QTest::keyClick(&In<QLineEdit>(W, "txtWidth"), Qt::Key_Up);
        EXPECT_EQ("5.25 by 4", Sizes(W));
    });
}

TEST_F(PrintSlide, StandsOneInchFromTheCorner) {
    Dialog(60, 40, [](frmPrintSlide& W) {
        Retype(W, "txtWidth", u"4.5"_s);
        const Composed Document = Preview(W);
        ASSERT_NE(nullptr, Document);
        ASSERT_EQ(1, Document->PageCount());
        EXPECT_EQ("1 1 4.5 3", PlacesOn(Document, 1));
        EXPECT_EQ(PageTurn::Landscape, Document->Orientation());
        EXPECT_EQ(QMarginsF(0.25, 0.25, 0.25, 0.25), Document->Margins());
        EXPECT_EQ("60 by 40.png", NamesOn(Document, 1));
        EXPECT_EQ("1 1 4.5 3", Sketched(W));
        EXPECT_EQ("4.5 by 3 inches", Says(W));
    });
}

TEST_F(PrintSlide, WithoutTheRatioThePictureIsStretched) {
    Dialog(40, 80, [](frmPrintSlide& W) {
        Click(W, "chkMaintainRatio");
        Retype(W, "txtWidth", u"6"_s);
        Retype(W, "txtHeight", u"2"_s);
        EXPECT_EQ("1 1 6 2", PlacesOn(Preview(W), 1));
        EXPECT_EQ("1 1 6 2", Sketched(W));
        // with it again, a high picture goes by its height
        Click(W, "chkMaintainRatio");
        EXPECT_EQ("1 1 1 2", PlacesOn(Preview(W), 1));
    });
}

TEST_F(PrintSlide, RefusesInItsOrderWhatIsTooSmallOrTooLarge) {
    Dialog(60, 40, [&](frmPrintSlide& W) {
        Click(W, "chkMaintainRatio");
        Retype(W, "txtWidth", u"0.99"_s);
        Retype(W, "txtHeight", u"20"_s);
        ExpectRefused(W, u"Picture must be >= 1 inch wide."_s);
        Retype(W, "txtWidth", u"9.01"_s);
        ExpectRefused(W, u"Picture must be <= 9 inches wide."_s);
        Retype(W, "txtWidth", u"9"_s);
        ExpectRefused(W, u"Picture must be <= 6.5 inches high."_s);
        Retype(W, "txtHeight", u""_s);
        ExpectRefused(W, u"Picture must be >= 1 inch high."_s);
        Retype(W, "txtHeight", u"6.5"_s);
        EXPECT_EQ("1 1 9 6.5", PlacesOn(Preview(W), 1)) << "the limits themselves are within";
        Click(W, "optPortrait");
        EXPECT_EQ("9 by 6.5", Sizes(W)) << "turning the page leaves the numbers";
        ExpectRefused(W, u"Picture must be <= 6.5 inches wide."_s);
        Retype(W, "txtWidth", u"6.5"_s);
        Retype(W, "txtHeight", u"9.5"_s);
        ExpectRefused(W, u"Picture must be <= 9 inches high."_s);
        Retype(W, "txtHeight", u"9"_s);
        const Composed Document = Preview(W);
        EXPECT_EQ("1 1 6.5 9", PlacesOn(Document, 1));
        EXPECT_EQ(PageTurn::Portrait, Document->Orientation());
    });
}

TEST_F(PrintSlide, AMissingAndADamagedFileArePrintedAsTheStandIn) {
    WriteFile(Pics / u"bad.jpg"_s, "no picture");
    for (const char* Name : {"gone.jpg", "bad.jpg"})
        Dialog(Pics / QString::fromLatin1(Name), [](frmPrintSlide& W) {
            EXPECT_EQ("9 by 6", Sizes(W));
            EXPECT_EQ(QSize(60, 40), In<PictureView>(W, "imgSlide").Picture().size());
            EXPECT_EQ("NoSlide.bmp", NamesOn(Preview(W), 1));
        });
}

TEST_F(PrintSlide, AFileThatGoesWhileTheWindowIsOpenIsPrintedAsTheStandIn) {
    const QString Path = Picture(60, 40);
    Dialog(Path, [&](frmPrintSlide& W) {
        DeleteFile(Path);
        EXPECT_EQ("NoSlide.bmp", NamesOn(Preview(W), 1));
        DeleteFile(App / u"NoSlide.bmp"_s);
        QString Problem;
        try {
            MeasurePicture({NoSlideFile(), {}});
        } catch (const Fault& Raised) {
            Problem = Raised.Text();
        }
        Boxes.Expect(Problem, u"Print Slide"_s, BoxIcon::Critical, BoxAnswer::Ok);
        EXPECT_EQ(nullptr, Preview(W));
        EXPECT_TRUE(W.IsLoaded());
    });
}

TEST_F(PrintSlide, CancelAndEscCloseIt) {
    Dialog(60, 40, [](frmPrintSlide& W) {
        Press(W, "cmdCancel");
        EXPECT_FALSE(W.IsLoaded());
    });
    Dialog(60, 40, [](frmPrintSlide& W) {
        QTest::keyClick(&In<QLineEdit>(W, "txtWidth"), Qt::Key_Escape);
        EXPECT_FALSE(W.IsLoaded());
    });
}

}  // namespace
}  // namespace neb
