// Chapter: the album on contact sheets, looked at in the preview and saved as a PDF.
#include <QCheckBox>
#include <QFile>

#include "Tour.h"
#include "TourControls.h"
#include "TourSteps.h"
#include "program/frmNEBSlideShow.h"
#include "windows/printing/frmPrintAlbum.h"
#include "windows/printing/frmPrintPreview.h"

namespace neb::demo {
namespace {

void FillIn(Tour& Guide, frmNEBSlideShow& Window) {
    Guide.Do("open-the-print-menu", IsInFront(Window), Keys(Window, Qt::Key_P, Qt::AltModifier));
    Guide.Do("choose-print-album", MenuIsOpen(), MenuKey(Qt::Key_A));
    Guide.Do("choose-the-album-to-print", IsOpen<frmPrintAlbum>(),
             [] { Choose(In<QComboBox, frmPrintAlbum>("cboAlbum"), AlbumName); });
    Guide.Do("two-by-two", {}, [] {
        for (const char* Each : {"txtSlidesPerRow", "txtRowsPerPage"})
            Type(In<QLineEdit, frmPrintAlbum>(Each), QStringLiteral("2"));
    });
    Guide.Do("with-captions-and-numbers", {}, [] {
        for (const char* Each : {"chkCaptions", "chkPageNumbers"})
            QTest::keyClick(&In<QCheckBox, frmPrintAlbum>(Each), Qt::Key_Space);
    });
    Guide.Add({"print-album",
               [] { return In<QCheckBox, frmPrintAlbum>("chkPageNumbers").isChecked(); },
               Press<frmPrintAlbum>("cmdPrint")});
}

void SaveAsPdf(Tour& Guide, const QString& Pdf) {
    Guide.Add({"print-preview", IsOpen<frmPrintPreview>(), Press<frmPrintPreview>("cmdNextPage")});
    Guide.Add({"print-preview-next-page", {}, Press<frmPrintPreview>("cmdSave")});
    Guide.Add({"save-as-pdf", &FileDialogIsInFront, [Pdf] { TypeFileName(Pdf); }});
    Guide.Do(
        "close-the-preview",
        [Pdf] { return QFile::exists(Pdf) && Opened<frmPrintPreview>().isActiveWindow(); },
        Press<frmPrintPreview>("cmdExit"));
}

}  // namespace

void AddPrinting(Tour& Guide, frmNEBSlideShow& Window, const QString& Pdf) {
    FillIn(Guide, Window);
    SaveAsPdf(Guide, Pdf);
    Guide.Do("close-the-print-dialog", IsClosed<frmPrintPreview>(),
             Press<frmPrintAlbum>("cmdClose"));
    Guide.Do("after-printing", IsClosed<frmPrintAlbum>(), {});
}

}  // namespace neb::demo
