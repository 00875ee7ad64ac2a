// One input for the readers of the two journals, as it is and with its check sums put right:
// without that, nothing would come past them. Used by the fuzz programs and by a test.
#pragma once

#include <QCryptographicHash>
#include <QtEndian>

#include "db/SessionChanges.h"
#include "db/modLoadRecords.h"
#include "db/records/SessionJournal.h"

namespace neb::fuzz {

inline QByteArray SealedJournal(QByteArray Bytes) {
    constexpr qsizetype Sum = 32;
    if (Bytes.size() < Sum) return Bytes;
    Bytes.chop(Sum);
    return Bytes + QCryptographicHash::hash(Bytes, QCryptographicHash::Blake2b_256);
}

// True when the bytes are refused, or hold records that can be loaded and read back the same.
inline bool ReadsJournalWell(const QByteArray& Bytes) {
    const auto Image = RecordsInJournal(Bytes);
    if (!Image) return true;
    clsDBEngine Engine, Again;
    Engine.LoadFrom(RecordsInImage(*Image));
    const RecordImage First = BuildImage(Engine);
    Again.LoadFrom(RecordsInImage(First));
    const RecordImage Second = BuildImage(Again);
    return std::equal(
        First.Files.begin(), First.Files.end(), Second.Files.begin(),
        [](const auto& One, const auto& Other) { return One.Bytes() == Other.Bytes(); });
}

inline bool RunJournal(const QByteArray& Bytes) {
    return ReadsJournalWell(Bytes) && ReadsJournalWell(SealedJournal(Bytes));
}

// Head and entries as in the input, with every check put right.
inline QByteArray SealedSession(QByteArray Bytes) {
    constexpr qsizetype Sum = 32, Check = 16, EntryHead = 12;
    QByteArray Sealed = "NEBSESS1" + Bytes.mid(8, Sum).leftJustified(Sum, '\0');
    QByteArray Last = QCryptographicHash::hash(Sealed, QCryptographicHash::Blake2b_256);
    Last.truncate(Check);
    Sealed += Last;
    for (qsizetype Place = Sealed.size(); Bytes.size() - Place >= EntryHead;) {
        QByteArray Entry = Bytes.mid(Place, EntryHead);
        const auto Wanted = qFromLittleEndian<quint32>(Entry.constData()) % 4096;
        const QByteArray Body = Bytes.mid(Place + EntryHead, Wanted);
        qToLittleEndian(static_cast<quint32>(Body.size()), Entry.data());
        Entry += Body;
        Last = QCryptographicHash::hash(Last + Entry, QCryptographicHash::Blake2b_256);
        Last.truncate(Check);
        Sealed += Entry + Last;
        Place += EntryHead + Body.size() + Check;
    }
    return Sealed;
}

// True when each entry is refused, or carried out, the second time as the first, on an engine whose
// records can be read back afterwards.
inline bool RunSession(const QByteArray& Bytes) {
    static_cast<void>(SessionIn(Bytes));
    const auto Left = SessionIn(SealedSession(Bytes));
    if (!Left || Left->IsTorn) return false;
    clsDBEngine Engine;
    for (const SessionEntry& Each : Left->Entries) {
        if (!CarryOutEntry(Engine, Each.Body)) continue;
        const RecordImage Once = BuildImage(Engine);
        CarryOutEntry(Engine, Each.Body);
        const RecordImage Twice = BuildImage(Engine);
        for (const RecordFile File : AllRecordFiles)
            if (Once[File].Bytes() != Twice[File].Bytes()) return false;
    }
    return true;
}

}  // namespace neb::fuzz
