// Asks for the name of a new album and for the directory to fill it from, and hands over to the
// import, which makes the album. The main window opens it modally.
#pragma once

#include <QString>

#include "controls/forms/Form.h"

namespace neb {

namespace Ui {
class frmNewAlbumWzd1;
}

class frmNewAlbumWzd1 : public Form {
    Q_OBJECT

  public:
    frmNewAlbumWzd1();
    ~frmNewAlbumWzd1() override;

  protected:
    void Form_Load() override;
    bool Form_Unload() override;

  private:
    void ProposeName();
    void Next();
    bool HasFreeName();
    bool HasFreeDirectory();
    void Import();

    std::unique_ptr<Ui::frmNewAlbumWzd1> mUi;
    QString mProposedName;  // as it stands in the field as long as nobody types one
    QString mInitialDir;
    bool mRecurseDir = false;
};

}  // namespace neb
