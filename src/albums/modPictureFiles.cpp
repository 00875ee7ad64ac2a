#include "albums/modPictureFiles.h"

#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesWalk.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

class PictureWalk {
  public:
    PictureWalk(bool Recurse, const KeepGoing& GoOn, QStringList& Found)
        : mRecurse(Recurse), mGoOn(GoOn), mFound(Found) {}

    // False when the walk was ended.
    bool Walk(const QString& Directory) {
        const QString Real = RealDir(Directory);
        if (Real.isEmpty() || mWayDown.contains(Real)) return true;
        mWayDown.append(Real);
        const bool WentOn = WalkEntries(WithSeparator(Directory));
        mWayDown.removeLast();
        return WentOn;
    }

  private:
    bool WalkEntries(const QString& Directory) {
        QStringList SubDirectories;
        for (const DirEntry& Entry : ListDir(Directory)) {
            if (!mGoOn()) return false;
            const QString Path = Directory + Entry.Name;
            if (Entry.IsFolder)
                SubDirectories.append(Path);
            else if (IsPictureName(Entry.Name))
                mFound.append(Path);
        }
        return !mRecurse || std::all_of(SubDirectories.begin(), SubDirectories.end(),
                                        [this](const QString& Path) { return Walk(Path); });
    }

    bool mRecurse;
    const KeepGoing& mGoOn;
    QStringList& mFound;
    QStringList mWayDown;  // the real directories above the present one
};

char Upper(char Letter) {
    return Letter >= 'a' && Letter <= 'z' ? static_cast<char>(Letter - 'a' + 'A') : Letter;
}

// The same as IsPictureName for a name in the host's encoding, without making a text of each of
// thousands of names. Letters that are not plain ones may have plain capitals.
bool IsHostPictureName(std::string_view Name) {
    const size_t Dot = Name.rfind('.');
    if (Dot == Name.npos) return false;
    const std::string_view Ending = Name.substr(Dot);
    if (std::any_of(Ending.begin(), Ending.end(),
                    [](char Each) { return static_cast<unsigned char>(Each) > 127; }))
        return IsPictureName(QString::fromLocal8Bit(Ending));
    const auto IsThis = [&](const QString& Extension) {
        return std::equal(Ending.begin(), Ending.end(), Extension.begin(), Extension.end(),
                          [](char A, QChar B) { return QLatin1Char(Upper(A)) == B; });
    };
    return std::any_of(PictureExtensions().begin(), PictureExtensions().end(), IsThis);
}

}  // namespace

Answer<> CheckSource(const QString& Path, const QString& Root) {
    if (!Path.startsWith(Root + QStringLiteral("Albums/"))) return Done();
    return Refuse(
        QStringLiteral("This directory is reserved for Albums.  You cannot import from it."));
}

QStringList ScanDirectory(const QString& Directory, bool Recurse, const KeepGoing& GoOn) {
    QStringList Found;
    PictureWalk(Recurse, GoOn, Found).Walk(Directory);
    return Found;
}

std::int32_t CountGraphicFiles(const QString& Directory, bool Recurse, JobState& Count) {
    const FileWalk Walk{.Wants = &IsHostPictureName,
                        .Found = [&] { ++Count.SoFar; },
                        .GoOn = [&] { return !Count.Stop; }};
    WalkFiles(Directory, Recurse, Walk);
    return Count.SoFar;
}

}  // namespace neb
