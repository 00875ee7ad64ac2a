// The box with the program's title, version and description, and the way to the desktop's own
// system information tool.
#pragma once

#include "controls/forms/Form.h"
#include "support/work/Job.h"

namespace neb {

namespace Ui {
class frmAbout;
}

class frmAbout : public Form {
    Q_OBJECT

  public:
    frmAbout();
    ~frmAbout() override;

  private:
    void TellOfReaders();

    std::unique_ptr<Ui::frmAbout> mUi;
    Job<QString> mReaders;  // how far they are locked, which a first one must be started for
};

// Starts the first system information tool that the desktop has; a box says when there is none.
void StartSysInfo();

}  // namespace neb
