// Help, Copy Report: the report on the clipboard, as a user asks for it.
#include "program/report/CopyReport.h"

#include <QClipboard>
#include <QScopeGuard>
#include <QScreen>
#include <QStatusBar>
#include <QSysInfo>

#include "program/MainWindowRig.h"
#include "program/report/MachineFacts.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class CopiedReport : public MainWindow {
  protected:
    static QString Copied() { return QGuiApplication::clipboard()->text(); }
};

TEST_F(CopiedReport, StandsOnTheClipboardAndTheStatusBarSaysSo) {
    Start();
    QGuiApplication::clipboard()->clear();
    Press("mnuCopyReport");
    EXPECT_TRUE(Copied().startsWith(u"NEB Slide Show "_s)) << qPrintable(Copied());
    EXPECT_TRUE(mWindow->statusBar()->currentMessage().contains(u"clipboard"_s));
}

TEST_F(CopiedReport, TellsMachineLockSpeedTestSettingsAndLog) {
    Start();
    LogMessage(u"Information"_s, u"Showing Main Form"_s);
    const QString Text = ProblemReport();
    const QString Screen = QString::number(mWindow->screen()->geometry().width()) + u" x "_s;
    for (const QString& Each :
         {QSysInfo::kernelVersion(), QSysInfo::prettyProductName(), QString(QT_VERSION_STR),
          QGuiApplication::platformName(), Screen, u"Processors "_s, u"Memory "_s, u"Language "_s,
          u"Sound server "_s, u"Readers of foreign files: "_s, u"[]Timeout="_s,
          u"\tInformation\tShowing Main Form\n"_s})
        EXPECT_TRUE(Text.contains(Each)) << qPrintable(Each + u" is not in\n"_s + Text);
    EXPECT_FALSE(Text.contains(u"Memory  "_s)) << "the kernel tells how much";
}

TEST_F(CopiedReport, HasNothingThatTheUserHasNamed) {
    Start();
    SaveAlbum(u"Grandma's Garden"_s);
    std::int32_t SlideID = 0;
    DBEngine->Albums.front()->SaveSlide(SlideID, u"Aunt Emma, asleep"_s, u"emma 7.jpg"_s, {}, false,
                                        false, *DBEngine);
    for (const QString& Each :
         {u"Cannot open grandma's garden"_s, u"No picture for aunt emma, asleep"_s,
          u"Missing "_s + DBPath() + u"Albums/emma 7.jpg"_s, u"Of emma 7.jpg"_s})
        LogMessage(u"Error"_s, Each);
    const QString Text = ProblemReport();
    for (const QString& Private : {u"grandma"_s, u"emma"_s, DBPath(), mDocuments.Path()})
        EXPECT_FALSE(Text.contains(Private, Qt::CaseInsensitive)) << qPrintable(Private + Text);
    EXPECT_EQ(4, Text.count(u"\tError\t"_s)) << "the lines are there";
}

TEST_F(CopiedReport, HasNeitherTheUsersNameNorHisHome) {
    Start();
    const QByteArray User = qgetenv("USER"), Home = qgetenv("HOME");
    const auto Back = qScopeGuard([&] {
        qputenv("USER", User);
        qputenv("HOME", Home);
    });
    qputenv("USER", "emmamiller");
    qputenv("HOME", "/home/emmas-place");
    LogMessage(u"Error"_s, u"emmamiller may not read emmas-place or /home/emmas-place/x"_s);
    EXPECT_TRUE(UserNames().contains(u"emmas-place"_s));
    EXPECT_FALSE(ProblemReport().contains(u"emma"_s)) << qPrintable(ProblemReport());
}

TEST_F(CopiedReport, OfALogWithoutEndHasItsEnd) {
    Start();
    WriteFile(OwnPath() + u"QLM.log"_s,
              QByteArray("x y\n").repeated(100'000) + "the very last line\n");
    const QString Text = ProblemReport();
    EXPECT_TRUE(Text.endsWith(u"x y\nthe very last line\n"_s)) << qPrintable(Text.right(100));
    EXPECT_EQ(199, Text.count(u"\nx y"_s));
}

}  // namespace
}  // namespace neb
