// A user who looks through an album: slides with pictures, the page in a window of its own, changes
// handed on to it as the home does.
#pragma once

#include <QComboBox>
#include <QMenu>
#include <QSlider>
#include <QVBoxLayout>

#include "albums/modImport.h"
#include "harness/HangingFiles.h"
#include "windows/gallery/AlbumPage.h"
#include "windows/gallery/SlideModel.h"
#include "windows/gallery/SlideTiles.h"
#include "windows/gallery/TileDelegate.h"
#include "windows/gallery/TilePictures.h"
#include "windows/gallery/frmSlideScreen.h"
#include "windows/import/IntakeHarness.h"
#include "windows/lists/ScreenPicture.h"

namespace neb::harness {

class GalleryRig : public Intake {
  protected:
    GalleryRig() {
        MakePicture(App / u"NoSlide.bmp"_s, 60, 40, Qt::gray);
        MakeDirs(Db / u"Temp"_s);
        AlbumID = MakeAlbum(u"Garden"_s);
    }
    ~GalleryRig() override {
        SetScreenReader({});
        Files->GoOnAll();
    }

    clsNEBAlbum& Album() { return *Engine.GetAlbum(AlbumID); }
    clsNEBSlide& Slide(std::int32_t ID) { return *Album().GetSlide(ID); }
    QString Stored(std::int32_t ID, const QString& End = u".jpg"_s) {
        return SlidesFolder(Engine.DBPath(), AlbumID) + FileStem(ID) + End;
    }
    // As the program names it.
    QString PathOf(std::int32_t ID) {
        return SlidePath(Engine.DBPath(), AlbumID, Slide(ID).SlideLoc);
    }
    std::int32_t AddSlide(const QString& Text, QSize Size = {400, 300}, QColor Colour = Qt::red) {
        QImage Picture(Size, QImage::Format_RGB32);
        Picture.fill(Colour);
        ImgX Jpeg;
        Jpeg.SetPicture(Picture);
        Changes Door(Engine);
        Door.AsOne(Change::Kind::SlidesImported, AlbumID).Never();
        return *EnterPicture(Door, Engine, AlbumID,
                             {Text, [&] { return Jpeg.ToJpeg(); }, MakeThumbnail(Picture)});
    }
    void AddSlides(const QStringList& Captions) {
        for (const QString& Each : Captions) AddSlide(Each);
    }
    // Slides that share one picture, in no time.
    void AddMany(int Count) {
        const std::int32_t First = AddSlide(u"slide 00000"_s);
        Changes Door(Engine);
        const Announcement All = Door.AsOne(Change::Kind::SlidesImported, AlbumID);
        for (int I = 1; I < Count; ++I) {
            clsNEBSlide Same;
            Same.SlideText = u"slide %1"_s.arg(I, 5, 10, QChar(u'0'));
            Same.SlideLoc = Stored(First);
            EXPECT_TRUE(Door.SaveSlide(AlbumID, Same));
        }
    }

    // The page in a window, on this album.
    AlbumPage& Open(std::int32_t SlideID = 0) {
        Home = std::make_unique<Window>();
        Home->resize(900, 640);
        Home->show();
        Page().ShowAlbum(AlbumID, SlideID);
        Home->activateWindow();
        EXPECT_TRUE(AwaitActive(*Home));
        return Page();
    }
    AlbumPage& Page() { return Home->Page; }
    SlideTiles& Tiles() { return In<SlideTiles>(Page(), "lvwSlides"); }
    SlideModel& Slides() { return static_cast<SlideModel&>(*Tiles().model()); }
    QRect TileAt(int Row) { return Tiles().visualRect(Slides().index(Row)); }
    QPoint CaptionAt(int Row) {
        const auto* Delegate = static_cast<TileDelegate*>(Tiles().itemDelegate());
        return Delegate->CaptionRect(TileAt(Row)).center();
    }
    QPoint PictureAt(int Row) { return TileAt(Row).center() - QPoint(0, 30); }
    void ClickOn(const QPoint& At, Qt::KeyboardModifiers Keys = {}) {
        QTest::mouseClick(Tiles().viewport(), Qt::LeftButton, Keys, At);
    }
    void Press(Qt::Key Key, Qt::KeyboardModifiers Keys = {}) {
        QTest::keyClick(QApplication::focusWidget(), Key, Keys);
    }
    QLineEdit* Field() {
        const auto All = Tiles().viewport()->findChildren<QLineEdit*>(u"txtCaption"_s);
        for (QLineEdit* Each : All)
            if (Each->isVisible()) return Each;
        return nullptr;
    }
    void Type(const QString& Text) { QTest::keyClicks(QApplication::focusWidget(), Text); }
    // What follows a change comes with the next turn of the events.
    static void Settle() { QTest::qWait(10); }
    std::string Captions() {
        QStringList All;
        for (int Row = 0; Row < Slides().Count(); ++Row) All << Slides().Caption(Row);
        return All.join(u'|').toStdString();
    }
    std::string InHand() {
        const QModelIndex At = Tiles().currentIndex();
        return At.isValid() ? Slides().Caption(At.row()).toStdString() : "none";
    }
    std::string Chosen() {
        QStringList All;
        for (const std::int32_t ID : Tiles().SelectedSlides()) All << Slide(ID).SlideText;
        return All.join(u'|').toStdString();
    }
    std::string Title() { return In<QLabel>(Page(), "lblAlbum").text().toStdString(); }
    bool IsInView(int Row) { return Tiles().viewport()->rect().contains(TileAt(Row)); }

    // Does something in the full screen that Enter opens, which closes then.
    void InScreen(std::function<void(frmSlideScreen&)> Do) {
        bool Came = false;
        WhenOpen<frmSlideScreen>([&](frmSlideScreen& Screen) {
            Came = true;
            EXPECT_TRUE(AwaitActive(Screen));
            Do(Screen);
            Screen.Unload();
        });
        Press(Qt::Key_Return);
        EXPECT_TRUE(Came);
        Activate();
    }
    void Activate() {
        Home->activateWindow();
        EXPECT_TRUE(AwaitActive(*Home));
    }
    // Pictures are read by way of these files.
    void ReadThroughFiles() {
        SetScreenReader([Through = Files](const QString& File, QSize Most) {
            Through->Pass(File);
            ImgX Picture;
            Picture.LoadAtLeast(File, Most);
            return Picture.Picture();
        });
    }

    struct Window : QWidget, StandingReceiver {
        Window() {
            LeftCount = 0;
            (new QVBoxLayout(this))->addWidget(&Page);
            connect(&Page, &AlbumPage::Left, this, [this] { ++LeftCount; });
        }
        void ReceiveEvent(const QString& Of, const QString& What, const EventKeys& Keys) override {
            Page.ReceiveEvent(Of, What, Keys);
        }
        void closeEvent(QCloseEvent*) override {
            if (OnClose) OnClose();
        }
        AlbumPage Page;
        int LeftCount;
        std::function<void()> OnClose;
    };
    std::int32_t AlbumID = 0;
    std::shared_ptr<HangingFiles> Files = std::make_shared<HangingFiles>();
    std::unique_ptr<Window> Home;
};

}  // namespace neb::harness
