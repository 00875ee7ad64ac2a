// The program's colours follow the desktop's, while it runs.
#include "program/desktop/DesktopColours.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDBusContext>
#include <QDBusVariant>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QThread>

#include "controls/fields/HintColour.h"
#include "controls/fields/Icons.h"
#include "harness/TempFolder.h"
#include "program/MessageBus.h"
#include "program/desktop/DesktopSettings.h"
#include "program/desktop/ToolkitSettings.h"
#include "support/files/modHostFiles.h"

namespace neb::test {

using namespace Qt::StringLiterals;

const QString Looks = u"org.freedesktop.appearance"_s;

// The portal, as far as it tells of looks; it answers from a thread of its own.
class LooksPortal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

  public:
    std::atomic<uint> Scheme = 0, Contrast = 0;

    void Tell(const QString& Key, uint Value) {
        QMetaObject::invokeMethod(
            this, [=, this] { Q_EMIT SettingChanged(Looks, Key, QDBusVariant(Value)); });
    }

  public Q_SLOTS:
    QDBusVariant Read(const QString& Group, const QString& Key) {
        if (Group == Looks && Key == u"color-scheme") return QDBusVariant(Scheme.load());
        if (Group == Looks && Key == u"contrast") return QDBusVariant(Contrast.load());
        sendErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"no such setting"_s);
        return {};
    }

  Q_SIGNALS:
    void SettingChanged(const QString& Group, const QString& Key, const QDBusVariant& Value);
};

class ColoursOnABus : public ::testing::Test {
  protected:
    ColoursOnABus() {
        qputenv("XDG_CONFIG_HOME", Config.Path().toLocal8Bit());
        QApplication::setPalette(PaletteOf(Shade::Light, false));
        Bus.Service().registerObject(u"/org/freedesktop/portal/desktop"_s, &Portal,
                                     QDBusConnection::ExportAllContents);
        Portal.moveToThread(&Thread);
        Thread.start();
    }
    ~ColoursOnABus() override {
        Thread.quit();
        Thread.wait();
        QDBusConnection::disconnectFromBus(Client.name());
        qunsetenv("XDG_CONFIG_HOME");
        QApplication::setPalette(Before);
    }
    void OpenPortal() { Bus.Service().registerService(u"org.freedesktop.portal.Desktop"_s); }
    static bool ComesTo(Shade Is, bool HighContrast = false) {
        return QTest::qWaitFor([&] { return Suits(QApplication::palette(), Is, HighContrast); },
                               3000);
    }

    const QPalette Before = QApplication::palette();
    harness::TempFolder Config;
    MessageBus Bus{u"test-colours"_s};
    QDBusConnection Client = QDBusConnection::connectToBus(Bus.Address(), u"test-colours-client"_s);
    QThread Thread;
    LooksPortal Portal;
};

TEST_F(ColoursOnABus, AreDarkFromTheStartWhereTheDesktopIs) {
    Portal.Scheme = 1;
    OpenPortal();
    DesktopSettings Desktop(Client);
    const DesktopColours Colours(Desktop);
    EXPECT_TRUE(Suits(QApplication::palette(), Shade::Dark, false));
    EXPECT_GE(Contrast(QApplication::palette().color(QPalette::PlaceholderText),
                       QApplication::palette().color(QPalette::Base)),
              4.5)
        << "hints can be read in it";
}

TEST_F(ColoursOnABus, StayTheToolkitsOwnWhereThesesSuit) {
    QPalette Theirs(QColor(200, 210, 190));
    QApplication::setPalette(Theirs);
    OpenPortal();
    DesktopSettings Desktop(Client);
    const DesktopColours Colours(Desktop);
    EXPECT_EQ(QColor(200, 210, 190), QApplication::palette().color(QPalette::Button));
}

TEST_F(ColoursOnABus, ChangeWithTheDesktopAndWindowsFollow) {
    OpenPortal();
    DesktopSettings Desktop(Client);
    const DesktopColours Colours(Desktop);
    QWidget Window;
    Window.show();
    Portal.Tell(u"color-scheme"_s, 1);
    EXPECT_TRUE(ComesTo(Shade::Dark));
    EXPECT_TRUE(QTest::qWaitFor([&] { return IsDark(Window.palette()); }, 3000));
    Portal.Tell(u"color-scheme"_s, 2);
    EXPECT_TRUE(ComesTo(Shade::Light));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !IsDark(Window.palette()); }, 3000));
    Portal.Tell(u"contrast"_s, 1);
    EXPECT_TRUE(ComesTo(Shade::Light, true));
    Portal.Tell(u"color-scheme"_s, 1);
    EXPECT_TRUE(ComesTo(Shade::Dark, true));
    Portal.Tell(u"contrast"_s, 0);
    EXPECT_TRUE(
        QTest::qWaitFor([] { return !Suits(QApplication::palette(), Shade::Dark, true); }, 3000));
}

TEST_F(ColoursOnABus, WithoutAPortalAreThoseOfTheToolkitsSettings) {
    MakeDirs(Config / u"gtk-3.0"_s);
    WriteFile(Config / u"gtk-3.0/settings.ini"_s,
              "[Settings]\ngtk-application-prefer-dark-theme = 1\n");
    DesktopSettings Desktop{QDBusConnection(QString())};
    const DesktopColours Colours(Desktop);
    EXPECT_TRUE(Suits(QApplication::palette(), Shade::Dark, false));
}

TEST(WantedColours, AreReadFromTheNameOfATheme) {
    const auto Of = [](const char* Theme, const char* Prefers = "") {
        return WantedByToolkit(QLatin1String(Theme), QLatin1String(Prefers));
    };
    EXPECT_EQ((WantedColours{}), Of("Adwaita"));
    EXPECT_EQ((WantedColours{Shade::Dark, false}), Of("Adwaita-dark"));
    EXPECT_EQ((WantedColours{Shade::Dark, false}), Of("Adwaita:dark"));
    EXPECT_EQ((WantedColours{Shade::Dark, false}), Of("Adwaita", "true"));
    EXPECT_EQ((WantedColours{std::nullopt, true}), Of("HighContrast"));
    EXPECT_EQ((WantedColours{Shade::Dark, true}), Of("HighContrastInverse"));
    EXPECT_EQ((WantedColours{}), Of("Adwaita", "0"));
}

TEST(ToolkitSettings, AreReadWithTheirBlanks) {
    const QByteArray File = "[Settings]\n gtk-theme-name = Adwaita-dark \n#x=1\ny=\n";
    EXPECT_EQ("Adwaita-dark", ToolkitSetting(File, "gtk-theme-name").toStdString());
    EXPECT_EQ("", ToolkitSetting(File, "y").toStdString());
    EXPECT_EQ("", ToolkitSetting(File, "z").toStdString());
}

class StylePaletteOf : public ::testing::TestWithParam<std::pair<Shade, bool>> {};

TEST_P(StylePaletteOf, AShadeCanBeReadThroughout) {
    const auto [Is, High] = GetParam();
    const QPalette Made = PaletteOf(Is, High);
    EXPECT_TRUE(Suits(Made, Is, High));
    EXPECT_EQ(High, Suits(Made, Is, true)) << "the usual one is no high contrast";
    const double Least = High ? 7 : 4.5;
    using P = QPalette;
    for (const auto& [Text, Ground] :
         {std::pair(P::WindowText, P::Window), std::pair(P::Text, P::Base),
          std::pair(P::Text, P::AlternateBase), std::pair(P::ButtonText, P::Button),
          std::pair(P::ToolTipText, P::ToolTipBase), std::pair(P::HighlightedText, P::Highlight),
          std::pair(P::Link, P::Base), std::pair(P::LinkVisited, P::Base),
          std::pair(P::PlaceholderText, P::Base)})
        EXPECT_GE(Contrast(Made.color(Text), Made.color(Ground)),
                  High && Text == P::PlaceholderText ? 4.5 : Least)
            << Text << " on " << Ground;
    EXPECT_GE(Contrast(Made.color(P::Disabled, P::WindowText), Made.color(P::Window)), 2.5);
    EXPECT_NE(Made.color(P::Disabled, P::WindowText), Made.color(P::WindowText));
}

INSTANTIATE_TEST_SUITE_P(Shades, StylePaletteOf,
                         ::testing::Values(std::pair(Shade::Dark, false),
                                           std::pair(Shade::Light, false),
                                           std::pair(Shade::Dark, true),
                                           std::pair(Shade::Light, true)));

// The colours along the left edge of a control, but for its corners.
QSet<QRgb> EdgeOf(QWidget& Control, const QPalette& In) {
    Control.setPalette(In);
    Control.resize(120, 40);
    const QImage Seen = Control.grab().toImage();
    QSet<QRgb> All;
    for (int Y = 4; Y < Seen.height() - 4; ++Y) All << Seen.pixel(0, Y);
    return All;
}

template <class Control>
void ExpectOutlined() {
    Control Of;
    for (const Shade Is : {Shade::Dark, Shade::Light}) {
        const QPalette Wanted = PaletteOf(Is, true);
        const QSet<QRgb> Edge = EdgeOf(Of, Wanted);
        ASSERT_EQ(1, Edge.size()) << Of.metaObject()->className();
        for (const auto Ground : {QPalette::Window, QPalette::Base})
            EXPECT_GE(Contrast(*Edge.begin(), Wanted.color(Ground)), 3)
                << Of.metaObject()->className();
        EXPECT_NE(Edge, EdgeOf(Of, PaletteOf(Is, false)));
    }
}

TEST(HighContrast, WhatCanBeUsedHasALineAroundIt) {
    ExpectOutlined<QPushButton>();
    ExpectOutlined<QLineEdit>();
    ExpectOutlined<QComboBox>();
    ExpectOutlined<QSpinBox>();
    ExpectOutlined<QListWidget>();
}

TEST(OwnIcons, AreDrawnForTheColoursOfNow) {
    const QPalette Before = QApplication::palette();
    QApplication::setPalette(PaletteOf(Shade::Light, false));
    const QIcon Icon = ThemeIcon(u"album-rename"_s);
    const QIcon Own = ThemeIcon(u"album-rename"_s, PaletteOf(Shade::Dark, false));
    const QImage Light = Icon.pixmap(32, 32).toImage(), Fixed = Own.pixmap(32, 32).toImage();
    QApplication::setPalette(PaletteOf(Shade::Dark, false));
    const QImage Dark = Icon.pixmap(32, 32).toImage();
    EXPECT_FALSE(Light.isNull());
    EXPECT_NE(Light, Dark);
    EXPECT_EQ(Fixed, Dark);
    EXPECT_EQ(Fixed, Own.pixmap(32, 32).toImage());
    QApplication::setPalette(Before);
}

}  // namespace neb::test

#include "DesktopColoursTest.moc"
