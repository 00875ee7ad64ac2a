#include "windows/show/ShowBox.h"

#include <QStringList>

#include "support/Services.h"

namespace neb {
namespace {

// The words of the boxes that are up.
QStringList& Open() {
    static QStringList Messages;
    return Messages;
}

struct HeldOpen {
    explicit HeldOpen(const QString& Message) : mMessage(Message) { Open() << Message; }
    ~HeldOpen() { Open().removeOne(mMessage); }
    const QString mMessage;
};

}  // namespace

void TellOnce(const QString& Message) {
    if (Open().contains(Message)) return;
    const HeldOpen Held(Message);
    MsgBox(Message);
}

}  // namespace neb
