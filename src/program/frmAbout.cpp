#include "program/frmAbout.h"

#include <QProcess>
#include <QResource>
#include <QStandardPaths>
#include <QTextTable>
#include <QTimer>

#include "show/ReaderLocks.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/locked/LockWords.h"
#include "ui_frmAbout.h"

namespace neb {
namespace {

constexpr double TitleGrowth = 1.6;  // of the other letters

// The tools of the usual desktops, with what shows the machine in each.
constexpr const char* SysInfoTools[][2] = {
    {"kinfocenter", ""},
    {"gnome-control-center", "info-overview"},
    {"hardinfo", ""},
    {"hardinfo2", ""},
    {"mate-system-monitor", "--show-system-tab"},
    {"cinnamon-settings", "info"},
    {"xfce4-about", ""},
    {"lxqt-about", ""},
    {"hwinfo-gui", ""},
    {"msinfo32.exe", ""},
};

bool StartTool(const char* Program, const char* Argument) {
    const QString Path = QStandardPaths::findExecutable(QString::fromLatin1(Program));
    if (Path.isEmpty()) return false;
    const QStringList Arguments =
        *Argument ? QStringList(QString::fromLatin1(Argument)) : QStringList();
    return QProcess::startDetached(Path, Arguments);
}

// The very file that lies beside the installed program, without its heading.
QString ThirdPartyNotices() {
    const QResource Notices(QStringLiteral(":/neb/THIRD-PARTY.md"));
    return QString::fromUtf8(Notices.uncompressedData()).section(u'\n', 2);
}

// Rows without boxes round each word, and no wider than the window.
void Lighten(const QTextDocument& Notices) {
    for (QTextFrame* Each : Notices.rootFrame()->childFrames()) {
        auto* Table = qobject_cast<QTextTable*>(Each);
        if (!Table) continue;
        QTextTableFormat Format = Table->format();
        Format.setBorder(0);
        Format.setCellSpacing(0);
        Format.setCellPadding(3);
        Format.setWidth(QTextLength(QTextLength::PercentageLength, 98));
        Table->setFormat(Format);
    }
}

QString ReadersSentence(JobState&) try {
    LockReport Least = LockReport::Of(-1);
    for (const NamedLock& Each : ReaderLocks()) Least = Weaker(Least, Each.Report);
    return LockSentence(Least);
} catch (const Fault& Problem) {
    return Problem.What();
}

}  // namespace

frmAbout::frmAbout() : mUi(std::make_unique<Ui::frmAbout>()), mReaders(ReadersSentence) {
    mUi->setupUi(this);
    QFont Title = mUi->lblTitle->font();
    Title.setPointSizeF(QFontInfo(font()).pointSizeF() * TitleGrowth);
    mUi->lblTitle->setFont(Title);
    mUi->lblVersion->setText(tr("Version ") + QApplication::applicationVersion());
    mUi->picIcon->setPixmap(QApplication::windowIcon().pixmap(96, 96));
    mUi->txtLicences->setMarkdown(ThirdPartyNotices());
    Lighten(*mUi->txtLicences->document());
    connect(mUi->cmdOK, &QPushButton::clicked, this, &frmAbout::Unload);
    connect(mUi->cmdSysInfo, &QPushButton::clicked, this, &StartSysInfo);
    TellOfReaders();
}

void frmAbout::TellOfReaders() {
    constexpr int SoonMs = 30;
    if (!mReaders.Wait(0)) return QTimer::singleShot(SoonMs, this, &frmAbout::TellOfReaders);
    mUi->lblReaders->setText(mReaders.Take());
}

frmAbout::~frmAbout() = default;

void StartSysInfo() {
    for (const auto& [Program, Argument] : SysInfoTools)
        if (StartTool(Program, Argument)) return;
    MsgBox(tr("System Information Is Unavailable At This Time"));
}

}  // namespace neb
