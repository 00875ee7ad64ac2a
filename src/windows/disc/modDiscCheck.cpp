#include "windows/disc/modDiscCheck.h"

#include "albums/transfer/DiscFolder.h"
#include "controls/forms/ScreenPointer.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Grouped.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/work/WorkAside.h"
#include "windows/frame/modNotice.h"
#include "windows/transfer/frmTransferProgress.h"

namespace neb {
namespace {

constexpr char Title[] = QT_TR_NOOP("Check a Disc");

struct Comparison {
    std::optional<std::vector<SumsFinding>> Findings;  // none: it was stopped
    int Files = 0;
};

// A disc that was not in use turns up to its speed first.
bool HasSums(const QString& Dir) {
    return FinishAside([Dir] { return FileExists(Dir + QLatin1String(SumsName)); }).get();
}

Comparison Compare(const QString& Dir) {
    const PointerScope Working(Pointer::Hourglass);
    Comparison Made;
    const auto Bar = NewForm<frmTransferProgress>();
    Bar->setWindowTitle(QObject::tr("Checking ..."));
    const auto GoOn = [&](const SumsProgress& Now) {
        Made.Files = Now.OfFiles;
        return Bar->Show(SumsText(Now), SumsPercent(Now));
    };
    Bar->ShowOver([&] { Made.Findings = CheckSums(Dir, GoOn); });
    return Made;
}

QString Line(const SumsFinding& Found) {
    using Kind = SumsFinding::Kind;
    const char* Is = Found.Is == Kind::Missing   ? QT_TR_NOOP("missing: ")
                     : Found.Is == Kind::Changed ? QT_TR_NOOP("changed: ")
                                                 : QT_TR_NOOP("cannot be read: ");
    return tr(Is) + Found.Path;
}

void TellFindings(const QString& Dir, const Comparison& Made) {
    const int Bad = static_cast<int>(Made.Findings->size());
    if (Bad == 0) {
        MsgBox(QObject::tr("All is well: %1 files in\n%2\nare as they were written.")
                   .arg(Grouped(Made.Files), Dir),
               tr(Title), BoxIcon::Information);
        return;
    }
    QStringList Lines;
    for (const SumsFinding& Each : *Made.Findings) Lines << Line(Each);
    MsgBox(QObject::tr("%1 of %2 files in\n%3\nare not as they were written.\n\n%4")
               .arg(Grouped(Bad), Grouped(Made.Files), Dir, Lines.join(u'\n')),
           tr(Title), BoxIcon::Critical);
}

}  // namespace

void CheckDisc() {
    const QString Chosen = TheServices().Dialogs->ChooseFolder(
        QObject::tr("Folder of the Disc"), HasSums(DBPath()) ? DBPath() : QString());
    if (Chosen.isEmpty()) return;
    const QString Dir = WithSeparator(Chosen);
    if (!HasSums(Dir)) {
        MsgBox(QObject::tr("There is no list of check sums in\n%1\nA folder that was written for a "
                           "disc has one, named %2.")
                   .arg(Dir, QLatin1String(SumsName)),
               tr(Title), BoxIcon::Information);
        return;
    }
    try {
        const Comparison Made = Compare(Dir);
        if (!Made.Findings) return ShowNotice(QObject::tr("Stopped; not all was checked."));
        TellFindings(Dir, Made);
    } catch (const Fault& Problem) {
        MsgBox(Problem.Text(), tr(Title), BoxIcon::Critical);
    }
}

}  // namespace neb
