#include "pictures/formats/PictureFaults.h"

#include "support/Texts.h"

namespace neb {

void ThrowUnknownPicture() {
    throw Fault(tr("The file is not a picture that this program can read."), {},
                FaultUnknownPicture);
}

void ThrowDamaged() {
    throw Fault(tr("The picture is damaged and cannot be read."), {}, FaultDamagedPicture);
}

void ThrowDamaged(const QString& Detail) {
    throw Fault(tr("The picture is damaged and cannot be read (%1).").arg(Detail), {},
                FaultDamagedPicture);
}

void ThrowEndsEarly() {
    throw Fault(tr("The picture is damaged: it ends too early."), {}, FaultEndsEarly);
}

void ThrowTooLarge() {
    throw Fault(tr("The picture is too large to be read."), {}, FaultTooLarge);
}

void ThrowTooLarge(QSize Size) {
    throw Fault(tr("The picture is too large to be read: %1 by %2 pixels.")
                    .arg(Size.width())
                    .arg(Size.height()),
                {}, FaultTooLarge);
}

void ThrowFileTooLarge() {
    throw Fault(tr("The file is too large to be read as a picture."), {}, FaultTooLarge);
}

}  // namespace neb
