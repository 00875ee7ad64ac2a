#include "windows/show/ShowBox.h"

#include <QCoreApplication>
#include <QPointer>
#include <QStringList>

#include "controls/forms/Form.h"
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

void TellOnce(const QString& Message) {
    if (Open().contains(Message)) return;
    const HeldOpen Held(Message);
    MsgBox(Message);
}

}  // namespace

void TellLater(Form& Of, const QString& Message) {
    const auto Tell = [Window = QPointer<Form>(&Of), Message] {
        if (Window && Window->IsLoaded()) TellOnce(Message);
    };
    // Not as an event of the window: it may go while the box is up.
    QMetaObject::invokeMethod(qApp, Tell, Qt::QueuedConnection);
}

}  // namespace neb
