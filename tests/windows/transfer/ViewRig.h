// The viewers on two databases: the program's own, with the store of thumbnails in place, and
// another one beside it.
#pragma once

#include "harness/FolderState.h"
#include "windows/import/IntakeHarness.h"
#include "windows/lists/clsImageBuffer.h"
#include "windows/lists/frmPicturePopup.h"
#include "windows/transfer/frmAlbumView.h"
#include "windows/transfer/frmSlideShowView.h"

namespace neb::harness {

constexpr auto ColPic = clsImageBuffer::ColPicture;
constexpr auto ColText = clsImageBuffer::ColText;
constexpr auto ColFile = clsImageBuffer::ColPath;
constexpr auto ColKey = clsImageBuffer::ColSlideID;

class ViewRig : public Intake {
  protected:
    ViewRig() {
        Buffer.BufferGrid = &Store;
        Buffer.UseSmallFiles = true;
        ImageBuffer = &Buffer;
        Other.SetDBPath(OtherDb.Path());
        Other.InitializeDB();
        AlbumID = MakeAlbum(u"Garden"_s);
        EXPECT_TRUE(Other.SaveAlbum(OtherID, u"Attic"_s));
        MakeAlbumFolders(Other, OtherID);
    }
    ~ViewRig() override {
        for (const auto& Each : LoadedForms()) Each->Unload();
        ImageBuffer = nullptr;
        Buffer.BufferGrid = nullptr;
    }

    clsNEBAlbum& Album(clsDBEngine& In) { return *In.GetAlbum(&In == &Engine ? AlbumID : OtherID); }
    QString PicturePath(clsDBEngine& In, std::int32_t SlideID) {
        return SlidesFolder(In.DBPath(), Album(In).AlbumID) + FileStem(SlideID) + u".jpg"_s;
    }
    QString SmallPath(clsDBEngine& In, std::int32_t SlideID) {
        return SlidesFolder(In.DBPath(), Album(In).AlbumID) + ThumbnailName(SlideID);
    }
    // A slide with a stored picture, or with one elsewhere.
    std::int32_t AddSlide(clsDBEngine& In, const QString& Caption, QColor Colour = Qt::red,
                          const QString& Loc = {}) {
        std::int32_t SlideID = 0;
        clsNEBSlide& Slide = *Album(In).SaveSlide2(SlideID, Caption, Loc, {}, false, false, In);
        if (!Loc.isEmpty()) return SlideID;
        Slide.SlideLoc = FileStem(SlideID) + u".jpg"_s;
        MakePicture(PicturePath(In, SlideID), 60, 40, Colour);
        return SlideID;
    }
    void AddSlides(clsDBEngine& In, const QStringList& Captions) {
        for (const QString& Each : Captions) AddSlide(In, Each);
    }
    clsNEBSlideShow& AddShow(clsDBEngine& In, const QString& Name) {
        std::int32_t SlideShowID = 0;
        Album(In).SaveSlideShow(SlideShowID, Name, 0, In);
        return *Album(In).GetSlideShow(SlideShowID);
    }

    std::shared_ptr<frmAlbumView> ViewAlbum(clsDBEngine& In) {
        auto Made = NewForm<frmAlbumView>();
        Made->ViewAlbum(In, Album(In).AlbumID, Album(In).AlbumName);
        return Made;
    }
    std::shared_ptr<frmSlideShowView> ViewShow(clsDBEngine& In, const clsNEBSlideShow& Show) {
        auto Made = NewForm<frmSlideShowView>();
        Made->ViewSlideShow(In, Album(In).AlbumID, Album(In).AlbumName, Show.SlideShowID,
                            Show.SlideShowName);
        return Made;
    }
    static FlexGrid& GridOf(const ViewerForm& Of) {
        auto* Album = Of.findChild<FlexGrid*>(u"flxAlbum"_s);
        return Album ? *Album : In<FlexGrid>(Of, "flxSlideShow");
    }
    static std::string Shown(const ViewerForm& Of, int Col = ColText) {
        return Column(GridOf(Of), Col).join(u'|').toStdString();
    }
    static QRgb ColourIn(const ViewerForm& Of, int Row) {
        return GridOf(Of).CellPicture(Row, ColPic).pixel(36, 36);
    }
    static bool IsBlank(const ViewerForm& Of, int Row) {
        return GridOf(Of).CellPicture(Row, ColPic).isNull();
    }
    // Something that happens once, at the first yield at which the bar has come to Value.
    static void AtValue(int Value, std::function<void()> Do) {
        SetDoEventsHook([Value, Do, Done = false]() mutable {
            const auto* Loading = harness::Open<frmLoading>();
            if (Done || !Loading || Loading->pgbLoadingProgress()->value() < Value) return;
            Done = true;
            Do();
        });
    }
    // How often the picture comes up while Do runs; each is closed again.
    static int PopupsDuring(std::function<void()> Do) {
        int Popups = 0;
        WhenOpen<frmPicturePopup>([&](frmPicturePopup& Popup) {
            ++Popups;
            QTest::keyClick(&Popup, Qt::Key_Escape);
        });
        Do();
        return Popups;
    }

    TempFolder OtherDb;
    clsDBEngine Other;
    clsImageBuffer Buffer;
    FlexGrid Store;
    std::int32_t AlbumID = 0;
    std::int32_t OtherID = 0;
};

}  // namespace neb::harness
