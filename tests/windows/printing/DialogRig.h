// A user at the print dialogs: an album with slides and shows, the preview caught as it opens, and
// what stands on its pages in inches.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QRadioButton>
#include <QRegularExpression>
#include <cmath>

#include "support/modNumbers.h"
#include "windows/import/IntakeHarness.h"
#include "windows/printing/PageSketch.h"
#include "windows/printing/PrintView.h"
#include "windows/printing/frmPrintPreview.h"

namespace neb::harness {

using Composed = std::shared_ptr<const PrintDocument>;

// "1 1 2.9 1.5": left, top, width, height.
inline QString InchesOf(const QRectF& Place) {
    QStringList Sides;
    for (double Each : {Place.left(), Place.top(), Place.width(), Place.height()})
        Sides << ShortestDecimal(std::round(Each * 1e5) / 1e5);
    return Sides.join(u' ');
}

inline std::string PlacesOn(const Composed& Document, int Page) {
    QStringList All;
    for (const PlacedPicture& Each : Document->PlacesOn(Page)) All << InchesOf(Each.Place);
    return All.join(u" | "_s).toStdString();
}

inline std::string TextsOn(const Composed& Document, int Page) {
    QStringList All;
    for (const PlacedText& Each : Document->TextsOn(Page)) All << Each.Text;
    return All.join(u'|').toStdString();
}

class DialogRig : public Intake {
  protected:
    DialogRig() {
        MakePicture(App / u"NoSlide.bmp"_s, 60, 40, Qt::gray);
        AlbumID = MakeAlbum(u"Garden"_s);
    }
    ~DialogRig() override {
        for (const auto& Each : LoadedForms()) Each->Unload();
    }

    clsNEBAlbum& Album() { return *Engine.GetAlbum(AlbumID); }
    // A slide of that size; its file is named after its caption.
    std::int32_t AddSlide(const QString& Caption, QSize Size = {60, 40}) {
        const QString Name = Caption + u".jpg"_s;
        MakePicture(SlidesFolder(Engine.DBPath(), AlbumID) + Name, Size.width(), Size.height());
        return AddSlideAt(Caption, Name);
    }
    std::int32_t AddSlideAt(const QString& Caption, const QString& Loc) {
        std::int32_t SlideID = 0;
        Album().SaveSlide2(SlideID, Caption, Loc, {}, false, false, Engine);
        return SlideID;
    }
    void AddSlides(int Count) {
        AddSlide(u"000"_s);
        for (int I = 1; I < Count; ++I)
            AddSlideAt(u"%1"_s.arg(I, 3, 10, QLatin1Char('0')), u"000.jpg"_s);
    }
    clsNEBSlideShow& AddShow(const QString& Name, const std::vector<std::int32_t>& Slides) {
        std::int32_t SlideShowID = 0;
        Album().SaveSlideShow(SlideShowID, Name, 0, Engine);
        clsNEBSlideShow& Show = *Album().GetSlideShow(SlideShowID);
        for (const std::int32_t Each : Slides)
            Show.SaveDetail(Each, static_cast<std::int32_t>(Show.Details.size()) + 1, {});
        return Show;
    }

    // Something that a user does in the modal window that Show opens; it is closed behind him.
    template <class Window>
    static void Within(const std::function<void()>& Show, std::function<void(Window&)> Do) {
        bool Done = false;
        WhenOpen<Window>([&](Window& Opened) {
            const auto Held = Opened.shared_from_this();
            Activate(Opened);
            Do(Opened);
            Opened.Unload();
            Done = true;
        });
        Show();
        EXPECT_TRUE(Done) << "it never opened";
    }
    // What the preview shows after the button; none when no preview opens. The user closes it.
    static Composed Preview(QWidget& Window, std::function<void()> Meanwhile = {}) {
        Composed Shown;
        QTimer Poll;
        QObject::connect(&Poll, &QTimer::timeout, &Poll, [&] {
            auto* Opened = Open<frmPrintPreview>();
            if (!Opened) return;
            Shown = Opened->VSPrinter1().Document();
            if (Meanwhile) Meanwhile();
            Opened->Unload();
        });
        Poll.start(2);
        Press(Window, "cmdPrint");
        return Shown;
    }
    static std::vector<QString> FilesOn(const Composed& Document, int Page) {
        std::vector<QString> Names;
        for (const PlacedPicture& Each : Document->PlacesOn(Page))
            Names.push_back(Document->Picture(Each.Picture).Path.section(u'/', -1));
        return Names;
    }
    static std::string NamesOn(const Composed& Document, int Page) {
        QStringList All;
        for (const QString& Each : FilesOn(Document, Page)) All << Each;
        return All.join(u' ').toStdString();
    }

    static void Retype(const QWidget& Window, const char* Field, const QString& Text) {
        auto& Line = In<QLineEdit>(Window, Field);
        Line.setFocus();
        Line.selectAll();
        QTest::keyClick(&Line, Qt::Key_Delete);
        QTest::keyClicks(&Line, Text);
    }
    static void Numbers(const QWidget& Window, const QString& PerRow, const QString& Rows) {
        Retype(Window, "txtSlidesPerRow", PerRow);
        Retype(Window, "txtRowsPerPage", Rows);
    }
    static void Click(const QWidget& Window, const char* Name) {
        auto& Button = In<QAbstractButton>(Window, Name);
        QTest::mouseClick(&Button, Qt::LeftButton, {}, QPoint(8, Button.height() / 2));
    }
    static std::string Text(const QWidget& Window, const char* Field) {
        return In<QLineEdit>(Window, Field).text().toStdString();
    }
    static bool IsOn(const QWidget& Window, const char* Name) {
        return In<QWidget>(Window, Name).isEnabled();
    }
    static bool IsChecked(const QWidget& Window, const char* Name) {
        return In<QAbstractButton>(Window, Name).isChecked();
    }
    static std::string Chosen(const QWidget& Window, const char* Combo) {
        return In<QComboBox>(Window, Combo).currentText().toStdString();
    }
    static void Choose(const QWidget& Window, const char* Combo, const QString& Text) {
        auto& Box = In<QComboBox>(Window, Combo);
        Box.setFocus();
        QTest::keyClick(&Box, Qt::Key_Home);
        for (int I = 0; I < Box.count() && Box.currentText() != Text; ++I)
            QTest::keyClick(&Box, Qt::Key_Down);
        EXPECT_EQ(Text.toStdString(), Chosen(Window, Combo));
    }
    static const PageSketch& Sketch(const QWidget& Window) {
        return In<PageSketch>(Window, "sktPage");
    }
    static std::string Says(const QWidget& Window) {
        return Sketch(Window).Sentence().toStdString();
    }
    static std::string Sketched(const QWidget& Window) {
        QStringList All;
        for (const QRectF& Each : Sketch(Window).Page().Pictures) All << InchesOf(Each);
        return All.join(u" | "_s).toStdString();
    }
    void ExpectInformation(const QString& Text, const QString& Title) {
        Boxes.Expect(Text, Title, BoxIcon::Information, BoxAnswer::Ok);
    }

    std::int32_t AlbumID = 0;
};

inline const QString MissingInput = u"Missing User Input"_s;
inline const QString InvalidInput = u"Invalid User Input"_s;

}  // namespace neb::harness
