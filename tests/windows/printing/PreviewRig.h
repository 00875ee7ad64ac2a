// The print preview on documents of one coloured picture a page, and the hands that use it.
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QScrollBar>
#include <QWheelEvent>

#include "printing/PrintRig.h"
#include "windows/import/IntakeHarness.h"
#include "windows/printing/PrintView.h"
#include "windows/printing/frmPrintPreview.h"

namespace neb::harness {

using SharedDocument = std::shared_ptr<const PrintDocument>;

inline PrintPicture PictureOf(QColor Colour, QSize Size = {32, 24}) {
    QByteArray Bytes;
    QBuffer Buffer(&Bytes);
    tests::Plain(Colour, Size).save(&Buffer, "PNG");
    return {.Path = {}, .Bytes = Bytes};
}

// Where the picture of each page stands, in inches.
inline const QRectF PicturePlace(0.75, 0.5, 1.5, 1);

inline QColor ColourOfPage(int Page) {
    return QColor::fromHsv(Page * 47 % 360, 255, 200);
}

inline SharedDocument MakeDocument(int Pages, QSizeF Paper = LetterPaper) {
    const auto Made = std::make_shared<PrintDocument>(PictureOf(Qt::gray), Paper);
    Made->StartDoc();
    for (int Page = 1; Page <= Pages; ++Page) {
        if (Page > 1) Made->NewPage();
        tests::Place(*Made, PictureOf(ColourOfPage(Page)), PicturePlace);
    }
    Made->EndDoc();
    return Made;
}

class PreviewRig : public Intake {
  protected:
    ~PreviewRig() override {
        if (Window) Window->Unload();
    }

    void Show(SharedDocument Document) {
        Window = NewForm<frmPrintPreview>();
        if (Document) Window->ShowDocument(std::move(Document));
        Window->ShowModeless();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(Window.get()));
        QCoreApplication::processEvents();
    }
    void Show(int Pages) { Show(MakeDocument(Pages)); }

    PrintView& View() { return Window->VSPrinter1(); }
    QWidget* Port() { return View().viewport(); }
    QComboBox& Zooms() { return In<QComboBox>(*Window, "cboZoom"); }
    std::string Label(const char* Name) { return In<QLabel>(*Window, Name).text().toStdString(); }
    void Push(const char* Button) { Press(*Window, Button); }
    bool IsEnabled(const char* Button) { return In<QPushButton>(*Window, Button).isEnabled(); }

    void Settle() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return View().IsSharp(); }, 10000));
    }
    // What the pages look like, dot by dot.
    QImage Seen() {
        Settle();
        QImage Image = Port()->grab().toImage().convertToFormat(QImage::Format_RGB32);
        Image.setDevicePixelRatio(1);
        return Image;
    }
    // Whether the picture of a page is seen in its colour at the middle of its place.
    bool Shows(int Page) {
        const QRect Paper = View().PlaceOf(Page);
        const double Scale = View().Zoom() * View().logicalDpiX() / 100;
        const QPointF Middle = Paper.topLeft() + PicturePlace.center() * Scale;
        const QPoint Dot = (Middle * View().devicePixelRatioF()).toPoint();
        const QImage Image = Seen();
        return Image.valid(Dot) && tests::Distance(Image.pixel(Dot), ColourOfPage(Page).rgb()) < 30;
    }

    void Key(int Key, Qt::KeyboardModifiers With = {}) {
        QTest::keyClick(&View(), static_cast<Qt::Key>(Key), With);
    }
    void Wheel(int Turned, QPoint At = {200, 200}, Qt::KeyboardModifiers With = {}) {
        QWheelEvent Event(At, Port()->mapToGlobal(QPointF(At)), {}, {0, Turned}, Qt::NoButton, With,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(Port(), &Event);
    }
    void Drag(QPoint From, QPoint To) {
        QTest::mousePress(Port(), Qt::LeftButton, {}, From);
        QTest::mouseMove(Port(), (From + To) / 2);
        QTest::mouseMove(Port(), To);
        QTest::mouseRelease(Port(), Qt::LeftButton, {}, To);
    }
    void Choose(const char* Zoom) {
        Zooms().setFocus();
        Zooms().showPopup();
        QAbstractItemView* List = Zooms().view();
        const QModelIndex Entry =
            List->model()->index(Zooms().findText(QString::fromLatin1(Zoom)), 0);
        List->scrollTo(Entry);
        QTest::mouseMove(List->viewport(), List->visualRect(Entry).center());
        // a list that has only just opened takes the first release for that of its opening
        QTest::qWait(QApplication::doubleClickInterval() + 20);
        QTest::mouseClick(List->viewport(), Qt::LeftButton, {}, List->visualRect(Entry).center());
    }

    std::shared_ptr<frmPrintPreview> Window;
};

}  // namespace neb::harness
