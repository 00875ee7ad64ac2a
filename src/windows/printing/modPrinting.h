// What the print dialogs share: a picture that is to be printed, a new document, the preview behind
// them; and the call that prints a slide show, for whoever offers it.
#pragma once

#include <QImage>
#include <cstdint>
#include <memory>

#include "printing/PrintDocument.h"

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace neb {

class Form;

// A picture as it will be printed: the one that stands in for it where it is missing or cannot be
// decoded.
struct PictureToPrint {
    QString Path;
    QSize Size;    // pixels, upright
    QImage Shown;  // made smaller to the screens
};

// The windows go on painting meanwhile. Throws Fault when the stand-in cannot be read either.
PictureToPrint ReadToPrint(const QString& Path);

// An empty one, on the paper of the user's country.
std::shared_ptr<PrintDocument> NewPrintDocument(const QString& Title);
// What is typed, with a decimal point or a comma; 0 for no number.
double NumberIn(const QLineEdit& Field);
// The user looks through it, and prints it from there; returns when he has closed the preview.
void PreviewDocument(std::shared_ptr<const PrintDocument> Document);
// The same with a document that is kept in a file; a box tells of one that cannot be read.
void PreviewFile(const QString& Path);

// Has a document of a picture composed, beside the window and on any thread, and shows its preview;
// what is in the way of that is told instead.
using Composer = std::function<Answer<>(PrintDocument& Into)>;
void PreviewComposed(const Form& Window, const PictureToPrint& Picture, const Composer& Compose);

// Shows the dialog that prints a slide show, with that one chosen. Faults are ignored.
void ShowPrintSlideShow(std::int32_t AlbumID, std::int32_t SlideShowID);

}  // namespace neb
