// Everything that a user can press, type into or choose from has a name for screen readers and a
// tool tip, and can be reached by the keyboard.
#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTabBar>
#include <QTextEdit>

#include "controls/forms/frmLoading.h"
#include "controls/forms/frmMsgBoxEx.h"
#include "harness/TempFolder.h"
#include "program/frmAbout.h"
#include "program/help/frmHelp.h"
#include "settings/modNEBSlideShow.h"
#include "windows/albums/frmAlbumDelete.h"
#include "windows/albums/frmAlbumRename.h"
#include "windows/albums/frmCheckPictures.h"
#include "windows/albums/frmDamage.h"
#include "windows/albums/frmGetObjectName.h"
#include "windows/albums/frmRestore.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/disc/frmDiscFolder.h"
#include "windows/film/frmFilm.h"
#include "windows/frame/frmInputBox.h"
#include "windows/import/frmDirSelect.h"
#include "windows/import/frmFindGraphics.h"
#include "windows/import/frmImportFilter.h"
#include "windows/import/frmNewAlbumWzd1.h"
#include "windows/import/frmQuickShow.h"
#include "windows/printing/frmPrintAlbum.h"
#include "windows/printing/frmPrintPreview.h"
#include "windows/printing/frmPrintSheet.h"
#include "windows/printing/frmPrintSlide.h"
#include "windows/printing/frmPrintSlideShow.h"
#include "windows/recorder/frmSoundRecorder.h"
#include "windows/rehearsal/frmRehearsal.h"
#include "windows/show/frmPreferences.h"
#include "windows/slides/frmSetCaptions.h"
#include "windows/slides/frmSlideDBM.h"
#include "windows/slides/frmSlideMgrBulk.h"
#include "windows/transfer/frmAlbumExport.h"
#include "windows/transfer/frmAlbumImport.h"
#include "windows/transfer/frmAlbumView.h"
#include "windows/transfer/frmSlideShowExport.h"
#include "windows/transfer/frmSlideShowImport.h"
#include "windows/transfer/frmSlideShowView.h"
#include "windows/transfer/frmTransferProgress.h"

namespace neb {
namespace {

bool IsControl(const QWidget& Widget) {
    return qobject_cast<const QAbstractButton*>(&Widget) ||
           qobject_cast<const QLineEdit*>(&Widget) || qobject_cast<const QComboBox*>(&Widget) ||
           qobject_cast<const QAbstractItemView*>(&Widget) ||
           qobject_cast<const QTextEdit*>(&Widget) ||
           qobject_cast<const QAbstractSpinBox*>(&Widget) || qobject_cast<const QSlider*>(&Widget);
}

// Pieces that the toolkit puts inside its own controls, such as the corner of a grid, or a button
// in a line of text, which has a key there.
bool IsToolkitPart(const QWidget& Widget) {
    return Widget.objectName().startsWith(u"qt_") ||
           qobject_cast<const QComboBox*>(Widget.parentWidget()) ||
           qobject_cast<const QTabBar*>(Widget.parentWidget()) ||
           qobject_cast<const QLineEdit*>(Widget.parentWidget()) ||
           qobject_cast<const QAbstractItemView*>(Widget.parentWidget()) ||
           QByteArray(Widget.metaObject()->className()).contains("HeaderView") ||
           Widget.parentWidget()->objectName() == u"qt_scrollarea_viewport" ||
           QByteArray(Widget.parentWidget()->metaObject()->className()).contains("Private") ||
           QByteArray(Widget.metaObject()->className()).contains("Private");
}

// How many controls the window has.
int CheckControls(const QWidget& Window, const char* Name) {
    int Count = 0;
    for (const QWidget* Each : Window.findChildren<QWidget*>()) {
        if (!IsControl(*Each) || IsToolkitPart(*Each)) continue;
        ++Count;
        const auto* Button = qobject_cast<const QAbstractButton*>(Each);
        const bool Named =
            !Each->accessibleName().isEmpty() || (Button && !Button->text().isEmpty());
        const std::string Where = std::string(Name) + '.' + Each->objectName().toStdString() +
                                  " (" + Each->metaObject()->className() + ')';
        EXPECT_TRUE(Named) << Where;
        EXPECT_FALSE(Button && Each->toolTip().isEmpty()) << Where;
        EXPECT_TRUE(Each->focusPolicy() & Qt::TabFocus) << Where;
    }
    return Count;
}

// A name in the place of the words would hide them from whoever hears the window; a sign has one.
void CheckLabels(const QWidget& Window, const char* Name) {
    for (const QLabel* Each : Window.findChildren<QLabel*>()) {
        if (!Each->objectName().startsWith(u"lbl") || Each->text().size() == 1) continue;
        EXPECT_EQ("", Each->accessibleName().toStdString())
            << Name << '.' << Each->objectName().toStdString();
    }
}

template <class Window>
class EachWindow : public ::testing::Test {
  protected:
    EachWindow() {
        SetDocumentsPath(mDocuments.Path());
        AppPathCache = mDocuments.Path();
    }
    ~EachWindow() override { AppPathCache.clear(); }
    harness::TempFolder mDocuments;
};

// But for the pop-up of a picture, in which there is nothing to press.
using Windows =
    ::testing::Types<frmAbout, frmAlbumDelete, frmAlbumExport, frmAlbumImport, frmAlbumRename,
                     frmAlbumView, frmCheckPictures, frmDirSelect, frmDiscFolder, frmFindGraphics,
                     frmGetObjectName, frmInputBox, frmPrintAlbum, frmPrintPreview, frmPrintSheet,
                     frmPrintSlide, frmPrintSlideShow, frmHelp, frmImportFilter, frmLoading,
                     frmMsgBoxEx, frmNewAlbumWzd1, frmPreferences, frmQuickShow, frmRestore,
                     frmDamage, frmFilm, frmRehearsal, frmSetCaptions, frmSlideDBM, frmSlideMgrBulk,
                     frmSlideShowDBM, frmSlideShowExport, frmSlideShowImport, frmSlideShowView,
                     frmSoundRecorder, frmTransferProgress>;
TYPED_TEST_SUITE(EachWindow, Windows);

TYPED_TEST(EachWindow, HasNamesToolTipsAndReachableControls) {
    const auto Window = NewForm<TypeParam>();
    EXPECT_GT(CheckControls(*Window, Window->metaObject()->className()), 0) << "nothing looked at";
    CheckLabels(*Window, Window->metaObject()->className());
}

}  // namespace
}  // namespace neb
