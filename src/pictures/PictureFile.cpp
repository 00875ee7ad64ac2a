#include "pictures/PictureFile.h"

#include "pictures/formats/PictureDecoder.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"

namespace neb {

QByteArray ReadPictureFile(const QString& File) {
    if (!FileExists(File) || !CanReadFile(File))
        throw Fault(tr("The picture cannot be opened."), File, FaultCannotOpen);
    if (FileSize(File) > LargestPictureFile) ThrowFileTooLarge();
    try {
        return ReadFile(File);
    } catch (const Fault& Reason) {
        throw Fault(Reason.What(), File, FaultCannotOpen);
    }
}

}  // namespace neb
