// The entry of every test program: an application without a display of its own (unless the
// caller sets a platform), with the screen size that the windows are judged at.
#include <gtest/gtest.h>

#include <QFile>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include "controls/forms/NebApplication.h"
#include "controls/forms/StandOver.h"
#include "harness/ByTheClock.h"
#include "harness/ChildRole.h"
#include "support/work/ProcessEnd.h"

namespace {

QTemporaryDir& Scratch() {
    static QTemporaryDir Dir;
    return Dir;
}

// Whatever language the user of a test has, and with it every process that it starts.
void SpeakEnglish() {
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
}

void ChoosePlatform() {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return;
    const QString Config = Scratch().filePath(QStringLiteral("screen.json"));
    QFile File(Config);
    if (!File.open(QIODevice::WriteOnly)) return;
    File.write(R"({"screens":[{"name":"s1","x":0,"y":0,"width":1280,"height":1024,)"
               R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})");
    qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + Config).toUtf8());
}

// The slice that this program runs is chosen by now; what it starts runs all of its own tests.
class WholeChildren : public ::testing::Environment {
    void SetUp() override {
        qunsetenv("GTEST_TOTAL_SHARDS");
        qunsetenv("GTEST_SHARD_INDEX");
    }
};

// A modal window that the desktop knows nothing about may fall behind the window that waits for it.
class ModalWatch : public QObject {
  public:
    bool eventFilter(QObject* Watched, QEvent* Event) override {
        auto* Window = qobject_cast<QWidget*>(Watched);
        if (Event->type() == QEvent::Show && Window && Window->isWindow() && Window->isModal())
            Look(*Window, neb::WindowInUse());
        return false;
    }

  private:
    static void Look(QWidget& Window, QPointer<QWidget> Opener) {
        QTimer::singleShot(0, &Window, [&Window, Opener] {
            if (!Opener || Opener == &Window || !Window.isVisible()) return;
            EXPECT_EQ(Window.windowHandle()->transientParent(), Opener->window()->windowHandle())
                << Window.metaObject()->className() << " does not stand over "
                << Opener->metaObject()->className();
        });
    }
};

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    SpeakEnglish();
    ChoosePlatform();
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", Scratch().path().toUtf8());
    // what the program keeps among the user's own files is no business of a test's user
    qputenv("XDG_CONFIG_HOME", Scratch().filePath(QStringLiteral("config")).toUtf8());
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    neb::NebApplication App(argc, argv);
    App.setQuitOnLastWindowClosed(false);
    ModalWatch Watch;
    App.installEventFilter(&Watch);
    if (argc == 3 && std::string(argv[1]) == "--role") return neb::harness::Roles().at(argv[2])();
    ::testing::AddGlobalTestEnvironment(new WholeChildren);
    return neb::EndProcess(neb::harness::RunTests());
}
