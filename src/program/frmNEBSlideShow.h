// The main window: the frame that holds every manager window as a child, the menu bar, and the
// start and the orderly end of the program, at which the records reach the disk.
#pragma once

#include <QMainWindow>
#include <memory>

#include "program/CommandLine.h"

namespace neb {

class FlexGrid;
class Form;
class HomePage;
class StepAside;
class Workspace;
class clsDBEngine;
class clsImageBuffer;
struct DatabaseHealth;
struct MainMenu;
struct OpenedPaths;

class frmNEBSlideShow : public QMainWindow {
    Q_OBJECT

  public:
    frmNEBSlideShow();
    ~frmNEBSlideShow() override;

    // The start-up sequence: shows the window, loads the database, makes ready. False when the
    // albums are damaged and the user ends the program for that. Throws Fault when the database
    // cannot be read. In both cases the program is to end without writing anything.
    bool Form_Load(const CommandLine& Line);
    // Has every window ask about work that is not saved; false when one is to stay. Nothing is
    // closed.
    bool QueryForms();
    // The same for an end that follows, which then asks no more; until GoOn.
    bool AgreeToEnd();
    void GoOn() { mIsAgreed = false; }
    // Takes the windows off the screen, one after the other, which have been asked; false when one
    // has refused.
    bool UnloadForms();
    // The end: asks in all forms, unloads them, empties Temp, writes the database. False when a
    // window refused or the database could not be written and the user stays; the program then
    // goes on.
    bool Unload();
    // Unloads a form, ignoring faults.
    void UnloadChild(Form& Child);
    void OpenQuickShow();  // with no folder yet
    // What is dropped, named on the command line or handed over by a further start: pictures and
    // folders open in Quick Show, a folder of albums in a second instance of the program. As soon
    // as no modal window is open; a box for what cannot be opened.
    void OpenPaths(const QStringList& Paths);
    // Whether it has its albums, or will have them.
    bool IsUp() const { return mStage != Stage::Empty; }

    FlexGrid* flxBuffer() const { return mBuffer; }
    Workspace& Area() const { return *mWorkspace; }  // where the children stand
    HomePage& Home() const { return *mHome; }        // behind them
    // Brings the home before the user; when it is there already the windows that stepped aside for
    // it come back.
    void ShowHome();

  Q_SIGNALS:
    // One that the user looks at or works on.
    void AlbumOpened(std::int32_t AlbumID);

  protected:
    void changeEvent(QEvent* Event) override;
    void closeEvent(QCloseEvent* Event) override;

  private:
    void SetUpMenu();
    void FillOpeners();
    void ListWindows();
    void ShowAsChild(Form& Child);
    bool IsFree() const;
    void OpenWhenFree(const QStringList& Paths);
    void OpenNow(const OpenedPaths& What);
    void OpenAlbums(const QString& Folder);

    bool LoadDatabase();
    void ReadRecords(const DatabaseHealth& Health);
    void CheckReadOnly();
    void MakeChildDirs();
    void TellLeftBehind();
    void CreateImageBuffer();
    bool WriteDatabase();

    Workspace* mWorkspace;
    HomePage* mHome;  // behind the children
    std::unique_ptr<StepAside> mAside;
    FlexGrid* mBuffer = nullptr;  // never shown: the store of the image buffer
    std::unique_ptr<MainMenu> mMenu;
    std::unique_ptr<clsDBEngine> mEngine;
    std::unique_ptr<clsImageBuffer> mImageBuffer;
    enum class Stage { Empty, Loading, Loaded };  // Loading: the window cannot be closed
    Stage mStage = Stage::Empty;
    bool mIsAgreed = false;  // to an end that asks no more
};

}  // namespace neb
