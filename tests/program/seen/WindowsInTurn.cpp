// Every window in turn on the screen, for somebody who looks at it from outside: each is told by
// its class and title on a line, and stays until a line is answered. tests/demo/by-ear
// is that somebody.
#include <QEventLoop>
#include <QSocketNotifier>
#include <cstdio>
#include <iostream>
#include <string>

#include "harness/ChildRole.h"
#include "program/EveryWindow.h"

namespace neb {
namespace {

void AwaitLine() {
    QEventLoop Loop;
    QSocketNotifier Line(0, QSocketNotifier::Read);
    QObject::connect(&Line, &QSocketNotifier::activated, &Loop, &QEventLoop::quit);
    Loop.exec();
    std::string Read;
    std::getline(std::cin, Read);
}

int ShowInTurn() {
    const auto Of = qEnvironmentVariableIsSet("NEB_WINDOWS_EMPTY") ? harness::Content::None
                                                                   : harness::Content::Albums;
    harness::LookAtEveryWindow(Of, [](const QString& Name, QWidget& Window) {
        std::printf("%s\t%s\n", qPrintable(Name), qPrintable(Window.windowTitle()));
        std::fflush(stdout);
        AwaitLine();
    });
    return ::testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? 1 : 0;
}
const harness::ChildRole Showing("show-windows-in-turn", &ShowInTurn);

}  // namespace
}  // namespace neb
