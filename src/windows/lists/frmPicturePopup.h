// Shows one picture as large as the window. A click, Enter or Esc closes it, also while the picture
// is being read.
#pragma once

#include <QImage>
#include <QString>
#include <QTimer>

#include "controls/forms/Form.h"
#include "support/work/Job.h"

namespace neb {

namespace Ui {
class frmPicturePopup;
}

class frmPicturePopup : public Form {
    Q_OBJECT

  public:
    frmPicturePopup();
    ~frmPicturePopup() override;

    // Begins to read a picture, and waits for it for a moment. False after a box that says that it
    // cannot be shown; one that turns out so later closes the window, and the box comes then.
    bool LoadSlide(const QString& Path);

  protected:
    void Form_Load() override;
    bool Form_Unload() override;
    void keyPressEvent(QKeyEvent* Event) override;

  private:
    bool Take();
    void Look();

    std::unique_ptr<Ui::frmPicturePopup> mUi;
    std::unique_ptr<Job<QImage>> mReading;
    QTimer mLook;
};

// Shows the window on a picture; returns when it has closed. One that cannot be shown is told of in
// a box alone.
void PopUpPicture(QString Path);

}  // namespace neb
