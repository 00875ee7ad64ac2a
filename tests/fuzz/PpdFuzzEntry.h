// One input for the reader of ".ppd" files, as it is and with its check sums put right: without
// those, next to nothing would come past the sums. Used by the fuzz program and by tests that build
// files of their own.
#pragma once

#include <QCryptographicHash>
#include <QtEndian>
#include <cmath>

#include "printing/PpdFile.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb::fuzz {

// How a file is laid out, apart from the program's own idea of it.
struct PpdLayout {
    static constexpr qsizetype Header = 12, Trailer = 48, Sum = 32;
    static constexpr qsizetype Count = 52;  // of the pictures, from the table's start
    static constexpr qsizetype Entry = 8 + Sum;
};

template <class Number>
Number NumberAt(const QByteArray& File, qsizetype At) {
    return At >= 0 && At + qsizetype(sizeof(Number)) <= File.size()
               ? qFromLittleEndian<Number>(File.constData() + At)
               : Number(-1);
}

inline void Put(QByteArray& File, qsizetype At, const QByteArray& Bytes) {
    if (At >= 0 && At + Bytes.size() <= File.size()) File.replace(At, Bytes.size(), Bytes);
}

inline QByteArray Sha256(const QByteArray& Bytes) {
    return QCryptographicHash::hash(Bytes, QCryptographicHash::Sha256);
}

// Whether a table that starts there has as many bytes of pictures before it as it says.
inline bool StartsTable(const QByteArray& File, qsizetype At) {
    const auto Count = NumberAt<quint32>(File, At + PpdLayout::Count);
    auto Bytes = static_cast<quint64>(PpdLayout::Header);
    for (quint32 I = 0; I < Count && Bytes <= static_cast<quint64>(At); ++I) {
        const auto Length = NumberAt<quint64>(
            File, At + PpdLayout::Count + 4 + static_cast<qsizetype>(I) * PpdLayout::Entry);
        if (Length > static_cast<quint64>(File.size())) return false;
        Bytes += Length;
    }
    return Bytes == static_cast<quint64>(At);
}

inline void SealPictures(QByteArray& File, qsizetype Table) {
    qsizetype Entry = Table + PpdLayout::Count + 4;
    for (qsizetype At = PpdLayout::Header; At < Table; Entry += PpdLayout::Entry) {
        const auto Length = static_cast<qsizetype>(NumberAt<quint64>(File, Entry));
        Put(File, Entry + 8, Sha256(File.mid(At, Length)));
        if (Length <= 0) return;
        At += Length;
    }
}

// Where the trailer says, else as near to the file's end as it can be; -1 for none.
inline qsizetype TableIn(const QByteArray& File, qsizetype End) {
    const auto Length = static_cast<qsizetype>(NumberAt<quint64>(File, End));
    if (Length >= 0 && Length <= End && StartsTable(File, End - Length)) return End - Length;
    for (qsizetype At = End - PpdLayout::Count; At >= PpdLayout::Header; --At)
        if (StartsTable(File, At)) return At;
    return -1;
}

// With the length of the table and all sums put right, where a table can be found.
inline QByteArray Sealed(QByteArray File) {
    const qsizetype End = File.size() - PpdLayout::Trailer, Table = TableIn(File, End);
    if (Table < 0) return File;
    SealPictures(File, Table);
    QByteArray Length(8, '\0');
    qToLittleEndian(quint64(End - Table), Length.data());
    Put(File, End, Length);
    Put(File, End + 8,
        Sha256(File.left(PpdLayout::Header) + File.mid(Table, End - Table) + Length));
    return File;
}

// Everything that a preview may ask of what was loaded; false when a picture or a text is none.
inline bool AnswersWell(const PrintDocument& Document) {
    bool Well = true;
    for (int Page = 1; Page <= Document.PageCount(); ++Page) {
        Well &= std::isfinite(Document.ContentOf(Page).right());
        for (const PlacedPicture& Each : Document.PlacesOn(Page))
            Well &= !FileBytesOf(Document.Picture(Each.Picture)).isEmpty();
        for (const PlacedText& Each : Document.TextsOn(Page)) Well &= !Each.Text.isEmpty();
    }
    return Well;
}

// True when the bytes are refused, or saved again as the very same ones.
inline bool ReadsWell(const QByteArray& File, const QString& Folder) {
    const QString Path = Folder + QStringLiteral("in.ppd"),
                  Again = Folder + QStringLiteral("out.ppd");
    WriteFile(Path, File);
    std::shared_ptr<PrintDocument> Document;
    try {
        Document = ReadPpd(Path, {});
    } catch (const Fault&) {
        return true;
    }
    return AnswersWell(*Document) && WritePpd(*Document, Again) && ReadFile(Again) == File;
}

inline bool RunPpd(const QByteArray& File, const QString& Folder) {
    return ReadsWell(File, Folder) && ReadsWell(Sealed(File), Folder);
}

}  // namespace neb::fuzz
