#include "windows/printing/PrintFiles.h"

#include <QRegularExpression>
#include <QScopeGuard>
#include <QStandardPaths>

#include "printing/PdfWriter.h"
#include "printing/PpdFile.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesAccess.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

const QString PdfExtension = QStringLiteral(".pdf");
const QString PpdExtension = QStringLiteral(".ppd");

bool EndsIn(const QString& Path, const QString& Extension) {
    return Path.endsWith(Extension, Qt::CaseInsensitive);
}

// The points of "Trip to St. Moritz" or "Summer 2.5 weeks" begin none.
bool HasExtension(const QString& Name) {
    const QString Last = Name.sliced(Name.lastIndexOf(u'.') + 1);
    return Last.size() < Name.size() && Last.size() <= 5 && !Last.contains(u' ');
}

void KeepReadOnly(const QString& Path) {
    try {
        SetReadOnly(Path);
    } catch (const Fault&) {
        // what went wrong before is what the user is to hear of
    }
}

bool WriteKind(const PrintDocument& Document, const QString& Path, PrintFileKind Kind,
               const PrintGoOn& GoOn) {
    return Kind == PrintFileKind::Ppd ? WritePpd(Document, Path, GoOn)
                                      : WritePdf(Document, Path, GoOn);
}

}  // namespace

QString UsersDocuments() {
    [[maybe_unused]] const QString Asked = SettingsDir();  // fills the cache
    if (CanWriteInto(DocumentsPath)) return DocumentsPath;
    return WithSeparator(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

QString ProposedFile(const QString& Title) {
    static const QRegularExpression NotInNames(QStringLiteral("[\\x00-\\x1F/\\\\:*?\"<>|]+"));
    return UsersDocuments() + QString(Title).replace(NotInNames, QStringLiteral(" ")).trimmed();
}

Answer<QString> PrintFilePath(const QString& Chosen) {
    if (EndsIn(Chosen, PdfExtension) || EndsIn(Chosen, PpdExtension)) return Chosen;
    const QString Name = GetFileName(Chosen);
    if (!HasExtension(Name)) return Chosen + PdfExtension;
    return Refuse(tr("\"%1\" is neither a PDF file (.pdf) nor a document of the "
                     "program's own (.ppd).\nPlease choose one of these two "
                     "extensions. Nothing was saved.")
                      .arg(Name),
                  tr("Save Document"));
}

bool TryClearReadOnly(const QString& FileName) {
    try {
        if (FileExists(FileName) && IsReadOnly(FileName)) ClearReadOnly(FileName);
        return true;
    } catch (const Fault&) {
        return false;
    }
}

PrintFileKind PrintFileKindOf(const QString& Path) {
    return EndsIn(Path, PpdExtension) ? PrintFileKind::Ppd : PrintFileKind::Pdf;
}

bool WritePrintFile(const PrintDocument& Document, const QString& Path, PrintFileKind Kind,
                    const PrintGoOn& GoOn) {
    if (!FileExists(Path) || !IsReadOnly(Path)) return WriteKind(Document, Path, Kind, GoOn);
    if (!TryClearReadOnly(Path))
        throw Fault(tr("The file is read-only, and that cannot be changed."), Path);
    auto AsItWas = qScopeGuard([&Path] { KeepReadOnly(Path); });
    const bool Written = WriteKind(Document, Path, Kind, GoOn);
    if (Written) AsItWas.dismiss();
    return Written;
}

}  // namespace neb
