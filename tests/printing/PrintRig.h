// Pictures to print, and what a PDF holds as other programs see it: its pages, its pictures' own
// bytes, and where on a page something of a colour stands.
#pragma once

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include "harness/TempFolder.h"
#include "pictures/TurnedJpegs.h"
#include "printing/PrintDocument.h"
#include "support/files/modHostFiles.h"

namespace neb::tests {

using namespace Qt::StringLiterals;

inline QByteArray Output(const QString& Program, const QStringList& Arguments) {
    QProcess Process;
    Process.start(Program, Arguments);
    EXPECT_TRUE(Process.waitForFinished(60000)) << Program.toStdString();
    EXPECT_EQ(Process.exitCode(), 0) << Process.readAllStandardError().toStdString();
    return Process.readAllStandardOutput();
}

inline QImage Plain(QColor Colour, QSize Size) {
    QImage Picture(Size, QImage::Format_RGB32);
    Picture.fill(Colour);
    return Picture;
}

// Nothing that a compressor could make small.
inline QImage Noise(QSize Size, quint32 Seed) {
    QImage Picture(Size, QImage::Format_RGB32);
    for (int Y = 0; Y < Size.height(); ++Y)
        for (int X = 0; X < Size.width(); ++X)
            Picture.setPixel(X, Y, 0xFF000000 | (Seed = Seed * 1664525 + 1013904223) >> 8);
    return Picture;
}

inline void SaveJpeg(const QString& Path, const QImage& Picture) {
    WriteFile(Path, JpegOf(Picture));
}

// What pdfinfo says behind a word.
inline QString InfoOf(const QString& Pdf, const QString& Word) {
    const QString Text = QString::fromUtf8(Output(u"pdfinfo"_s, {Pdf}));
    return QRegularExpression(u"^"_s + Word + u":\\s+(.*)$"_s, QRegularExpression::MultilineOption)
        .match(Text)
        .captured(1);
}

inline int PagesIn(const QString& Pdf) {
    return InfoOf(Pdf, u"Pages"_s).toInt();
}

// In points.
inline QSizeF PageSizeIn(const QString& Pdf) {
    const QStringList Words = InfoOf(Pdf, u"Page size"_s).split(u' ');
    return {Words.value(0).toDouble(), Words.value(2).toDouble()};
}

// The pictures of all places, in the order of the pages, with the bytes that lie in the file.
inline QByteArrayList PicturesIn(const QString& Pdf) {
    const harness::TempFolder Folder;
    Output(u"pdfimages"_s, {u"-all"_s, Pdf, Folder / u"picture"_s});
    QByteArrayList All;
    for (const DirEntry& Entry : ListDir(Folder.Path())) All << ReadFile(Folder / Entry.Name);
    return All;
}

constexpr int DotsToTheInch = 300;

// A page as a reader shows it.
inline QImage PageIn(const QString& Pdf, int Page) {
    const harness::TempFolder Folder;
    const QString Number = QString::number(Page);
    Output(u"pdftoppm"_s, {u"-r"_s, QString::number(DotsToTheInch), u"-f"_s, Number, u"-l"_s,
                           Number, u"-singlefile"_s, u"-png"_s, Pdf, Folder / u"page"_s});
    return QImage(Folder / u"page.png"_s).convertToFormat(QImage::Format_RGB32);
}

// The smallest box around all dots of that colour, in inches; empty when there are none.
inline QRectF WhereIs(const QImage& Page, QColor Colour, double Dots = DotsToTheInch) {
    QRect Box;
    for (int Y = 0; Y < Page.height(); ++Y)
        for (int X = 0; X < Page.width(); ++X)
            if (Distance(Page.pixel(X, Y), Colour.rgb()) < 40) Box |= QRect(X, Y, 1, 1);
    return {QPointF(Box.topLeft()) / Dots, QSizeF(Box.size()) / Dots};
}

inline void ExpectPlace(const QImage& Page, QColor Colour, const QRectF& Inches) {
    constexpr double Close = 0.01;
    const QRectF Is = WhereIs(Page, Colour);
    EXPECT_NEAR(Is.left(), Inches.left(), Close);
    EXPECT_NEAR(Is.top(), Inches.top(), Close);
    EXPECT_NEAR(Is.left() + Is.width(), Inches.right(), Close);
    EXPECT_NEAR(Is.top() + Is.height(), Inches.bottom(), Close);
}

inline void Place(PrintDocument& Document, const PrintPicture& Picture, const QRectF& Inches) {
    Document.DrawPicture(Picture, InchText(Inches.x()), InchText(Inches.y()),
                         InchText(Inches.width()), InchText(Inches.height()));
}

}  // namespace neb::tests
