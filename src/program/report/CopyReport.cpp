#include "program/report/CopyReport.h"

#include <QClipboard>
#include <QGuiApplication>

#include "controls/forms/ScreenPointer.h"
#include "program/report/MachineFacts.h"
#include "settings/ProblemReport.h"
#include "settings/modNEBSlideShow.h"
#include "show/ReaderLocks.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/locked/LockWords.h"
#include "support/work/WorkAside.h"
#include "windows/frame/modNotice.h"

namespace neb {
namespace {

constexpr qint64 EndOfLog = 100'000;  // bytes that hold more lines than are wanted

QString ReadersLine() try {
    LockReport Least = LockReport::Of(-1);
    for (const NamedLock& Each : FinishAside([] { return ReaderLocks(); }).get())
        Least = Weaker(Least, Each.Report);
    return LockSentence(Least);
} catch (const Fault& Problem) {
    return Problem.What();
}

QByteArray LogAtItsEnd() try {
    HostReader Log(OwnPath() + QStringLiteral("QLM.log"));
    const qint64 From = std::max<qint64>(0, Log.Length() - EndOfLog);
    QByteArray Bytes(Log.Length() - From, '\0');
    Log.Seek(From);
    Bytes.resize(Log.Read(Bytes.data(), Bytes.size()));
    return From == 0 ? Bytes : Bytes.mid(Bytes.indexOf('\n') + 1);
} catch (const Fault&) {
    return {};  // there is one only where it was asked for
}

QStringList PrivateNames() {
    return UserNames() + (DBEngine ? NamesIn(*DBEngine) : QStringList());
}

}  // namespace

QString ProblemReport() {
    QStringList Machine = MachineFacts();
    Machine << QStringLiteral("Readers of foreign files: ") + ReadersLine();
    const clsSettings Settings = OpenSettings();
    return ReportText({Machine, Settings, LogAtItsEnd()}, PrivateWords(PrivateNames()));
}

void CopyReport() {
    const PointerScope Working(Pointer::Hourglass);
    QGuiApplication::clipboard()->setText(ProblemReport());
    ShowNotice(
        tr("The report is on the clipboard: paste it into a letter. No name of yours and "
           "no picture is in it."));
}

}  // namespace neb
