#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QPointer>

#include "controls/forms/TestForm.h"
#include "controls/forms/ToolTipBalloon.h"
#include "controls/forms/clsDEToolTips.h"
#include "controls/forms/modDEToolTips.h"

using namespace neb;
using namespace neb::harness;

namespace {

struct OpenField : clsDEToolTips {
    using clsDEToolTips::mFontType;
};

struct Window : QWidget {
    QPushButton First{this}, Second{this}, Third{this};
    QLineEdit Field{this};
    QLabel Label{this};
};

QString WithZero(const char* Name) {
    return QString::fromLatin1(Name) + QChar(u'\0');
}

QString TagOf(const QWidget& Control) {
    return Control.property("Tag").toString();
}

int IndexOf(const QWidget& Control) {
    return TagOf(Control).section(u'\t', 1, 1).toInt();
}

ToolTipBalloon* BalloonOf(const QWidget& Control) {
    return FindToolTip(TagOf(Control).section(u'\t', 0, 0).toInt());
}

std::string TextOf(const QWidget& Control) {
    const ToolTipBalloon* Balloon = BalloonOf(Control);
    return Balloon ? Balloon->accessibleName().toStdString() : "none";
}

std::vector<std::int32_t> Controls() {
    std::vector<std::int32_t> Numbers;
    for (const ToolTipEntry& Each : ToolTipTable()) Numbers.push_back(Each.ControlHWnd);
    return Numbers;
}

std::vector<std::int32_t> NumbersOf(const std::vector<QWidget*>& Widgets) {
    std::vector<std::int32_t> Numbers;
    for (QWidget* Each : Widgets) Numbers.push_back(Each ? WindowHandle(*Each) : 0);
    return Numbers;
}

struct ToolTips : ::testing::Test {
    std::unique_ptr<Window> A = std::make_unique<Window>(), B = std::make_unique<Window>();
    clsDEToolTips Tips, Others;

    ToolTips() {
        EXPECT_EQ(0, ToolTipCount()) << "left by another test";
        Tips.ParentSet(*A);
        Others.ParentSet(*B);
    }
    bool Add(QWidget& Control, const char* Text) {
        return Tips.AddCustomToolTip(&Control, QString::fromLatin1(Text));
    }
    bool AddOther(QWidget& Control, const char* Text) {
        return Others.AddCustomToolTip(&Control, QString::fromLatin1(Text));
    }
};

}  // namespace

TEST(ToolTipFont, IsTahomaOfThirteenToBeginWith) {
    OpenField Tips;
    EXPECT_EQ(WithZero("Tahoma"), Tips.mFontType);
    EXPECT_EQ(QStringLiteral("Tahoma"), Tips.FontType());
    EXPECT_EQ(13, Tips.FontSize());
}

TEST(ToolTipFont, ReadsBackAsItWasSetAndIsHeldWithACharacterZero) {
    OpenField Tips;
    Tips.SetFontType(QStringLiteral("Arial"));
    EXPECT_EQ(WithZero("Arial"), Tips.mFontType);
    EXPECT_EQ(QStringLiteral("Arial"), Tips.FontType());
    EXPECT_EQ(WithZero("Arial"), Tips.mFontType) << "reading takes nothing from the field";
    Tips.SetFontSize(-20);
    EXPECT_EQ(-20, Tips.FontSize());
}

TEST(ToolTipFont, ANameThatEndsInACharacterZeroGetsNoSecond) {
    OpenField Tips;
    Tips.SetFontType(WithZero("Arial"));
    EXPECT_EQ(WithZero("Arial"), Tips.mFontType);
    EXPECT_EQ(QStringLiteral("Arial"), Tips.FontType());
}

TEST(ToolTipFont, ReadingAFieldWithoutTheCharacterZeroAddsItAndGivesTheFieldAsItWas) {
    OpenField Tips;
    Tips.mFontType = QStringLiteral("Arial");
    EXPECT_EQ(QStringLiteral("Arial"), Tips.FontType());
    EXPECT_EQ(WithZero("Arial"), Tips.mFontType);
    EXPECT_EQ(QStringLiteral("Arial"), Tips.FontType());
    Tips.mFontType.clear();
    EXPECT_EQ(QString(), Tips.FontType());
    EXPECT_EQ(WithZero(""), Tips.mFontType);
}

TEST_F(ToolTips, ATipIsEnteredWithAllThatIsKnownOfIt) {
    Tips.SetFontType(QStringLiteral("DejaVu Sans"));
    Tips.SetFontSize(17);
    EXPECT_TRUE(Add(A->First, "one"));
    ASSERT_EQ(1, ToolTipCount());
    const ToolTipEntry& Entry = ToolTipTable()[0];
    EXPECT_NE(0, Entry.TipHWnd);
    EXPECT_EQ(0, Entry.OldWndProc);
    EXPECT_EQ(WindowHandle(*A), Entry.ParentHWnd);
    EXPECT_EQ(17, Entry.FontSize);
    EXPECT_EQ(WithZero("DejaVu Sans"), Entry.FontName);
    EXPECT_EQ(WindowHandle(A->First), Entry.ControlHWnd);
    EXPECT_EQ("one", TextOf(A->First));
    EXPECT_EQ(A.get(), FindToolTip(Entry.TipHWnd)->parentWidget());
}

TEST_F(ToolTips, TheTagHoldsHandleTabAndIndex) {
    Add(A->First, "one");
    Add(A->Second, "two");
    for (int Index : {0, 1}) {
        const QWidget& Control = Index ? A->Second : A->First;
        EXPECT_EQ(QString::number(ToolTipTable()[static_cast<std::size_t>(Index)].TipHWnd) + u'\t' +
                      QString::number(Index),
                  TagOf(Control));
    }
    EXPECT_NE(ToolTipTable()[0].TipHWnd, ToolTipTable()[1].TipHWnd);
}

TEST_F(ToolTips, ASecondTipOfAControlTakesTheSlotOfTheFirst) {
    Add(A->First, "one");
    Add(A->Second, "two");
    const QPointer<ToolTipBalloon> Before = BalloonOf(A->First);
    const std::int32_t Handle = ToolTipTable()[0].TipHWnd;
    EXPECT_TRUE(Add(A->First, "changed"));
    EXPECT_EQ(2, ToolTipCount());
    EXPECT_TRUE(Before.isNull());
    EXPECT_EQ(nullptr, FindToolTip(Handle));
    EXPECT_NE(Handle, ToolTipTable()[0].TipHWnd);
    EXPECT_EQ(NumbersOf({&A->First, &A->Second}), Controls());
    EXPECT_EQ(0, IndexOf(A->First));
    EXPECT_EQ("changed", TextOf(A->First));
    EXPECT_EQ("two", TextOf(A->Second));
    EXPECT_EQ(2, A->findChildren<ToolTipBalloon*>().size());
}

TEST_F(ToolTips, LabelsAndPicturesCannotTakeATip) {
    A->Label.setPixmap(QPixmap(4, 4));
    EXPECT_FALSE(Add(A->Label, "one"));
    EXPECT_FALSE(Tips.AddCustomToolTip(nullptr, QStringLiteral("one")));
    EXPECT_EQ(0, ToolTipCount());
    EXPECT_EQ(QString(), TagOf(A->Label));
    EXPECT_TRUE(Add(A->Field, "two"));
}

TEST_F(ToolTips, WithoutAFormNothingIsAddedImportedOrCleared) {
    Add(A->First, "one");
    A->Second.setToolTip(QStringLiteral("plain"));
    clsDEToolTips Nobody;
    Nobody.ParentClear();
    EXPECT_FALSE(Nobody.AddCustomToolTip(&A->Second, QStringLiteral("two")));
    Nobody.ImportFromForm();
    EXPECT_EQ(1, ToolTipCount());
    EXPECT_EQ(QStringLiteral("plain"), A->Second.toolTip());
    Tips.ParentClear();
    EXPECT_FALSE(Add(A->Second, "two")) << "the field is empty now";
    EXPECT_EQ(0, ToolTipCount());
}

TEST_F(ToolTips, ClearingAFormLeavesTheOthersInTheirOrder) {
    Add(A->First, "a1");
    AddOther(B->First, "b1");
    Add(A->Second, "a2");
    AddOther(B->Second, "b2");
    AddOther(B->Third, "b3");
    Add(A->Third, "a3");
    const QPointer<ToolTipBalloon> Gone = BalloonOf(A->Second);
    Tips.ParentClear();
    EXPECT_EQ(3, ToolTipCount());
    EXPECT_EQ(NumbersOf({&B->First, &B->Second, &B->Third}), Controls());
    EXPECT_TRUE(Gone.isNull());
    EXPECT_TRUE(A->findChildren<ToolTipBalloon*>().isEmpty());
    EXPECT_EQ("b2", TextOf(B->Second));
}

TEST_F(ToolTips, AfterTheLastFormTheTableIsErased) {
    Add(A->First, "a1");
    AddOther(B->First, "b1");
    Others.ParentClear();
    EXPECT_EQ(1, ToolTipCount());
    Tips.ParentClear();
    EXPECT_EQ(0, ToolTipCount());
    EXPECT_EQ(0u, ToolTipTable().capacity());
}

TEST_F(ToolTips, AFormIsClearedOfAllItsTipsWhoeverAddedThem) {
    Add(A->First, "a1");
    clsDEToolTips Second;
    Second.ParentSet(*A);
    Second.AddCustomToolTip(&A->Second, QStringLiteral("a2"));
    Tips.ParentClear();
    EXPECT_EQ(0, ToolTipCount());
}

TEST_F(ToolTips, NoTagChangesWhenAFormIsCleared) {
    Add(A->First, "a1");
    AddOther(B->First, "b1");
    const QString Removed = TagOf(A->First), Survivor = TagOf(B->First);
    Tips.ParentClear();
    EXPECT_EQ(Removed, TagOf(A->First));
    EXPECT_EQ(Survivor, TagOf(B->First));
    EXPECT_EQ(1, IndexOf(B->First)) << "although it stands at 0 by now";
}

TEST_F(ToolTips, AStaleIndexTakesTheSlotOfAnother) {
    Add(A->First, "a1");
    AddOther(B->First, "b1");
    AddOther(B->Second, "b2");
    Tips.ParentClear();
    const QPointer<ToolTipBalloon> Displaced = BalloonOf(B->Second);
    AddOther(B->First, "anew");
    EXPECT_EQ(NumbersOf({&B->First, &B->First}), Controls());
    EXPECT_EQ(nullptr, FindToolTip(ToolTipTable()[0].TipHWnd)) << "its old window is destroyed";
    EXPECT_EQ("anew", TextOf(B->First));
    EXPECT_TRUE(Displaced.isNull());
    Others.ParentClear();
    EXPECT_EQ(0, ToolTipCount());
}

TEST_F(ToolTips, AStaleIndexPastTheTableComesAtItsEnd) {
    Add(A->First, "a1");
    Add(A->Second, "a2");
    Add(A->Third, "a3");
    AddOther(B->First, "b1");
    Tips.ParentClear();
    Tips.ParentSet(*A);
    Add(A->Third, "anew");
    EXPECT_EQ(NumbersOf({&B->First, &A->Third}), Controls());
    EXPECT_EQ(1, IndexOf(A->Third));
    EXPECT_EQ("anew", TextOf(A->Third));
}

TEST_F(ToolTips, ATagOfOtherUseIsNoSlotAndIsLost) {
    AddOther(B->First, "b1");
    for (const char* Tag : {"mine", "mine\tyours", "7\t-1", "\t"}) {
        A->First.setProperty("Tag", QString::fromLatin1(Tag));
        const int Count = ToolTipCount();
        EXPECT_TRUE(Add(A->First, "one"));
        EXPECT_EQ(Count + 1, ToolTipCount()) << Tag;
        EXPECT_EQ(Count, IndexOf(A->First)) << Tag;
    }
    EXPECT_EQ("b1", TextOf(B->First));
}

TEST_F(ToolTips, ImportingMakesABalloonOfEveryPlainTip) {
    A->First.setToolTip(QStringLiteral("button"));
    A->Field.setToolTip(QStringLiteral("field"));
    QGroupBox Box(A.get());
    QPushButton Inside(&Box);
    Inside.setToolTip(QStringLiteral("inside"));
    Tips.ImportFromForm();
    EXPECT_EQ(NumbersOf({&A->First, &A->Field, &Inside}), Controls());
    EXPECT_EQ("button", TextOf(A->First));
    EXPECT_EQ("field", TextOf(A->Field));
    EXPECT_EQ("inside", TextOf(Inside));
    for (const QWidget* Each : std::initializer_list<QWidget*>{&A->First, &A->Field, &Inside})
        EXPECT_EQ(QString(), Each->toolTip());
    EXPECT_EQ(QString(), TagOf(A->Second)) << "it has no tip";
}

TEST_F(ToolTips, ALabelLosesItsPlainTipToTheImportAndGetsNoBalloon) {
    A->Label.setToolTip(QStringLiteral("label"));
    A->First.setToolTip(QStringLiteral("button"));
    Tips.ImportFromForm();
    EXPECT_EQ(QString(), A->Label.toolTip());
    EXPECT_EQ(NumbersOf({&A->First}), Controls());
}

TEST_F(ToolTips, TheControlsOfOtherWindowsAreNotImported) {
    QDialog Dialog(A.get());
    QPushButton InDialog(&Dialog);
    const auto Nested = NewForm<TestForm>();
    Nested->setParent(A.get(), Qt::Widget);
    QPushButton InForm(Nested.get());
    for (QPushButton* Each : {&InDialog, &InForm, &B->First})
        Each->setToolTip(QStringLiteral("plain"));
    Tips.ImportFromForm();
    EXPECT_EQ(0, ToolTipCount());
    for (const QPushButton* Each : {&InDialog, &InForm, &B->First})
        EXPECT_EQ(QStringLiteral("plain"), Each->toolTip());
    Nested->setParent(nullptr);
}

TEST_F(ToolTips, ImportingAgainTakesWhatIsNewAndKeepsTheRest) {
    A->First.setToolTip(QStringLiteral("one"));
    A->Second.setToolTip(QStringLiteral("two"));
    Tips.ImportFromForm();
    A->Second.setToolTip(QStringLiteral("changed"));
    Tips.ImportFromForm();
    EXPECT_EQ(2, ToolTipCount());
    EXPECT_EQ("one", TextOf(A->First));
    EXPECT_EQ("changed", TextOf(A->Second));
    EXPECT_EQ(1, IndexOf(A->Second));
}

TEST_F(ToolTips, TheEndOfTheObjectClearsItsForm) {
    AddOther(B->First, "b1");
    {
        clsDEToolTips Short;
        Short.ParentSet(*A);
        Short.AddCustomToolTip(&A->First, QStringLiteral("a1"));
        EXPECT_EQ(2, ToolTipCount());
    }
    EXPECT_EQ(NumbersOf({&B->First}), Controls());
}

TEST_F(ToolTips, TheTableOutlivesAnObjectThatHasTurnedToAnotherForm) {
    {
        clsDEToolTips Short;
        Short.ParentSet(*A);
        Short.AddCustomToolTip(&A->First, QStringLiteral("a1"));
        Short.ParentSet(*B);
    }
    EXPECT_EQ(NumbersOf({&A->First}), Controls());
    EXPECT_EQ("a1", TextOf(A->First));
}

TEST_F(ToolTips, ADeletedControlLeavesAnEmptySlotSoThatTheOthersKeepTheirs) {
    auto* Short = new QPushButton(A.get());
    Add(A->First, "one");
    Add(*Short, "short");
    Add(A->Second, "two");
    const QPointer<ToolTipBalloon> Balloon = BalloonOf(*Short);
    delete Short;
    EXPECT_TRUE(Balloon.isNull());
    EXPECT_EQ(NumbersOf({&A->First, nullptr, &A->Second}), Controls());
    EXPECT_EQ(0, ToolTipTable()[1].TipHWnd);
    Add(A->Second, "changed");
    EXPECT_EQ(NumbersOf({&A->First, nullptr, &A->Second}), Controls());
    Tips.ParentClear();
    EXPECT_EQ(0, ToolTipCount()) << "the empty slot goes with its form";
}

TEST_F(ToolTips, EmptySlotsAtTheEndGo) {
    auto *One = new QPushButton(A.get()), *Two = new QPushButton(A.get());
    Add(A->First, "one");
    Add(*One, "one");
    Add(*Two, "two");
    delete One;
    EXPECT_EQ(3, ToolTipCount());
    delete Two;
    EXPECT_EQ(NumbersOf({&A->First}), Controls());
}

TEST_F(ToolTips, ADeletedFormTakesItsEntriesWithIt) {
    Add(A->First, "a1");
    AddOther(B->First, "b1");
    Add(A->Second, "a2");
    A.reset();
    EXPECT_EQ(NumbersOf({&B->First}), Controls());
    EXPECT_EQ("b1", TextOf(B->First));
    Tips.ParentClear();
    EXPECT_EQ(1, ToolTipCount());
}

TEST_F(ToolTips, AControlOnAnotherFormThanItsTipsOwnerOutlivesIt) {
    Add(B->First, "lent");
    A.reset();
    EXPECT_EQ(0, ToolTipCount());
    EXPECT_EQ(nullptr, BalloonOf(B->First));
    EXPECT_TRUE(AddOther(B->First, "own"));
    EXPECT_EQ("own", TextOf(B->First));
}

TEST_F(ToolTips, ANumberIsNotGivenTwice) {
    const std::int32_t Form = WindowHandle(*A), Control = WindowHandle(A->First);
    EXPECT_EQ(Form, WindowHandle(*A));
    EXPECT_NE(Form, Control);
    Add(A->First, "one");
    EXPECT_GT(ToolTipTable()[0].TipHWnd, Control);
    A = std::make_unique<Window>();
    EXPECT_GT(WindowHandle(*A), Control + 1);
}
