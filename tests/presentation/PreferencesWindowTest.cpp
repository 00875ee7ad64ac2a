// The Preferences window: what it shows, what Apply takes and refuses, what Close leaves.
#include <QApplication>
#include <QFile>

#include "PreferencesRig.h"
#include "presentation/ShowSettings.h"
#include "support/Fault.h"

namespace neb::test {
namespace {

using PreferencesWindow = PreferencesRig;
using PreferencesApply = PreferencesRig;

QStringList Items(const QComboBox& Box) {
    QStringList All;
    for (int I = 0; I < Box.count(); ++I) All << Box.itemText(I);
    return All;
}

TEST_F(PreferencesWindow, ShowsTheDefaultsOfAnEmptyFile) {
    Open([&] {
        EXPECT_EQ(QStringList("Holiday"), Items(Combo("cboAlbums")));
        EXPECT_EQ(-1, Combo("cboAlbums").currentIndex());
        EXPECT_EQ(0, Combo("cboSlideShows").count());
        EXPECT_EQ("0", Text("txtNextSlide").text());
        EXPECT_EQ("20", Text("txtSlideTimeout").text());
        EXPECT_EQ(1, In<QSlider>("sdrMaxEffectLevel").value());
        EXPECT_TRUE(In<QRadioButton>("optEffects0").isChecked());
        EXPECT_FALSE(In<QRadioButton>("optEffects1").isChecked());
        for (int Row = 0; Row < 3; ++Row) {
            EXPECT_EQ(QStringList({"Lite", "Normal", "Intense"})[Row],
                      Grid().TextMatrix(Row, ColLevel));
            EXPECT_EQ("25", Grid().TextMatrix(Row, ColStep));
            EXPECT_EQ("1000", Grid().TextMatrix(Row, ColDelay));
        }
        EXPECT_EQ(20, Window->SlideTimeout());
        EXPECT_EQ("", Window->AlbumName());
    });
}

TEST_F(PreferencesWindow, ShowsWhatTheFileSays) {
    MakeActive();
    AddAlbum("Garden", {});
    Engine.GetAlbum(Album)->SaveSlideShow(Show = 0, QStringLiteral("Beach"), 0, Engine);
    Put("NextSlideSeq", "4");
    Put("Timeout", "7.5");
    Put("UseEffectLevel", "False");
    Put("MaxEffectLevel", "3");
    const char* Keys[] = {"StepL", "DelayL", "StepM", "DelayM", "StepH", "DelayH"};
    for (int I = 0; I < 6; ++I) Put(Keys[I], QString::number(I + 1));
    Open([&] {
        EXPECT_EQ(QStringList({"Garden", "Holiday"}), Items(Combo("cboAlbums")));
        EXPECT_EQ("Holiday", Combo("cboAlbums").currentText());
        EXPECT_EQ("Holiday", Window->AlbumName());
        EXPECT_EQ(QStringList({"Beach", "Lake"}), Items(Combo("cboSlideShows")));
        EXPECT_EQ("Lake", Combo("cboSlideShows").currentText());
        EXPECT_EQ("4", Text("txtNextSlide").text());
        EXPECT_EQ("7.5", Text("txtSlideTimeout").text());
        EXPECT_EQ(3, In<QSlider>("sdrMaxEffectLevel").value());
        EXPECT_TRUE(In<QRadioButton>("optEffects1").isChecked());
        for (int I = 0; I < 6; ++I)
            EXPECT_EQ(QString::number(I + 1), Grid().TextMatrix(I / 2, ColStep + I % 2)) << I;
    });
}

TEST_F(PreferencesWindow, ListsTheNamesOfTheControlInTheOrderOfTheirNumbers) {
    Put("Effect.002", "False", "Effect Selections");
    Put("Effect.127", "0", "Effect Selections");
    Engine.SaveEffectStat(3, 1.2);
    Engine.SaveEffectStat(4, 9);
    Open([&] {
        ASSERT_EQ(127, List().count());
        XShow Asked;
        for (int Effect = 1; Effect <= 127; ++Effect) {
            Asked.SetEffectNumber(Effect);
            EXPECT_EQ(Asked.EffectName(), List().item(Effect - 1)->text());
            EXPECT_EQ(Effect, List().item(Effect - 1)->data(Qt::UserRole).toInt());
            EXPECT_EQ(Effect != 2 && Effect != 127, List().item(Effect - 1)->isSelected());
        }
        const auto Level = [&](int Row) {
            return List().item(Row)->data(Qt::AccessibleDescriptionRole).toString();
        };
        EXPECT_EQ("Lite", Level(1));
        EXPECT_EQ("Normal", Level(2));
        EXPECT_EQ("Intense", Level(3));
    });
}

TEST_F(PreferencesWindow, ChoosesNothingForAnAlbumOrShowThatIsGone) {
    Put("ActiveAlbum", "77");
    Put("ActiveSlideShow", QString::number(Show));
    Open([&] {
        EXPECT_EQ(-1, Combo("cboAlbums").currentIndex());
        EXPECT_EQ(0, Combo("cboSlideShows").count());
    });
    Put("ActiveAlbum", QString::number(Album));
    Put("ActiveSlideShow", "77");
    Open([&] {
        EXPECT_EQ("Holiday", Combo("cboAlbums").currentText());
        EXPECT_EQ(1, Combo("cboSlideShows").count());
        EXPECT_EQ(-1, Combo("cboSlideShows").currentIndex());
    });
}

TEST_F(PreferencesWindow, AnotherAlbumBringsItsShowsWithNoneChosen) {
    MakeActive();
    AddAlbum("Garden", {"Roses", "Trees"});
    Open([&] {
        Combo("cboAlbums").setFocus();
        QTest::keyClick(&Combo("cboAlbums"), Qt::Key_Up);
        EXPECT_EQ("Garden", Combo("cboAlbums").currentText());
        EXPECT_EQ(QStringList({"Roses", "Trees"}), Items(Combo("cboSlideShows")));
        EXPECT_EQ(-1, Combo("cboSlideShows").currentIndex());
        QTest::keyClick(&Combo("cboAlbums"), Qt::Key_Down);
        EXPECT_EQ(QStringList("Lake"), Items(Combo("cboSlideShows")));
        EXPECT_EQ(-1, Combo("cboSlideShows").currentIndex());
    });
}

TEST_F(PreferencesWindow, TheTimeoutTakesDigitsAndOnePoint) {
    Open([&] {
        Type("txtSlideTimeout", "a1-2.5.x7,");
        EXPECT_EQ("12.57", Text("txtSlideTimeout").text());
        QTest::keyClick(&Text("txtSlideTimeout"), Qt::Key_Backspace);
        EXPECT_EQ("12.5", Text("txtSlideTimeout").text());
        QTest::keyClick(&Text("txtSlideTimeout"), Qt::Key_Home);
        QTest::keyClick(&Text("txtSlideTimeout"), Qt::Key_Delete);
        EXPECT_EQ("2.5", Text("txtSlideTimeout").text());
    });
}

TEST_F(PreferencesWindow, SelectAllAndSelectNoneSelect) {
    Open([&] {
        Press("cmdSelectNone");
        EXPECT_TRUE(List().selectedItems().isEmpty());
        Press("cmdSelectAll");
        EXPECT_EQ(127, List().selectedItems().size());
    });
}

TEST_F(PreferencesWindow, CloseAndEscapeChangeNothing) {
    MakeActive();
    Put("NextSlideSeq", "4");
    const QByteArray Before = FileText();
    for (const bool ByKey : {false, true}) {
        Open([&] {
            Type("txtSlideTimeout", "33");
            Press("cmdSelectNone");
            TypeInCell(0, ColStep, "50");
            if (ByKey)
                QTest::keyClick(Window.get(), Qt::Key_Escape);
            else
                Press("cmdClose");
            EXPECT_FALSE(IsOpen());
        });
        EXPECT_EQ(Before.toStdString(), FileText().toStdString());
        EXPECT_EQ(20, Window->SlideTimeout());
    }
}

TEST_F(PreferencesWindow, EscapeInACellEndsTheEditAlone) {
    Open([&] {
        TypeInCell(0, ColStep, "77", false);
        QTest::keyClick(CellEditor(), Qt::Key_Escape);
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ("25", Grid().TextMatrix(0, ColStep));
    });
}

TEST_F(PreferencesWindow, ComesBackAsLargeAsItWasLeft) {
    Open([&] { Window->resize(1111, 777); });
    Open([&] { EXPECT_EQ(QSize(1111, 777), Window->size()); });
}

TEST_F(PreferencesWindow, ThePictureIsTheLargestThingAndGrowsWithTheWindow) {
    Open([&] {
        Window->resize(1000, 700);
        Spin(1);
        const QSize Before = View().size();
        for (const QWidget* Other :
             {static_cast<QWidget*>(&List()), static_cast<QWidget*>(&Grid())})
            EXPECT_GT(Before.width() * Before.height(), 2 * Other->width() * Other->height());
        Window->resize(1200, 900);
        Spin(1);
        EXPECT_EQ(Before + QSize(200, 200), View().size());
    });
}

TEST_F(PreferencesWindow, FitsASmallScreenInAFontHalfAsLargeAgain) {
    QFont Large = QApplication::font();
    const QFont Usual = Large;
    Large.setPointSizeF(Large.pointSizeF() * 1.5);
    QApplication::setFont(Large);
    Open([&] {
        EXPECT_LE(Window->minimumSizeHint().width(), 1010);
        EXPECT_LE(Window->minimumSizeHint().height(), 730);
        Window->resize(1010, 730);
        Spin(1);
        for (const QPushButton* Button : Window->findChildren<QPushButton*>())
            EXPECT_GE(Button->width(), Button->sizeHint().width()) << Button->text().toStdString();
        for (const QRadioButton* Option : Window->findChildren<QRadioButton*>())
            EXPECT_GE(Option->width(), Option->sizeHint().width());
        for (const QLabel* Each : Window->findChildren<QLabel*>())
            EXPECT_GE(Each->width(), Each->sizeHint().width()) << Each->text().toStdString();
    });
    QApplication::setFont(Usual);
}

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
        EXPECT_FALSE(IsOpen());
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
            EXPECT_FALSE(IsOpen()) << Place;
        });
    EXPECT_EQ("20", Setting("Timeout"));
}

TEST_F(PreferencesApply, TakesACellThatIsStillBeingTyped) {
    Open([&] {
        TypeInCell(2, ColDelay, "321", false);
        Press("cmdApply");
        EXPECT_FALSE(IsOpen());
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
        EXPECT_FALSE(IsOpen());
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
            TypeInCell(Case.Row, Case.Col, Case.Text);
            ExpectRefusal(Case.Message);
            Press("cmdApply");
            EXPECT_TRUE(IsOpen());
            EXPECT_EQ(Case.Row, Grid().Row());
            EXPECT_EQ(Case.Col, Grid().Col());
            EXPECT_EQ(25, ReadPreferences(OpenSettings()).Effects.StepL);
        });
    EXPECT_EQ(Before, FileText());
    EXPECT_EQ(6, Boxes.ShownCount());
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

TEST_F(PreferencesWindow, OfTheModuleSetItsTimeout) {
    SlideTimeout = 12;
    WhenPreferencesOpen([](frmPreferences& Opened) { Opened.Unload(); });
    EditSlideShowPreferences();
    EXPECT_EQ(20, SlideTimeout) << "as it stands in the window";
    WhenPreferencesOpen([](frmPreferences& Opened) { ApplyTimeout(Opened, "21.5"); });
    EditSlideShowPreferences();
    EXPECT_EQ(21.5, SlideTimeout);
}

TEST_F(PreferencesWindow, ThatCannotReadItsFileLeavesTheTimeoutInForce) {
    const QString File = OpenSettings().FileName();
    DeleteFile(File);
    ASSERT_TRUE(QFile::link(QStringLiteral("/proc/self/mem"), File));
    ASSERT_THROW(OpenSettings(), Fault);
    SlideTimeout = 12;
    EditSlideShowPreferences();
    EXPECT_EQ(12, SlideTimeout);
    EXPECT_TRUE(LoadedForms().empty());
}

}  // namespace
}  // namespace neb::test
