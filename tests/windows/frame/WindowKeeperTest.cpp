#include "windows/frame/WindowKeeper.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "controls/forms/TestForm.h"
#include "harness/TempFolder.h"
#include "settings/modNEBSlideShow.h"
#include "windows/frame/modWindowState.h"

namespace neb {
namespace {

using namespace harness;

class KeptWindow : public ::testing::Test {
  protected:
    KeptWindow() { SetDocumentsPath(Documents.Path()); }
    ~KeptWindow() override {
        DBPathCache.clear();
        DocumentsPath.clear();
    }
    static std::shared_ptr<TestForm> Make(const QString& Name) {
        const auto Window = NewForm<TestForm>();
        Window->setObjectName(Name);
        Window->resize(300, 200);
        return Window;
    }
    // Shows a dialog, lets Do work in it, and gives how it stood on the screen at first.
    static QRect Show(const QString& Name, const std::function<void(TestForm&)>& Do = {}) {
        const auto Window = Make(Name);
        Window->ShowModeless();
        Settle();
        const QRect Stood(Window->pos(), Window->size());
        if (Do) Do(*Window);
        Settle();
        EXPECT_TRUE(Window->Unload());
        Settle();
        return Stood;
    }
    static QString Stored(const char* Section, const char* Key) {
        return OpenSettings().GetValue(QString::fromLatin1(Section), QString::fromLatin1(Key), {});
    }

    TempFolder Documents;
    NoFormsLeft Clean;
    WindowKeeper Keeper;
};

TEST_F(KeptWindow, ADialogComesBackAsItWas) {
    EXPECT_EQ(QSize(300, 200), Show(QStringLiteral("frmPreferences"), [](TestForm& Window) {
                                   Window.resize(500, 400);
                                   Window.move(90, 60);
                               }).size());
    EXPECT_EQ(QRect(90, 60, 500, 400), Show(QStringLiteral("frmPreferences")));
    EXPECT_EQ(u"7500", Stored("frmPreferences", "Width"));
}

TEST_F(KeptWindow, ADialogThatWasMaximisedIsSoAgain) {
    Show(QStringLiteral("frmPreferences"), [](TestForm& Window) { Window.showMaximized(); });
    EXPECT_EQ(u"2", Stored("frmPreferences", "WindowState"));
    const auto Window = Make(QStringLiteral("frmPreferences"));
    Window->ShowModeless();
    Settle();
    EXPECT_TRUE(Window->isMaximized());
}

TEST_F(KeptWindow, OneThatSeesToItItselfOrIsUnknownIsLeftAlone) {
    for (const char* Name : {"frmSlideDBM", "frmProgress"}) {
        Show(QString::fromLatin1(Name), [](TestForm& Window) { Window.resize(500, 400); });
        EXPECT_EQ(u"", Stored(Name, "Width")) << Name;
    }
}

TEST_F(KeptWindow, OneThatIsHiddenForAWhileIsNotSaved) {
    const auto Window = Make(QStringLiteral("frmPreferences"));
    Window->ShowModeless();
    Window->hide();
    EXPECT_EQ(u"", Stored("frmPreferences", "Width"));
    Window->show();
    EXPECT_TRUE(Window->Unload());
    EXPECT_EQ(u"4500", Stored("frmPreferences", "Width"));
}

TEST_F(KeptWindow, AChildIsRestoredInItsFrameAndSavedWhenItGoes) {
    QMainWindow Main;
    auto* Area = new QMdiArea;
    Main.setCentralWidget(Area);
    Main.resize(1000, 800);
    Main.show();
    const auto Open = [Area] {
        auto Window = Make(QStringLiteral("frmDiscFolder"));
        Area->addSubWindow(Window.get());
        Window->Load();
        RestoreKept(*Window);
        PlaceChild(*Window);
        Window->ShowModeless();
        Settle();
        return Window;
    };
    auto Window = Open();
    Window->parentWidget()->setGeometry(30, 40, 450, 350);
    static_cast<QMdiSubWindow*>(Window->parentWidget())->showMinimized();
    Settle();
    static_cast<QMdiSubWindow*>(Window->parentWidget())->showNormal();
    Settle();
    EXPECT_TRUE(Window->Unload());
    Settle();
    Window = Open();
    EXPECT_EQ(QRect(30, 40, 450, 350), Window->parentWidget()->geometry());
    EXPECT_TRUE(Window->Unload());
    Settle();
}

}  // namespace
}  // namespace neb
