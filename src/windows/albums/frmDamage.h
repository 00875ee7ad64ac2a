// What is wrong with the albums at the start of the program, and the ways out: the last good ones
// come back, the program goes on with what is left, or it ends and nothing has changed. Opened by
// the main window before anything of the database is written.
#pragma once

#include <memory>

#include "controls/forms/Form.h"
#include "db/recovery/modRestore.h"

namespace neb {

namespace Ui {
class frmDamage;
}

class frmDamage : public Form {
    Q_OBJECT

  public:
    frmDamage();
    ~frmDamage() override;

    // Shows the window modally on a database that may be written; true when it is sound afterwards.
    bool MakeSound(const QString& DBPath, const DatabaseHealth& Health);

  protected:
    void Form_Load() override;
    bool Form_Unload() override { return !mDamage.IsWorking; }
    bool IsBusy() const override { return mDamage.IsWorking; }

  private:
    // How the database was found, and how far the mending has come.
    struct Damage {
        QString DBPath;
        DatabaseHealth Health;
        std::optional<Generation> Good;  // the albums that can come back
        std::optional<RestThere> Left;   // what going on would leave
        bool IsWorking = false, IsMended = false;
    };

    void Look();
    void ShowDamage();
    void Restore();
    void GoOn();
    void End() { Unload(); }
    void Mend(const std::function<KeptFiles()>& Work, const QString& Done);
    void TellFailure(const Fault& Problem);

    std::unique_ptr<Ui::frmDamage> mUi;
    Damage mDamage;
};

}  // namespace neb
