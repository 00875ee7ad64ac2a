#include "program/EditMenu.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTextEdit>

#include "controls/forms/PaintRate.h"
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "db/clsDBEngine.h"
#include "db/undo/History.h"
#include "program/frmNEBSlideShow.h"
#include "settings/modNEBSlideShow.h"
#include "windows/frame/modNotice.h"
#include "windows/show/modSlideShows.h"

namespace neb {
namespace {

History* TheHistory() {
    return DBEngine ? HistoryOf(*DBEngine) : nullptr;
}

void Show(QAction& Entry, const QString& Alone, const QString& WithName, const QString& Name) {
    QString Shown = Name;
    Entry.setText(Name.isEmpty() ? Alone : WithName.arg(Shown.replace(u'&', QStringLiteral("&&"))));
    Entry.setEnabled(!Name.isEmpty());
}

// Other windows hear of it before the status bar does.
void Take(Answer<Undone> (History::*Way)(const Yield&), QString (History::*Next)() const,
          const QString& Told) {
    History* const Its = TheHistory();
    if (!Its || IsShowUp()) return;
    if ((Its->*Next)().isEmpty()) return ShowNotice(QObject::tr("There is nothing to take back."));
    Answer<Undone> Done = [&] {
        const PointerScope Working(Pointer::Hourglass);
        PaintRate Rate;
        return (Its->*Way)([&Rate] {
            if (Rate.IsDue()) DoEventsButInput();
        });
    }();
    if (!Tell(Done)) return;
    for (Announcement& Each : Done->Told) Each.Now();
    ShowNotice(Told.arg(Done->Name));
}

template <class Field>
bool HasOwn(const Field& Text, bool IsRedo) {
    return IsRedo ? Text.isRedoAvailable() : Text.isUndoAvailable();
}

// Fields take the keys also when they have nothing to undo.
bool IsFieldWithoutUndo(const QObject* Watched, bool IsRedo) {
    if (const auto* Line = qobject_cast<const QLineEdit*>(Watched)) return !HasOwn(*Line, IsRedo);
    if (const auto* Text = qobject_cast<const QPlainTextEdit*>(Watched))
        return !HasOwn(*Text->document(), IsRedo);
    if (const auto* Text = qobject_cast<const QTextEdit*>(Watched))
        return !HasOwn(*Text->document(), IsRedo);
    return false;
}

}  // namespace

EditMenu::EditMenu(frmNEBSlideShow& Main, const QHash<QString, QAction*>& Entries)
    : QObject(&Main),
      mUndo(Entries[QStringLiteral("mnuUndo")]),
      mRedo(Entries[QStringLiteral("mnuRedo")]) {
    auto* Menu = Main.menuBar()->findChild<QMenu*>(QStringLiteral("mnuEditHdr"));
    connect(Menu, &QMenu::aboutToShow, this, &EditMenu::ShowWhatThereIs);
    connect(Menu, &QMenu::aboutToHide, this, &EditMenu::EnableForKeys);
    qApp->installEventFilter(this);
}

void EditMenu::ShowWhatThereIs() {
    const History* const Its = TheHistory();
    Show(*mUndo, tr("&Undo"), tr("&Undo %1"), Its ? Its->UndoName() : QString());
    Show(*mRedo, tr("&Redo"), tr("&Redo %1"), Its ? Its->RedoName() : QString());
}

void EditMenu::EnableForKeys() {
    for (QAction* Each : {mUndo, mRedo}) Each->setEnabled(true);
}

bool EditMenu::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() != QEvent::ShortcutOverride) return false;
    const auto Keys = QKeySequence(static_cast<QKeyEvent*>(Event)->keyCombination());
    const bool IsRedo = Keys == mRedo->shortcut();
    if ((!IsRedo && Keys != mUndo->shortcut()) || !IsFieldWithoutUndo(Watched, IsRedo))
        return false;
    Event->ignore();
    return true;
}

bool IsUndoing() {
    const History* const Its = TheHistory();
    return Its && Its->IsMoving();
}

void UndoLast() {
    Take(&History::Undo, &History::UndoName, QObject::tr("Undone: %1."));
}

void RedoLast() {
    Take(&History::Redo, &History::RedoName, QObject::tr("Done again: %1."));
}

}  // namespace neb
