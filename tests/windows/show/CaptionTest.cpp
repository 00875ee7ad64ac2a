#include <gtest/gtest.h>

#include <QImage>

#include "show/captions/CaptionFit.h"
#include "show/captions/CaptionText.h"
#include "windows/show/CaptionLabel.h"

namespace neb {
namespace {

constexpr int ScreenHeight = 1024;

// The caption as it is painted at this width; Height receives what the label asks for.
QImage PaintedLabel(const QString& LabelText, int Width, int* Height = nullptr) {
    CaptionLabel Label;
    QPalette Dark;
    Dark.setColor(QPalette::Window, Qt::black);
    Dark.setColor(QPalette::WindowText, Qt::white);
    Label.setPalette(Dark);
    Label.setText(LabelText);
    const int Wanted = Label.FitTo(Width, ScreenHeight, ScreenHeight / 3);
    if (Height) *Height = Wanted;
    Label.resize(Width, Wanted);
    return Label.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
}

// The rectangle around everything that is not black.
QRect Ink(const QImage& Image) {
    QRect Found;
    for (int Y = 0; Y < Image.height(); ++Y)
        for (int X = 0; X < Image.width(); ++X)
            if (Image.constScanLine(Y)[X] > 40) Found |= QRect(X, Y, 1, 1);
    return Found;
}

TEST(FixCaptionText, DoublesAmpersandsAndJoinsLines) {
    EXPECT_EQ("Tom && Anna", FixCaptionText(QStringLiteral("Tom & Anna")).toStdString());
    EXPECT_EQ("&&&&", FixCaptionText(QStringLiteral("&&")).toStdString());
    EXPECT_EQ("one two", FixCaptionText(QStringLiteral("one\r\ntwo")).toStdString());
    EXPECT_EQ("onetwo", FixCaptionText(QStringLiteral("one\ntwo")).toStdString());
    EXPECT_EQ("one two ", FixCaptionText(QStringLiteral("one\rtwo\r")).toStdString());
    EXPECT_EQ("\ta  b", FixCaptionText(QStringLiteral("\ta  b")).toStdString());
    EXPECT_EQ("", FixCaptionText({}).toStdString());
}

TEST(Caption, ShowsWhatWasWrittenAmpersandsIncluded) {
    for (const char* Text : {"&", "&&", "Tom & Anna", "& first", "last &", "R&D & more"}) {
        CaptionLabel Label;
        Label.setText(FixCaptionText(QString::fromUtf8(Text)));
        EXPECT_EQ(Text, Label.ShownText().toStdString());
        Label.FitTo(400, ScreenHeight, 300);
        EXPECT_EQ(Text, Label.accessibleName().toStdString());
    }
}

TEST(Caption, TakesASingleAmpersandAsNoCharacter) {
    EXPECT_EQ("Open", ShownCaptionText(QStringLiteral("&Open")).toStdString());
    EXPECT_EQ("Open", ShownCaptionText(QStringLiteral("Open&")).toStdString());
}

TEST(Caption, PaintsOneAmpersandForAnAmpersand) {
    const int One = Ink(PaintedLabel(FixCaptionText(QStringLiteral("&")), 400)).width();
    const int Two = Ink(PaintedLabel(FixCaptionText(QStringLiteral("&&")), 400)).width();
    EXPECT_GT(One, 4);
    EXPECT_GT(Two, One * 3 / 2);
    EXPECT_LT(Two, One * 5 / 2);
}

TEST(Caption, IsCentredInBoldTwelvePoints) {
    CaptionLabel Label;
    Label.setText(QStringLiteral("A day at the lake"));
    Label.FitTo(1280, ScreenHeight, ScreenHeight / 3);
    EXPECT_TRUE(Label.font().bold());
    EXPECT_EQ(12, Label.font().pointSizeF());
    const QRect Text = Ink(PaintedLabel(Label.text(), 1280));
    EXPECT_NEAR(640, Text.center().x(), 3);
}

TEST(Caption, GrowsWithScreensTallerThanUsual) {
    CaptionLabel Label;
    Label.FitTo(3840, 2160, 720);
    EXPECT_EQ(24, Label.font().pointSizeF());
}

TEST(Caption, WrapsRatherThanBeingCut) {
    int OneLine = 0, Wrapped = 0;
    PaintedLabel(QStringLiteral("short"), 300, &OneLine);
    const QImage Image = PaintedLabel(
        QStringLiteral("a caption that is a good deal too long for its width"), 300, &Wrapped);
    EXPECT_GT(Wrapped, OneLine * 3 / 2);
    const QRect Text = Ink(Image);
    EXPECT_GT(Text.left(), 0);
    EXPECT_LT(Text.right(), 299);
    EXPECT_LT(Text.bottom(), Wrapped - 1);
}

TEST(Caption, BreaksAWordThatIsTooLongForALine) {
    int Height = 0;
    const QRect Text = Ink(PaintedLabel(QString(80, u'W'), 300, &Height));
    EXPECT_GT(Text.left(), 0);
    EXPECT_LT(Text.right(), 299);
    EXPECT_LT(Text.bottom(), Height - 1);
}

TEST(Caption, ShrinksWhenItWouldTakeMoreThanAThirdOfTheScreen) {
    CaptionLabel Label;
    Label.setText(QStringLiteral("many words ").repeated(200));
    const int Height = Label.FitTo(640, 480, 160);
    EXPECT_LE(Height, 160);
    EXPECT_LT(Label.font().pointSizeF(), 12);
    Label.setText(QStringLiteral("few"));
    Label.FitTo(640, 480, 160);
    EXPECT_EQ(12, Label.font().pointSizeF());
}

// The rehearsal reads the same figures as the label has them.
TEST(Caption, IsSetAsTheLabelSetsIt) {
    const CaptionSpace Space{640, 480, 160};
    for (const int Words : {0, 1, 20, 200, 5000}) {
        CaptionLabel Label;
        Label.setText(QStringLiteral("many words ").repeated(Words));
        const int Height = Label.FitTo(Space.Width, Space.ScreenHeight, Space.MostHeight);
        const CaptionSetting Setting = FitCaption(Label.ShownText(), Space);
        EXPECT_EQ(Height, Setting.Height) << Words;
        EXPECT_EQ(Label.font().pointSizeF(), Setting.Points) << Words;
    }
}

TEST(Caption, CountsTheLinesAtTheStandardType) {
    const CaptionSpace Space{640, 480, 160};
    EXPECT_EQ(1, StandardCaption({}, Space).Lines);
    EXPECT_EQ(1, StandardCaption(QStringLiteral("A day at the lake"), Space).Lines);
    const CaptionSetting Two = StandardCaption(QStringLiteral("many words ").repeated(8), Space);
    EXPECT_EQ(2, Two.Lines);
    EXPECT_EQ(12, Two.Points);
    const QString Long = QStringLiteral("many words ").repeated(200);
    EXPECT_GT(StandardCaption(Long, Space).Height, 160);
    EXPECT_LT(FitCaption(Long, Space).Points, 12);
}

TEST(Caption, KeepsOneLineWhenItIsEmpty) {
    int Empty = 0, OneLine = 0;
    PaintedLabel({}, 300, &Empty);
    PaintedLabel(QStringLiteral("Ag"), 300, &OneLine);
    EXPECT_EQ(OneLine, Empty);
    EXPECT_LT(Empty, 40);
}

}  // namespace
}  // namespace neb
