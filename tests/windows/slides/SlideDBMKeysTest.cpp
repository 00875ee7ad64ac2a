// The slide manager by the keyboard alone, and in a database that may not be changed.
#include <QAbstractButton>
#include <QDragEnterEvent>
#include <QMimeData>

#include "SlideRig.h"
#include "harness/FolderState.h"

namespace neb {
namespace {

using namespace harness;

class SlideDBMKeys : public SlideRig {
  protected:
    void Key(Qt::Key Pressed, Qt::KeyboardModifiers With = {}) {
        QTest::keyClick(W->focusWidget() ? W->focusWidget() : W, Pressed, With);
        if (!With) return;
        // A button pressed by its letter goes down first, and does its work as it comes up.
        const auto All = W->findChildren<QAbstractButton*>();
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return std::ranges::none_of(All, &QAbstractButton::isDown); }, 10'000));
        QCoreApplication::processEvents();
    }
    std::string Focus() { return W->focusWidget()->objectName().toStdString(); }
};

TEST_F(SlideDBMKeys, ASlideIsMadeChangedAndDeletedWithoutAMouse) {
    const QString File = MakePicture(Pics / u"a.png"_s, 60, 30);
    OpenWindow();
    EXPECT_EQ("cboAlbum", Focus());
    Key(Qt::Key_Down);
    EXPECT_EQ(AlbumID, Chosen("cboAlbum"));
    Dialogs.Answer = File;
    Key(Qt::Key_G, Qt::AltModifier);
    EXPECT_EQ(QSize(60, 30), Shown().size());
    Key(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QSize(30, 60), Shown().size());
    Key(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QSize(60, 30), Shown().size());
    Key(Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
    Key(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    Key(Qt::Key_T, Qt::AltModifier);
    EXPECT_EQ("txtDscr", Focus());
    QTest::keyClicks(W->focusWidget(), u"it's \"me\""_s);
    EXPECT_EQ(u"it’s “me”"_s.toStdString(), Text());
    Key(Qt::Key_Return);
    ASSERT_EQ(1u, Album().Slides.size());
    EXPECT_EQ(u"it’s “me”"_s.toStdString(), Slide(1).SlideText.toStdString());
    Key(Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(0, Index());
    Key(Qt::Key_X, Qt::AltModifier);
    EXPECT_EQ(1, Index());
    Key(Qt::Key_N, Qt::AltModifier);
    Key(Qt::Key_V, Qt::AltModifier);
    EXPECT_EQ(1, Index());
    Key(Qt::Key_E, Qt::AltModifier);
    EXPECT_EQ("cboSlides", Focus());
    Key(Qt::Key_Up);
    EXPECT_EQ(0, Index());
    Key(Qt::Key_Down);
    EXPECT_EQ(1, Index());
    Boxes.Expect(
        u"Are you sure you want to delete the selected slide defintion?\n"
        "WARNING: If you procede the slide will be deleted from all\n"
        "Slide Shows that use it?"_s,
        BoxAnswer::Yes);
    Boxes.Expect(u"Slide Deleted Successfully."_s);
    Key(Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(Album().Slides.empty());
    Key(Qt::Key_O, Qt::AltModifier);
    EXPECT_FALSE(W->IsLoaded());
}

TEST_F(SlideDBMKeys, EnterInThePlaceOfThePictureChoosesOne) {
    OpenAlbum();
    auto& Place = In<FlexGrid>(*W, "flxMsg");
    Place.setFocus();
    QTest::keyClick(&Place, Qt::Key_Down);
    QTest::keyClick(&Place, Qt::Key_Return);
    EXPECT_EQ(1, Dialogs.Count);
}

TEST_F(SlideDBMKeys, TheSoundIsSetByItsLetters) {
    const auto ID = AddSound(AddSlide(u"a"_s), false, false);
    OpenSlide(ID);
    Key(Qt::Key_M, Qt::AltModifier);
    Key(Qt::Key_Y, Qt::AltModifier);
    EXPECT_TRUE(Check("chkOverride").isChecked());
    EXPECT_TRUE(Check("chkRepeat").isChecked());
    Key(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(Slide(ID).Override && Slide(ID).Repeat);
    Key(Qt::Key_U, Qt::AltModifier);
    EXPECT_TRUE(Dirty());
    Key(Qt::Key_C, Qt::AltModifier);
    EXPECT_FALSE(Dirty());
}

TEST_F(SlideDBMKeys, TabReachesEveryControlThatWorks) {
    OpenSlide(AddSound(AddSlide(u"a"_s), false, false));
    Type(u"b"_s);
    QStringList Seen;
    for (int I = 0; I < 30; ++I) {
        Seen << W->focusWidget()->objectName();
        Key(Qt::Key_Tab);
    }
    for (const char* Name :
         {"cboAlbum",   "cboSlides",    "cmdPrev",        "cmdNext",       "cmdPicture",
          "cmdRotate1", "cmdRotate2",   "cmdFlip1",       "cmdFlip2",      "txtDscr",
          "cmdRecord",  "cmdSoundFile", "cmdPlaySound",   "cmdClearSound", "chkOverride",
          "chkRepeat",  "cmdNew",       "cmdDelete",      "cmdSave",       "cmdCancel",
          "cmdClose",   "mnuImport",    "cboKeepPictures"})
        EXPECT_TRUE(Seen.contains(QString::fromLatin1(Name))) << Name;
}

// Reached as a child of the main window, whose menu has the letters F, A, L, I, P, W and H.
TEST_F(SlideDBMKeys, LettersAreFreeAndUsedOnce) {
    OpenAlbum();
    QStringList Letters;
    for (const auto* Each : W->findChildren<QAbstractButton*>())
        if (!Each->shortcut().isEmpty()) Letters << Each->shortcut().toString();
    for (const auto* Each : W->findChildren<QLabel*>())
        if (Each->buddy()) Letters << QKeySequence::mnemonic(Each->text()).toString();
    EXPECT_EQ(21, Letters.size());
    EXPECT_EQ(0, Letters.removeDuplicates());
    for (const char Taken : {'F', 'A', 'L', 'I', 'P', 'W', 'H'})
        EXPECT_FALSE(Letters.contains(u"Alt+"_s + QLatin1Char(Taken))) << Taken;
}

TEST_F(SlideDBMKeys, NothingIsCutWithALargeFont) {
    OpenSlide(AddSlide(u"a"_s));
    QFont Large = W->font();
    Large.setPointSizeF(Large.pointSizeF() * 1.5);
    W->setFont(Large);
    QCoreApplication::processEvents();
    W->resize(W->minimumSize());
    QCoreApplication::processEvents();
    for (const auto* Each : W->findChildren<QPushButton*>())
        EXPECT_GE(Each->width(), Each->sizeHint().width()) << Each->objectName().toStdString();
    for (const auto* Each : W->findChildren<QCheckBox*>())
        EXPECT_GE(Each->width(), Each->minimumSizeHint().width());
}

class SlideDBMReadOnly : public SlideDBMKeys {
  protected:
    QStringList State() {
        return Everything(Db.Path()) + Everything(Docs.Path()) + Everything(Pics.Path());
    }
};

TEST_F(SlideDBMReadOnly, ShowsEverythingAndChangesNothing) {
    const auto ID = AddSound(AddSlide(u"a"_s), true, false);
    AddSlide(u"b"_s);
    Dialogs.Answer = MakePicture(Pics / u"new.png"_s);
    ReadOnlyDB = true;
    const QStringList Before = State();
    OpenSlide(ID);
    EXPECT_EQ("a", Text());
    EXPECT_EQ(QSize(40, 30), Shown().size());
    EXPECT_TRUE(Check("chkOverride").isChecked());
    for (const char* Name : {"txtDscr", "cmdNew", "cmdSave", "cmdDelete", "cmdCancel", "cmdFlip1",
                             "cmdFlip2", "cmdRotate1", "cmdRotate2", "cmdPicture", "cmdRecord",
                             "cmdSoundFile", "cmdClearSound", "chkOverride", "chkRepeat"})
        EXPECT_FALSE(IsOn(Name)) << Name;
    EXPECT_FALSE(In<QAction>(*W, "mnuImport").isEnabled());
    for (auto* Each : W->findChildren<QPushButton*>())
        if (Each->objectName() != u"cmdClose" && Each->objectName() != u"cmdPlaySound")
            QTest::mouseClick(Each, Qt::LeftButton);
    for (const Qt::Key Each : {Qt::Key_S, Qt::Key_D, Qt::Key_U, Qt::Key_M, Qt::Key_G, Qt::Key_R})
        Key(Each, Qt::AltModifier);
    Key(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClicks(&Caption(), u"x"_s);
    DoubleClickPicture();
    EXPECT_EQ(0, Dialogs.Count);
    QMimeData Data;
    Data.setUrls({QUrl::fromLocalFile(Dialogs.Answer)});
    QDragEnterEvent Enter({50, 50}, Qt::CopyAction, &Data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(W, &Enter);
    EXPECT_FALSE(Enter.isAccepted());
    Choose("cboSlides", 2);
    EXPECT_EQ("b", Text());
    Push("cmdNext");
    EXPECT_EQ("a", Text());
    BroadcastEvent(u"Album"_s, u"Add Slides"_s, nullptr, {AlbumID, 0});
    EXPECT_FALSE(Dirty());
    Push("cmdClose");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ("", Differences(Before, State()));
    EXPECT_EQ(2u, Album().Slides.size());
}

}  // namespace
}  // namespace neb
