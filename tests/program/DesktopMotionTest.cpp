// Whether the desktop's user wants things to stand still, as three desktops say it.
#include "program/desktop/DesktopMotion.h"

#include <QStyle>
#include <QTest>

#include "SettingsOnABus.h"
#include "controls/fields/GrowingStyle.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb::test {

using namespace Qt::StringLiterals;

class DesktopMotionOnABus : public SettingsOnABus {
  protected:
    void WriteFile(const QString& Toolkit, const QByteArray& Line) {
        MakeDirs(Config.Path() + Toolkit);
        neb::WriteFile(Config.Path() + Toolkit + u"/settings.ini"_s, "[Settings]\n" + Line + "\n");
    }
    static bool Becomes(const MotionWish& Wish, bool Still) {
        return QTest::qWaitFor([&] { return Wish.IsStill() == Still; }, 3000);
    }
    // Longer than an answer takes.
    static bool Stays(const MotionWish& Wish, bool Still) {
        QTest::qWait(100);
        return Wish.IsStill() == Still;
    }

    harness::TempFolder Config;
};

TEST_F(DesktopMotionOnABus, IsUnwantedInTheWordsOfEachDesktop) {
    const struct {
        const char16_t* Key;
        QVariant Still, Moving;
    } Rows[] = {{u"org.freedesktop.appearance/reduced-motion", 1U, 0U},
                {u"org.gnome.desktop.interface/enable-animations", false, true},
                {u"org.kde.kdeglobals.KDE/AnimationDurationFactor", u"0"_s, u"1.4"_s}};
    OpenPortal();
    for (const auto& Each : Rows) {
        const QString Key = QString::fromUtf16(Each.Key);
        Portal.Known = {{Key, Each.Still}};
        DesktopSettings Settings(Client);
        const DesktopMotion Motion(Settings, Config.Path());
        EXPECT_TRUE(Becomes(Motion, true)) << Key.toStdString();
        Tell(Key.section(u'/', 0, 0), Key.section(u'/', 1), Each.Moving);
        EXPECT_TRUE(Becomes(Motion, false)) << Key.toStdString();
    }
}

TEST_F(DesktopMotionOnABus, IsWantedWhereNobodySaysAnything) {
    OpenPortal();
    DesktopSettings Settings(Client);
    const DesktopMotion Motion(Settings, Config.Path());
    EXPECT_TRUE(Stays(Motion, false));
}

TEST_F(DesktopMotionOnABus, IsReadFromTheOtherToolkitsFileWhereThereIsNoPortal) {
    DesktopSettings Settings(Client);
    WriteFile(u"gtk-3.0"_s, "gtk-enable-animations = 1");
    EXPECT_FALSE(DesktopMotion(Settings, Config.Path()).IsStill());
    WriteFile(u"gtk-3.0"_s, "gtk-enable-animations=false\r");
    EXPECT_TRUE(DesktopMotion(Settings, Config.Path()).IsStill());
    WriteFile(u"gtk-3.0"_s, "#gtk-enable-animations=0");
    EXPECT_FALSE(DesktopMotion(Settings, Config.Path()).IsStill());
    WriteFile(u"gtk-4.0"_s, "gtk-enable-animations=0");
    EXPECT_TRUE(DesktopMotion(Settings, Config.Path()).IsStill());
}

TEST_F(DesktopMotionOnABus, IsThePortalsToSayWhereItSaysSomething) {
    WriteFile(u"gtk-3.0"_s, "gtk-enable-animations=0");
    Portal.Known = {{u"org.gnome.desktop.interface/enable-animations"_s, true}};
    OpenPortal();
    DesktopSettings Settings(Client);
    const DesktopMotion Motion(Settings, Config.Path());
    EXPECT_TRUE(Motion.IsStill()) << "until the portal has answered";
    EXPECT_TRUE(Becomes(Motion, false));
}

TEST(StillStyle, ChangesControlsAtOnce) {
    struct Still : MotionWish {
        bool IsStill() const override { return true; }
    } Desktop;
    const GrowingStyle Style;
    const auto Duration = [&] {
        return Style.styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, nullptr, nullptr);
    };
    EXPECT_GT(Duration(), 0);
    TheMotionWish() = &Desktop;
    EXPECT_EQ(0, Duration());
    TheMotionWish() = nullptr;
}

}  // namespace neb::test
