// The application object: a fault that no routine has handled ends here, in a box that says what
// failed and on which file, and the program goes on. What the desktop draws grows with its letters,
// and hints can be read in its colours. Labels, boxes and tool tips show texts as they are, unless
// one asks for marks in it. Menus open by their letters for who has a screen reader, too.
#pragma once

#include <QApplication>

namespace neb {

class NebApplication : public QApplication {
    Q_OBJECT

  public:
    NebApplication(int& ArgumentCount, char** Arguments);
    bool notify(QObject* Receiver, QEvent* Event) override;

  protected:
    bool event(QEvent* Event) override;

  private:
    void MendHints();
    bool TakeKeys(QObject* Receiver, QEvent* Event);
};

}  // namespace neb
