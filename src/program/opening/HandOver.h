// What a second start of the program hands over to the one that runs: what is to be opened, and the
// leave of the desktop to come to the front. It goes as bytes between two processes that need not
// be of one version; of what comes in nothing is taken on trust.
#pragma once

#include <QByteArray>
#include <QStringList>
#include <optional>

namespace neb {

struct HandOver {
    QStringList Paths;  // absolute
    QByteArray Token;   // by which the desktop knows that the user wants it; empty: there is none
    bool operator==(const HandOver&) const = default;
};

// The answer to it, one byte; whoever ends without one has not taken it.
enum class HandOverAnswer : char { Taken = 'T', NotUnderstood = 'N' };

constexpr qsizetype HandOverHead = 12;        // bytes, with which every message begins
constexpr qsizetype MaxHandOver = 4'000'000;  // bytes of a whole message
constexpr qsizetype MaxHandOverPaths = 50'000;

// A path from the root, as Linux limits them.
bool IsWholePath(const QByteArray& Path);

// Nothing where it is too much for one message.
std::optional<QByteArray> PackHandOver(const HandOver& What);
// How many bytes a message has that begins so; 0 while its head is not there as a whole; nothing
// where it is no message of this version, or too long.
std::optional<qsizetype> HandOverLength(const QByteArray& Begin);
// Nothing where a whole message is damaged or asks for what no start of the program would.
std::optional<HandOver> UnpackHandOver(const QByteArray& Message);

}  // namespace neb
