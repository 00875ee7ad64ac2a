// Every window that stands open while the desktop becomes dark looks afterwards as one that is
// opened in the dark: no icon, link, ground or hint keeps its colour of before. The windows are
// looked at by a copy of this program on a screen of its own.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QMdiSubWindow>
#include <QProcess>
#include <QTest>
#include <cstdio>
#include <map>

#include "harness/ChildRole.h"
#include "harness/TempFolder.h"
#include "program/EveryWindow.h"
#include "program/desktop/StylePalettes.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

constexpr int SettleMs = 120, MostSettles = 30;
constexpr int Same = 10;          // of 255: as good as the same
constexpr double Enough = 0.002;  // of all points

// What they show is never twice the same: bars that move, what comes when it is found out, folders
// of this run.
const QStringList Moving{u"frmTransferProgress"_s, u"frmLoading"_s, u"frmProgress"_s,
                         u"frmSoundRecorder"_s,    u"frmAbout"_s,   u"frmFilm"_s,
                         u"frmAlbumView"_s,        u"frmDamage"_s,  u"frmSlideShowView"_s};

using Pictures = std::map<QString, QImage>;

QImage PictureOf(QWidget& Window) {
    QWidget* Frame = qobject_cast<QMdiSubWindow*>(Window.parentWidget());
    return (Frame ? Frame : &Window)->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// Once nothing comes up in it any more.
QImage SettledPictureOf(QWidget& Window) {
    QImage Before, Now = PictureOf(Window);
    for (int I = 0; I < MostSettles && Before != Now; ++I) {
        QTest::qWait(SettleMs);
        Before = std::exchange(Now, PictureOf(Window));
    }
    return Now;
}

Pictures LookIn(Shade Opened, Shade Looked) {
    Pictures All;
    QApplication::setPalette(PaletteOf(Opened, false));
    harness::LookAtEveryWindow(harness::Content::Albums, [&](const QString& Name, QWidget& Window) {
        if (Opened != Looked) QApplication::setPalette(PaletteOf(Looked, false));
        if (!Moving.contains(Name)) All[Name] = SettledPictureOf(Window);
        if (Opened != Looked) QApplication::setPalette(PaletteOf(Opened, false));
    });
    return All;
}

bool Differ(QRgb One, QRgb Other) {
    return std::abs(qRed(One) - qRed(Other)) > Same ||
           std::abs(qGreen(One) - qGreen(Other)) > Same ||
           std::abs(qBlue(One) - qBlue(Other)) > Same;
}

// Where they differ, and how many points do.
std::pair<QRect, int> Difference(const QImage& One, const QImage& Other) {
    QRect Where;
    int Count = 0;
    for (int Y = 0; Y < One.height(); ++Y)
        for (int X = 0; X < One.width(); ++X)
            if (Differ(One.pixel(X, Y), Other.pixel(X, Y))) {
                Where |= QRect(X, Y, 1, 1);
                ++Count;
            }
    return {Where, Count};
}

void Save(const QString& Name, const QImage& One, const QImage& Other) {
    const QString Folder = qEnvironmentVariable("NEB_WINDOWS_PICTURES");
    if (Folder.isEmpty()) return;
    QDir().mkpath(Folder);
    One.save(Folder + u'/' + Name + u"-dark.png"_s);
    Other.save(Folder + u'/' + Name + u"-became-dark.png"_s);
}

bool AreAlike(const QString& Name, const QImage& Dark, const QImage& BecameDark) {
    if (Dark.size() != BecameDark.size()) {
        std::printf("%s: another size\n", qPrintable(Name));
        return Save(Name, Dark, BecameDark), false;
    }
    const auto [Where, Count] = Difference(Dark, BecameDark);
    if (Count <= Enough * Dark.width() * Dark.height()) return true;
    std::printf("%s: %d points within %d,%d %dx%d\n", qPrintable(Name), Count, Where.x(), Where.y(),
                Where.width(), Where.height());
    return Save(Name, Dark, BecameDark), false;
}

int LookAtBoth() {
    QApplication::setCursorFlashTime(0);
    const Pictures Became = LookIn(Shade::Light, Shade::Dark),
                   Are = LookIn(Shade::Dark, Shade::Dark);
    int Wrong = 0;
    for (const auto& [Name, Picture] : Are)
        if (!AreAlike(Name, Picture, Became.at(Name))) ++Wrong;
    std::printf("%d windows\n", int(Are.size()));
    return Wrong == 0 ? 0 : 1;
}
const harness::ChildRole Looking("look-at-colours-that-change", &LookAtBoth);

TEST(ColoursSwitch, WindowsThatStandOpenLookAsThoseOpenedAfterwards) {
    QProcessEnvironment Its = QProcessEnvironment::systemEnvironment();
    Its.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    QProcess Copy;
    Copy.setProcessChannelMode(QProcess::MergedChannels);
    Copy.setProcessEnvironment(Its);
    Copy.start(QCoreApplication::applicationFilePath(),
               {u"--role"_s, u"look-at-colours-that-change"_s});
    ASSERT_TRUE(Copy.waitForFinished(300'000));
    const std::string Words = Copy.readAll().toStdString();
    EXPECT_EQ(0, Copy.exitCode()) << Words;
    EXPECT_NE(Words.find("30 windows"), std::string::npos) << Words;
}

}  // namespace
}  // namespace neb
