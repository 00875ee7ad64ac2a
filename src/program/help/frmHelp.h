// Shows the program's help, a text with links that lies beside the program.
#pragma once

#include "controls/forms/Form.h"

QT_BEGIN_NAMESPACE
class QTextBrowser;
QT_END_NAMESPACE

namespace neb {

class frmHelp : public Form {
    Q_OBJECT

  public:
    frmHelp();

    // Reads the help file and goes to a place in it. Throws Fault when there is no such file.
    void SetTopic(const QString& HelpFile, const QString& Anchor);

  protected:
    void showEvent(QShowEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;  // Esc closes it, a child of the main window too

  private:
    QTextBrowser* mText;
    QString mPage;  // an anchor
};

}  // namespace neb
