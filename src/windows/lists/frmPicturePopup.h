// Shows one picture as large as the window. A click, Enter or Esc closes it.
#pragma once

#include <QString>

#include "controls/forms/Form.h"

namespace neb {

namespace Ui {
class frmPicturePopup;
}

class frmPicturePopup : public Form {
    Q_OBJECT

  public:
    frmPicturePopup();
    ~frmPicturePopup() override;

    // Takes the picture; a file that cannot be opened is told in a box, one that cannot be
    // decoded leaves the window empty.
    void LoadSlide(QString& Path);

  protected:
    void Form_Load() override;
    bool Form_Unload() override;
    void keyPressEvent(QKeyEvent* Event) override;

  private:
    std::unique_ptr<Ui::frmPicturePopup> mUi;
};

// Shows the window on a picture; returns when it has closed. One that cannot be shown is not.
void PopUpPicture(QString Path);

}  // namespace neb
