// Everything that can stand open on an album while a transfer changes it, and what a user sees of
// it: the album Garden has the slides rose and tulip and the show Summer of them, and fern, all
// red; Attic in the other database has lamp and moon, both blue, and the show Winter of lamp.
#pragma once

#include <QStackedWidget>

#include "TransferRig.h"
#include "controls/picture/PictureView.h"
#include "harness/MemoryFolder.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/slides/frmSlideDBM.h"
#include "windows/slides/frmSlideMgrBulk.h"

namespace neb::harness {

class FollowedRig : private TempInMemory, public TransferRig {
  protected:
    FollowedRig() {
        MakePicture(App / u"NoSlide.bmp"_s, 60, 40, Qt::gray);
        MakePicture(PicturePath(Other, 1), 60, 40, Qt::blue);
        AddSlide(Other, u"moon"_s, Qt::blue);
        AddSlide(Engine, u"fern"_s);
        CaptionShow(Engine, {u"early"_s, u"late"_s});
        CaptionShow(Other, {u"cold"_s});
        Other.FinalizeDB();
    }
    ~FollowedRig() override {
        const LettingGo Answers;
        for (const auto& Each : LoadedForms()) Each->Unload();
    }

    // The captions that the show has of its own.
    void CaptionShow(clsDBEngine& In, const QStringList& Own) {
        clsNEBSlideShow& Show = *Album(In).GetSlideShow(1);
        for (qsizetype I = 0; I < Own.size(); ++I)
            Show.Details[static_cast<size_t>(I)]->SlideText = Own[I];
    }

    // One of each, with the show Summer, and one of the slides fern, rose and tulip chosen.
    enum { Fern, Rose, Tulip };
    void OpenAll(int Chosen = Tulip) {
        static const QString Entries[] = {u"000003 fern"_s, u"000001 rose"_s, u"000002 tulip"_s};
        Slides = NewForm<frmSlideDBM>();
        Slides->LoadSlideMgr();
        Activate(*Slides);
        QCoreApplication::processEvents();
        Choose(*Slides, "cboAlbum", u"Garden"_s);
        Choose(*Slides, "cboSlides", Entries[Chosen]);
        Captions = NewForm<frmSlideMgrBulk>();
        Captions->LoadAlbumMgr(AlbumID);
        In<FlexGrid>(*Captions, "flxAlbum").SetRow(Chosen);
        Shows = NewForm<frmSlideShowDBM>();
        Shows->LoadSlideShowMgr(AlbumID, 1);
        OfAlbum = ViewAlbum(Engine);
        GridOf(*OfAlbum).SetRow(Chosen);
        OfShow = ViewShow(Engine, *Album(Engine).GetSlideShow(1));
        GridOf(*OfShow).SetRow(1);
        OpenExports();
    }
    // Both on the program's own database, with names typed by the user.
    void OpenExports() {
        Albums = OpenNew<frmAlbumExport>();
        ShowsOut = OpenNew<frmSlideShowExport>();
        for (Form* Each : {static_cast<Form*>(Albums.get()), static_cast<Form*>(ShowsOut.get())}) {
            Load(*Each, Db.Path());
            Choose(*Each, "cboDstAlbum", u"Garden"_s);
            Retype(*Each, "txtAlbumName", u"typed"_s);
        }
        Choose(*ShowsOut, "cboDstSlideShow", u"Summer"_s);
        Retype(*ShowsOut, "txtSlideShowName", u"typed"_s);
    }

    // What the user has not saved yet: a caption in each window that takes one, and a show's name.
    void TypeEverywhere() {
        Activate(*Slides);
        Retype(*Slides, "txtDscr", u"mine"_s);
        TypeInCell(In<FlexGrid>(*Captions, "flxAlbum"), 0);
        TypeInCell(In<FlexGrid>(*Shows, "flxSelected"), 0);
        Retype(*Shows, "txtName", u"July"_s);
    }
    static void TypeInCell(FlexGrid& Grid, int Row) {
        ASSERT_TRUE(Grid.EditCell(Row, ColText));
        auto* Editor = Grid.findChildren<QLineEdit*>().back();
        Editor->selectAll();
        QTest::keyClicks(Editor, u"mine"_s);
        QTest::keyClick(Editor, Qt::Key_Return);
    }

    // What the user brings into the album with mouse and keyboard.
    void Import(Form& Window, const QString& DstShow = {}) {
        Load(Window, OtherDb.Path());
        Choose(Window, "cboDstAlbum", u"Garden"_s);
        if (!DstShow.isNull()) Choose(Window, "cboDstSlideShow", DstShow);
        Retype(Window, "txtAlbumName", u"Park"_s);
    }
    void ImportAlbum(bool Replace) {
        const auto Window = OpenNew<frmAlbumImport>();
        Import(*Window);
        auto& Box = In<QCheckBox>(*Window, "chkReplace");
        if (Replace) QTest::mouseClick(&Box, Qt::LeftButton, {}, {8, Box.height() / 2});
        EXPECT_EQ(Replace, Box.isChecked());
        Press(*Window, "cmdImport");
        EXPECT_FALSE(Window->IsLoaded());
    }
    void ImportShow(const QString& DstShow) {
        const auto Window = OpenNew<frmSlideShowImport>();
        Import(*Window, DstShow);
        Press(*Window, "cmdImport");
        EXPECT_FALSE(Window->IsLoaded());
    }

    // The colour of a picture: red, blue, or none.
    static QString Colour(const QImage& Picture) {
        if (Picture.isNull()) return u"none"_s;
        const QRgb Middle = Picture.pixel(Picture.width() / 2, Picture.height() / 2);
        const bool Blue = qBlue(Middle) > 200 && qRed(Middle) < 60;
        const bool Red = qRed(Middle) > 200 && qBlue(Middle) < 60;
        return Blue ? u"blue"_s : Red ? u"red"_s : u"odd"_s;
    }
    // A row each: a star stands at those that are chosen.
    static QString Rows(const QWidget& Window, const char* Name) {
        const auto& Grid = In<FlexGrid>(Window, Name);
        QStringList All;
        for (int Row = 0; Row < Grid.Rows(); ++Row)
            All << Grid.TextMatrix(Row, ColText) + u' ' + Colour(Grid.CellPicture(Row, ColPic)) +
                       (Grid.IsSelected(Row) ? u"*"_s : u""_s);
        return All.join(u'|');
    }
    static QString List(const QWidget& Window, const char* Name) {
        return QString::fromStdString(Listed(Window, Name));
    }
    static QString Field(const QWidget& Window, const char* Name) {
        return In<QLineEdit>(Window, Name).text();
    }

    std::string InSlides() const {
        const QWidget* Place = In<QStackedWidget>(*Slides, "stkPicture").currentWidget();
        const auto* Picture = qobject_cast<const PictureView*>(Place);
        return (Slides->windowTitle() + u", "_s + List(*Slides, "cboAlbum") + u", "_s +
                List(*Slides, "cboSlides") + u", "_s + Field(*Slides, "txtDscr") + u' ' +
                (Picture ? Colour(Picture->Picture()) : u"none"_s) +
                (IsOn(*Slides, "cmdSave") ? u", to be saved"_s : u""_s))
            .toStdString();
    }
    std::string InCaptions() const {
        return (Captions->windowTitle() + u", "_s + List(*Captions, "cboAlbum") + u", "_s +
                Rows(*Captions, "flxAlbum"))
            .toStdString();
    }
    std::string InShows() const {
        return (Shows->windowTitle() + u", "_s + List(*Shows, "cboSlideShows") + u", "_s +
                Field(*Shows, "txtName") + u": "_s + Rows(*Shows, "flxNonSelected") + u" / "_s +
                Rows(*Shows, "flxSelected"))
            .toStdString();
    }
    std::string InView(const ViewerForm& Of) const {
        return (Of.windowTitle().remove(Db.Path()) + u", "_s +
                Rows(Of, Of.findChild<FlexGrid*>(u"flxAlbum"_s) ? "flxAlbum" : "flxSlideShow"))
            .toStdString();
    }
    std::string InExport() const {
        return Listed(*Albums, "cboSrcAlbum") + " to " + Listed(*Albums, "cboDstAlbum") + " as " +
               Text(*Albums, "txtAlbumName");
    }
    std::string InShowExport() const {
        return Listed(*ShowsOut, "cboSrcAlbum") + ": " + Listed(*ShowsOut, "cboSrcSlideShow") +
               " to " + Listed(*ShowsOut, "cboDstAlbum") + ": " +
               Listed(*ShowsOut, "cboDstSlideShow") + " as " + Text(*ShowsOut, "txtSlideShowName");
    }

    std::shared_ptr<frmSlideDBM> Slides;
    std::shared_ptr<frmSlideMgrBulk> Captions;
    std::shared_ptr<frmSlideShowDBM> Shows;
    std::shared_ptr<frmAlbumView> OfAlbum;
    std::shared_ptr<frmSlideShowView> OfShow;
    std::shared_ptr<frmAlbumExport> Albums;
    std::shared_ptr<frmSlideShowExport> ShowsOut;
};

}  // namespace neb::harness
