// The list of check sums that goes along with a folder of files, in the form that "sha256sum -c"
// reads: written once over all that lies there, compared at any later time. Used by the window that
// writes a folder for a disc, by the check of such a folder, and nebctl. The lists of the albums
// (db/AlbumSums.h), which grow with them, have their form from here.
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

namespace neb {

inline constexpr char SumsName[] = "Sums.sha256";

// A line of such a list.
struct ListedSum {
    QString Path;    // relative, with "/"
    QByteArray Sum;  // 64 digits, small letters
    bool operator==(const ListedSum&) const = default;
};
QByteArray SumLine(const ListedSum& File);  // with its line feed
// Nothing for what is no such line, or names a file that does not lie below the list's folder.
std::optional<ListedSum> ReadSumLine(QByteArray Line);  // without its line feed

QByteArray SumOfBytes(const QByteArray& Bytes);
// Tell hears of each piece of the file that was read; false ends the reading: the answer is
// nothing. Throws Fault when it cannot be read.
std::optional<QByteArray> SumOfFile(const QString& Path,
                                    const std::function<bool(qint64 Piece)>& Tell = {});

struct SumsProgress {
    int Files = 0, OfFiles = 0;
    qint64 Bytes = 0, OfBytes = 0;
};
// Called many times a second on the caller's thread, also while a slow medium does not answer: the
// files are read on another one. False stops the work at once.
using SumsGoOn = std::function<bool(const SumsProgress& Now)>;

// Writes the list over every file in Dir and below it, the list itself, the locks of open databases
// and links left out, in the order of their paths. False when it was stopped. What is stopped or
// fails leaves no new list. Throws Fault.
bool WriteSums(const QString& Dir, const SumsGoOn& GoOn = {});

struct SumsFinding {
    enum class Kind { Missing, Unreadable, Changed };
    Kind Is;
    QString Path;  // as the list has it: relative, with "/"
};
// Compares every file of the list; nothing outside of Dir is opened, whatever the list says.
// Nothing when it was stopped. Throws Fault when there is no list, it is empty, or a line of it
// cannot be understood.
std::optional<std::vector<SumsFinding>> CheckSums(const QString& Dir, const SumsGoOn& GoOn = {});

}  // namespace neb
