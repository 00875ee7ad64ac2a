// The wheel over the lists of choices, the numbers and the sliders of the real windows.
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QScrollBar>
#include <QSignalBlocker>

#include "AllWindowsRig.h"
#include "harness/WheelTurn.h"
#include "windows/albums/frmAlbumDelete.h"
#include "windows/albums/frmAlbumRename.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/import/frmFindGraphics.h"
#include "windows/printing/frmPrintAlbum.h"
#include "windows/printing/frmPrintSlideShow.h"
#include "windows/transfer/frmAlbumExport.h"
#include "windows/transfer/frmSlideShowImport.h"

namespace neb {
namespace {

using namespace harness;

class TheWheel : public AllWindowsRig {
  protected:
    static QVariant ValueOf(const QWidget& Control) {
        if (auto* Box = qobject_cast<const QComboBox*>(&Control)) return Box->currentIndex();
        if (auto* Field = qobject_cast<const QAbstractSpinBox*>(&Control)) return Field->text();
        const auto* Slider = qobject_cast<const QAbstractSlider*>(&Control);
        if (Slider && !qobject_cast<const QScrollBar*>(&Control)) return Slider->value();
        return {};
    }
    static void FillIfEmpty(QWidget& Control) {
        auto* Box = qobject_cast<QComboBox*>(&Control);
        if (!Box || Box->count() > 2) return;
        const QSignalBlocker Quiet(Box);
        Box->addItems({u"one"_s, u"two"_s, u"three"_s});
        Box->setCurrentIndex(1);
    }
    // How many choices the window has, none of which the wheel changes.
    static int ChoicesLeftAlone(Form& Window) {
        int Count = 0;
        for (QWidget* Each : Window.findChildren<QWidget*>()) {
            if (!ValueOf(*Each).isValid()) continue;
            ++Count;
            FillIfEmpty(*Each);
            if (Each->hasFocus()) Each->clearFocus();
            const QVariant Before = ValueOf(*Each);
            for (const int Turned : {120, -240}) TurnWheel(*Each, Turned);
            EXPECT_EQ(Before, ValueOf(*Each)) << Each->objectName().toStdString();
            EXPECT_FALSE(Each->hasFocus()) << Each->objectName().toStdString();
        }
        return Count;
    }
    template <class Window>
    static void LooksAt(int Choices) {
        const auto Made = NewForm<Window>();
        Made->ShowModeless();
        Activate(*Made);
        EXPECT_GE(ChoicesLeftAlone(*Made), Choices) << Made->windowTitle().toStdString();
        Drop(*Made);
    }
};

TEST_F(TheWheel, LeavesTheChoicesOfEveryWindowAlone) {
    AddSlide(u"a"_s);
    LooksAt<frmSlideDBM>(2);
    LooksAt<frmSlideMgrBulk>(1);
    LooksAt<frmSlideShowDBM>(3);
    LooksAt<frmAlbumDelete>(1);
    LooksAt<frmAlbumRename>(1);
    LooksAt<frmAlbumExport>(1);
    LooksAt<frmSlideShowImport>(1);
    LooksAt<frmPrintAlbum>(1);
    LooksAt<frmPrintSlideShow>(2);
}

TEST_F(TheWheel, DeletesTheAlbumThatWasReadThoughItsListHasTheKeyboard) {
    const std::int32_t Attic = MakeAlbum(u"Attic"_s);
    MakeAlbum(u"Cellar"_s);
    WhenOpen<frmAlbumDelete>([](frmAlbumDelete& Window) {
        Activate(Window);
        auto& Albums = In<QComboBox>(Window, "cboAlbum");
        Albums.setFocus();
        for (const int Turned : {120, -120, -120}) TurnWheel(Albums, Turned);
        EXPECT_EQ("Attic", Albums.currentText().toStdString());
        Window.Unload();
    });
    ShowDeleteAlbum(Attic);
}

}  // namespace
}  // namespace neb
