// Chapter: the album goes into a second database, which is looked into from here and then opened.
#include "Tour.h"
#include "TourControls.h"
#include "TourSteps.h"
#include "controls/forms/frmLoading.h"
#include "program/frmNEBSlideShow.h"
#include "windows/slides/frmSlideMgrBulk.h"
#include "windows/transfer/frmAlbumExport.h"
#include "windows/transfer/frmAlbumImport.h"
#include "windows/transfer/frmAlbumView.h"

namespace neb::demo {
namespace {

constexpr auto NoDatabaseYet =
    "The specified directory does not hold an NEB Slide Show Database.\n"
    "Do you want to make a new one there?";

template <class Window>
std::function<void()> NameDirectory(const char* Field, const QString& Directory) {
    return [Field, Directory] {
        auto& Line = In<QLineEdit, Window>(Field);
        Type(Line, Directory);
        QTest::keyClick(&Line, Qt::Key_Return);
    };
}

void ExportAlbum(Tour& Guide, frmNEBSlideShow& Window, const QString& Second) {
    Guide.Do("open-the-transfer-menu", IsInFront(Window), Keys(Window, Qt::Key_I, Qt::AltModifier));
    Guide.Add({"transfer-menu", MenuIsOpen(), MenuKey(Qt::Key_X)});
    Guide.Do("choose-the-album", IsOpen<frmAlbumExport>(),
             [] { Choose(In<QComboBox, frmAlbumExport>("cboSrcAlbum"), AlbumName); });
    Guide.Do("name-the-second-database", {}, NameDirectory<frmAlbumExport>("txtDstDB", Second));
    Guide.Answer("a-new-database", NoDatabaseYet);
    Guide.Add({"export-album",
               [] { return In<QComboBox, frmAlbumExport>("cboDstAlbum").count() == 1; },
               Press<frmAlbumExport>("cmdExport")});
    Guide.Do("after-the-export", IsClosed<frmAlbumExport>(), {});
}

void LookBack(Tour& Guide, frmNEBSlideShow& Window, const QString& Second) {
    Guide.Do("open-the-menu-again", IsInFront(Window), Keys(Window, Qt::Key_I, Qt::AltModifier));
    Guide.Do("choose-import", MenuIsOpen(), MenuKey(Qt::Key_A));
    Guide.Do("name-the-source", IsOpen<frmAlbumImport>(),
             NameDirectory<frmAlbumImport>("txtSrcDB", Second));
    Guide.Do(
        "choose-what-came",
        [] { return In<QComboBox, frmAlbumImport>("cboSrcAlbum").count() == 1; },
        [] { Choose(In<QComboBox, frmAlbumImport>("cboSrcAlbum"), AlbumName); });
    Guide.Add({"import-album", {}, Press<frmAlbumImport>("cmdViewSrcAlbum")});
    Guide.Add({"look-into-the-second-database",
               [] { return Open<frmAlbumView>() && !Open<frmLoading>(); },
               Press<frmAlbumView>("cmdClose")});
    Guide.Do("close-the-import", IsClosed<frmAlbumView>(), Press<frmAlbumImport>("cmdCancel"));
    Guide.Do("after-the-look", IsClosed<frmAlbumImport>(), {});
}

}  // namespace

void AddTransfer(Tour& Guide, frmNEBSlideShow& Window, const QString& Second) {
    ExportAlbum(Guide, Window, Second);
    LookBack(Guide, Window, Second);
}

void AddVisit(Tour& Guide, frmNEBSlideShow& Window) {
    Guide.Do("look-at-the-captions", IsInFront(Window),
             Keys(Window, Qt::Key_B, Qt::ControlModifier));
    Guide.Add({"second-database",
               [] {
                   return Open<frmSlideMgrBulk>() && !Open<frmLoading>() &&
                          In<FlexGrid, frmSlideMgrBulk>("flxAlbum").Rows() > 0;
               },
               Press<frmSlideMgrBulk>("cmdClose")});
    Guide.Do("after-the-visit", IsClosed<frmSlideMgrBulk>(), {});
    EndProgram(Guide, Window);
}

}  // namespace neb::demo
