#include "support/files/NameCache.h"

#include <QMultiMap>
#include <QMutex>
#include <list>

#include "support/files/HostNames.h"
#include "support/files/modHostFilesListing.h"
#include "support/files/modHostFilesOpen.h"

namespace neb {
namespace {

constexpr size_t DirsKept = 8;
// A directory that somebody else changed this shortly before it was listed may change again
// without its time stamp showing it.
constexpr qint64 DoubtfulMs = 50;

struct Listing {
    QString Dir;
    QDateTime Changed;
    QDateTime OwnChange;  // time stamp after the program's own last change
    bool Doubtful = true;
    QMultiMap<QString, QString> NameByUpper;  // names may differ in case alone
};

QMutex& Guard() {
    static QMutex Mutex;
    return Mutex;
}

std::list<Listing>& Kept() {
    static std::list<Listing> Listings;
    return Listings;
}

QDateTime ChangeTime(const QString& Dir) {
    return HostInfo(Dir.isEmpty() ? QStringLiteral(".") : Dir).Changed();
}

// By their codes, so that of names that differ in case alone always the same one is found.
QStringList NamesIn(const QString& Dir) {
    QStringList Names;
    OpenDir Open(HostBytes(Dir.isEmpty() ? QStringLiteral(".") : Dir).toStdString());
    const dirent* Entry = nullptr;
    while (Open && (Entry = Open.Next()))
        if (!IsDots(Entry->d_name)) Names << HostName(Entry->d_name);
    Names.sort();
    return Names;
}

void Relist(Listing& Of) {
    Of.Changed = ChangeTime(Of.Dir);
    Of.Doubtful =
        Of.Changed != Of.OwnChange && Of.Changed.msecsTo(QDateTime::currentDateTime()) < DoubtfulMs;
    Of.NameByUpper.clear();
    for (const QString& Entry : NamesIn(Of.Dir)) Of.NameByUpper.insert(UpperName(Entry), Entry);
}

std::list<Listing>::iterator Find(const QString& Dir) {
    return std::find_if(Kept().begin(), Kept().end(),
                        [&](const Listing& Each) { return Each.Dir == Dir; });
}

// The listing of a directory, brought up to date, moved to the front.
Listing& ListingOf(const QString& Dir) {
    const auto Found = Find(Dir);
    if (Found == Kept().end()) {
        Kept().push_front({.Dir = Dir, .Changed = {}, .OwnChange = {}, .NameByUpper = {}});
        if (Kept().size() > DirsKept) Kept().pop_back();
    } else {
        Kept().splice(Kept().begin(), Kept(), Found);
    }
    Listing& Of = Kept().front();
    if (Of.Doubtful || Of.Changed != ChangeTime(Dir)) Relist(Of);
    return Of;
}

// Applies a change of the program's own to a listing that it keeps.
template <class Change>
void NoteChange(const QString& Path, Change Apply) {
    const QMutexLocker Lock(&Guard());
    const qsizetype Cut = Path.lastIndexOf(u'/') + 1;
    const auto Found = Find(Path.left(Cut));
    if (Found == Kept().end()) return;
    Apply(Found->NameByUpper, Path.mid(Cut));
    Found->OwnChange = ChangeTime(Found->Dir);
    if (!Found->Doubtful) Found->Changed = Found->OwnChange;
}

}  // namespace

QString FindNameInCase(const QString& Dir, const QString& Name) {
    const QMutexLocker Lock(&Guard());
    return ListingOf(Dir).NameByUpper.value(UpperName(Name));
}

QStringList FindNamesByStart(const QString& Dir, const QString& Start) {
    const QMutexLocker Lock(&Guard());
    const auto& Names = ListingOf(Dir).NameByUpper;
    const QString Upper = UpperName(Start);
    QStringList Found;
    for (auto Each = Names.lowerBound(Upper); Each != Names.end(); ++Each) {
        if (!Each.key().startsWith(Upper)) break;
        Found << Each.value();
    }
    return Found;
}

void NoteNameMade(const QString& Path) {
    NoteChange(Path, [](auto& Names, const QString& Name) {
        if (!Names.contains(UpperName(Name), Name)) Names.insert(UpperName(Name), Name);
    });
}

void NoteNameGone(const QString& Path) {
    NoteChange(Path, [](auto& Names, const QString& Name) { Names.remove(UpperName(Name), Name); });
}

}  // namespace neb
