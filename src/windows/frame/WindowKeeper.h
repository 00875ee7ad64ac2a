// Restores and saves the size and place of the windows that do not see to it themselves, dialogs
// above all, as they come and go. The main window has one.
#pragma once

#include <QObject>

namespace neb {

class Form;

class WindowKeeper : public QObject {
  public:
    // Looks after all windows of the application as long as it lives.
    explicit WindowKeeper(QObject* Parent = nullptr);

    bool eventFilter(QObject* Watched, QEvent* Event) override;
};

// For a child of the main window, which is in its frame before it is shown.
void RestoreKept(Form& Window);

}  // namespace neb
