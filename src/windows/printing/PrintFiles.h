// A document's way into a file and out of it: what the name says of the kind, and the write itself.
// Used by the print preview.
#pragma once

#include <memory>

#include "printing/PrintDocument.h"
#include "support/Answer.h"
#include "support/Texts.h"

namespace neb {

inline constexpr char SaveFilter[] = QT_TR_NOOP("PDF (*.pdf)|*.pdf|Custom (*.ppd)|*.ppd");
inline constexpr char OpenFilter[] = QT_TR_NOOP("Custom (*.ppd)|*.ppd");

// Where the user keeps documents, with closing separator: where the file dialogs begin.
QString UsersDocuments();
// There, the name that is proposed for a document of this title, without an extension, which comes
// with the kind that the user chooses; the directory alone where there is no title.
QString ProposedFile(const QString& Title);

// The path to write to for the name that the user has chosen: one without an extension becomes a
// PDF. A foreign extension is refused.
Answer<QString> PrintFilePath(const QString& Chosen);

// Clears the read-only attribute of a file, where there is one; false when that fails.
bool TryClearReadOnly(const QString& FileName);

enum class PrintFileKind { Pdf, Ppd };
// What the name's last four characters say; Pdf where they are neither ".pdf" nor ".ppd".
PrintFileKind PrintFileKindOf(const QString& Path);

// A file of that name is replaced, even one that is read-only, when the new one is whole. False
// when GoOn has ended it: then, as after a fault, the old file is as it was. Throws Fault. May run
// on a worker thread.
bool WritePrintFile(const PrintDocument& Document, const QString& Path, PrintFileKind Kind,
                    const PrintGoOn& GoOn);

}  // namespace neb
