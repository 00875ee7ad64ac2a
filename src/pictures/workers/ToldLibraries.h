// What the libraries of the decoders are told where they would ask the system or each other, in
// the processes behind the locked door: these names are found here first. Each tells less than the
// truth, never more. For main.cpp alone, once a program.
#pragma once

#include <dlfcn.h>
#include <pthread.h>

#include <QThreadPool>
#include <cstring>

// One processor: pictures are decoded side by side already, and a library that begins a thread for
// each of sixty-four takes more room than a small picture is given.
extern "C" int pthread_getaffinity_np(pthread_t, size_t Bytes, cpu_set_t* Set) noexcept {
    CPU_ZERO_S(Bytes, Set);
    CPU_SET_S(0, Bytes, Set);
    return 0;
}

// The decoder of HEIC begins a thread, which it can do without, before one can tell it not to.
extern "C" int de265_start_worker_threads(void*, int) {
    return 0;
}

// Changes of a large picture's format are shared among threads, but never from within one of
// theirs.
bool QThreadPool::contains(const QThread*) const {
    return true;
}

// The library's own policy has larger pictures in files, of which there are none behind the door:
// the room that a picture has is counted before, and held by the system.
extern "C" char* GetPolicyValue(const char* Name) {
    for (const char* const Each : {"resource:memory", "resource:area", "memory", "area"})
        if (std::strcmp(Name, Each) == 0) return nullptr;
    using Asking = char* (*)(const char*);
    static const auto Library = reinterpret_cast<Asking>(::dlsym(RTLD_NEXT, "GetPolicyValue"));
    return Library ? Library(Name) : nullptr;
}
