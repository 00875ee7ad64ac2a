// Preferences: what goes with the choice of a show, and which half of the effects is in use.
#include <QAction>
#include <QLabel>

#include "PreferencesRig.h"

namespace neb {
namespace {

using namespace test;

class PreferencesChoice : public PreferencesRig {
  protected:
    PreferencesChoice() {
        MakeActive();
        Put("NextSlideSeq", "4");
        std::int32_t Other = 0;
        Engine.GetAlbum(Album)->SaveSlideShow(Other, QStringLiteral("Zoo"), 0, Engine);
        AddAlbum("Sea", {"Calm"});
    }
    void Key(const char* Box, Qt::Key Which) const {
        Combo(Box).setFocus();
        QTest::keyClick(&Combo(Box), Which);
    }
    std::string NextSlide() const { return Text("txtNextSlide").text().toStdString(); }
};

TEST_F(PreferencesChoice, AnotherShowBeginsAtItsBeginning) {
    Open([&] {
        Key("cboSlideShows", Qt::Key_Down);
        EXPECT_EQ("Zoo", Combo("cboSlideShows").currentText());
        EXPECT_EQ("0", NextSlide());
        Key("cboSlideShows", Qt::Key_Up);
        EXPECT_EQ("4", NextSlide()) << "the active show has its own place";
        Key("cboSlideShows", Qt::Key_Down);
        Press("cmdApply");
    });
    EXPECT_EQ("0", Setting("NextSlideSeq"));
}

TEST_F(PreferencesChoice, APlaceThatWasTypedAfterTheChoiceStays) {
    Open([&] {
        Key("cboSlideShows", Qt::Key_Down);
        Type("txtNextSlide", "7");
        Key("cboSlideShows", Qt::Key_Down);
        EXPECT_EQ("7", NextSlide()) << "it is the last, and still chosen";
        Press("cmdApply");
    });
    EXPECT_EQ("7", Setting("NextSlideSeq"));
}

TEST_F(PreferencesChoice, AnotherAlbumHasNoPlaceEither) {
    Open([&] {
        Key("cboAlbums", Qt::Key_Down);
        EXPECT_EQ("Sea", Combo("cboAlbums").currentText());
        EXPECT_EQ("0", NextSlide());
    });
}

TEST_F(PreferencesChoice, TheSameShowKeepsWhatIsTyped) {
    Open([&] {
        Type("txtNextSlide", "2");
        Key("cboSlideShows", Qt::Key_Up);
        EXPECT_EQ("2", NextSlide());
        Press("cmdApply");
    });
    EXPECT_EQ("2", Setting("NextSlideSeq"));
}

TEST_F(PreferencesChoice, FromARunningShowTheNextSlideIsThatOfTheNextRun) {
    AddSlides(5);
    Put("NextSlideSeq", "2");
    Run([&](frmSlideShowProjector& Showing) {
        WhenPreferencesOpen([](frmPreferences& Now) {
            auto* Field = Now.findChild<QLineEdit*>("txtNextSlide");
            EXPECT_EQ("2", Field->text());
            Field->setText("5");
            QTest::mouseClick(Now.findChild<QPushButton*>("cmdApply"), Qt::LeftButton);
        });
        Showing.EditPreferences();
        EXPECT_EQ("Slide 2", Caption()) << "this run stays where it is";
        Showing.NextSlide();
    });
    EXPECT_EQ("5", Setting("NextSlideSeq"));
    Run([&](frmSlideShowProjector&) { EXPECT_EQ("Slide 5", Caption()); });
}

TEST_F(PreferencesChoice, TheHalfOfTheEffectsThatIsNotInUseIsGrey) {
    const auto ByLevel = [&](bool Level) {
        for (const char* Name : {"sdrMaxEffectLevel", "lblLevelNone", "lblLevelLite",
                                 "lblLevelNormal", "lblLevelIntense"})
            EXPECT_EQ(Level, In<QWidget>(Name).isEnabled()) << Name;
        for (const char* Name : {"lblEffects", "cmdSelectAll", "cmdSelectNone"})
            EXPECT_NE(Level, In<QWidget>(Name).isEnabled()) << Name;
        EXPECT_NE(Level, List().IsChoosable());
    };
    Open([&] {
        ByLevel(true);
        QTest::mouseClick(&In<QRadioButton>("optEffects1"), Qt::LeftButton, {}, {10, 10});
        ByLevel(false);
        QTest::mouseClick(&In<QRadioButton>("optEffects0"), Qt::LeftButton, {}, {10, 10});
        ByLevel(true);
    });
    Put("UseEffectLevel", "False");
    Open([&] { ByLevel(false); });
}

TEST_F(PreferencesChoice, GreyMarksCannotBeTurnedOverAndTheNamesCanBeTried) {
    Open([&] {
        List().setFocus();
        GoTo(2);
        EXPECT_EQ(2, List().currentRow());
        for (const auto& [Which, With] : {std::pair(Qt::Key_Space, Qt::NoModifier),
                                          {Qt::Key_A, Qt::ControlModifier},
                                          {Qt::Key_Down, Qt::ShiftModifier},
                                          {Qt::Key_Space, Qt::ControlModifier}})
            QTest::keyClick(&List(), Which, With);
        const QPoint Mark = {8, OnName(4).y()};
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, Mark);
        QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::ControlModifier, OnName(5));
        QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::ShiftModifier, OnName(7));
        EXPECT_EQ(127, List().selectedItems().size()) << "all as before";
        GoTo(6);
        QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, OnName(6));
        EXPECT_TRUE(View().IsRunning());
        EXPECT_EQ(7, View().EffectNumber());
    });
}

}  // namespace
}  // namespace neb
