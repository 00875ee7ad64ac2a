// The window in which all printing ends: a finished document page by page, from where it is
// printed, saved as PDF or as a file of the program's own, loaded again, or mailed. Looking through
// the pages is in frmPrintPreview.cpp, what takes the document out of the window or into it in
// frmPrintPreviewOut.cpp. Used by the print dialogs.
#pragma once

#include "controls/forms/Form.h"
#include "printing/PrinterQueues.h"

namespace neb {

namespace Ui {
class frmPrintPreview;
}
class PrintView;

// What the caller may set before the window is shown.
struct PreviewSettings {
    QString EmailAddress;  // empty: the user is asked
    QString EmailMsg;      // empty: a text of the window's own, as for the subject
    QString EmailSubject;
    QString UserName;  // of the mail session
    QString UserPassword;
    QString AutoSaveName;  // a PDF that is written when the window closes; empty: none
    QString AutoSavePath;  // its directory; empty: the user's documents
    bool UnloadAfterPrint = false;
};

class frmPrintPreview : public Form {
    Q_OBJECT

  public:
    frmPrintPreview();
    ~frmPrintPreview() override;

    PreviewSettings& Settings() { return mSettings; }
    // The printer as the desktop knows it; a name that it does not know changes nothing.
    void SetDefaultPrinter(const QString& Device);
    const QString& DefaultPrinter() const { return mDefaultPrinter; }
    int NumCopies() const { return 1; }
    bool Printed() const { return mPrinted; }
    // Clears the read-only attribute of a file, where there is one; false when that fails.
    static bool TryClearReadOnly(const QString& FileName);

    // The finished document that is looked at from now on.
    void ShowDocument(std::shared_ptr<const PrintDocument> Document);
    // The document in a file; false when it was stopped or cannot be read, which a box has told.
    bool Open(const QString& Path);
    PrintView& VSPrinter1();
    // Shows the window modally; whether the document was printed.
    bool ShowPreview();

  Q_SIGNALS:
    // Before printing begins, which Cancel prevents; and after it was done.
    void BeforePrint(bool& Cancel);
    void AfterPrint();

  protected:
    void Form_Load() override;
    bool Form_Unload() override;
    bool IsBusy() const override;
    void changeEvent(QEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;

  private:
    // looking through the pages
    void MakeMenu();
    void ConnectButtons();
    void ShowIcons();
    void KeepSize();
    void EndOfDocument();
    void FollowPage();
    void FollowView();
    void ZoomChosen();
    void MoveFirst();
    void PrevPage();
    void NextPage();
    void MoveLast();
    void Close() { Unload(); }

    // out of the window and into it
    void PrintNow() { Print(false); }
    void PrintByDialog() { Print(true); }
    void Print(bool ShowDialog);
    void PrintFailed(PrintError Error);  // None: the user would rather not
    void Save();
    void LoadDocument();
    void Mail();
    void AutoSave();
    // At the foot until there is something else to tell, and in the status bar of the main window,
    // which this one may hide.
    void Notify(const QString& Text);

    std::unique_ptr<Ui::frmPrintPreview> mUi;
    PreviewSettings mSettings;
    QString mDefaultPrinter;
    bool mPrinted = false;
};

}  // namespace neb
