#include "windows/frame/modUserInput.h"

#include "albums/modPictureFiles.h"
#include "controls/forms/Tell.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/Texts.h"

namespace neb {

bool ValidateUserInput(const QString& FieldName, const QString& Text) {
    const QString Illegal = IllegalChars(Text);
    if (Illegal.isEmpty()) return true;
    MsgBox(tr("The entered %1 contained the following illegal characters:\n%2")
               .arg(FieldName, Illegal),
           tr("Invalid User Input"), BoxIcon::Information);
    return false;
}

bool IsReservedForAlbums(const QString& Path, const QString& Root) {
    return !Tell(CheckSource(Path, Root));
}

}  // namespace neb
