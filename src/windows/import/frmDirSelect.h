// Asks for a directory, and whether its subdirectories count too, and says how many pictures lie
// there. The import windows open it.
#pragma once

#include <QString>

#include "controls/forms/Form.h"

namespace neb {

namespace Ui {
class frmDirSelect;
}

class frmDirSelect : public Form {
    Q_OBJECT

  public:
    frmDirSelect();
    ~frmDirSelect() override;

    // Whether the box for subdirectories, and the count, are offered. Both load the window, in
    // which they begin as true.
    void SetRecurseDirOption(bool Offered);
    void SetCountGraphics(bool Shown);
    bool RecurseDir() const;
    // Shows the window modally: the chosen directory, or empty when it was cancelled.
    QString SelectDirectory();

  protected:
    void Form_Load() override;
    bool Form_Unload() override;

  private:
    void Select();

    std::unique_ptr<Ui::frmDirSelect> mUi;
    QString mSelectedDir;
};

}  // namespace neb
