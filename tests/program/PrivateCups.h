// A print service of a test's own: a real server on a socket in a folder of its own, with printers
// whose paper is a PDF file. Nothing of the machine's own service is touched, and the server ends
// with the object.
#pragma once

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb::harness {

using namespace Qt::StringLiterals;

class PrivateCups {
  public:
    // Where the packages are not installed there is nothing to test with.
    static bool IsInstalled() {
        return !Program(u"cupsd"_s).isEmpty() && !Program(u"lpadmin"_s).isEmpty() &&
               FileExists(u"/usr/lib/cups/filter/pdftopdf"_s);
    }

    PrivateCups() {
        for (const char* Each : {"spool/tmp", "cache", "state/certs", "out", "ppd"})
            MakeDirs(mFolder / QLatin1String(Each));
        Open(mFolder.Path(), 0755);  // the filters run as another user
        WriteFile(mFolder / u"cupsd.conf"_s, Filled(Rules));
        WriteFile(mFolder / u"files.conf"_s, Filled(Places));
        WriteFile(mFolder / u"printer.ppd"_s, Driver);
        Begin();
    }
    ~PrivateCups() { End(); }
    PrivateCups(const PrivateCups&) = delete;
    PrivateCups& operator=(const PrivateCups&) = delete;

    void Begin() {
        mServer.start(Program(u"cupsd"_s), {u"-f"_s, u"-c"_s, mFolder / u"cupsd.conf"_s, u"-s"_s,
                                            mFolder / u"files.conf"_s});
        EXPECT_TRUE(mServer.waitForStarted());
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return Admin(u"lpstat"_s, {u"-r"_s}) == 0 && mSaid.contains("is running"); },
            10000));
    }
    // At once, as when the machine is switched off.
    void End() {
        mServer.kill();
        mServer.waitForFinished(5000);
    }

    // A printer that leaves a quarter of an inch white at each edge, half an inch at the foot; the
    // first is the default one.
    void AddPrinter(const QString& Name) {
        EXPECT_EQ(0, Admin(u"lpadmin"_s, {u"-p"_s, Name, u"-E"_s, u"-v"_s, u"file:"_s + Paper(Name),
                                          u"-P"_s, mFolder / u"printer.ppd"_s}));
        if (mPrinters++ > 0) return;
        EXPECT_EQ(0, Admin(u"lpadmin"_s, {u"-d"_s, Name}));
    }
    // The exit code of one of the service's own programs.
    int Admin(const QString& Name, const QStringList& Arguments) {
        QProcess Run;
        Run.start(Program(Name), QStringList{u"-h"_s, Server()} + Arguments);
        if (!Run.waitForFinished(10000)) return -1;
        mSaid = Run.readAllStandardOutput();
        return Run.exitCode();
    }

    QString Server() const { return mFolder / u"cups.sock"_s; }
    // What came out of a printer.
    QString Paper(const QString& Name) const { return mFolder / (u"out/"_s + Name + u".pdf"_s); }
    // Waits until so many jobs are printed and nothing is under way any more; the jobs, a line
    // each: printer, pages, title, paper, sides.
    QStringList Jobs(qsizetype Count = 1) {
        QStringList Printed;
        const auto AreDone = [&] {
            Printed = PageLog();
            return Printed.size() >= Count && Admin(u"lpstat"_s, {u"-o"_s}) == 0 && mSaid.isEmpty();
        };
        EXPECT_TRUE(QTest::qWaitFor(AreDone, 20000)) << Log().toStdString();
        return Printed;
    }
    QByteArray Log() const { return ReadFile(mFolder / u"error_log"_s); }

  private:
    QStringList PageLog() const {
        const QString Path = mFolder / u"page_log"_s;
        const QString Text = FileExists(Path) ? QString::fromUtf8(ReadFile(Path)) : QString();
        return Text.split(u'\n', Qt::SkipEmptyParts);
    }
    static QString Program(const QString& Name) {
        const QString Found = QStandardPaths::findExecutable(Name);
        return Found.isEmpty() ? QStandardPaths::findExecutable(Name, {u"/usr/sbin"_s}) : Found;
    }
    static void Open(const QString& Dir, int Bits) {
        ::chmod(QFile::encodeName(Dir).constData(), static_cast<mode_t>(Bits));
    }
    QByteArray Filled(const QByteArray& Text) const {
        return QByteArray(Text).replace("@", mFolder.Path().toUtf8());
    }

    static constexpr char Rules[] =
        "LogLevel info\nDefaultPaperSize Letter\nListen @cups.sock\nDefaultAuthType "
        "None\nWebInterface No\nBrowsing No\n"
        "PageLogFormat %p|%{job-impressions-completed}|%{job-name}|%{media}|%{sides}\n"
        "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
        "<Policy default>\n<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n";
    static constexpr char Places[] =
        "ServerRoot @\nServerBin /usr/lib/cups\nDataDir /usr/share/cups\nDocumentRoot @\n"
        "RequestRoot @spool\nTempDir @spool/tmp\nCacheDir @cache\nStateDir @state\n"
        "ErrorLog @error_log\nAccessLog @access_log\nPageLog @page_log\nSystemGroup root\n"
        "FileDevice Yes\nSandboxing relaxed\n";
    static constexpr char Driver[] =
        "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
        "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"TESTPDF.PPD\"\n"
        "*Manufacturer: \"Test\"\n*Product: \"(Test)\"\n*PSVersion: \"(3010) 0\"\n"
        "*ModelName: \"Test Printer\"\n*ShortNickName: \"Test Printer\"\n"
        "*NickName: \"Test Printer\"\n*LanguageLevel: \"3\"\n*ColorDevice: True\n"
        "*DefaultColorSpace: RGB\n*FileSystem: False\n*cupsVersion: 2.2\n"
        "*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n"
        "*OpenUI *PageSize/Media Size: PickOne\n*DefaultPageSize: Letter\n"
        "*PageSize Letter/US Letter: \"\"\n*PageSize A4/A4: \"\"\n*PageSize A6/A6: \"\"\n"
        "*CloseUI: *PageSize\n"
        "*OpenUI *PageRegion: PickOne\n*DefaultPageRegion: Letter\n"
        "*PageRegion Letter/US Letter: \"\"\n*PageRegion A4/A4: \"\"\n*PageRegion A6/A6: \"\"\n"
        "*CloseUI: *PageRegion\n"
        "*DefaultImageableArea: Letter\n*ImageableArea Letter/US Letter: \"18 36 594 774\"\n"
        "*ImageableArea A4/A4: \"18 18 577 824\"\n*ImageableArea A6/A6: \"18 18 279 402\"\n"
        "*DefaultPaperDimension: Letter\n*PaperDimension Letter/US Letter: \"612 792\"\n"
        "*PaperDimension A4/A4: \"595 842\"\n*PaperDimension A6/A6: \"297 420\"\n"
        "*OpenUI *Duplex/2-Sided: PickOne\n*DefaultDuplex: None\n*Duplex None/Off: \"\"\n"
        "*Duplex DuplexNoTumble/Long-Edge: \"\"\n*Duplex DuplexTumble/Short-Edge: \"\"\n"
        "*CloseUI: *Duplex\n"
        "*OpenUI *InputSlot/Tray: PickOne\n*DefaultInputSlot: Upper\n"
        "*InputSlot Upper/Upper Tray: \"\"\n*InputSlot Lower/Lower Tray: \"\"\n"
        "*CloseUI: *InputSlot\n";

    TempFolder mFolder;
    QProcess mServer;
    int mPrinters = 0;
    QByteArray mSaid;
};

}  // namespace neb::harness
