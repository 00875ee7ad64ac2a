// The entry of every test program: an application without a display of its own (unless the
// caller sets a platform), with the screen size that the windows are judged at.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include "controls/forms/NebApplication.h"
#include "harness/ChildRole.h"

namespace {

QTemporaryDir& Scratch() {
    static QTemporaryDir Dir;
    return Dir;
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

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    ChoosePlatform();
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", Scratch().path().toUtf8());
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    neb::NebApplication App(argc, argv);
    App.setQuitOnLastWindowClosed(false);
    if (argc == 3 && std::string(argv[1]) == "--role") return neb::harness::Roles().at(argv[2])();
    return RUN_ALL_TESTS();
}
