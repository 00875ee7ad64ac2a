// Searches drives or a directory tree for picture files by type and name, lists what it finds and
// hands the selected rows back as full paths. The import windows show it modally and then read
// FileCnt and Files. It neither opens nor copies a picture.
#pragma once

#include <QStringList>
#include <optional>
#include <vector>

#include "controls/forms/Form.h"

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace neb {

namespace Ui {
class frmFindGraphics;
}
class clsSettings;
struct SearchStep;

class frmFindGraphics : public Form {
    Q_OBJECT

  public:
    frmFindGraphics();
    ~frmFindGraphics() override;

    // The selected full paths, from 1 to FileCnt; no Fault, but empty, outside.
    QString Files(int Index) const { return mFiles.value(Index - 1); }
    int FileCnt() const { return static_cast<int>(mFiles.size()); }

  protected:
    void Form_Load() override;
    bool Form_Unload() override;
    void reject() override;  // Esc: ends the search first, then the window

  private:
    // A search that is under way.
    struct Hunt {
        bool Cancelled = false;
        bool DrivesMoved = false;  // meanwhile
        int Results = 0;
        double NextYield = 0;              // ticks of the clock
        std::vector<QStringList> Waiting;  // rows not yet in the grid
    };
    // Over all searches until the window closes.
    struct Tally {
        int Directories = 0, Files = 0;
    };

    bool IsBusy() const override { return mHunt.has_value(); }
    void SetUpGrid();
    void SetUpButtons();
    void FitColumns();
    void FillSearchPath();
    QStringList ListedDrives() const;
    void FollowDrives();
    void SearchPathChosen();
    void Search();
    void Cancel();
    void SearchChosen();
    void SearchEnded();
    void EnableForSearch(bool Searching);
    QStringList SelectedTypes() const;
    bool SearchDirectory(const QString& Directory);
    bool TakeStep(const SearchStep& Step, int& Found);
    void TickFile();
    void TickDirectory();
    void ShowProgress();
    void ShowFound();
    void ShowSelected();
    void Import();

    void RestorePlace();
    void RestoreColumns(const clsSettings& Settings);
    void SavePlace() const;

    std::unique_ptr<Ui::frmFindGraphics> mUi;
    std::optional<Hunt> mHunt;  // none: the window waits
    Tally mTally;
    QStringList mFiles;
};

}  // namespace neb
