// Carries the right-click menu of a show; the window itself is never shown. The projector sets the
// entries, pops the menu up and asks for the word of the entry that was chosen.
#pragma once

#include <QAction>
#include <QMenu>

#include "controls/forms/Form.h"
#include "show/ShowState.h"

namespace neb {

class frmPopup : public Form {
    Q_OBJECT

  public:
    frmPopup();

    // The entries for a state of the show. Manual: the user alone moves it on. HasSlide: one has
    // been on the screen.
    void SetEntries(const ShowState& Show, bool Manual, bool HasSlide);
    // "GotoStart", "Previous", "Play", "Stop", "Next", "GotoEnd", "Preferences" or "Exit"; "" when
    // none was chosen. Unloads the window; the word survives that.
    QString SelectedCommand();
    // Shows the menu there and returns when it is gone.
    void PopupMenu(const QPoint& GlobalPlace);

    QMenu mnuPopup;
    QAction* mnuGotoStart;
    QAction* mnuPrevious;
    QAction* mnuPlay;
    QAction* mnuStop;
    QAction* mnuNext;
    QAction* mnuGotoEnd;
    QAction* mnuPreferences;
    QAction* mnuExit;

  private:
    QAction* Add(const char* Name, const QString& Caption, const char* Word);

    QString mSelectedCommand;
};

}  // namespace neb
