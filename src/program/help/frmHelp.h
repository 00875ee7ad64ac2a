// The window of the help: contents, index and search at the left, a page at the right. One of it is
// open at a time; modHelp opens it at the page of the window that asks.
#pragma once

#include <memory>

#include "controls/forms/Form.h"
#include "program/help/HelpBook.h"

QT_BEGIN_NAMESPACE
class QListWidget;
class QListWidgetItem;
QT_END_NAMESPACE

namespace neb {

namespace Ui {
class frmHelp;
}

class frmHelp : public Form {
    Q_OBJECT

  public:
    frmHelp();
    ~frmHelp() override;

    // Reads the help and opens a page such as "albums/slide-manager"; "index" brings its list, any
    // other the contents. Throws Fault when a file of the help is missing.
    void SetTopic(const QString& HelpFile, const QString& Page);
    QString Page() const;  // the one that is read

  protected:
    void Form_Load() override;
    bool Form_Unload() override;
    void showEvent(QShowEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;  // Esc closes it, a child of the main window too
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    void ConnectTools();
    void ConnectLists();
    void AddKeys();
    bool IsInLists() const;
    void EnterLists();
    void ChangeSides();  // between the lists and the page
    void FillContents();
    void FillIndex();
    void ShowPage(const QString& Page);
    void OpenFound(const QListWidgetItem* Item);
    void PageTurned(const QUrl& Source);
    void Search();
    void FindOnPage();
    void CloseFinding();
    void FindNext(bool Backward);

    std::unique_ptr<Ui::frmHelp> mUi;
    HelpBook mBook;
    QString mHelpFile;
    QString mPlace;  // the page that was asked for last
};

}  // namespace neb
