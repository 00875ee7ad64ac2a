#include "windows/printing/modPrinting.h"

#include <QLineEdit>

#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "controls/picture/PictureView.h"
#include "printing/SlidesToPrint.h"
#include "support/Fault.h"
#include "support/modFUFL.h"
#include "support/modNumbers.h"
#include "support/work/WorkAside.h"
#include "windows/printing/frmPrintPreview.h"
#include "windows/printing/frmPrintSlideShow.h"

namespace neb {
namespace {

PictureToPrint Read(const QString& Path, QSize LargestScreen) {
    const PrintPicture Picture{Path, {}};
    return {Path, MeasurePicture(Picture), PixelsOf(Picture, LargestScreen)};
}

QString NameWithoutEnding(const QString& Path) {
    const QString Name = GetFileName(Path);
    return Name.left(Name.lastIndexOf(u'.'));
}

using Composed = std::shared_ptr<const PrintDocument>;

// Formats that do not tell their size at once take their time.
Answer<Composed> ComposeAside(const Form& Window, const QString& Path,
                              const Composer& Compose) try {
    const PointerScope Working(Pointer::Hourglass);
    const auto Document = NewPrintDocument(NameWithoutEnding(Path));
    const Answer<> Made = FinishAside([Compose, Document] { return Compose(*Document); }).get();
    if (!Made) return Made.Refusal();
    return Composed(Document);
} catch (const Fault& Problem) {
    return BoxRequest{
        .Text = Problem.Text(), .Title = Window.windowTitle(), .Icon = BoxIcon::Critical};
}

}  // namespace

PictureToPrint ReadToPrint(const QString& Path) {
    const PointerScope Working(Pointer::Hourglass);
    const auto Work = [Path, Largest = PictureView::LargestScreen()] {
        try {
            return Read(Path, Largest);
        } catch (const Fault&) {
            return Read(NoSlideFile(), Largest);
        }
    };
    return FinishAside(Work).get();
}

std::shared_ptr<PrintDocument> NewPrintDocument(const QString& Title) {
    const auto Document =
        std::make_shared<PrintDocument>(PrintPicture{NoSlideFile(), {}}, PaperOfCountry());
    Document->SetTitle(Title);
    return Document;
}

double NumberIn(const QLineEdit& Field) {
    return Val(Field.text().replace(u',', u'.'));
}

void PreviewDocument(std::shared_ptr<const PrintDocument> Document) {
    const auto Preview = NewForm<frmPrintPreview>();
    Preview->ShowDocument(std::move(Document));
    Preview->ShowModal();
}

void PreviewFile(const QString& Path) {
    const auto Preview = NewForm<frmPrintPreview>();
    if (Preview->Open(Path)) Preview->ShowModal();
}

void PreviewComposed(const Form& Window, const PictureToPrint& Picture, const Composer& Compose) {
    Answer<Composed> Made = ComposeAside(Window, Picture.Path, Compose);
    if (Tell(Made) && Window.IsLoaded()) PreviewDocument(*Made);
}

void ShowPrintSlideShow(std::int32_t AlbumID, std::int32_t SlideShowID) {
    try {
        NewForm<frmPrintSlideShow>()->PrintSlideShow(AlbumID, SlideShowID);
    } catch (const Fault&) {
        // whoever offered it goes on
    }
}

}  // namespace neb
