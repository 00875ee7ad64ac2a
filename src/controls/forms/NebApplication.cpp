#include "controls/forms/NebApplication.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QScopeGuard>
#include <QWidget>
#include <QWindow>

#include "controls/fields/GrowingStyle.h"
#include "controls/fields/HintColour.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/speech/SpokenComboBox.h"
#include "controls/speech/SpokenList.h"
#include "controls/speech/SpokenPage.h"
#include "support/ReasonOf.h"
#include "support/Services.h"
#include "support/Texts.h"

namespace neb {
namespace {

// One box at a time: what fails while a box is up is told after it, the same thing only once.
void Report(const QString& Text) {
    static QStringList Waiting;
    if (Waiting.contains(Text)) return;
    Waiting.append(Text);
    if (Waiting.size() > 1) return;
    const auto Emptied = qScopeGuard([] { Waiting.clear(); });
    while (!Waiting.isEmpty()) {
        SetScreenPointer(Pointer::Default);
        MsgBox(Waiting.front(), tr("Operation Failed"), BoxIcon::Critical);
        Waiting.removeFirst();
    }
}

// Where memory is so short that not even the box can be shown, the program goes on all the same.
void ReportOrGoOn(const std::exception& Problem) noexcept {
    try {
        Report(ReasonOf(Problem));
    } catch (...) {
        return;
    }
}

// Names and captions come from anywhere. As marked-up text they could have the toolkit read
// pictures here that are named in them, of any file; tool tips are labels, too.
void TakeTextAsItIs(QObject* Receiver) {
    auto* Label = qobject_cast<QLabel*>(Receiver);
    if (Label && Label->textFormat() == Qt::AutoText) Label->setTextFormat(Qt::PlainText);
}

// Where a screen reader listens, the toolkit holds back each key that comes from outside until that
// has heard of it, and sends it once more itself then. An Alt has had its effect by that time. Late
// it would close the menu that its letter has opened meanwhile, or count as an Alt alone; in a menu
// that was open already it does what it is for.
bool IsLateAlt(const QObject& Receiver, const QEvent& Event) {
    if (Event.type() != QEvent::KeyPress || Event.spontaneous() || !Receiver.isWindowType())
        return false;
    const QWidget* Menu = QApplication::activePopupWidget();
    return static_cast<const QKeyEvent&>(Event).key() == Qt::Key_Alt &&
           !(Menu && Menu->windowHandle() == &Receiver);
}

}  // namespace

NebApplication::NebApplication(int& ArgumentCount, char** Arguments)
    : QApplication(ArgumentCount, Arguments) {
    setStyle(new GrowingStyle);
    NameComboBoxes();
    TellPagesAsDocuments();
    MendHints();
}

// The colours that are the desktop's own stay so, and change with it.
void NebApplication::MendHints() {
    QPalette Mended = palette();
    MakeHintsReadable(Mended);
    if (Mended != palette()) setPalette(Mended);
}

bool NebApplication::event(QEvent* Event) {
    const bool Handled = QApplication::event(Event);
    if (Event->type() == QEvent::ApplicationPaletteChange) MendHints();
    return Handled;
}

// What gets the keys may go while it does.
bool NebApplication::TakeKeys(QObject* Receiver, QEvent* Event) {
    const QPointer<QObject> Held(Receiver);
    const bool Handled = QApplication::notify(Receiver, Event);
    if (Held) TellCurrentOf(Held);
    return Handled;
}

bool NebApplication::notify(QObject* Receiver, QEvent* Event) {
    try {
        if (IsLateAlt(*Receiver, *Event)) return true;
        if (Event->type() == QEvent::Polish) {
            TakeTextAsItIs(Receiver);
            DescribeList(Receiver);
        }
        // some are polished before they have their tip
        if (Event->type() == QEvent::ToolTipChange) DescribeList(Receiver);
        return Event->type() == QEvent::FocusIn ? TakeKeys(Receiver, Event)
                                                : QApplication::notify(Receiver, Event);
    } catch (const std::exception& Problem) {
        ReportOrGoOn(Problem);
    }
    return true;
}

}  // namespace neb
