#include "albums/modPictureFiles.h"

#include "albums/PictureOrder.h"
#include "support/Texts.h"
#include "support/files/HiddenNames.h"
#include "support/files/modHostFiles.h"
#include "support/files/modHostFilesWalk.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

class PictureWalk {
  public:
    PictureWalk(bool Recurse, const KeepGoing& GoOn) : mRecurse(Recurse), mGoOn(GoOn) {}

    Scan Run(const QString& Directory) {
        Walk(Directory, RealDir(Directory));
        return std::move(mFound);
    }

  private:
    // False when the walk was ended.
    bool Walk(const QString& Directory, const QString& Real) {
        if (mWayDown.contains(Real)) return true;
        mWayDown.append(Real);
        const bool WentOn = WalkEntries(WithSeparator(Directory));
        mWayDown.removeLast();
        return WentOn;
    }

    bool WalkEntries(const QString& Directory) {
        Names Here;
        const bool WentOn = ListNames(Directory, Here);
        for (QStringList* Each : {&Here.Pictures, &Here.Others, &Here.Folders}) SortByName(*Each);
        for (const QString& Name : Here.Pictures) mFound.Files.append(Directory + Name);
        for (const QString& Name : Here.Others) mFound.OtherFiles.append(Directory + Name);
        return WentOn && (!mRecurse || WalkAll(Directory, Here));
    }

    struct Names {
        QStringList Pictures, Others, Folders, Links;  // links are folders as well
    };

    bool ListNames(const QString& Directory, Names& Here) {
        std::error_code Error;
        const std::vector<DirEntry> Entries = ListDir(Directory, Error);
        if (Error) mFound.UnreadableFolders.push_back({Directory, qt_error_string(Error.value())});
        for (const DirEntry& Entry : Entries) {
            if (!mGoOn()) return false;
            Sort(Entry, Here);
        }
        return true;
    }

    static void Sort(const DirEntry& Entry, Names& Here) {
        if (Entry.IsFolder ? IsHiddenFolder(Entry.Name) : IsHiddenFile(Entry.Name)) return;
        if (Entry.IsFolder && Entry.IsLink) Here.Links.append(Entry.Name);
        (Entry.IsFolder              ? Here.Folders
         : IsPictureName(Entry.Name) ? Here.Pictures
                                     : Here.Others)
            .append(Entry.Name);
    }

    bool WalkAll(const QString& Directory, const Names& Here) {
        const QString Real = WithSeparator(mWayDown.back());
        return std::all_of(Here.Folders.begin(), Here.Folders.end(), [&](const QString& Name) {
            const QString Path = Directory + Name;
            return Walk(Path, Here.Links.contains(Name) ? RealDir(Path) : Real + Name);
        });
    }

    bool mRecurse;
    const KeepGoing& mGoOn;
    Scan mFound;
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
    return Refuse(tr("This directory is reserved for Albums.  You cannot import from it."));
}

Scan ScanPictures(const QString& Directory, bool Recurse, const KeepGoing& GoOn) {
    return PictureWalk(Recurse, GoOn).Run(Directory);
}

QStringList ScanDirectory(const QString& Directory, bool Recurse, const KeepGoing& GoOn) {
    return ScanPictures(Directory, Recurse, GoOn).Files;
}

std::int32_t CountGraphicFiles(const QString& Directory, bool Recurse, JobState& Count) {
    const FileWalk Walk{.Wants = &IsHostPictureName,
                        .Found = [&] { ++Count.SoFar; },
                        .GoOn = [&] { return !Count.Stop; }};
    WalkFiles(Directory, Recurse, Walk);
    return Count.SoFar;
}

}  // namespace neb
