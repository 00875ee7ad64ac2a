// Starts a program with nothing but what it is given. For LockedProcess alone.
#pragma once

#include <sys/types.h>

#include <QByteArray>
#include <span>

namespace neb {

struct GivenFile {
    int From, To;  // an open file here, and its number there
};
// Role: its one argument. Numbers above those that are given are closed there. Throws Fault.
pid_t StartLocked(const QByteArray& Path, const QByteArray& Role, std::span<const GivenFile> Files);

}  // namespace neb
