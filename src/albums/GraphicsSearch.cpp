#include "albums/GraphicsSearch.h"

#include <QDateTime>
#include <QLocale>
#include <QSet>
#include <algorithm>
#include <cmath>
#include <condition_variable>
#include <ctime>
#include <deque>
#include <mutex>

#include "albums/PictureOrder.h"
#include "support/Grouped.h"
#include "support/MediaTypes.h"
#include "support/files/HiddenNames.h"
#include "support/files/modHostFilesMask.h"
#include "support/files/modHostFilesWalk.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

// Directories found and not yet shown, at most: memory stays small however slow the window is.
constexpr size_t MostWaiting = 512;

bool IsMissing(const std::error_code& Error) {
    return Error == std::errc::no_such_file_or_directory || Error == std::errc::not_a_directory;
}

// A directory that the walk is in, and the medium on which it lay when the walk came to it.
struct Level {
    QString Path, Real;
    std::optional<std::uint64_t> Medium;
};

// Whether a medium has been taken away from under the walk. It has when a directory lies on
// another one by now; one that is gone may have been deleted, unless all that is searched or a
// whole medium went with it.
bool HasLostMedium(const std::vector<Level>& WayDown) {
    std::optional<std::uint64_t> Above;
    for (const Level& Each : WayDown) {
        const auto Now = MediumOf(Each.Path);
        if (!Now) return Each.Medium && Each.Medium != Above;
        if (Now != Each.Medium) return true;
        Above = Each.Medium;
    }
    return false;
}

// "JPEG/JPG": the extensions of a type, the longest first.
QString TypeText(const MediaType& Type) {
    QStringList Endings = Type.Endings();
    std::sort(Endings.begin(), Endings.end(),
              [](const QString& A, const QString& B) { return A.size() > B.size(); });
    return Endings.join(u'/').toUpper();
}

}  // namespace

QStringList GraphicTypes() {
    QStringList Texts;
    for (const MediaType& Type : PictureTypes()) Texts << TypeText(Type);
    return Texts;
}

bool IsSelectedType(const QString& Extension, const QStringList& Selected) {
    const QStringView Letters = QStringView(Extension).mid(1);
    return std::any_of(Selected.begin(), Selected.end(), [&](const QString& Type) {
        return QStringView(Type).split(u'/').contains(Letters);
    });
}

QString NormalFilter(const QString& Text) {
    if (Text.trimmed().isEmpty()) return QStringLiteral("*.*");
    if (Text.endsWith(u'.')) return Text + u'*';
    if (Text.contains(u'.') || Text.endsWith(u'*')) return Text;
    return Text + QStringLiteral("*.*");
}

QString SizeText(qint64 Bytes) {
    return Decimal(std::round(static_cast<double>(Bytes) / 102.4) / 10, 1) + QStringLiteral(" KB");
}

QString DateText(qint64 SecondsSince1970) {
    if (const auto Is = QLocale().language(); Is != QLocale::C && Is != QLocale::English)
        return QLocale().toString(QDateTime::fromSecsSinceEpoch(SecondsSince1970),
                                  QLocale::ShortFormat);
    const std::time_t Moment = SecondsSince1970;
    std::tm Local = {};
#ifdef _WIN32
    if (localtime_s(&Local, &Moment) != 0) return {};
#else
    if (!localtime_r(&Moment, &Local)) return {};
#endif
    char Text[64];
    const size_t Length = std::strftime(Text, sizeof Text, "%m/%d/%Y %I:%M ", &Local);
    return QString::fromLatin1(Text, static_cast<qsizetype>(Length)) +
           (Local.tm_hour < 12 ? QStringLiteral("AM") : QStringLiteral("PM"));
}

QStringList OwnFolders(const QString& DBPath) {
    QStringList Folders;
    for (const char* Name : {"Albums", "Backups", "Temp"})
        Folders << DBPath + QString::fromLatin1(Name);
    return Folders;
}

struct GraphicsSearch::Shared {
    std::mutex Mutex;
    std::condition_variable Changed;
    std::deque<SearchStep> Steps;
    bool AtEnd = false;
};

// What the thread does; it owns all that it uses.
class GraphicsSearch::Walk {
  public:
    Walk(std::shared_ptr<Shared> To, const QString& Filter, const QStringList& Types, Lister List)
        : mTo(std::move(To)), mMask(Filter), mTypes(Types), mList(std::move(List)) {}

    void Run(const QString& Directory, const QStringList& LeftOut, const JobState& State) {
        mState = &State;
        for (const QString& Each : LeftOut)
            if (const QString Real = RealDir(Each); !Real.isEmpty())
                mLeftOut << WithSeparator(Real);
        if (FolderExists(Directory)) Enter(Directory, RealDir(Directory));
        const std::lock_guard Lock(mTo->Mutex);
        mTo->AtEnd = true;
        mTo->Changed.notify_all();
    }

  private:
    // False when the walk has ended.
    bool Enter(const QString& Directory, const QString& Real) {
        if (Real.isEmpty() || IsOnWayDown(Real) || IsLeftOut(Real)) return true;
        const QString Path = WithSeparator(Directory);
        mWayDown.push_back({Path, Real, MediumOf(Path)});
        const bool WentOn = Search({Directory, {}, {}});
        mWayDown.pop_back();
        return WentOn;
    }

    // What a directory holds that is looked for; links are folders as well.
    struct Names {
        QStringList Files, Folders;
        QSet<QString> Links;
    };

    bool Search(SearchStep Step) {
        const std::vector<DirEntry> Entries = mList(mWayDown.back().Path, Step.Error);
        if (IsMissing(Step.Error)) {
            if (!HasLostMedium(mWayDown)) return true;  // gone since it was seen
            Step.Error = std::make_error_code(std::errc::no_such_device);
        }
        Names Here = Sorted(Entries);
        if (!TakeFiles(Here.Files, Step)) return false;
        const bool Lost = Step.Error == std::errc::no_such_device;
        return HandOver(std::move(Step)) && !Lost && EnterAll(Here);
    }

    bool IsOnWayDown(const QString& Real) const {
        return std::any_of(mWayDown.begin(), mWayDown.end(),
                           [&](const Level& Each) { return Each.Real == Real; });
    }

    bool IsLeftOut(const QString& Real) const {
        return std::any_of(mLeftOut.begin(), mLeftOut.end(), [&](const QString& Each) {
            return WithSeparator(Real).startsWith(Each);
        });
    }

    Names Sorted(const std::vector<DirEntry>& Entries) const {
        Names Here;
        for (const DirEntry& Entry : Entries) {
            if (mState->Stop) return {};
            if (Entry.IsFolder ? IsHiddenFolder(Entry.Name) : IsHiddenFile(Entry.Name)) continue;
            if (Entry.IsFolder && Entry.IsLink) Here.Links << Entry.Name;
            if (Entry.IsFolder)
                Here.Folders << Entry.Name;
            else if (IsWanted(Entry.Name))
                Here.Files << Entry.Name;
        }
        for (QStringList* Each : {&Here.Files, &Here.Folders})
            if (Each->size() > 1) SortByName(*Each);
        return Here;
    }

    // False when nobody wants them any more.
    bool TakeFiles(const QStringList& Files, SearchStep& Step) {
        const QString Path = mWayDown.back().Path;
        bool PassedOver = false;
        for (const QString& Name : Files) {
            if (mState->Stop) return false;
            if (!TakeFile(Path, Name, Step)) PassedOver = true;
        }
        if (PassedOver && HasLostMedium(mWayDown))
            Step.Error = std::make_error_code(std::errc::no_such_device);
        return !mState->Stop;
    }

    bool EnterAll(const Names& Here) {
        const QString Path = mWayDown.back().Path;
        const QString Real = WithSeparator(mWayDown.back().Real);
        return std::all_of(Here.Folders.begin(), Here.Folders.end(), [&](const QString& Name) {
            const QString Sub = Path + Name;
            return Enter(Sub, Here.Links.contains(Name) ? RealDir(Sub) : Real + Name);
        });
    }

    bool IsWanted(const QString& Name) const {
        return IsSelectedType(GetFileExt(Name).toUpper(), mTypes) && mMask.Matches(Name);
    }

    // False when it cannot be opened, and is passed over.
    bool TakeFile(const QString& Path, const QString& Name, SearchStep& Step) {
        const std::optional<FileFacts> Facts = ReadableFileFacts(Path + Name);
        if (Facts)
            Step.Files.push_back({Name, Path, SizeText(Facts->Size), DateOf(Facts->Changed)});
        return Facts.has_value();
    }

    // The pictures of a directory often come from one minute.
    const QString& DateOf(qint64 SecondsSince1970) {
        const qint64 Minute = (SecondsSince1970 - (SecondsSince1970 < 0 ? 59 : 0)) / 60;
        if (mMinute != Minute) {
            mMinute = Minute;
            mDate = DateText(SecondsSince1970);
        }
        return mDate;
    }

    // Waits while enough is waiting already. False when nobody wants it any more.
    bool HandOver(SearchStep Step) {
        std::unique_lock Lock(mTo->Mutex);
        mTo->Changed.wait(Lock, [this] { return mState->Stop || mTo->Steps.size() < MostWaiting; });
        if (mState->Stop) return false;
        mTo->Steps.push_back(std::move(Step));
        mTo->Changed.notify_all();
        return true;
    }

    const JobState* mState = nullptr;  // while it runs
    std::shared_ptr<Shared> mTo;
    NameMask mMask;
    QStringList mTypes;
    QStringList mLeftOut;  // real paths, with separators
    Lister mList;
    std::vector<Level> mWayDown;    // the directories above, and the present one
    std::optional<qint64> mMinute;  // since the start of 1970, the one that mDate tells
    QString mDate;
};

GraphicsSearch::GraphicsSearch(const QString& Directory, const QString& Filter,
                               const QStringList& Types, Lister List, const QStringList& LeftOut)
    : mShared(std::make_shared<Shared>()) {
    if (!List)
        List = [](const QString& Dir, std::error_code& Error) { return ListDir(Dir, Error); };
    const auto Work = std::make_shared<Walk>(mShared, Filter, Types, std::move(List));
    mJob = std::make_unique<Job<>>(
        [=](const JobState& State) { Work->Run(Directory, LeftOut, State); });
}

// It may be in the middle of a large directory on a slow medium; nobody waits for that.
GraphicsSearch::~GraphicsSearch() {
    const std::lock_guard Lock(mShared->Mutex);
    mJob->Cancel();
    mShared->Changed.notify_all();
}

bool GraphicsSearch::Wait(int Milliseconds) {
    std::unique_lock Lock(mShared->Mutex);
    return mShared->Changed.wait_for(Lock, std::chrono::milliseconds(Milliseconds),
                                     [this] { return mShared->AtEnd || !mShared->Steps.empty(); });
}

bool GraphicsSearch::AtEnd() const {
    const std::lock_guard Lock(mShared->Mutex);
    return mShared->AtEnd && mShared->Steps.empty();
}

SearchStep GraphicsSearch::Take() {
    const std::lock_guard Lock(mShared->Mutex);
    SearchStep Next = std::move(mShared->Steps.front());
    mShared->Steps.pop_front();
    mShared->Changed.notify_all();
    return Next;
}

}  // namespace neb
