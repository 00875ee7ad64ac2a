// Apply in the Preferences window: what it takes over and writes, what it refuses.
#include <QCheckBox>
#include <QLabel>

#include "PreferencesRig.h"
#include "show/ShowSettings.h"
#include "support/Fault.h"

namespace neb::test {
namespace {

using PreferencesApply = PreferencesRig;

TEST_F(PreferencesApply, KeepsAllThatWasEntered) {
    AddAlbum("Garden", {"Roses", "Trees"});
    Open([&] {
        Combo("cboAlbums").setCurrentText("Garden");
        Combo("cboSlideShows").setCurrentText("Trees");
        Type("txtNextSlide", "6");
        Type("txtSlideTimeout", "4");
        QTest::keyClick(&In<QSlider>("sdrMaxEffectLevel"), Qt::Key_End);
        QTest::mouseClick(&In<QRadioButton>("optEffects1"), Qt::LeftButton, {}, {10, 10});
        Press("cmdSelectNone");
        List().setFocus();
        GoTo(2);
        QTest::keyClick(&List(), Qt::Key_Space);
        const char* Cells[] = {"1", "0", "100", "1000", "33", "5"};
        for (int I = 0; I < 6; ++I) TypeInCell(I / 2, ColStep + I % 2, Cells[I]);
        Press("cmdApply");
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ("These settings are kept.", In<QLabel>("lblApplied").text());
    });
    const PreferencesState Now = ReadPreferences(OpenSettings());
    EXPECT_EQ(Window->AlbumID(), Now.AlbumID);
    EXPECT_EQ("Garden", Window->AlbumName());
    EXPECT_EQ(Engine.GetAlbum(Now.AlbumID)->GetSlideShow(Now.SlideShowID)->SlideShowName, "Trees");
    EXPECT_EQ(6, Now.NextSlideSeq);
    EXPECT_EQ(4, Now.SlideTimeout);
    EXPECT_EQ(3, Now.Effects.MaxEffectLevel);
    EXPECT_FALSE(Now.Effects.UseEffectLevel);
    for (size_t Effect = 0; Effect <= 127; ++Effect)
        EXPECT_EQ(Effect == 0 || Effect == 3, Now.EffectSelected[Effect]) << Effect;
    EXPECT_EQ("1,0,100,1000,33,5",
              (Setting("StepL") + ',' + Setting("DelayL") + ',' + Setting("StepM") + ',' +
               Setting("DelayM") + ',' + Setting("StepH") + ',' + Setting("DelayH")));
    EXPECT_EQ(1000, Now.Effects.DelayL) << "a delay of 0 is corrected at the next reading";
}

TEST_F(PreferencesApply, KeepsHowPicturesAreToBeKept) {
    Open([&] {
        EXPECT_EQ("1024 x 768", Combo("cboKeepPictures").currentText());
        EXPECT_TRUE(In<QCheckBox>("chkKeepPlace").isChecked());
        QTest::keyClick(&Combo("cboKeepPictures"), Qt::Key_Down);
        QTest::mouseClick(&In<QCheckBox>("chkKeepPlace"), Qt::LeftButton, {}, {10, 10});
        Press("cmdApply");
    });
    EXPECT_EQ("1920x1080", ReadPreferences(OpenSettings()).KeepPictures);
    EXPECT_FALSE(ReadPreferences(OpenSettings()).KeepPlace);
    Open([&] {
        EXPECT_EQ("1920 x 1080", Combo("cboKeepPictures").currentText());
        EXPECT_FALSE(In<QCheckBox>("chkKeepPlace").isChecked());
    });
}

TEST_F(PreferencesApply, WithNoAlbumChosenWritesAlbumZeroAndLeavesTheShow) {
    Put("ActiveAlbum", "77");
    Put("ActiveSlideShow", "5");
    Open([&] { Press("cmdApply"); });
    EXPECT_EQ("0", Setting("ActiveAlbum"));
    EXPECT_EQ("5", Setting("ActiveSlideShow"));
    EXPECT_EQ(0, Window->AlbumID());
    EXPECT_EQ(5, Window->SlideShowID());
}

TEST_F(PreferencesApply, WithNoShowChosenWritesShowZero) {
    MakeActive();
    Put("ActiveSlideShow", "77");
    Open([&] { Press("cmdApply"); });
    EXPECT_EQ(QString::number(Album), Setting("ActiveAlbum"));
    EXPECT_EQ("0", Setting("ActiveSlideShow"));
}

TEST_F(PreferencesApply, ReadsAndWritesTheFlagOfNumberZero) {
    Put("Effect.000", "off", "Effect Selections");
    Put("UseEffectLevel", "False");
    Open([&] {
        Press("cmdSelectAll");
        Press("cmdApply");
    });
    const clsSettings Settings = OpenSettings();
    EXPECT_EQ("False", Settings.GetValue("Effect Selections", "Effect.000", "none"));
    EXPECT_EQ("True", Settings.GetValue("Effect Selections", "Effect.001", "none"));
}

TEST_F(PreferencesApply, IsWhatEnterDoes) {
    for (const char* Place : {"txtSlideTimeout", "lstEffects", "cboAlbums"})
        Open([&] {
            EXPECT_TRUE(In<QPushButton>("cmdApply").isDefault());
            In<QWidget>(Place).setFocus();
            QTest::keyClick(&In<QWidget>(Place), Qt::Key_Return);
            EXPECT_TRUE(IsOpen()) << Place;
            EXPECT_EQ("20", Setting("Timeout")) << Place;
            QTest::keyClick(Window.get(), Qt::Key_Return);
            EXPECT_FALSE(IsOpen()) << "Enter once more closes";
            Put("Timeout", "");
        });
}

TEST_F(PreferencesApply, MayBePressedAgainForWhatIsChangedThen) {
    Open([&] {
        ApplyTimeout(*Window, "8");
        ExpectRefusal("The Slide Timeout must be >= 4 seconds.");
        ApplyTimeout(*Window, "1");
        EXPECT_EQ("", In<QLabel>("lblApplied").text()) << "nothing of this was kept";
        EXPECT_EQ("8", Setting("Timeout"));
        ApplyTimeout(*Window, "9");
        EXPECT_EQ(9, Window->SlideTimeout());
    });
    EXPECT_EQ("9", Setting("Timeout"));
}

TEST_F(PreferencesApply, TakesACellThatIsStillBeingTyped) {
    Open([&] {
        TypeInCell(2, ColDelay, "321", false);
        Press("cmdApply");
    });
    EXPECT_EQ("321", Setting("DelayH"));
}

TEST_F(PreferencesApply, RefusesATimeoutBelowFourSeconds) {
    Open([&] {
        const QByteArray Before = FileText();
        ExpectRefusal("The Slide Timeout must be >= 4 seconds.");
        ApplyTimeout(*Window, "3.9");
        ExpectRefusal("The Slide Timeout must be numeric.");
        Text("txtSlideTimeout").clear();
        ApplyTimeout(*Window, "x.");
        EXPECT_EQ(2, Boxes.ShownCount());
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ(Before, FileText());
        EXPECT_EQ(20, Window->SlideTimeout());
        EXPECT_EQ(".", Text("txtSlideTimeout").selectedText()) << "ready to be typed over";
        ApplyTimeout(*Window, "4");
    });
    EXPECT_EQ("4", Setting("Timeout"));
    EXPECT_EQ(4, Window->SlideTimeout());
}

TEST_F(PreferencesApply, RefusesCellsOutOfRangeAndGoesThere) {
    const struct {
        int Row, Col;
        const char *Text, *Message;
    } Cases[] = {
        {0, ColStep, "0", "You must enter an integer from 1 to 100 for the step."},
        {1, ColStep, "101", "You must enter an integer from 1 to 100 for the step."},
        {2, ColStep, "", "You must enter an integer from 1 to 100 for the step."},
        {0, ColDelay, "-1", "You must enter an integer from 0 to 1000 for the delay."},
        {1, ColDelay, "1001", "You must enter an integer from 0 to 1000 for the delay."},
        {2, ColDelay, "1.5", "You must enter an integer from 0 to 1000 for the delay."},
    };
    const QByteArray Before = FileText();
    for (const auto& Case : Cases)
        Open([&] {
            PasteInCell(Case.Row, Case.Col, Case.Text);
            ExpectRefusal(Case.Message);
            Press("cmdApply");
            EXPECT_TRUE(IsOpen());
            EXPECT_EQ(Case.Row, Grid().Row());
            EXPECT_EQ(Case.Col, Grid().Col());
            EXPECT_TRUE(Grid().hasFocus()) << "ready to be typed over";
            EXPECT_EQ(25, ReadPreferences(OpenSettings()).Effects.StepL);
        });
    EXPECT_EQ(Before, FileText());
    EXPECT_EQ(6, Boxes.ShownCount());
}

TEST_F(PreferencesApply, WritesTheFileOnce) {
    int Writes = 0;
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        Writes += Step == HostStep::Write && Path.contains(QStringLiteral("QLM.ini"));
    });
    Open([&] {
        EXPECT_EQ(0, Writes);
        Press("cmdApply");
    });
    SetHostWatcher({});
    EXPECT_EQ(1, Writes);
}

TEST_F(PreferencesApply, ThatCannotSaveSaysSoAndStaysOpen) {
    Open([&] {
        SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Write && Path.contains(QStringLiteral("QLM.ini")))
                throw Fault(QStringLiteral("the disk is full"), Path);
        });
        Boxes.Expect(QStringLiteral("the disk is full\n%1.new").arg(OpenSettings().FileName()),
                     QStringLiteral("Operation Failed"), BoxIcon::Critical, BoxAnswer::Ok);
        Press("cmdApply");
        SetHostWatcher({});
        EXPECT_TRUE(IsOpen());
    });
    EXPECT_EQ(1, Boxes.ShownCount());
}

}  // namespace
}  // namespace neb::test
