#include "support/files/modHostFilesLines.h"

#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/NameCache.h"
#include "support/files/modHostFilesOpen.h"
#include "support/files/modHostFilesSteps.h"

namespace neb {
namespace {

[[noreturn]] void FailLines(const QFile& File, const QString& Path) {
    throw Fault(tr("The file cannot be written. (%1)").arg(File.errorString()), Path);
}

void Open(HostFile& File, const QString& Path) {
    const bool IsNew = !HostInfo(File.fileName()).Exists();
    if (!File.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) FailLines(File, Path);
    if (IsNew) NoteNameMade(File.fileName());
}

void WriteAt(QFile& File, qint64 Place, const QByteArray& Bytes, const QString& Path) {
    const qint64 Allowed = AllowedToWrite(Path, Bytes.size());
    if (!File.seek(Place) || File.write(Bytes.constData(), Allowed) != Allowed)
        FailLines(File, Path);
    if (Allowed < Bytes.size()) FailNoSpace(Path);
}

bool EndsALine(QFile& File) {
    char Last = '\n';
    return File.size() == 0 || (File.seek(File.size() - 1) && File.getChar(&Last) && Last == '\n');
}

}  // namespace

void AppendLines(const QString& Path, const QByteArray& Lines) {
    HostFile File(ResolvePath(Path));
    Open(File, Path);
    const bool Follows = EndsALine(File);
    WriteAt(File, File.size(), Follows ? Lines : '\n' + Lines, Path);
}

void MakeRemarks(const QString& Path, const std::vector<qint64>& Places) {
    if (Places.empty()) return;
    HostFile File(ResolvePath(Path));
    Open(File, Path);
    for (const qint64 Place : Places) WriteAt(File, Place, "#", Path);
}

void CutFile(const QString& Path, qint64 Length) {
    HostFile File(ResolvePath(Path));
    Open(File, Path);
    AllowedToWrite(Path, 0);
    if (!File.resize(Length)) FailLines(File, Path);
}

}  // namespace neb
