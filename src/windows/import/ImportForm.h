// The body that the picture import window and Quick Show share: it has directories and found files
// read (PictureReading) into the grid of those not yet selected (PictureRows), lets the user move
// pictures to the selected ones and choose how they come in (ImportOptions), and carries the
// import.
#pragma once

#include <QStringList>
#include <optional>

#include "albums/modImport.h"
#include "controls/forms/Form.h"
#include "windows/import/ImportTally.h"
#include "windows/import/PictureReading.h"

namespace neb {

namespace Ui {
class ImportForm;
}
class FlexGrid;
class ToolBar;
class frmProgress;
struct WindowMemory;

class ImportForm : public Form {
    Q_OBJECT

  public:
    ~ImportForm() override;

    // Whether the window was closed, before or after it was shown.
    bool Aborted() const { return mPhase == Phase::Closed; }
    void SetImportDir(const QString& Directory) { mSource.Directory = Directory; }
    void SetRecurseDir(bool Recurse) { mSource.Recurse = Recurse; }
    const QString& ImportDir() const { return mSource.Directory; }
    // The same for several at once: pictures, and folders with their separator.
    void SetNamed(const QStringList& Paths) { mSource.Named = Paths; }

    // Puts paths in the order of their bare names by character code, equal names as they were. No
    // window asks for it: pictures stay in the order in which they were found.
    void SortFiles(QStringList& Paths);

    // The columns of both grids.
    using enum PictureRows::Column;

  protected:
    explicit ImportForm(const WindowMemory& Memory);

    // The click on the import button: keeps the selection, and what follows upon that.
    virtual void Import() = 0;
    // Brings the selected pictures in; false when that was refused, which the user has been told.
    virtual bool Keep() = 0;
    // Called after a directory was chosen or dropped, or pictures of one were.
    virtual void DirectoryChosen(const QString&) {}
    // Called when what was chosen, dropped or set by the caller has been read: those not selected
    // from row First on are new.
    virtual void PicturesOpened(int /*First*/) {}
    virtual void OrderChosen(PictureOrder Order) { Rows().Sort(Order); }
    // Pictures that were picked out, and captions typed for them.
    virtual bool HoldsWork() const;

    void Form_Load() override;
    bool Form_QueryUnload() override;
    bool Form_Unload() override;
    void dragEnterEvent(QDragEnterEvent* Event) override;
    void dropEvent(QDropEvent* Event) override;

    // False after a box when nothing is selected.
    bool HasSelection() const;
    // Shows frmProgress over StartOperation; whether that was done.
    bool RunImport();
    // The import itself, under the bar. False when not all of it was done, which the user has been
    // told.
    virtual bool StartOperation(frmProgress& Bar) = 0;
    // Makes an album with its folders; the name is cleaned.
    Answer<Announcement> MakeAlbum(Changes& Door, const QString& Name);
    using SlideEntered = std::function<void(std::int32_t SlideID)>;
    // Enters the selected pictures in the album and moves the bar; those that cannot be read are
    // left out, and the user may stop it. The rows stay. Nothing when the window was closed
    // meanwhile: the album may then be gone.
    std::optional<ImportTally> ImportRows(Changes& Door, std::int32_t AlbumID, frmProgress& Bar,
                                          const SlideEntered& Entered);
    // Takes the rows of what is in out of the selection, so that nothing is entered twice.
    void DropEntered(const ImportTally& Tally);

    PictureRows& Rows() const { return mReading->Rows(); }
    void MoveRows(FlexGrid& From, FlexGrid& To, bool All);
    void UpdateButtons();
    // Reads pictures and folders beside those that are there, as a drop does.
    void ReadDropped(const QStringList& Paths);
    // The folder whose name stands for what is to be read next; empty: nothing is.
    QString FolderToRead() const;
    // Whether no work is under way and no other window holds the user's attention.
    bool IsFree() const;

    std::unique_ptr<Ui::ImportForm> mUi;

  private:
    // What the window is at; reading is known to mReading.
    enum class Phase {
        Loading,    // until the first read is over; the window has had no place yet
        Waiting,    // for the user
        Searching,  // for pictures, in a window of its own
        Importing,
        Closed
    };

    void SetUpGrid(FlexGrid& Grid, const QString& EmptyText);
    void CaptionEdited(FlexGrid& Grid, int Row, int Col);
    void SetUpOptions();
    void SetUpButtons();
    void SetUpToolBar();
    void Close() { Unload(); }

    bool IsBusy() const override { return mPhase != Phase::Waiting || mReading->IsReading(); }
    void FinishEdits() override;
    void Leave(Phase Done);
    void During(Phase What, const std::function<void()>& Do);
    bool GoesOn() const;
    bool EnterRows(PictureImport& Run, frmProgress& Bar, ImportTally& Tally,
                   const SlideEntered& Entered);
    static void BeginBar(frmProgress& Bar, int Count);
    static void MoveBar(frmProgress& Bar, int Done, int Count);

    void ImportAnotherDirectory();
    void ImportFoundGraphics();
    void DropRemaining();
    std::optional<ReadingReport> ReadNamed();
    void TellOf(const std::optional<ReadingReport>& Report);
    void ReadOpened();

    const WindowMemory& mMemory;
    Phase mPhase = Phase::Loading;
    PictureReading::Source mSource;
    std::unique_ptr<PictureReading> mReading;  // never null
};

}  // namespace neb
