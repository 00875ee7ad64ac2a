// Goes back to an earlier state of all albums: the list of those that were kept, what differs from
// now, and the restore. What is there now is kept as another one.
#pragma once

#include <memory>

#include "controls/forms/Form.h"
#include "db/records/Generations.h"

namespace neb {

namespace Ui {
class frmRestore;
}
class clsDBEngine;

class frmRestore : public Form {
    Q_OBJECT

  public:
    frmRestore();
    ~frmRestore() override;

  protected:
    void Form_Load() override;
    bool Form_Unload() override { return !mWorking; }
    bool IsBusy() const override { return mWorking; }

  private:
    void SetUpTree();
    void ListStates();
    const Generation* Chosen() const;
    void ShowChosen();
    void Restore();
    bool IsSure(const Generation& Which, const QStringList& Missing);
    bool CloseOthers();
    void Carry(clsDBEngine& Then);
    void TellDone(const Generation& Which, const QStringList& Missing);
    void Close() { Unload(); }

    std::unique_ptr<Ui::frmRestore> mUi;
    std::vector<Generation> mStates;  // by the rows of the list
    bool mWorking = false;
};

}  // namespace neb
