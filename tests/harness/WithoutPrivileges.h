// For as long as it lives the test runs as an ordinary user, to whom permissions apply: tests are
// often run by the administrator, who may read and write everything.
#pragma once

#include <unistd.h>

namespace neb::harness {

class WithoutPrivileges {
  public:
    WithoutPrivileges() : mWasRoot(geteuid() == 0) {
        if (mWasRoot && (setegid(Nobody) != 0 || seteuid(Nobody) != 0)) mWasRoot = false;
    }
    ~WithoutPrivileges() {
        if (mWasRoot && (seteuid(0) != 0 || setegid(0) != 0)) _exit(1);
    }
    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;

  private:
    static constexpr unsigned Nobody = 65534;
    bool mWasRoot;
};

}  // namespace neb::harness
