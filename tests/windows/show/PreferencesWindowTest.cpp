// The Preferences window: what it shows, how it looks, what Close leaves.
#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScreen>

#include "PreferencesRig.h"
#include "harness/WithoutPrivileges.h"
#include "show/ShowSettings.h"
#include "support/Fault.h"

namespace neb::test {
namespace {

using PreferencesWindow = PreferencesRig;

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

TEST_F(PreferencesWindow, TheNextSlideAndTheSpeedsTakeDigitsAlone) {
    Open([&] {
        Type("txtNextSlide", "-1.2a");
        EXPECT_EQ("12", Text("txtNextSlide").text());
        QTest::keyClick(&Text("txtNextSlide"), Qt::Key_Backspace);
        EXPECT_EQ("1", Text("txtNextSlide").text());
        TypeInCell(1, ColStep, "x2,5 ");
        EXPECT_EQ("25", Grid().TextMatrix(1, ColStep));
        TypeInCell(2, ColDelay, "-100.5");
        EXPECT_EQ("1005", Grid().TextMatrix(2, ColDelay));
    });
}

TEST_F(PreferencesWindow, SelectAllAndSelectNoneSelect) {
    Put("UseEffectLevel", "False");
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
    Put("UseEffectLevel", "False");
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
    Open([&] {
        EXPECT_EQ(QSize(1111, 777), Window->size());
        Window->resize(5000, 4000);
    });
    Open([&] {
        const QSize Room = Window->screen()->availableSize();
        EXPECT_LT(Window->width(), Room.width()) << "never larger than the screen";
        EXPECT_LT(Window->height(), Room.height());
        Window->resize(1000, 700);
    });
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

TEST_F(PreferencesWindow, LongNamesMakeItNoWiderAndTakeNothingFromThePicture) {
    int Least = 0, Shown = 0;
    Open([&] {
        Least = Window->minimumSizeHint().width();
        Shown = View().width();
    });
    const QString Long(80, u'W');  // as long as they may be
    Put("ActiveAlbum", QString::number(AddAlbum(Long.toLatin1().constData(), {Long})));
    Open([&] {
        EXPECT_EQ(Long, Combo("cboAlbums").currentText());
        EXPECT_EQ(Long, Combo("cboSlideShows").itemText(0));
        EXPECT_EQ(Least, Window->minimumSizeHint().width());
        EXPECT_EQ(Shown, View().width());
    });
}

TEST_F(PreferencesWindow, LongNamesAreSeenWholeInTheListsThatOpen) {
    const QString Long = QStringLiteral("All the summers of the whole family by the sea");
    Put("ActiveAlbum", QString::number(AddAlbum(Long.toLatin1().constData(), {Long})));
    Open([&] {
        for (const char* Name : {"cboAlbums", "cboSlideShows"}) {
            QComboBox& Box = Combo(Name);
            const int Width = Box.fontMetrics().horizontalAdvance(Long);
            EXPECT_GT(Box.view()->minimumWidth(), Width) << "in every style";
            Box.showPopup();
            Spin(1);
            EXPECT_GT(Box.view()->viewport()->width(), Width) << Name << " at " << Box.width();
            EXPECT_LT(Box.view()->window()->width(), Box.screen()->availableSize().width());
            Box.hidePopup();
        }
    });
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
    ASSERT_TRUE(QFile::exists(File));
    // Whoever runs the test, the way to the file is open, and the file is not.
    for (QString Dir = QFileInfo(File).path(); Dir.size() > QDir::tempPath().size();
         Dir = QFileInfo(Dir).path())
        ASSERT_TRUE(QFile::setPermissions(Dir, QFile::permissions(Dir) | QFile::ExeOther));
    ASSERT_TRUE(QFile::setPermissions(File, {}));
    const harness::WithoutPrivileges User;
    ASSERT_THROW(OpenSettings(), Fault);
    SlideTimeout = 12;
    EditSlideShowPreferences();
    EXPECT_EQ(12, SlideTimeout);
    EXPECT_TRUE(LoadedForms().empty());
}

}  // namespace
}  // namespace neb::test
