// Edit, Undo and Redo of the main window: the entries say what they would take back or do again,
// and do it. In a text field the keys are the field's own while it has something to undo itself.
#pragma once

#include <QHash>
#include <QObject>

QT_BEGIN_NAMESPACE
class QAction;
class QKeyEvent;
QT_END_NAMESPACE

namespace neb {

class frmNEBSlideShow;

class EditMenu : public QObject {
  public:
    // Entries: those of the main menu, of which mnuUndo and mnuRedo are taken.
    EditMenu(frmNEBSlideShow& Main, const QHash<QString, QAction*>& Entries);

  protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    // Keys that are pressed while the menu is closed find the entries enabled: what there is to
    // undo is known when they do.
    void ShowWhatThereIs();
    void EnableForKeys();

    QAction *mUndo, *mRedo;
};

// Whether one of them is at work: what comes meanwhile from outside must not end the program.
bool IsUndoing();
// Takes back what was done last, and says so in the status bar; or why it cannot be. Nothing while
// a show is up.
void UndoLast();
void RedoLast();

}  // namespace neb
