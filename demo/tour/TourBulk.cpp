// Chapter: captions of a whole album in the bulk slide manager, and another name for the album.
#include "Tour.h"
#include "TourControls.h"
#include "TourSteps.h"
#include "controls/forms/frmLoading.h"
#include "program/frmNEBSlideShow.h"
#include "windows/albums/frmAlbumRename.h"
#include "windows/lists/clsImageBuffer.h"
#include "windows/slides/frmSlideMgrBulk.h"

namespace neb::demo {
namespace {

FlexGrid& Slides() {
    return In<FlexGrid, frmSlideMgrBulk>("flxAlbum");
}

bool SlidesAreShown() {
    return !Open<frmLoading>() && Slides().Rows() > 0;
}

void Caption(const QString& Old, const QString& New) {
    constexpr int Text = clsImageBuffer::ColText;
    TypeInCell(Slides(), RowWith(Slides(), Text, Old), Text, New);
}

}  // namespace

void AddBulkManager(Tour& Guide, frmNEBSlideShow& Window) {
    Guide.Do("open-the-bulk-manager", IsInFront(Window),
             Keys(Window, Qt::Key_B, Qt::ControlModifier));
    Guide.Do(
        "see-the-album", [] { return Open<frmSlideMgrBulk>() && SlidesAreShown(); },
        [] { Choose(In<QComboBox, frmSlideMgrBulk>("cboAlbum"), FirstAlbumName); });
    Guide.Do("type-captions", &SlidesAreShown, [] {
        Caption(QStringLiteral("Above the Clouds"), QStringLiteral("Home again, above the clouds"));
        Caption(QStringLiteral("Autumn Wood"), QStringLiteral("The wood behind the house"));
    });
    Guide.Add({"bulk-slide-manager", {}, Press<frmSlideMgrBulk>("cmdSave")});
    Guide.Answer("captions-saved", "2 slides successfully saved.", false);
    Guide.Do("close-the-bulk-manager", {}, Press<frmSlideMgrBulk>("cmdClose"));
    Guide.Do("after-the-bulk-manager", IsClosed<frmSlideMgrBulk>(), {});
}

void AddRename(Tour& Guide, frmNEBSlideShow& Window) {
    Guide.Do("open-the-album-menu", IsInFront(Window), Keys(Window, Qt::Key_A, Qt::AltModifier));
    Guide.Add({"album-menu", MenuIsOpen(), MenuKey(Qt::Key_R)});
    Guide.Do("type-the-new-name", IsOpen<frmAlbumRename>(), [] {
        Choose(In<QComboBox, frmAlbumRename>("cboAlbum"), FirstAlbumName);
        Type(In<QLineEdit, frmAlbumRename>("txtAlbumName"), AlbumName);
    });
    Guide.Add({"rename-album", {}, Press<frmAlbumRename>("cmdSave")});
    Guide.Do("after-the-new-name", IsClosed<frmAlbumRename>(), {});
}

}  // namespace neb::demo
