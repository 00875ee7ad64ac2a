// Prints a sheet full of copies of one picture; a drawing of the page follows what is typed.
#pragma once

#include "controls/forms/Form.h"
#include "windows/printing/modPrinting.h"

namespace neb {

namespace Ui {
class frmPrintSheet;
}

class frmPrintSheet : public Form {
    Q_OBJECT

  public:
    frmPrintSheet();
    ~frmPrintSheet() override;

    // Shows the window modally, for the picture in that file, which Text describes; one that cannot
    // be read is replaced by the stand-in. Throws Fault when that cannot be read either.
    void PrintSlide(const QString& PicturePath, const QString& Text);

  protected:
    void Form_Load() override;

  private:
    GridWish Wish() const;
    void ShowSketch();
    void Print();
    void Close() { Unload(); }

    std::unique_ptr<Ui::frmPrintSheet> mUi;
    PictureToPrint mPicture;
    QString mText;
};

}  // namespace neb
