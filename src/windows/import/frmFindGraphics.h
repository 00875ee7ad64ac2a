// Searches drives or a directory tree for picture files by type and name, lists what it finds and
// hands the selected rows back as full paths. The import windows show it modally and then read
// FileCnt and Files. It neither opens nor copies a picture.
#pragma once

#include <QStringList>
#include <optional>
#include <vector>

#include "controls/forms/Form.h"
#include "windows/import/ReadingReport.h"

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
        bool DrivesMoved = false;          // meanwhile
        QString Place;                     // the directory at which it is
        double NextYield = 0;              // ticks of the clock
        std::vector<QStringList> Waiting;  // rows not yet in the grid
        ReadingReport PassedOver;
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
    void SearchDrives();
    void SearchDirectory(const QString& Directory);
    void TakeStep(const SearchStep& Step);
    void PassOver(const QString& Directory, const QString& Reason);
    void TickFile();
    void TickDirectory();
    void ShowProgress();
    QString Counts() const;
    void ShowFound();
    QString WhyEmpty(const Hunt& Ended) const;
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
