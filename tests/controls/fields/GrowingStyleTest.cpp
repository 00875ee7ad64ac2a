// What stands beside letters grows with them: arrows, boxes to tick, icons, scroll bars, the arrow
// at the end of a tool bar. Looked at on the screen, as a user does.
#include "controls/fields/GrowingStyle.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QStyleOptionComboBox>

#include "controls/fields/HintColour.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

// While it stands, all letters have that size.
class LettersOf {
  public:
    explicit LettersOf(int Points) : mBefore(QApplication::font()) {
        QFont Font = mBefore;
        Font.setPointSize(Points);
        QApplication::setFont(Font);
    }
    ~LettersOf() { QApplication::setFont(mBefore); }
    Q_DISABLE_COPY_MOVE(LettersOf)

  private:
    QFont mBefore;
};

// How wide the dark drawing is that stands there on a light ground.
int InkWidth(const QImage& Of, const QRect& There) {
    int First = -1, Last = -1;
    const int Ground = qGray(Of.pixel(There.topLeft() + QPoint(2, There.height() / 2)));
    for (int X = There.left() + 2; X < There.right() - 2; ++X)
        for (int Y = There.top() + 4; Y < There.bottom() - 4; ++Y)
            if (Ground - qGray(Of.pixel(X, Y)) > 60) {
                if (First < 0) First = X;
                Last = X;
            }
    return First < 0 ? 0 : Last - First + 1;
}

int ArrowWidthAt(int Points) {
    const LettersOf Letters(Points);
    QComboBox Box;
    Box.resize(300, Box.sizeHint().height());
    Box.ensurePolished();
    QStyleOptionComboBox Look;
    Look.initFrom(&Box);
    Look.subControls = QStyle::SC_All;
    const QRect Arrow =
        Box.style()->subControlRect(QStyle::CC_ComboBox, &Look, QStyle::SC_ComboBoxArrow, &Box);
    return InkWidth(Box.grab().toImage().convertToFormat(QImage::Format_RGB32), Arrow);
}

TEST(GrowingStyle, TheArrowOfAListGrowsWithTheLetters) {
    const int Usual = ArrowWidthAt(10);
    ASSERT_GT(Usual, 3);
    EXPECT_EQ(Usual, ArrowWidthAt(9)) << "nothing is made smaller";
    EXPECT_GE(ArrowWidthAt(20), Usual * 8 / 5);
}

TEST(GrowingStyle, BoxesIconsAndScrollBarsGrowWithTheLetters) {
    for (const auto Metric :
         {QStyle::PM_IndicatorWidth, QStyle::PM_ExclusiveIndicatorHeight, QStyle::PM_ButtonIconSize,
          QStyle::PM_SmallIconSize, QStyle::PM_ToolBarIconSize, QStyle::PM_ScrollBarExtent,
          QStyle::PM_TreeViewIndentation, QStyle::PM_TitleBarHeight}) {
        const int Usual = QApplication::style()->pixelMetric(Metric);
        const LettersOf Letters(20);
        EXPECT_EQ(2 * Usual, QApplication::style()->pixelMetric(Metric)) << Metric;
    }
}

TEST(GrowingStyle, AListIsAsWideAsItsLongestEntryAndTheArrow) {
    const LettersOf Letters(20);
    QComboBox Box;
    Box.addItem(u"By the time taken"_s);
    Box.resize(Box.sizeHint());
    QStyleOptionComboBox Look;
    Look.initFrom(&Box);
    Look.subControls = QStyle::SC_All;
    const QRect Words =
        Box.style()->subControlRect(QStyle::CC_ComboBox, &Look, QStyle::SC_ComboBoxEditField, &Box);
    EXPECT_GE(Words.width(), Box.fontMetrics().horizontalAdvance(Box.itemText(0)));
}

TEST(GrowingStyle, TheLettersThemselvesAreMeasuredAsBefore) {
    const LettersOf Letters(20);
    QComboBox Box;
    QStyleOptionComboBox Look;
    Look.initFrom(&Box);
    const QFontMetrics Before = Look.fontMetrics;
    Box.style()->subControlRect(QStyle::CC_ComboBox, &Look, QStyle::SC_ComboBoxArrow, &Box);
    EXPECT_EQ(Before, Look.fontMetrics);
}

TEST(GrowingStyle, ABoxToTickHasAFrameThatIsSeenInLightAndInDarkColours) {
    const QPalette Dark(QColor(53, 53, 53), QColor(45, 45, 45));
    for (const QPalette& Colours : {QApplication::palette(), Dark}) {
        QCheckBox Box;
        Box.setPalette(Colours);
        Box.resize(40, 40);
        const QImage Drawn = Box.grab().toImage();
        const QColor Ground = Drawn.pixelColor(39, 39);
        double Most = 1;
        for (int X = 0; X < 12; ++X)
            Most = std::max(Most, Contrast(Drawn.pixelColor(X, 20), Ground));
        EXPECT_GE(Most, 3) << Ground.name().toStdString();
    }
}

// In the colour of the texts beside it: black on black it could not be seen.
TEST(GrowingStyle, TheArrowAtTheEndOfAToolBarIsSeenInDarkColours) {
    const QPalette Before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(53, 53, 53), QColor(45, 45, 45)));
    {
        const QIcon Arrow =
            QApplication::style()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
        const QImage Drawn = Arrow.pixmap(32, 32, QIcon::Normal).toImage();
        int Light = 0;
        for (int Y = 0; Y < Drawn.height(); ++Y)
            for (int X = 0; X < Drawn.width(); ++X)
                if (const QColor Ink = Drawn.pixelColor(X, Y);
                    Ink.alpha() > 200 && Ink.lightness() > 200)
                    ++Light;
        EXPECT_GT(Light, 20);
    }
    QApplication::setPalette(Before);
}

}  // namespace
}  // namespace neb
