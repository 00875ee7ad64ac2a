// The windows of transfer among the children of the main window: which one comes to the front when
// another closes, and what the keyboard does to them.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include "MainWindowRig.h"
#include "program/Workspace.h"
#include "windows/import/frmQuickShow.h"
#include "windows/transfer/frmAlbumExport.h"
#include "windows/transfer/frmAlbumImport.h"
#include "windows/transfer/frmAlbumView.h"

namespace neb {
namespace {

const char* const Entries[] = {"mnuAlbumImport", "mnuAlbumExport", "mnuSlideShowImport",
                               "mnuSlideShowExport"};

class TransferChildren : public MainWindow {
  protected:
    TransferChildren() {
        Start();
        SaveAlbum("Garden");
        mWindow->activateWindow();
    }
    QWidget* InFront() const {
        const QMdiSubWindow* Frame = mWindow->Area().activeSubWindow();
        return Frame ? Frame->widget() : nullptr;
    }
    void PressKey(Qt::Key Key, Qt::KeyboardModifiers With = {}) const {
        QTest::keyClick(mWindow->focusWidget(), Key, With);
        DoEvents();
    }
};

TEST_F(TransferChildren, AViewerThatClosesLeavesTheWindowThatItWasOpenedFromInFront) {
    Press("mnuAlbumExport");
    Press("mnuAlbumImport");
    auto* Import = Find<frmAlbumImport>();
    auto* Album = Import->findChild<QComboBox*>("cboDstAlbum");
    Album->setFocus();
    PressKey(Qt::Key_End);
    ASSERT_EQ("Garden", Album->currentText().toStdString());
    QTest::mouseClick(Import->findChild<QPushButton*>("cmdViewDstAlbum"), Qt::LeftButton);
    DoEvents();
    ASSERT_TRUE(Find<frmAlbumView>());
    ASSERT_EQ(Find<frmAlbumView>(), InFront());
    PressKey(Qt::Key_Escape);
    EXPECT_FALSE(Find<frmAlbumView>());
    EXPECT_EQ(Import, InFront());
}

TEST_F(TransferChildren, EscapeClosesThem) {
    for (const char* Each : Entries) {
        Press(Each);
        ASSERT_TRUE(InFront()) << Each;
        PressKey(Qt::Key_Escape);
        EXPECT_FALSE(InFront()) << Each;
    }
}

TEST_F(TransferChildren, CtrlF4ClosesTheChildInFront) {
    Press("mnuQuickShow");
    Press("mnuAlbumExport");
    PressKey(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_FALSE(Find<frmAlbumExport>());
    EXPECT_EQ(Find<frmQuickShow>(), InFront());
    PressKey(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_FALSE(Find<frmQuickShow>());
    PressKey(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_TRUE(mWindow->isVisible());
}

// In the frame a key of the menu bar would be taken from them.
TEST_F(TransferChildren, HaveKeysOfTheirOwn) {
    for (const char* Entry : Entries) {
        Press(Entry);
        QSet<QKeySequence> Taken;
        for (const QAction* Header : mWindow->menuBar()->actions())
            Taken.insert(QKeySequence::mnemonic(Header->text()));
        Taken.remove(QKeySequence());  // a header without a key of its own
        const auto Take = [&Taken](const QWidget* Of, const QString& Text) {
            const QKeySequence Key = QKeySequence::mnemonic(Text);
            if (Key.isEmpty() || !Of->isVisible()) return;
            EXPECT_FALSE(Taken.contains(Key)) << Text.toStdString();
            Taken.insert(Key);
        };
        for (const auto* Each : InFront()->findChildren<QAbstractButton*>())
            Take(Each, Each->text());
        for (const auto* Each : InFront()->findChildren<QLabel*>())
            if (Each->buddy()) Take(Each, Each->text());
        const bool OfShows = InFront()->findChild<QWidget*>("cboDstSlideShow")->isVisible();
        EXPECT_EQ(7 + (OfShows ? 13 : 12), Taken.size()) << Entry;
        dynamic_cast<Form*>(InFront())->Unload();
    }
}

}  // namespace
}  // namespace neb
