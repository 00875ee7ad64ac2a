// Captions of every script under the picture of a show: all letters are there, in their order,
// and lines end where they may.
#include <gtest/gtest.h>

#include <QGlyphRun>
#include <QTextLayout>

#include "show/captions/CaptionFit.h"
#include "show/captions/CaptionText.h"
#include "windows/show/CaptionLabel.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

QImage Painted(const QString& Caption, int Width) {
    CaptionLabel Label;
    QPalette Dark;
    Dark.setColor(QPalette::Window, Qt::black);
    Dark.setColor(QPalette::WindowText, Qt::white);
    Label.setPalette(Dark);
    Label.setText(FixCaptionText(Caption));
    Label.resize(Width, Label.FitTo(Width, 1024, 341));
    return Label.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
}

QRect InkOfScript(const QImage& Image) {
    QRect Found;
    for (int Y = 0; Y < Image.height(); ++Y)
        for (int X = 0; X < Image.width(); ++X)
            if (Image.constScanLine(Y)[X] > 40) Found |= QRect(X, Y, 1, 1);
    return Found;
}

// Glyph 0 is the box that stands for a letter which no font has.
int Boxes(const QString& Caption) {
    QTextLayout Layout(Caption, CaptionFont(12));
    Layout.beginLayout();
    Layout.createLine().setLineWidth(10000);
    Layout.endLayout();
    int Count = 0;
    for (const QGlyphRun& Run : Layout.glyphRuns()) Count += Run.glyphIndexes().count(0);
    return Count;
}

const QStringList& Captions() {
    static const QStringList All{
        u"Лето на даче: ёлки"_s,
        u"Ένα καλοκαίρι στη θάλασσα"_s,
        u"水曜日の朝，海边"_s,
        u"مرحبا بالعالم 2024"_s,
        u"שלום 2024 hello"_s,
        u"วันหยุดที่ทะเล"_s,
        u"👩‍👩‍👧 in 🇩🇪, ❤️ 🌹"_s,
        u"Žluťoučký kůň"_s,
    };
    return All;
}

TEST(CaptionScripts, EveryLetterIsThere) {
    for (const QString& Each : Captions()) EXPECT_EQ(0, Boxes(Each)) << Each.toStdString();
    EXPECT_EQ(1, Boxes(u"a\U000F0000b"_s)) << "the measure itself";
}

TEST(CaptionScripts, EachStandsInTheMiddle) {
    for (const QString& Each : Captions()) {
        const QRect Seen = InkOfScript(Painted(Each, 1280));
        EXPECT_GT(Seen.width(), 60) << Each.toStdString();
        EXPECT_NEAR(640, Seen.center().x(), 8) << Each.toStdString();
    }
}

// The word of Latin letters that follows a Hebrew one stands at its left.
TEST(CaptionScripts, WhatIsReadFromTheRightBeginsThere) {
    EXPECT_TRUE(Painted(u"ש LWM"_s, 600) == Painted(u"LWM ש"_s, 600));
    EXPECT_FALSE(Painted(u"ש LWM"_s, 600) == Painted(u"\u200Eש LWM"_s, 600))
        << "as if it were ours";
}

TEST(CaptionScripts, LinesWithoutBlanksAreBrokenAndNothingIsCut) {
    const QStringList Long{u"水曜日の朝、海辺で撮った写真です。"_s.repeated(4),
                           u"วันหยุดฤดูร้อนที่ทะเลกับครอบครัว"_s.repeated(4),
                           u"👩‍👩‍👧🇩🇪"_s.repeated(30)};
    for (const QString& Each : Long) {
        const QImage Image = Painted(Each, 300);
        const QRect Seen = InkOfScript(Image);
        EXPECT_GT(Image.height(), 40) << Each.toStdString();
        EXPECT_GT(Seen.left(), 0) << Each.toStdString();
        EXPECT_LT(Seen.right(), 299) << Each.toStdString();
        EXPECT_LT(Seen.bottom(), Image.height() - 1) << Each.toStdString();
    }
}

TEST(CaptionScripts, TheLongestCaptionHasRoomUnderThePicture) {
    for (const QString& Each : {u"水"_s, u"W"_s, u"слово "_s, u"🌹"_s}) {
        const QString Longest = Each.repeated(2000 / Each.size());
        const CaptionSetting Setting = FitCaption(Longest, {1280, 1024, 341});
        EXPECT_LE(Setting.Height, 341) << Each.toStdString();
    }
}

}  // namespace
}  // namespace neb
