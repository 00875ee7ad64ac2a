#include "intake/modPictureFiles.h"

#include "shell/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/modFUFL.h"
#include "support/modHostFiles.h"

namespace neb {
namespace {

constexpr double YieldMs = 40;

// What a walk does with a picture; false ends the walk.
using PictureVisitor = std::function<bool(const QString& Path)>;

class PictureWalk {
  public:
    PictureWalk(bool Recurse, const WalkPoll& Poll, const PictureVisitor& Visit)
        : mRecurse(Recurse), mPoll(Poll), mVisit(Visit) {}

    // False when the walk was ended.
    bool Walk(const QString& Directory) {
        const QString Real = RealDir(Directory);
        if (Real.isEmpty() || mWayDown.contains(Real)) return true;
        mWayDown.append(Real);
        const bool GoesOn = WalkEntries(WithSeparator(Directory));
        mWayDown.removeLast();
        return GoesOn;
    }

  private:
    bool WalkEntries(const QString& Directory) {
        QStringList SubDirectories;
        for (const DirEntry& Entry : ListDir(Directory)) {
            if (!mPoll()) return false;
            const QString Path = Directory + Entry.Name;
            if (Entry.IsFolder)
                SubDirectories.append(Path);
            else if (IsPictureName(Entry.Name) && !mVisit(Path))
                return false;
        }
        return !mRecurse || std::all_of(SubDirectories.begin(), SubDirectories.end(),
                                        [this](const QString& Path) { return Walk(Path); });
    }

    bool mRecurse;
    const WalkPoll& mPoll;
    const PictureVisitor& mVisit;
    QStringList mWayDown;  // the real directories above the present one
};

}  // namespace

WalkPoll YieldingPoll(std::function<bool()> GoesOn) {
    double Last = TheServices().Time->Ticks();
    return [Last, GoesOn]() mutable {
        const double Now = TheServices().Time->Ticks();
        if (Now - Last < YieldMs) return true;
        DoEvents();
        Last = TheServices().Time->Ticks();
        return GoesOn();
    };
}

bool IsPictureName(const QString& Name) {
    static const QStringList Extensions = {".BMP",  ".EMF", ".JPEG", ".JPG", ".PCD",
                                           ".PCX",  ".PNG", ".PSD",  ".TGA", ".TIF",
                                           ".TIFF", ".TLA", ".WBMP", ".WMF"};
    return Extensions.contains(GetFileExt(Name).toUpper());
}

QStringList ScanDirectory(const QString& Directory, bool Recurse, const WalkPoll& Poll) {
    QStringList Found;
    const PictureVisitor Take = [&](const QString& Path) {
        Found.append(Path);
        return true;
    };
    PictureWalk(Recurse, Poll, Take).Walk(Directory);
    return Found;
}

std::int32_t CountGraphicFiles(const QString& Directory, bool Recurse, const WalkPoll& Poll) {
    if (!IsPathValid(Directory)) return 0;
    std::int32_t Count = 0;
    const PictureVisitor Add = [&](const QString& Path) {
        Count += IsPathValid(Path) ? 1 : 0;
        return true;
    };
    PictureWalk(Recurse, Poll, Add).Walk(Directory);
    return Count;
}

}  // namespace neb
