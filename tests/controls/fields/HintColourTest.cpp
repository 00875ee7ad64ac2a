// Hints are fainter than what is typed, and can be read: in light, in dark, and between the two.
#include "controls/fields/HintColour.h"

#include <gtest/gtest.h>
#include <QApplication>

namespace neb {
namespace {

constexpr double Enough = 4.5;

TEST(HintColour, ContrastIsThatOfTheEyes) {
    EXPECT_NEAR(21, Contrast(Qt::black, Qt::white), 0.01);
    EXPECT_NEAR(21, Contrast(Qt::white, Qt::black), 0.01);
    EXPECT_NEAR(1, Contrast(Qt::red, Qt::red), 0.001);
    EXPECT_NEAR(4.54, Contrast(QColor(0x76, 0x76, 0x76), Qt::white), 0.01);
}

TEST(HintColour, CanBeReadOnEveryGroundOnWhichTheTextCan) {
    const struct {
        QColor Text, Ground;
    } Pairs[] = {{Qt::black, Qt::white},
                 {Qt::white, QColor(30, 30, 30)},
                 {QColor(239, 240, 241), QColor(35, 38, 41)},
                 {QColor(49, 54, 59), QColor(252, 252, 252)},
                 {QColor(101, 123, 131), QColor(253, 246, 227)}};
    for (const auto& Each : Pairs) {
        const QColor Hint = HintColour(Each.Text, Each.Ground);
        const double Most = Contrast(Each.Text, Each.Ground);
        EXPECT_GE(Contrast(Hint, Each.Ground), std::min(Enough, Most)) << Most;
        EXPECT_LE(Contrast(Hint, Each.Ground), Most + 0.001) << Most;
    }
    EXPECT_NE(Qt::black, HintColour(Qt::black, Qt::white)) << "fainter than what is typed";
}

// The toolkit's own is half of the text, which nobody with weak eyes can read.
TEST(HintColour, IsThatOfTheApplicationInLightAndInDark) {
    const QPalette Before = QApplication::palette();
    for (const QPalette& Colours :
         {QPalette(QColor(239, 239, 239)), QPalette(QColor(53, 53, 53), QColor(45, 45, 45))}) {
        QApplication::setPalette(Colours);
        QCoreApplication::processEvents();
        for (const auto Group : {QPalette::Active, QPalette::Inactive}) {
            const QColor Ground = QApplication::palette().color(Group, QPalette::Base);
            const QColor Hint = QApplication::palette().color(Group, QPalette::PlaceholderText);
            EXPECT_EQ(255, Hint.alpha());
            EXPECT_GE(Contrast(Hint, Ground), Enough) << Ground.name().toStdString();
            for (const auto Other : {QPalette::Window, QPalette::AlternateBase, QPalette::Button})
                EXPECT_GE(Contrast(Hint, QApplication::palette().color(Group, Other)), Enough)
                    << Other;
        }
    }
    QApplication::setPalette(Before);
}

}  // namespace
}  // namespace neb
