// A user at the slide manager: albums with slides to look at, a file dialog that answers, the
// list chosen from, pictures read back from the disk.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QStackedWidget>

#include "albums/modImport.h"
#include "controls/picture/PictureView.h"
#include "db/modAlbumFiles.h"
#include "windows/import/IntakeHarness.h"
#include "windows/slides/frmSlideDBM.h"

namespace neb::harness {

// Answers the question for a file, and notes what was asked.
class FakeDialogs : public FileDialogs {
  public:
    FakeDialogs() : mBefore(TheServices().Dialogs) { TheServices().Dialogs = this; }
    ~FakeDialogs() override { TheServices().Dialogs = mBefore; }
    QString OpenFile(const QString&, const QString& Folder, const QString& Asked) override {
        ++Count;
        StartDir = Folder;
        Filters = Asked;
        return Answer;
    }
    QString SaveFile(const QString&, const QString&, const QString&) override { return {}; }
    QString ChooseFolder(const QString&, const QString&) override { return {}; }
    QString Answer, Filters, StartDir;
    int Count = 0;

  private:
    FileDialogs* mBefore;
};

inline const QString DiscardText =
    u"Are you sure you want to discard the changes to the current slide?"_s;
inline const QString DiscardTitle = u"Discard Changes Confirmation"_s;

class SlideRig : public Intake {
  protected:
    SlideRig() {
        MakePicture(App / u"NoSlide.bmp"_s, 60, 40, Qt::gray);
        MakeDirs(Db / u"Temp"_s);
        AlbumID = MakeAlbum(u"Garden"_s);
    }
    ~SlideRig() override {
        const LettingGo Answers;
        for (const auto& Each : Windows) Each->Unload();
    }

    clsNEBAlbum& Album() { return *Engine.GetAlbum(AlbumID); }
    clsNEBSlide& Slide(std::int32_t ID) { return *Album().GetSlide(ID); }
    QString Stored(const QString& Name) { return SlidesFolder(Engine.DBPath(), AlbumID) + Name; }
    // A slide with a picture of that size and colour; its number.
    std::int32_t AddSlide(const QString& Text, int Width = 40, int Height = 30,
                          QColor Colour = Qt::red) {
        QImage Picture(Width, Height, QImage::Format_RGB32);
        Picture.fill(Colour);
        ImgX Jpeg;
        Jpeg.SetPicture(Picture);
        Changes Door(Engine);
        Door.AsOne(Change::Kind::SlidesImported, AlbumID).Never();
        const auto Stored = [&] { return Jpeg.ToJpeg(); };
        return *EnterPicture(Door, Engine, AlbumID, {Text, Stored, MakeThumbnail(Picture)});
    }
    std::int32_t AddSound(std::int32_t ID, bool Override, bool Repeat) {
        WriteFile(Stored(FileStem(ID) + u".wav"_s), "old sound");
        Slide(ID).SoundTrackLoc = FileStem(ID) + u".wav"_s;
        Slide(ID).Override = Override;
        Slide(ID).Repeat = Repeat;
        return ID;
    }
    static QSize SizeOf(const QString& File) { return ReadBack(File).size(); }
    static QImage ReadBack(const QString& File) {
        ImgX Picture;
        Picture.Load(File);
        return Picture.Picture();
    }

    // Another window; the last one opened is the one the steps below are done in.
    frmSlideDBM& OpenWindow() {
        Windows.push_back(NewForm<frmSlideDBM>());
        W = Windows.back().get();
        W->LoadSlideMgr();
        W->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(W, 2000));
        QCoreApplication::processEvents();
        return *W;
    }
    frmSlideDBM& OpenAlbum() {
        OpenWindow();
        Choose("cboAlbum", AlbumID);
        return *W;
    }
    frmSlideDBM& OpenSlide(std::int32_t ID) {
        OpenAlbum();
        Choose("cboSlides", ID);
        return *W;
    }
    QComboBox& Box(const char* Name) { return In<QComboBox>(*W, Name); }
    void Choose(const char* Name, std::int32_t Data) {
        Box(Name).setCurrentIndex(Box(Name).findData(Data));
    }
    std::int32_t Chosen(const char* Name = "cboSlides") { return Box(Name).currentData().toInt(); }
    int Index() { return Box("cboSlides").currentIndex(); }
    QLineEdit& Caption() { return In<QLineEdit>(*W, "txtDscr"); }
    std::string Text() { return Caption().text().toStdString(); }
    void Type(const QString& NewText) {
        Caption().clear();
        QTest::keyClicks(&Caption(), NewText);
    }
    void Push(const char* Name) { Press(*W, Name); }
    bool IsOn(const char* Name) { return In<QWidget>(*W, Name).isEnabled(); }
    bool Dirty() { return IsOn("cmdSave"); }
    QCheckBox& Check(const char* Name) { return In<QCheckBox>(*W, Name); }
    const QImage& Shown() { return In<PictureView>(*W, "imgSlide").Picture(); }
    bool ShowsMessage() {
        return In<QStackedWidget>(*W, "stkPicture").currentWidget()->objectName() == u"flxMsg";
    }
    void DoubleClickPicture() {
        QWidget* Place = In<QStackedWidget>(*W, "stkPicture").currentWidget();
        auto* Grid = qobject_cast<FlexGrid*>(Place);
        QWidget* Target = Grid ? Grid->viewport() : Place;
        QTest::mouseDClick(Target, Qt::LeftButton, {}, Target->rect().center());
    }
    void PickPicture(const QString& File) {
        Dialogs.Answer = File;
        DoubleClickPicture();
    }
    void ExpectDiscard(BoxAnswer Answer) {
        Boxes.Expect(DiscardText, DiscardTitle, BoxIcon::Question, Answer);
    }

    FakeDialogs Dialogs;
    std::int32_t AlbumID = 0;
    std::vector<std::shared_ptr<frmSlideDBM>> Windows;
    frmSlideDBM* W = nullptr;
};

}  // namespace neb::harness
