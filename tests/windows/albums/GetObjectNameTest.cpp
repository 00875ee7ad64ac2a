// The general question for a name: its texts by the noun, its checks, what it answers.
#include "harness/AwaitActive.h"
#include "windows/albums/frmGetObjectName.h"
#include "windows/import/IntakeHarness.h"

namespace neb {
namespace {

using namespace harness;

class GetObjectName : public Intake {
  protected:
    // Asks for a name and acts in the window; what was answered.
    std::string Ask(const QString& Noun, const QString& OldName,
                    std::function<void(frmGetObjectName&)> Do) {
        Window = NewForm<frmGetObjectName>();
        Window->SetAdjective(Noun);
        WhenOpen<frmGetObjectName>([Do](frmGetObjectName& Shown) {
            const auto Held = Shown.shared_from_this();
            Do(Shown);
            Shown.Unload();
        });
        return Window->GetObjectName(OldName).toStdString();
    }
    static QLineEdit& Field(const frmGetObjectName& Shown) {
        return In<QLineEdit>(Shown, "txtObjectName");
    }
    static void Enter(const frmGetObjectName& Shown, const QString& Name) {
        Field(Shown).setText(Name);
        Press(Shown, "cmdSave");
    }
    static void Key(QWidget& Shown, Qt::Key Pressed, Qt::KeyboardModifiers With = {}) {
        EXPECT_TRUE(neb::harness::AwaitActive(Shown));
        ASSERT_TRUE(Shown.focusWidget());
        QTest::keyClick(Shown.focusWidget(), Pressed, With);
    }
    void ExpectIllegal(const QString& Characters) {
        Boxes.Expect(
            u"The entered Album Name contained the following illegal characters:\n"_s + Characters,
            u"Invalid User Input"_s, BoxIcon::Information, BoxAnswer::Ok);
    }
    std::shared_ptr<frmGetObjectName> Window;
};

TEST_F(GetObjectName, ItsTextsSpeakOfTheNoun) {
    Ask(u"Slide Show"_s, {}, [](frmGetObjectName& Shown) {
        EXPECT_EQ("Get Slide Show Name", Shown.windowTitle().toStdString());
        EXPECT_EQ("Slide Show Name", In<QLabel>(Shown, "Label1").text().toStdString());
        EXPECT_EQ("Complete the Slide Show Name Entry.",
                  In<QPushButton>(Shown, "cmdSave").toolTip().toStdString());
        EXPECT_EQ("Enter the Slide Show Name.", Field(Shown).toolTip().toStdString());
    });
}

TEST_F(GetObjectName, ShowsTheOldNameReadyForEditing) {
    const std::string Answer = Ask(u"Album"_s, u"Garden"_s, [](frmGetObjectName& Shown) {
        EXPECT_EQ("Garden", Field(Shown).text().toStdString());
        Key(Shown, Qt::Key_End);
        QTest::keyClicks(Shown.focusWidget(), u" 2"_s);
        Press(Shown, "cmdSave");
        EXPECT_FALSE(Shown.IsLoaded());
    });
    EXPECT_EQ("Garden 2", Answer);
    EXPECT_EQ("Garden 2", Window->ObjectName().toStdString());
}

TEST_F(GetObjectName, AnswersNothingAfterCancelEscapeAndItsFrame) {
    const std::function<void(frmGetObjectName&)> Ways[] = {
        [](frmGetObjectName& Shown) { Press(Shown, "cmdCancel"); },
        [](frmGetObjectName& Shown) { Key(Shown, Qt::Key_Escape); },
        [](frmGetObjectName& Shown) { Shown.close(); },
    };
    for (const auto& Leave : Ways)
        EXPECT_EQ("", Ask(u"Album"_s, u"Garden"_s, [&](frmGetObjectName& Shown) {
                      Leave(Shown);
                      EXPECT_FALSE(Shown.IsLoaded());
                  }));
}

TEST_F(GetObjectName, ForgetsAnEarlierAnswer) {
    Window = NewForm<frmGetObjectName>();
    Window->SetObjectName(u"earlier"_s);
    EXPECT_EQ("earlier", Window->ObjectName().toStdString());
    WhenOpen<frmGetObjectName>([](frmGetObjectName& Shown) { Press(Shown, "cmdCancel"); });
    EXPECT_EQ("", Window->GetObjectName(u"Garden"_s).toStdString());
    EXPECT_EQ("", Window->ObjectName().toStdString());
}

TEST_F(GetObjectName, RefusesANameOfBlanksWithTheRightArticle) {
    Boxes.Expect(u"You must enter an Album name."_s, u"Invalid User Input"_s, BoxIcon::Information,
                 BoxAnswer::Ok);
    Boxes.Expect(u"You must enter a Slide Show name."_s, u"Invalid User Input"_s,
                 BoxIcon::Information, BoxAnswer::Ok);
    EXPECT_EQ("", Ask(u"Album"_s, {}, [](frmGetObjectName& Shown) {
                  Enter(Shown, {});
                  Shown.SetAdjective(u"Slide Show"_s);
                  Enter(Shown, u"  "_s);
                  EXPECT_TRUE(Shown.isVisible());
              }));
}

TEST_F(GetObjectName, StaysOpenOnIllegalCharactersUntilTheNameIsRight) {
    ExpectIllegal(u"*?"_s);
    ExpectIllegal(u"花"_s);
    ExpectIllegal(u"é"_s);
    const std::string Answer = Ask(u"Album"_s, {}, [](frmGetObjectName& Shown) {
        for (const QString& Name : {u"a*b?*"_s, u"花"_s, u"Café"_s}) {
            Enter(Shown, Name);
            EXPECT_TRUE(Shown.isVisible());
            EXPECT_EQ(Name.toStdString(), Field(Shown).text().toStdString());
        }
        Enter(Shown, u"a (b) #1"_s);
    });
    EXPECT_EQ("a (b) #1", Answer);
}

// The cleaned quote is none of the characters that such a name may have.
TEST_F(GetObjectName, QuotesAreCleanedAndThenRefused) {
    ExpectIllegal(u"’"_s);
    ExpectIllegal(u"“”"_s);
    Ask(u"Album"_s, {}, [](frmGetObjectName& Shown) {
        EXPECT_TRUE(neb::harness::AwaitActive(Shown));
        QTest::keyClicks(&Field(Shown), u"Mary's"_s);
        EXPECT_EQ(u"Mary’s"_s.toStdString(), Field(Shown).text().toStdString());
        Press(Shown, "cmdSave");
        Field(Shown).setText(u"\"Mary\""_s);  // as pasted
        Field(Shown).setFocus();
        Key(Shown, Qt::Key_Return);
        EXPECT_EQ(u"“Mary”"_s.toStdString(), Field(Shown).text().toStdString());
        EXPECT_TRUE(Shown.isVisible());
    });
}

TEST_F(GetObjectName, WorksByTheKeyboardAlone) {
    EXPECT_EQ("Lake", Ask(u"Album"_s, u"Garden"_s, [](frmGetObjectName& Shown) {
                  EXPECT_TRUE(neb::harness::AwaitActive(Shown));
                  QTest::keyClicks(Shown.focusWidget(), u"Lake"_s);  // in place of the old one
                  Key(Shown, Qt::Key_Return);
                  EXPECT_FALSE(Shown.IsLoaded());
              }));
    EXPECT_EQ("", Ask(u"Album"_s, u"Garden"_s, [](frmGetObjectName& Shown) {
                  Key(Shown, Qt::Key_Tab);
                  Key(Shown, Qt::Key_Tab);
                  Key(Shown, Qt::Key_Space);
                  EXPECT_FALSE(Shown.IsLoaded());
              }));
    EXPECT_EQ("Garden", Ask(u"Album"_s, u"Garden"_s, [](frmGetObjectName& Shown) {
                  Key(Shown, Qt::Key_S, Qt::AltModifier);
                  EXPECT_TRUE(QTest::qWaitFor([&] { return !Shown.IsLoaded(); }, 2000));
              }));
}

TEST_F(GetObjectName, StaysOpenUntilWhoeverAsksAgreesWithTheName) {
    Window = NewForm<frmGetObjectName>();
    Window->SetAdjective(u"Slide Show"_s);
    Boxes.Expect(u"There is one."_s);
    QStringList Asked;
    WhenOpen<frmGetObjectName>([](frmGetObjectName& Shown) {
        const auto Held = Shown.shared_from_this();
        ASSERT_TRUE(neb::harness::AwaitActive(Shown));
        QTest::keyClicks(Shown.focusWidget(), u"Winter"_s);
        Key(Shown, Qt::Key_Return);
        ASSERT_TRUE(Shown.IsLoaded());
        EXPECT_EQ(&Field(Shown), Shown.focusWidget());
        EXPECT_EQ("Winter", Field(Shown).selectedText().toStdString());
        Field(Shown).insert(u"Café 'e\u0301' 花"_s);  // as pasted
        Key(Shown, Qt::Key_Return);
        EXPECT_FALSE(Shown.IsLoaded());
        Shown.Unload();
    });
    const QString Given = Window->GetObjectName(u"Summer"_s, [&](const QString& Name) {
        Asked << Name;
        return Name == u"Winter" ? Answer<>(Refuse(u"There is one."_s)) : Done();
    });
    EXPECT_EQ(u"Café ‘\u00e9’ 花"_s, Given);
    EXPECT_EQ(QStringList({u"Winter"_s, Given}), Asked);
}

TEST_F(GetObjectName, ANameGrowsNoLongerThanItCanBeKept) {
    const std::string Answer = Ask(u"Album"_s, {}, [](frmGetObjectName& Shown) {
        QTest::keyClicks(&Field(Shown), QString(82, u'n'));
        EXPECT_EQ("Enter the Album Name.", [&] {
            const QString Typed = Field(Shown).text();
            Field(Shown).clear();
            const std::string Tip = Field(Shown).toolTip().toStdString();
            Field(Shown).setText(Typed);
            return Tip;
        }());
        Press(Shown, "cmdSave");
    });
    EXPECT_EQ(std::string(80, 'n'), Answer);
}

TEST_F(GetObjectName, TakesTheNameAsItWasTyped) {
    EXPECT_EQ(" Garden ",
              Ask(u"Album"_s, {}, [](frmGetObjectName& Shown) { Enter(Shown, u" Garden "_s); }));
}

}  // namespace
}  // namespace neb
