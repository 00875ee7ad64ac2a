// The body that the picture import window and Quick Show share: it reads directories and found
// files, shows each picture as a thumbnail in the grid of those not yet selected, lets the user
// move pictures to the selected ones, and carries the import.
#pragma once

#include <QImage>
#include <QStringList>

#include "albums/modImport.h"
#include "controls/forms/Form.h"
#include "controls/forms/Progress.h"

namespace neb {

namespace Ui {
class ImportForm;
}
class FlexGrid;
class ToolBar;
class frmLoading;
class frmProgress;
struct WindowMemory;

class ImportForm : public Form, public ProgressParent {
    Q_OBJECT

  public:
    ~ImportForm() override;

    // Whether the window was closed, before or after it was shown.
    bool Aborted() const { return mAborted; }
    void SetImportDir(const QString& Directory) { mImportDir = Directory; }
    void SetRecurseDir(bool Recurse) { mRecurseDir = Recurse; }
    const QString& ImportDir() const { return mImportDir; }

    void DoActivity() override;  // reads the directory, under frmLoading
    void DoAbort() override { mAbort = true; }
    // Puts paths in the order of their bare names by character code, equal names as they were.
    void SortFiles(QStringList& Paths);

    // The columns of both grids.
    enum Column { ColPicture, ColCaption, ColPath, ColCount };

  protected:
    explicit ImportForm(const WindowMemory& Memory);

    // The click on the import button.
    virtual void Import() = 0;
    // Called after a directory was chosen or dropped.
    virtual void DirectoryChosen(const QString&) {}

    void Form_Load() override;
    bool Form_Unload() override;
    void dragEnterEvent(QDragEnterEvent* Event) override;
    void dropEvent(QDropEvent* Event) override;

    // False after a box when nothing is selected.
    bool HasSelection() const;
    // Shows frmProgress over StartOperation.
    void RunImport();
    // What a row of the selection turned into; Row counts from 0.
    using RowDone =
        std::function<void(int Row, PictureImport::Outcome Outcome, std::int32_t SlideID)>;
    // Enters every selected picture in the album, with the bar under way. False when the window
    // was closed meanwhile: the album may then be gone.
    bool ImportRows(clsNEBAlbum& Album, const RowDone& Done);
    // Puts the pointer back and takes the progress window away.
    void EndOperation();

    std::unique_ptr<Ui::ImportForm> mUi;
    std::shared_ptr<frmProgress> mProgressForm;

  private:
    void SetUpGrid(FlexGrid& Grid, const QString& EmptyText);
    void SetUpButtons();
    void SetUpToolBar();
    void ToolClicked(const QString& Name);
    void UpdateButtons();
    void MoveRows(FlexGrid& From, FlexGrid& To, bool All);
    void ShowPreview(const FlexGrid& Grid, int Row);
    bool GoesOn() const;
    bool EnterRows(clsNEBAlbum& Album, const RowDone& Done);

    void ImportAnotherDirectory();
    void ImportFoundGraphics();
    bool AskDiscardRemaining();
    bool IsFree() const;
    void ReadUnderLoading();
    void ReadDirectory();
    QStringList CollectFiles(const QStringList& Named);
    void ReadDropped(const QStringList& Paths);
    void LoadPictures(const QStringList& Files);
    bool LoadPicture(AheadQueue<QString, std::optional<QImage>>& Ahead, const QString& Path);
    void AddRow(const QString& Path, const QImage& Thumbnail);
    bool Stopped();
    void ReleaseLoading();

    const WindowMemory& mMemory;
    bool mBusy = false;
    bool mAbort = false;
    std::shared_ptr<frmLoading> mLoadingForm;
    QString mImportDir;
    QStringList mNamed;  // files, and directories with their separator, to read first
    bool mRecurseDir = false;
    bool mInForm_Load = false;
    bool mAborted = false;
};

}  // namespace neb
