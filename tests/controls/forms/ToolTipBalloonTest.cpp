#include "controls/forms/ToolTipBalloon.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <cmath>
#include <limits>

#include "controls/forms/TestForm.h"
#include "controls/forms/clsDEToolTips.h"
#include "controls/forms/modDEToolTips.h"
#include "harness/ChildRole.h"

using namespace neb;
using namespace neb::harness;

namespace {

const QColor Ground(250, 240, 180), Text(200, 0, 0), Shadow(0, 0, 200), Frame(64, 64, 64);
constexpr QSize Whole(100, 50);

QPalette Colours(const QColor& Letters = Text, const QColor& Below = Shadow) {
    QPalette Made;
    Made.setColor(QPalette::ToolTipBase, Ground);
    Made.setColor(QPalette::ToolTipText, Letters);
    Made.setColor(QPalette::Midlight, Below);
    return Made;
}

// Letters without half tones, so that each pixel is a letter's or is not.
QFont HardFont() {
    QFont Font = BalloonFont(QStringLiteral("DejaVu Sans"), 13);
    Font.setStyleStrategy(QFont::NoAntialias);
    return Font;
}

QImage Empty(int Scale, const QSize& Size = Whole) {
    QImage Image(Size * Scale, QImage::Format_ARGB32_Premultiplied);
    Image.setDevicePixelRatio(Scale);
    Image.fill(Qt::transparent);
    return Image;
}

QImage Painted(int Scale, const QString& Words, const QPalette& With = Colours(),
               const QPoint& At = {}) {
    QImage Image = Empty(Scale, Whole + QSize(At.x(), At.y()));
    QPainter Painter(&Image);
    PaintBalloon(Painter, QRect(At, Whole), Words, HardFont(), With);
    return Image;
}

// All pixels of the device in one pixel of the balloon.
std::vector<QColor> Inside(const QImage& Image, int X, int Y) {
    const int Scale = static_cast<int>(Image.devicePixelRatio());
    std::vector<QColor> Found;
    for (int Down = 0; Down < Scale; ++Down)
        for (int Right = 0; Right < Scale; ++Right)
            Found.push_back(Image.pixelColor(X * Scale + Right, Y * Scale + Down));
    return Found;
}

::testing::AssertionResult IsAll(const QImage& Image, int X, int Y, const QColor& Wanted) {
    for (const QColor& Each : Inside(Image, X, Y))
        if (Each != Wanted)
            return ::testing::AssertionFailure()
                   << X << "," << Y << " is " << Each.name(QColor::HexArgb).toStdString();
    return ::testing::AssertionSuccess();
}

// The places of all pixels of a colour.
std::vector<std::pair<int, int>> PlacesOf(const QImage& Image, const QColor& Wanted) {
    std::vector<std::pair<int, int>> Places;
    for (int Y = 0; Y < Image.height(); ++Y)
        for (int X = 0; X < Image.width(); ++X)
            if (Image.pixelColor(X, Y) == Wanted) Places.emplace_back(X, Y);
    return Places;
}

// Where a text's letters lie when it is written at a place.
std::vector<std::pair<int, int>> Letters(int Scale, const QString& Words, const QPoint& At) {
    QImage Image = Empty(Scale);
    QPainter Painter(&Image);
    Painter.setFont(HardFont());
    Painter.setPen(Text);
    Painter.drawText(QRect(At, Whole), Qt::AlignLeft | Qt::AlignTop, Words);
    Painter.end();
    return PlacesOf(Image, Text);
}

struct BalloonPixels : ::testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(Scales, BalloonPixels, ::testing::Values(1, 2));

struct Hovered : ::testing::Test {
    QWidget Window;
    QPushButton Button{QStringLiteral("Button"), &Window}, Neighbour{&Window};
    clsDEToolTips Tips;

    Hovered() {
        Window.setGeometry(200, 200, 300, 200);
        Button.setGeometry(20, 20, 120, 40);
        Neighbour.setGeometry(20, 100, 120, 40);
        Tips.ParentSet(Window);
        Tips.AddCustomToolTip(&Button, QStringLiteral("The tip"));
    }
    void SetUp() override {
        Window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
    }
    ToolTipBalloon* Balloon() const {
        return FindToolTip(Button.property("Tag").toString().section(u'\t', 0, 0).toInt());
    }
    bool IsUp() const { return Balloon() && Balloon()->isVisible(); }
    void MoveTo(const QPoint& InWindow) { QTest::mouseMove(Window.windowHandle(), InWindow); }
    void HoverOver(const QPoint& InWindow) {
        MoveTo(InWindow - QPoint(1, 1));
        MoveTo(InWindow);
        ASSERT_TRUE(QTest::qWaitFor([this] { return IsUp(); }, 5000));
    }
    static bool Ask(QWidget& Control, const QPoint& At) {
        QHelpEvent Event(QEvent::ToolTip, At, Control.mapToGlobal(At));
        Event.ignore();
        return QApplication::sendEvent(&Control, &Event) && Event.isAccepted();
    }
    QPoint Global(const QPoint& InWindow) const { return Window.mapToGlobal(InWindow); }
};

const QPoint OverButton(60, 40), OverNothing(200, 180);

}  // namespace

TEST(BalloonFace, EndsAtTheCharacterZeroAndAtTheThirtySecondByte) {
    const QString Long = QStringLiteral("An unusually long name of a face");
    ASSERT_EQ(32, Long.size());
    EXPECT_EQ(Long, FaceName(Long));
    EXPECT_EQ(Long, FaceName(Long + QChar(u'\0')));
    EXPECT_EQ(Long, FaceName(Long + QStringLiteral(" that goes on") + QChar(u'\0')));
    EXPECT_EQ(QStringLiteral("Arial"), FaceName(QStringLiteral("Arial")));
    EXPECT_EQ(QStringLiteral("Arial"), FaceName(QStringLiteral("Arial\0Black")));
    EXPECT_EQ(QString(), FaceName(QStringLiteral("\0")));
}

TEST(BalloonFace, BecomesTheFamilyOfTheFont) {
    const QString Long(40, u'F');
    EXPECT_EQ(QStringList{Long.left(32)}, BalloonFont(Long, 13).families());
    EXPECT_EQ(QStringList{QStringLiteral("A, B")},
              BalloonFont(QStringLiteral("A, B\0"), 13).families());
    EXPECT_EQ(QFont().family(), BalloonFont(QStringLiteral("\0"), 13).family());
    EXPECT_EQ(QFont::Normal, BalloonFont(Long, 13).weight());
}

TEST(BalloonFontSize, AHeightIsThatOfALineAndTheLargestFontThatFitsIsTaken) {
    for (int Height : {9, 13, 20, 47}) {
        QFont Font = BalloonFont(QStringLiteral("DejaVu Sans"), Height);
        EXPECT_LE(QFontMetrics(Font).height(), Height);
        Font.setPixelSize(Font.pixelSize() + 1);
        EXPECT_GT(QFontMetrics(Font).height(), Height);
    }
}

TEST(BalloonFontSize, BelowZeroItIsThatOfTheLetters) {
    EXPECT_EQ(20, BalloonFont(QStringLiteral("DejaVu Sans"), -20).pixelSize());
    EXPECT_GT(BalloonFont(QStringLiteral("DejaVu Sans"), -20).pixelSize(),
              BalloonFont(QStringLiteral("DejaVu Sans"), 20).pixelSize());
}

TEST(BalloonFontSize, ExtremesStayUsable) {
    constexpr int Least = std::numeric_limits<int>::min(), Most = std::numeric_limits<int>::max();
    const QString Face = QStringLiteral("DejaVu Sans");
    EXPECT_EQ(BalloonFont(Face, 500), BalloonFont(Face, Most));
    EXPECT_EQ(500, BalloonFont(Face, Least).pixelSize());
    EXPECT_EQ(1, BalloonFont(Face, 1).pixelSize());
    EXPECT_EQ(QFontMetrics(QFont()).height(), QFontMetrics(BalloonFont({}, 0)).height());
}

TEST(BalloonSizeOf, ATextIsSixteenWiderAndTwentyFourHigher) {
    const QFontMetrics Metrics(HardFont());
    for (const char* Words : {"The tip", "x", "two\nlines of text"}) {
        const QString Each = QString::fromLatin1(Words);
        EXPECT_EQ(Metrics.size(0, Each) + QSize(16, 24), BalloonSize(Each, HardFont())) << Words;
    }
    EXPECT_GT(BalloonSize(QStringLiteral("a\na"), HardFont()).height(),
              BalloonSize(QStringLiteral("a"), HardFont()).height());
}

TEST(BalloonPlaceOf, APointerIsTwoLeftAndTwentyBelow) {
    const QRect Screen(0, 0, 1280, 1024);
    EXPECT_EQ(QPoint(98, 120), BalloonPlace({100, 100}, {80, 40}, Screen));
    EXPECT_EQ(QPoint(1200, 984), BalloonPlace({1202, 964}, {80, 40}, Screen)) << "just fits";
}

TEST(BalloonPlaceOf, TheEdgesOfTheScreenHoldItAndThePointerStaysFree) {
    const QRect Screen(1280, -200, 800, 600);
    EXPECT_EQ(QPoint(1280, -180), BalloonPlace({1280, -200}, {80, 40}, Screen));
    EXPECT_EQ(QPoint(2000, 20), BalloonPlace({2079, 0}, {80, 40}, Screen));
    EXPECT_EQ(QPoint(1398, 341), BalloonPlace({1400, 385}, {80, 40}, Screen)) << "above";
    EXPECT_EQ(QPoint(1398, 360), BalloonPlace({1400, 450}, {80, 40}, Screen)) << "beyond";
    EXPECT_EQ(QPoint(1280, 20), BalloonPlace({1900, 0}, {900, 40}, Screen)) << "too wide";
    EXPECT_EQ(QPoint(1398, -200), BalloonPlace({1400, 0}, {80, 700}, Screen)) << "too high";
}

TEST_P(BalloonPixels, OutsideTheRoundedBoxAndTheTailNothingIsPainted) {
    const QImage Image = Painted(GetParam(), {});
    for (int X : {0, 4, 7, 17, 60, 99})
        for (int Y : {0, 3, 7}) EXPECT_TRUE(IsAll(Image, X, Y, Qt::transparent));
    for (int X : {0, 1, 98, 99})
        for (int Y : {8, 49}) EXPECT_TRUE(IsAll(Image, X, Y, Qt::transparent));
}

// Each pixel of the device in a corner lies outside the arc, or inside it, or is cut by it.
TEST_P(BalloonPixels, TheCornersAreRoundedByFifteen) {
    const QImage Image = Painted(GetParam(), {});
    constexpr double Radius = 7.5, Doubt = 0.05;
    const double Dot = 1.0 / GetParam();
    int Outside = 0, Inside = 0;
    for (int Y = 8 * GetParam(); Y < Image.height(); ++Y)
        for (int X = 0; X < Image.width(); ++X) {
            const double Across = std::min(X, Image.width() - 1 - X) * Dot;
            const double Down = std::min(Y - 8 * GetParam(), Image.height() - 1 - Y) * Dot;
            if (std::max(Across, Down) + Dot > Radius) continue;
            const int Alpha = Image.pixelColor(X, Y).alpha();
            if (std::hypot(Radius - Across - Dot, Radius - Down - Dot) > Radius + Doubt) {
                EXPECT_EQ(0, Alpha) << X << "," << Y << " of the device";
                ++Outside;
            } else if (std::hypot(Radius - Across, Radius - Down) < Radius - Doubt) {
                EXPECT_EQ(255, Alpha) << X << "," << Y << " of the device";
                ++Inside;
            }
        }
    EXPECT_GT(Outside, 20);
    EXPECT_GT(Inside, 80);
}

TEST_P(BalloonPixels, TheFrameIsDarkGreyAndOnePixelWide) {
    const QImage Image = Painted(GetParam(), {});
    for (int X : {20, 50, 90}) {
        EXPECT_TRUE(IsAll(Image, X, 8, Frame));
        EXPECT_TRUE(IsAll(Image, X, 9, Ground));
        EXPECT_TRUE(IsAll(Image, X, 48, Ground));
        EXPECT_TRUE(IsAll(Image, X, 49, Frame));
    }
    for (int Y : {17, 30, 40}) {
        EXPECT_TRUE(IsAll(Image, 0, Y, Frame));
        EXPECT_TRUE(IsAll(Image, 1, Y, Ground));
        EXPECT_TRUE(IsAll(Image, 98, Y, Ground));
        EXPECT_TRUE(IsAll(Image, 99, Y, Frame));
    }
}

TEST_P(BalloonPixels, TheTailIsATriangleThatOpensIntoTheBox) {
    const QImage Image = Painted(GetParam(), {});
    EXPECT_FALSE(IsAll(Image, 8, 0, Qt::transparent)) << "its tip";
    for (int Y = 2; Y < 8; ++Y) {
        EXPECT_TRUE(IsAll(Image, 8, Y, Frame));
        EXPECT_TRUE(IsAll(Image, 7, Y, Qt::transparent));
        EXPECT_FALSE(IsAll(Image, 8 + Y, Y, Ground)) << "its slope";
        EXPECT_FALSE(IsAll(Image, 8 + Y, Y, Qt::transparent)) << "its slope";
        EXPECT_TRUE(IsAll(Image, 9 + Y, Y, Qt::transparent));
    }
    for (int X = 9; X <= 13; ++X) EXPECT_TRUE(IsAll(Image, X, 8, Ground)) << "no line between";
    EXPECT_TRUE(IsAll(Image, 9, 5, Ground));
    EXPECT_TRUE(IsAll(Image, 11, 7, Ground));
}

TEST_P(BalloonPixels, TheTextStandsSevenAndFifteenInsideAndItsShadowOnePixelOff) {
    const int Scale = GetParam();
    const QString Words = QStringLiteral("The tip\nof two lines");
    const QImage Image = Painted(Scale, Words);
    const auto Above = PlacesOf(Image, Text), Below = PlacesOf(Image, Shadow);
    ASSERT_GT(Above.size(), 50u);
    ASSERT_GT(Below.size(), 50u);
    EXPECT_EQ(Letters(Scale, Words, {7, 15}), Above);
    std::vector<std::pair<int, int>> Seen;
    for (const auto& Place : Letters(Scale, Words, {8, 16}))
        if (std::find(Above.begin(), Above.end(), Place) == Above.end()) Seen.push_back(Place);
    EXPECT_EQ(Seen, Below) << "the text lies over its shadow";
}

TEST_P(BalloonPixels, ATextLongerThanTheBoxIsNotCut) {
    const int Scale = GetParam();
    const QString Words(40, u'W');
    EXPECT_FALSE(IsAll(Painted(Scale, Words), 99, 20, Frame) &&
                 IsAll(Painted(Scale, Words), 99, 22, Frame) &&
                 IsAll(Painted(Scale, Words), 99, 24, Frame))
        << "letters run over the frame";
}

TEST_P(BalloonPixels, AnAmpersandIsALetter) {
    const int Scale = GetParam();
    const QString Words = QStringLiteral("A & B");
    EXPECT_EQ(Letters(Scale, Words, {7, 15}), PlacesOf(Painted(Scale, Words), Text));
}

TEST_P(BalloonPixels, AnotherPlaceMovesItAllAndLeavesTheRestAlone) {
    const int Scale = GetParam();
    const QString Words = QStringLiteral("The tip");
    const QImage Moved = Painted(Scale, Words, Colours(), {30, 12});
    QImage Cut = Moved.copy(QRect(QPoint(30, 12) * Scale, Whole * Scale));
    EXPECT_EQ(Painted(Scale, Words), Cut);
    EXPECT_TRUE(IsAll(Moved, 29, 40, Qt::transparent));
}

TEST(BalloonShapeOf, ASizeIsAllThatIsPainted) {
    const QImage Image = Painted(1, {});
    const QRegion Shape = BalloonShape(Whole);
    for (int Y = 0; Y < Whole.height(); ++Y)
        for (int X = 0; X < Whole.width(); ++X)
            EXPECT_EQ(Image.pixelColor(X, Y).alpha() > 0, Shape.contains(QPoint(X, Y)))
                << X << "," << Y;
}

TEST(BalloonColours, AreThoseOfToolTipsInWindowsThatAreNotActive) {
    QPalette Mixed = Colours();
    Mixed.setColor(QPalette::Active, QPalette::ToolTipBase, Qt::green);
    Mixed.setColor(QPalette::Active, QPalette::ToolTipText, Qt::green);
    Mixed.setColor(QPalette::Active, QPalette::Midlight, Qt::green);
    const QString Words = QStringLiteral("The tip");
    EXPECT_EQ(Painted(1, Words), Painted(1, Words, Mixed));
}

TEST(BalloonPainter, ThePainterIsGivenBackAsItWas) {
    QImage Image = Empty(1);
    QPainter Painter(&Image);
    const QPen Pen = Painter.pen();
    const QFont Font = Painter.font();
    PaintBalloon(Painter, QRect(QPoint(), Whole), QStringLiteral("x"), HardFont(), Colours());
    EXPECT_EQ(Pen, Painter.pen());
    EXPECT_EQ(Font, Painter.font());
    EXPECT_FALSE(Painter.testRenderHint(QPainter::Antialiasing));
}

TEST_F(Hovered, ThePointerAtRestBringsTheBalloonAndNoPlainTip) {
    Button.setToolTip(QStringLiteral("plain"));
    EXPECT_FALSE(IsUp());
    HoverOver(OverButton);
    EXPECT_EQ(Global(OverButton) + QPoint(-2, 20), Balloon()->pos());
    EXPECT_FALSE(QToolTip::isVisible());
    EXPECT_EQ(&Window, QApplication::activeWindow()) << "it takes no keyboard";
}

TEST_F(Hovered, TheWindowShowsTheBalloonAndNothingElse) {
    HoverOver(OverButton);
    const QFont Font = BalloonFont(Tips.FontType(), Tips.FontSize());
    EXPECT_EQ(BalloonSize(QStringLiteral("The tip"), Font), Balloon()->size());
    QImage Wanted = Empty(1, Balloon()->size());
    QPainter Painter(&Wanted);
    PaintBalloon(Painter, Balloon()->rect(), QStringLiteral("The tip"), Font, QToolTip::palette());
    Painter.end();
    EXPECT_EQ(Wanted, Balloon()->grab().toImage().convertToFormat(Wanted.format()));
}

TEST_F(Hovered, ItFollowsThePointer) {
    HoverOver(OverButton);
    for (const QPoint& Step : {QPoint(61, 40), QPoint(100, 25), QPoint(22, 58)}) {
        MoveTo(Step);
        EXPECT_EQ(Global(Step) + QPoint(-2, 20), Balloon()->pos());
        EXPECT_TRUE(IsUp());
    }
}

TEST_F(Hovered, ItStaysOnTheScreen) {
    const QRect Screen = Window.screen()->geometry();
    Window.move(Screen.right() - 100, Screen.bottom() - 70);
    HoverOver(OverButton);
    EXPECT_TRUE(Screen.contains(Balloon()->geometry()));
    MoveTo({90, 58});
    EXPECT_TRUE(Screen.contains(Balloon()->geometry()));
    EXPECT_FALSE(Balloon()->geometry().contains(Global({90, 58})));
}

TEST_F(Hovered, ItGoesWhenThePointerLeavesTheControl) {
    HoverOver(OverButton);
    MoveTo(OverNothing);
    EXPECT_FALSE(IsUp());
    HoverOver(OverButton);
    MoveTo({60, 120});
    EXPECT_FALSE(IsUp()) << "to the neighbour";
}

TEST_F(Hovered, ItGoesWithAClickWithTheWheelAndWithTheKeyboard) {
    HoverOver(OverButton);
    QTest::mousePress(Window.windowHandle(), Qt::LeftButton, {}, OverButton);
    EXPECT_FALSE(IsUp());
    QTest::mouseRelease(Window.windowHandle(), Qt::LeftButton, {}, OverButton);
    HoverOver(OverButton);
    QWheelEvent Turn(OverButton, Global(OverButton), {}, {0, 120}, {}, {}, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(Window.windowHandle(), &Turn);
    EXPECT_FALSE(IsUp());
    Button.setFocus();
    HoverOver(OverButton);
    QTest::keyClick(Window.windowHandle(), Qt::Key_Tab);
    EXPECT_EQ(&Neighbour, QApplication::focusWidget());
    EXPECT_FALSE(IsUp());
}

TEST_F(Hovered, ItGoesWithItsWindowAndWithItsControl) {
    HoverOver(OverButton);
    Button.hide();
    EXPECT_FALSE(IsUp());
    Button.show();
    HoverOver(OverButton);
    Window.hide();
    EXPECT_FALSE(IsUp());
}

TEST_F(Hovered, ItGoesWhenAnotherWindowComesForward) {
    HoverOver(OverButton);
    QWidget Other;
    Other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Other));
    EXPECT_FALSE(IsUp());
}

TEST_F(Hovered, ItComesInAWindowThatIsNotTheActiveOne) {
    QWidget Other;
    Other.setGeometry(700, 700, 100, 100);
    Other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Other));
    ASSERT_FALSE(Window.isActiveWindow());
    MoveTo({60, 120});
    HoverOver(OverButton);
    MoveTo({60, 120});
    EXPECT_FALSE(Window.testAttribute(Qt::WA_AlwaysShowToolTips)) << "plain tips do not";
    HoverOver(OverButton);
    Tips.ParentClear();
    EXPECT_FALSE(Window.testAttribute(Qt::WA_AlwaysShowToolTips));
}

TEST_F(Hovered, ItGoesAfterTenSecondsAndComesAgain) {
    HoverOver(OverButton);
    auto* Expires = Balloon()->findChild<QTimer*>();
    ASSERT_TRUE(Expires && Expires->isActive());
    EXPECT_EQ(10000, Expires->interval());
    Expires->start(20);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !IsUp(); }, 2000));
    HoverOver(OverButton + QPoint(2, 2));
    EXPECT_EQ(10000, Expires->interval());
    Tips.AddCustomToolTip(&Button, QString(150, u'x'));
    ASSERT_TRUE(Ask(Button, {3, 3}));
    EXPECT_EQ(12000, Balloon()->findChild<QTimer*>()->interval()) << "40 ms for each past 100";
}

TEST_F(Hovered, ARequestShowsItAtItsPointAndMovesItWhenItIsUp) {
    EXPECT_TRUE(Ask(Button, {3, 4}));
    EXPECT_TRUE(IsUp());
    EXPECT_EQ(Button.mapToGlobal(QPoint(1, 24)), Balloon()->pos());
    EXPECT_TRUE(Ask(Button, {50, 10}));
    EXPECT_EQ(Button.mapToGlobal(QPoint(48, 30)), Balloon()->pos());
    EXPECT_FALSE(Ask(Neighbour, {3, 4})) << "it has none";
}

TEST_F(Hovered, WithoutATextThePlainTipIsLeftToTheDesktop) {
    Tips.AddCustomToolTip(&Button, {});
    Button.setToolTip(QStringLiteral("plain"));
    Ask(Button, {3, 4});
    EXPECT_FALSE(IsUp());
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_EQ(QStringLiteral("plain"), QToolTip::text());
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(Hovered, LinesOfAnOldKindAreLines) {
    Tips.AddCustomToolTip(&Button, QStringLiteral("one\r\ntwo"));
    const QFont Font = BalloonFont(Tips.FontType(), Tips.FontSize());
    EXPECT_EQ(BalloonSize(QStringLiteral("one\ntwo"), Font), Balloon()->size());
}

TEST_F(Hovered, AControlDeletedUnderItTakesItAlong) {
    auto* Short = new QPushButton(&Window);
    Short->setGeometry(20, 150, 120, 40);
    Short->show();
    Tips.AddCustomToolTip(Short, QStringLiteral("Short"));
    const QPointer<ToolTipBalloon> Up =
        FindToolTip(Short->property("Tag").toString().section(u'\t', 0, 0).toInt());
    MoveTo({60, 169});
    MoveTo({60, 170});
    ASSERT_TRUE(QTest::qWaitFor([&] { return Up && Up->isVisible(); }, 5000));
    delete Short;
    EXPECT_TRUE(Up.isNull());
    MoveTo({61, 170});
    QTest::mouseClick(Window.windowHandle(), Qt::LeftButton, {}, {61, 170});
    EXPECT_EQ(1, ToolTipCount());
}

TEST_F(Hovered, AClickThatDeletesTheControlTakesItAlong) {
    auto* Short = new QPushButton(&Window);
    Short->setGeometry(20, 150, 120, 40);
    Short->show();
    QObject::connect(Short, &QPushButton::clicked, Short, &QObject::deleteLater);
    Tips.AddCustomToolTip(Short, QStringLiteral("Short"));
    ASSERT_TRUE(Ask(*Short, {5, 5}));
    QTest::mouseClick(Window.windowHandle(), Qt::LeftButton, {}, {60, 170});
    Settle();
    EXPECT_EQ(1, ToolTipCount());
    EXPECT_EQ(1, Window.findChildren<ToolTipBalloon*>().size());
}

TEST_F(Hovered, ClearedOrReplacedWhileItIsUpItGoes) {
    HoverOver(OverButton);
    const QPointer<ToolTipBalloon> Before = Balloon();
    Tips.AddCustomToolTip(&Button, QStringLiteral("Another"));
    EXPECT_TRUE(Before.isNull());
    EXPECT_FALSE(IsUp());
    HoverOver(OverButton + QPoint(1, 1));
    Tips.ParentClear();
    EXPECT_EQ(nullptr, Balloon());
    MoveTo(OverButton);
}

TEST_F(Hovered, APartOfTheControlBringsItUnlessItHasATipOfItsOwn) {
    auto *Silent = new QPushButton(&Button), *Speaking = new QPushButton(&Button);
    Silent->setGeometry(0, 0, 40, 40);
    Speaking->setGeometry(80, 0, 40, 40);
    Tips.AddCustomToolTip(Speaking, QStringLiteral("A part"));
    Silent->show();
    Speaking->show();
    HoverOver({30, 40});
    MoveTo({60, 40});
    EXPECT_TRUE(IsUp());
    MoveTo({35, 40});
    EXPECT_EQ(Global({33, 60}), Balloon()->pos());
    MoveTo({110, 40});
    EXPECT_FALSE(IsUp());
}

TEST_F(Hovered, WhatItSaysIsTheDescriptionOfTheControl) {
    EXPECT_EQ(QStringLiteral("The tip"), Button.accessibleDescription());
    Tips.AddCustomToolTip(&Button, QStringLiteral("Another"));
    EXPECT_EQ(QStringLiteral("Another"), Button.accessibleDescription());
    Neighbour.setAccessibleDescription(QStringLiteral("own"));
    Tips.AddCustomToolTip(&Neighbour, QStringLiteral("tip"));
    EXPECT_EQ(QStringLiteral("own"), Neighbour.accessibleDescription());
    Tips.ParentClear();
    EXPECT_EQ(QString(), Button.accessibleDescription());
    EXPECT_EQ(QStringLiteral("own"), Neighbour.accessibleDescription());
}

namespace {

// The window itself on a display of twice the dots: exit code 0 when it is right.
int ShowAtScaleTwo() {
    QWidget Window;
    Window.setGeometry(50, 50, 200, 100);
    QPushButton Button(&Window);
    Window.show();
    clsDEToolTips Tips;
    Tips.ParentSet(Window);
    Tips.AddCustomToolTip(&Button, QStringLiteral("The tip"));
    ToolTipBalloon* Balloon = FindToolTip(ToolTipTable()[0].TipHWnd);
    QHelpEvent Event(QEvent::ToolTip, {5, 5}, {300, 200});
    QApplication::sendEvent(&Button, &Event);
    if (!Balloon->isVisible() || Balloon->devicePixelRatioF() != 2.0) return 2;
    if (Balloon->pos() != QPoint(298, 220)) return 3;
    QImage Wanted = Empty(2, Balloon->size());
    QPainter Painter(&Wanted);
    PaintBalloon(Painter, Balloon->rect(), QStringLiteral("The tip"),
                 BalloonFont(Tips.FontType(), Tips.FontSize()), QToolTip::palette());
    Painter.end();
    const QImage Seen = Balloon->grab().toImage().convertToFormat(Wanted.format());
    if (Seen.size() != Balloon->size() * 2) return 4;
    return Seen == Wanted ? 0 : 5;
}

const ChildRole ScaleTwo("balloon-at-scale-two", &ShowAtScaleTwo);

}  // namespace

TEST(BalloonScreens, TheWindowIsSharpOnADisplayOfTwiceTheDots) {
    QProcess Copy;
    QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
    Environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    Copy.setProcessEnvironment(Environment);
    Copy.setProcessChannelMode(QProcess::ForwardedChannels);
    Copy.start(QCoreApplication::applicationFilePath(),
               {QStringLiteral("--role"), QStringLiteral("balloon-at-scale-two")});
    ASSERT_TRUE(Copy.waitForFinished(20000));
    EXPECT_EQ(Copy.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(Copy.exitCode(), 0) << "2: not up, 3: misplaced, 4: coarse, 5: other pixels";
}
