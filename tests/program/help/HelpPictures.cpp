// The pictures of the help, taken of the real windows with photographs in them.
// scripts/help-pictures runs this role and makes the files of them:
//
//   NEB_WINDOWS_SAMPLES=FOLDER NEB_WINDOWS_PICTURES=FOLDER test_program --role take-help-pictures
//
// and in another language with NEB_WINDOWS_LANGUAGE and NEB_WINDOWS_WORDS (EveryWindow.h).
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTreeView>
#include <map>

#include "HelpRig.h"
#include "controls/grid/FlexGrid.h"
#include "harness/ChildRole.h"
#include "program/EveryWindow.h"
#include "windows/home/HomePage.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/slides/frmSetCaptions.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

constexpr int SettleMs = 600, ShowMs = 4000, AwaitMs = 20'000;

QWidget* FramedWindow(QWidget& Window) {
    auto* Frame = qobject_cast<QMdiSubWindow*>(Window.parentWidget());
    return Frame ? Frame : &Window;
}

bool IsTaken(const QString& Name) {
    return QFile::exists(qEnvironmentVariable("NEB_WINDOWS_PICTURES") + u'/' + Name + u".png"_s);
}

void Take(const QString& Name, QWidget& Window) {
    const QString Folder = qEnvironmentVariable("NEB_WINDOWS_PICTURES");
    if (!IsTaken(Name)) FramedWindow(Window)->grab().save(Folder + u'/' + Name + u".png"_s);
}

void AwaitPicture(const QString& Name) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return IsTaken(Name); }, AwaitMs)) << Name.toStdString();
    QTest::qWait(SettleMs);
}

// Calls Do with a window that what is done next brings up, from inside its own loop.
template <class Window>
void OnceUp(const std::function<void(Window&)>& Do) {
    QTimer::singleShot(100, qApp, [Do] {
        for (const auto& Each : LoadedForms())
            if (auto* Up = dynamic_cast<Window*>(Each.get()); Up && Up->isVisible()) {
                QTest::qWait(SettleMs);
                Do(*Up);
                Up->Unload();
                return;
            }
        OnceUp<Window>(Do);
    });
}

void Press(QWidget& Window, const char* Button) {
    // A button with a mark is pressed on it: the middle may lie behind its text.
    auto* Its = Window.findChild<QWidget*>(QLatin1String(Button));
    QTest::mouseClick(Its, Qt::LeftButton, {}, {Its->height() / 2, Its->height() / 2});
}

void Choose(QWidget& Window, const char* List, int Row) {
    auto* Box = Window.findChild<QComboBox*>(QLatin1String(List));
    Box->setFocus();
    while (Box->currentIndex() < Row) QTest::keyClick(Box, Qt::Key_Down);
    QTest::qWait(SettleMs);
}

void TakeHome(QWidget& Window) {
    auto& Main = dynamic_cast<frmNEBSlideShow&>(Window);
    Main.Home().Fill();
    QTest::qWait(SettleMs);
    Take(u"frmNEBSlideShow"_s, Window);
    for (auto* View : Main.Home().findChildren<QAbstractItemView*>())
        if (View->isVisible()) {
            View->setFocus();
            View->setCurrentIndex(View->model()->index(0, 0));
            QTest::keyClick(View, Qt::Key_Return);
            break;
        }
    QTest::qWait(2 * SettleMs);
    Take(u"gallery"_s, Window);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
}

void TakeSetCaptions(QWidget& Window) {
    auto* Grid = Window.findChild<FlexGrid*>(u"flxAlbum"_s);
    Grid->setFocus();
    Grid->selectAll();
    OnceUp<frmSetCaptions>([](frmSetCaptions& Up) {
        QTest::keyClicks(Up.findChild<QWidget*>(u"txtPattern"_s),
                         harness::SampleWords(u"Holiday #"_s));
        Take(u"frmSetCaptions"_s, Up);
    });
    Press(Window, "cmdSetCaptions");
    AwaitPicture(u"frmSetCaptions"_s);
}

void TakeKeyCard(QWidget& Window) {
    OnceUp<frmSlideShowProjector>([](frmSlideShowProjector& Up) {
        QTest::keyClick(&Up, Qt::Key_F1);
        QTest::qWait(SettleMs);
        Take(u"key-card"_s, *Up.findChild<QWidget*>(u"KeyCard"_s));
    });
    Window.findChild<QAction*>(u"mnuSlideShowView"_s)->trigger();
    AwaitPicture(u"key-card"_s);
}

// The user's own folders, not those of the machine.
void ShowFolders(QWidget& Window) {
    auto* Tree = Window.findChild<QTreeView*>();
    Tree->expand(Tree->currentIndex());
    QTest::qWait(SettleMs);
    Tree->scrollTo(Tree->currentIndex(), QAbstractItemView::PositionAtTop);
}

// What is done to a window before its picture is taken, or, for what it opens, after it.
const std::map<QString, void (*)(QWidget&)> Before{
    {u"frmNEBSlideShow"_s, &TakeHome},
    {u"frmSlideDBM"_s, [](QWidget& Window) { Choose(Window, "cboSlides", 4); }},
    {u"frmQuickShow"_s,
     [](QWidget& Window) {
         auto* Name = Window.findChild<QLineEdit*>(u"txtName"_s);
         Name->selectAll();
         QTest::keyClicks(Name, harness::SampleWords(u"Holidays"_s));
     }},
    {u"frmPreferences"_s,
     [](QWidget& Window) {
         for (const QString& Each : {u"SpeedTest1.bmp"_s, u"SpeedTest2.bmp"_s})
             QFile::copy(QStringLiteral(NEB_BINARY_DIR "/bin/") + Each, AppPath() + Each);
         Choose(Window, "cboAlbums", 0);
         Choose(Window, "cboSlideShows", 0);
         Press(Window, "optEffects1");
         QTest::keyClicks(Window.findChild<QWidget*>(u"lstEffects"_s),
                          harness::SampleWords(u"iris"_s));
         Press(Window, "cmdPreview");
         QTest::qWait(ShowMs);
     }},
    {u"frmDirSelect"_s, &ShowFolders},
    {u"frmNewAlbumWzd1"_s, &ShowFolders},
    {u"frmFilm"_s, [](QWidget&) { QTest::qWait(ShowMs); }},
};
const std::map<QString, void (*)(QWidget&)> After{{u"frmSlideMgrBulk"_s, &TakeSetCaptions},
                                                  {u"frmSlideShowDBM"_s, &TakeKeyCard}};

int TakeAll() {
    harness::SpeakLanguageOfWindows();
    const int Count = harness::LookAtEveryWindow(
        harness::Content::Albums, [](const QString& Name, QWidget& Window) {
            QTest::qWait(SettleMs);
            if (const auto Its = Before.find(Name); Its != Before.end()) Its->second(Window);
            Take(Name, Window);
            if (const auto Its = After.find(Name); Its != After.end()) Its->second(Window);
        });
    std::printf("%d windows\n", Count);
    return ::testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? 1 : 0;
}
const harness::ChildRole Taking("take-help-pictures", &TakeAll);

}  // namespace
}  // namespace neb
