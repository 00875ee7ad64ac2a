// The bulk slide manager on a database of its own, with the store of thumbnails in place: albums
// with slides, windows on them, and captions typed into their grids.
#pragma once

#include <QComboBox>

#include "controls/forms/frmProgress.h"
#include "windows/import/IntakeHarness.h"
#include "windows/lists/clsImageBuffer.h"
#include "windows/slides/frmSlideMgrBulk.h"

namespace neb::harness {

class BulkRig : public Intake {
  protected:
    using Window = std::shared_ptr<frmSlideMgrBulk>;

    BulkRig() {
        Buffer.BufferGrid = &Store;
        Buffer.UseSmallFiles = true;
        ImageBuffer = &Buffer;
        AlbumID = MakeAlbum(u"Garden"_s);
        Others->Load();
    }
    ~BulkRig() override {
        const LettingGo Answers;
        for (const auto& Each : LoadedForms()) Each->Unload();
        ImageBuffer = nullptr;
        Buffer.BufferGrid = nullptr;
    }

    clsNEBAlbum& Album() { return *Engine.GetAlbum(AlbumID); }
    // A slide of the album with a stored picture.
    clsNEBSlide& AddSlide(const QString& Caption, QColor Colour = Qt::red) {
        std::int32_t SlideID = 0;
        clsNEBSlide& Slide = *Album().SaveSlide2(SlideID, Caption, {}, {}, false, false, Engine);
        Slide.SlideLoc = FileStem(SlideID) + u".JPG"_s;
        StorePicture(SlideID, Colour);
        return Slide;
    }
    void StorePicture(std::int32_t SlideID, QColor Colour) {
        WriteFile(PicturePath(SlideID),
                  ReadFile(MakePicture(Pics / u"picture.jpg"_s, 60, 40, Colour)));
    }
    void AddSlides(const QStringList& Captions) {
        for (const QString& Each : Captions) AddSlide(Each);
    }
    QString PicturePath(std::int32_t SlideID) {
        return SlidesFolder(Engine.DBPath(), AlbumID) + FileStem(SlideID) + u".jpg"_s;
    }
    std::string CaptionInAlbum(std::int32_t SlideID) {
        return Album().GetSlide(SlideID)->SlideText.toStdString();
    }

    static Window OpenBulk(std::int32_t AlbumID) {
        auto Made = NewForm<frmSlideMgrBulk>();
        Made->LoadAlbumMgr(AlbumID);
        if (!Made->IsLoaded()) return Made;
        Made->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(Made.get(), 2000));
        return Made;
    }
    static FlexGrid& GridOf(const Window& Of) { return In<FlexGrid>(*Of, "flxAlbum"); }
    static QComboBox& AlbumsOf(const Window& Of) { return In<QComboBox>(*Of, "cboAlbum"); }
    static std::string Shown(const Window& Of, int Col = clsImageBuffer::ColText) {
        return Column(GridOf(Of), Col).join(u'|').toStdString();
    }
    static std::string Title(const Window& Of) { return Of->windowTitle().toStdString(); }
    // The open cell editor; those that were closed go in their own time.
    static QLineEdit& EditorOf(const Window& Of) {
        return *GridOf(Of).findChildren<QLineEdit*>().back();
    }
    // Opens the editor of a caption and types into it.
    static void TypeInto(const Window& Of, int Row, const QString& Text) {
        ASSERT_TRUE(GridOf(Of).EditCell(Row, clsImageBuffer::ColText));
        EditorOf(Of).selectAll();
        QTest::keyClicks(&EditorOf(Of), Text);
    }
    // Puts a text into a caption through its editor.
    static void Edit(const Window& Of, int Row, const QString& Text) {
        ASSERT_TRUE(GridOf(Of).EditCell(Row, clsImageBuffer::ColText));
        EditorOf(Of).setText(Text);
        QTest::keyClick(&EditorOf(Of), Qt::Key_Return);
        EXPECT_EQ(Text.toStdString(),
                  GridOf(Of).TextMatrix(Row, clsImageBuffer::ColText).toStdString());
    }
    void ExpectDone(const QString& Text) {
        Boxes.Expect(Text, u"Operation Completed"_s, BoxIcon::Information, BoxAnswer::Ok);
    }
    void SaveExpecting(const Window& Of, const QString& Text) {
        ExpectDone(Text);
        Press(*Of, "cmdSave");
    }
    void ExpectQuestion(BoxAnswer Answer) {
        Boxes.Expect(u"Are you sure you want to delete the selected slides?"_s,
                     u"Delete Confirmation"_s, BoxIcon::Question, Answer);
    }
    std::string Heard() { return Others->Heard.join(u'|').toStdString(); }
    // Something that happens once, at the first yield at which the bar has come to Value.
    static void AtValue(int Value, std::function<void()> Do) {
        SetDoEventsHook([Value, Do, Done = false]() mutable {
            const auto* Loading = harness::Open<frmLoading>();
            if (Done || !Loading || Loading->pgbLoadingProgress()->value() < Value) return;
            Done = true;
            Do();
        });
    }

    // Something that happens once, at the first yield while slides are being deleted.
    static void AtProgress(std::function<void()> Do) {
        SetDoEventsHook([Do, Done = false]() mutable {
            if (Done || !harness::Open<frmProgress>()) return;
            Done = true;
            Do();
        });
    }

    clsImageBuffer Buffer;
    FlexGrid Store;
    std::int32_t AlbumID = 0;
    std::shared_ptr<Listener> Others = NewForm<Listener>();
};

}  // namespace neb::harness
