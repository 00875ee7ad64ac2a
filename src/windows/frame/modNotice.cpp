#include "windows/frame/modNotice.h"

#include "windows/frame/Openers.h"

namespace neb {

void ShowNotice(const QString& Text) {
    if (TheOpeners().Notice) TheOpeners().Notice(Text);
}

}  // namespace neb
