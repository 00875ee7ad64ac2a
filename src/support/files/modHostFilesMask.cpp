#include "support/files/modHostFilesMask.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "support/files/HostNames.h"

namespace neb {
namespace {

bool MatchesMask(QStringView Name, QStringView Mask) {
    qsizetype N = 0, M = 0, Star = -1, Resume = 0;
    while (N < Name.size()) {
        if (M < Mask.size() && Mask[M] == u'*') {
            Star = M++;
            Resume = N;
        } else if (M < Mask.size() && (Mask[M] == u'?' || Mask[M] == Name[N])) {
            ++M;
            ++N;
        } else if (Star >= 0) {
            M = Star + 1;
            N = ++Resume;
        } else {
            return false;
        }
    }
    while (M < Mask.size() && Mask[M] == u'*') ++M;
    return M == Mask.size();
}

}  // namespace

NameMask::NameMask(const QString& Mask) : mUpper(UpperName(Mask)) {}

bool NameMask::Matches(const QString& Name) const {
    return mUpper == u"*.*" || MatchesMask(UpperName(Name), mUpper);
}

QString NameMask::Start() const {
    const auto IsWild = [](QChar Character) { return Character == u'*' || Character == u'?'; };
    return mUpper.left(std::find_if(mUpper.begin(), mUpper.end(), IsWild) - mUpper.begin());
}

// Mostly one call of the host a file, and nothing is opened: a tree may have hundreds of thousands.
std::optional<FileFacts> ReadableFileFacts(const QString& Path) {
    const QByteArray Native = HostBytes(Path);
    struct stat Found = {};
    if (::stat(Native.constData(), &Found) != 0 || !S_ISREG(Found.st_mode)) return std::nullopt;
    const bool ForAll = (Found.st_mode & 0444) == 0444;
    if (!ForAll && ::faccessat(AT_FDCWD, Native.constData(), R_OK, AT_EACCESS) != 0)
        return std::nullopt;
    return FileFacts{Found.st_size, Found.st_mtime};
}

}  // namespace neb
