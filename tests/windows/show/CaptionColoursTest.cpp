// A caption is as white on a desktop whose letters have coloured edges as on any other: beamers and
// televisions do not have their colours where the desktop's own screen has them.
#include <gtest/gtest.h>

#include <QBackingStore>
#include <QProcess>
#include <QTest>
#include <iostream>

#include "harness/ChildRole.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"
#include "windows/show/CaptionLabel.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

int ColouredPixels(QLabel& Label) {
    QPalette Dark;
    Dark.setColor(QPalette::Window, Qt::black);
    Dark.setColor(QPalette::WindowText, Qt::white);
    Label.setPalette(Dark);
    Label.setText(u"A day at the lake"_s);
    Label.resize(300, 40);
    Label.show();
    if (!QTest::qWaitForWindowExposed(&Label)) return -1;
    Label.repaint();
    const auto& Screen = dynamic_cast<QImage&>(*Label.backingStore()->paintDevice());
    int Count = 0;
    for (int Y = 0; Y < Label.height(); ++Y)
        for (int X = 0; X < Label.width(); ++X)
            Count += qRed(Screen.pixel(X, Y)) != qBlue(Screen.pixel(X, Y));
    return Count;
}

int TellColours() {
    QLabel Other;
    CaptionLabel Caption;
    std::cout << (ColouredPixels(Other) > 0 ? "coloured " : "white ");
    std::cout << (ColouredPixels(Caption) > 0 ? "coloured" : "white");
    return 0;
}

const harness::ChildRole ColourTeller("caption-colours", &TellColours);

TEST(CaptionColours, AreNotTakenFromTheDesktop) {
    const harness::TempFolder Folder;
    const QString Config = Folder / u"fonts.conf"_s;
    WriteFile(Config, R"(<fontconfig><include>/etc/fonts/fonts.conf</include><match target="font">)"
                      R"(<edit name="rgba" mode="assign"><const>rgb</const></edit></match>)"
                      R"(</fontconfig>)");
    QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
    Environment.insert(u"FONTCONFIG_FILE"_s, Config);
    QProcess Copy;
    Copy.setProcessEnvironment(Environment);
    Copy.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    Copy.start(QCoreApplication::applicationFilePath(), {u"--role"_s, u"caption-colours"_s});
    ASSERT_TRUE(Copy.waitForFinished(30000));
    EXPECT_EQ("coloured white", Copy.readAllStandardOutput().toStdString());
}

}  // namespace
}  // namespace neb
