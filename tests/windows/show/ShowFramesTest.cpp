// What the log has at the end of a show: its transitions, their frames, and how many came late.
#include <QRegularExpression>
#include <QTest>

#include "ProjectorRig.h"
#include "settings/modNEBSlideShow.h"
#include "support/files/modHostFiles.h"
#include "windows/frame/Openers.h"

namespace neb::test {
namespace {

using Projector = frmSlideShowProjector;

class ShowFrames : public ProjectorRig {
  protected:
    ShowFrames() {
        TheOpeners().Notice = [this](const QString& Text) { Told << Text; };
        AddSlides(3);
        Put("DelayL", QStringLiteral("100"));
    }
    ~ShowFrames() override {
        TheOpeners().Notice = {};
        DebugMode = false;
    }

    void RunOfTwo() {
        Run([&](Projector& Window) {
            for (int I = 0; I < 2; ++I) {
                EXPECT_TRUE(QTest::qWaitFor([&] { return !Picture->IsRunning(); }));
                if (I == 0) QTest::keyClick(&Window, Qt::Key_Up);
            }
            Frames = Picture->Frames().Text();
            QTest::keyClick(&Window, Qt::Key_Escape);
        });
    }
    static QString Log() {
        const QString Path = OwnPath() + QStringLiteral("QLM.log");
        return FileExists(Path) ? QString::fromUtf8(ReadFile(Path)) : QString();
    }

    QStringList Told;
    QString Frames;
};

TEST_F(ShowFrames, AreInTheLogAndNotBeforeTheUser) {
    Put("StepL", QStringLiteral("5"));
    DebugMode = true;
    RunOfTwo();
    EXPECT_TRUE(Told.isEmpty()) << Told.value(0).toStdString();
    static const QRegularExpression Form(QStringLiteral("^2 transitions, \\d+ frames, \\d+ late$"));
    EXPECT_TRUE(Form.match(Frames).hasMatch()) << Frames.toStdString();
    EXPECT_TRUE(Log().contains(QStringLiteral("\tInformation\t") + Frames)) << Log().toStdString();
}

TEST_F(ShowFrames, AreInNoLogThatNobodyWants) {
    Put("StepL", QStringLiteral("5"));
    RunOfTwo();
    EXPECT_TRUE(Told.isEmpty());
    EXPECT_EQ("", Log().toStdString());
}

TEST_F(ShowFrames, AreNotToldOfAShowWithoutTransitions) {
    DebugMode = true;
    RunOfTwo();
    EXPECT_FALSE(Log().contains(QStringLiteral("transition"))) << Log().toStdString();
}

}  // namespace
}  // namespace neb::test
