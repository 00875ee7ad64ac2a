// Prints one picture at a size that the user types; a drawing of the page follows.
#pragma once

#include "controls/forms/Form.h"
#include "windows/printing/modPrinting.h"

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace neb {

namespace Ui {
class frmPrintSlide;
}

class frmPrintSlide : public Form {
    Q_OBJECT

  public:
    frmPrintSlide();
    ~frmPrintSlide() override;

    // Shows the window modally, for the picture in that file; one that cannot be read is replaced
    // by the stand-in. Throws Fault when that cannot be read either.
    void PrintSlide(const QString& PicturePath);

  protected:
    void Form_Load() override;

  private:
    SlideWish Wish() const;
    void ShowNumber(QLineEdit& In, double Inches);
    void WidthTyped();
    void HeightTyped();
    void ShowSketch();
    void Print();
    void Close() { Unload(); }

    std::unique_ptr<Ui::frmPrintSlide> mUi;
    PictureToPrint mPicture;
};

}  // namespace neb
