// Asks for a directory, and whether its subdirectories count too, and says how many pictures lie
// there. The directory last looked at is remembered in "DS.ini" in the program's folder.
#pragma once

#include <QString>

#include "support/windows/Form.h"

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
    bool RecurseDir() const { return mRecurseDir; }
    // Shows the window modally: the chosen directory, or empty when it was cancelled.
    QString SelectDirectory();

  protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_Unload() override;

  private:
    void RecurseClicked();
    void ShowCount();
    void Select();

    std::unique_ptr<Ui::frmDirSelect> mUi;
    QString mSelectedDir;
    bool mRecurseDir = false;
    bool mActivated = false;
    bool mCountGraphics = true;
    bool mRecurseDirOption = true;
    int mCounting = 0;  // tells a count that a newer one has begun
};

// The memory of the directory last shown; errors are ignored both ways.
QString ReadLastDirectory();
void WriteLastDirectory(const QString& Directory);

}  // namespace neb
