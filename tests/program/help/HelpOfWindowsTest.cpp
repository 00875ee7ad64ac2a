// F1 in every window of the program, as a user presses it: the help opens at the page that tells of
// that window, and the page names all that can be pressed there.
#include <QAbstractButton>
#include <QApplication>
#include <QRegularExpression>
#include <QTabBar>

#include "HelpRig.h"
#include "program/EveryWindow.h"
#include "program/help/modHelp.h"

namespace neb {
namespace {

QString ButtonWords(QString Text) {
    return Text.remove('&').remove("...").trimmed().section('\n', 0, 0).trimmed();
}

// Text in bold, whatever else stands around it.
bool IsNamed(QString Page, const QString& Text) {
    Page.replace("&lt;", "<").replace("&gt;", ">").replace("&amp;", "&");
    return Page.contains("<b>" + Text + "</b>");
}

QStringList ButtonsIn(const QWidget& Window) {
    QStringList Texts;
    for (const auto* Each : Window.findChildren<QAbstractButton*>()) {
        const QString Text = ButtonWords(Each->text());
        const bool IsOfAField = Each->parentWidget()->inherits("QComboBox") ||
                                Each->parentWidget()->inherits("QLineEdit");
        if (Text.size() > 1 && !IsOfAField && Each->isVisibleTo(&Window) && !Texts.contains(Text))
            Texts << Text;
    }
    return Texts;
}

// Presses F1 and gives the page at which the help opened, which is closed again.
std::string PageBehindF1(QWidget& Window) {
    std::string Page;
    QTimer Watch;
    QObject::connect(&Watch, &QTimer::timeout, [&] {
        for (const auto& Each : LoadedForms()) {
            auto* Opened = dynamic_cast<frmHelp*>(Each.get());
            if (!Opened || !Opened->isVisible() || Opened == &Window) continue;
            Page = Opened->Page().toStdString();
            Opened->Unload();
        }
    });
    Watch.start(20);
    Window.window()->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(Window.window()));
    QWidget* On = Window.focusWidget() ? Window.focusWidget() : &Window;
    QTest::keyClick(On, Qt::Key_F1);
    QTest::qWaitFor([&] { return !Page.empty(); }, 3000);
    return Page;
}

// Those over which nothing opens, and the help itself, which shows the page in its place.
bool OpensNoOther(const QString& Name) {
    return QStringList{"frmLoading", "frmProgress", "frmTransferProgress", "frmHelp"}.contains(
        Name);
}

class WindowsIn : public InEachLanguage<::testing::Test> {};
INSTANTIATE_TEST_SUITE_P(Languages, WindowsIn, ::testing::ValuesIn(HelpLanguages()),
                         &NameOfLanguage);

TEST_P(WindowsIn, F1OpensThePageOfEachWindowWhichNamesAllItsButtons) {
    int Windows = 0, Buttons = 0;
    harness::LookAtEveryWindow(harness::Content::Albums, [&](const QString& Name, QWidget& Window) {
        ++Windows;
        LayHelpInto(AppPath());
        const QString Page = HelpPageOf(Name);
        ASSERT_FALSE(Page.isEmpty()) << Name.toStdString();
        const std::string Opened = OpensNoOther(Name) ? Page.toStdString() : PageBehindF1(Window);
        EXPECT_EQ(Page.toStdString(), Opened) << Name.toStdString();
        for (const QString& Text : ButtonsIn(Window)) {
            ++Buttons;
            EXPECT_TRUE(IsNamed(Source(Page), Text))
                << Page.toStdString() << ": " << Text.toStdString();
        }
    });
    EXPECT_GT(Windows, 35);
    EXPECT_GT(Buttons, 100);
}

// The table of the windows in the documents says for each which page tells of it.
TEST(HelpOfWindows, EachHasThePageThatTheDocumentsNameAndTheHelpHas) {
    const QString Text = QString::fromUtf8(ReadFile(NEB_SOURCE_DIR "/docs/ARCHITECTURE.md"));
    int Windows = 0;
    for (const QString& Line : Text.split('\n')) {
        const QStringList Cells = Line.split('|');
        if (Cells.size() < 5 || !Cells[2].contains("`frm")) continue;
        const QString Class = Cells[2].trimmed().remove('`'), Page = Cells[4].trimmed();
        ++Windows;
        EXPECT_EQ(Page.toStdString(), HelpPageOf(Class).toStdString()) << Class.toStdString();
        const bool IsNeverSeen = Class == u"frmLoadSlide";
        EXPECT_TRUE(IsNeverSeen || HelpPages().contains(Page)) << Class.toStdString();
    }
    EXPECT_GT(Windows, 40);
}

}  // namespace
}  // namespace neb
