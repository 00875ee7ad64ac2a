// The bytes of a picture file, and faults that name it. Used by the picture object and by what
// makes an album's pictures of files.
#pragma once

#include <QByteArray>
#include <QString>
#include <new>

#include "pictures/formats/PictureFaults.h"
#include "support/Texts.h"

namespace neb {

// Throws FaultCannotOpen, FaultTooLarge.
QByteArray ReadPictureFile(const QString& File);

// What Work makes of the file's bytes. Its faults come with the file's name.
template <class Work>
auto FromPictureFile(const QString& File, Work Make) {
    try {
        return Make(ReadPictureFile(File));
    } catch (const Fault& Reason) {
        throw Fault(Reason.What(), File, Reason.Number());
    } catch (const std::bad_alloc&) {
        throw Fault(tr("There is not enough memory for the picture."), File, FaultTooLarge);
    }
}

}  // namespace neb
