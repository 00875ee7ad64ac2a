#include "albums/PictureCheck.h"

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <set>

#include "db/AlbumSums.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "db/records/modJournal.h"
#include "pictures/ImgX.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "support/work/Job.h"

namespace neb {
namespace {

using Kind = PictureFinding::Kind;

// A file that a record names.
struct Named {
    QString Path;  // in the album
    QString What;
    QString Picture = {};  // of a thumbnail: the full path of the picture from which it is made
    bool IsThumbnail() const { return !Picture.isEmpty(); }
};

// What the records say of an album, upper-cased by the files' paths in it.
struct AlbumToCheck {
    QString Folder, Name;
    std::map<QString, Named> Files;
    std::vector<std::pair<QString, QString>> Outside;  // full paths, and what they are
};

class Expectations {
  public:
    explicit Expectations(AlbumToCheck& Album) : mAlbum(Album) {}

    void Expect(const clsNEBSlide& Slide) {
        const QString Of = tr(" of slide %1").arg(Slide.SlideID);
        Add(QStringLiteral("Slides/"), Slide.SlideLoc, tr("the picture") + Of);
        Add(QStringLiteral("Slides/"), Slide.SoundTrackLoc.trimmed(), tr("the sound") + Of);
        const QString Small = QStringLiteral("Slides/") + ThumbnailName(Slide.SlideID);
        const QString Picture = HoldsSeparator(Slide.SlideLoc)
                                    ? Slide.SlideLoc
                                    : mAlbum.Folder + QStringLiteral("Slides/") + Slide.SlideLoc;
        mAlbum.Files.try_emplace(Small.toUpper(), Named{Small, tr("the thumbnail") + Of, Picture});
    }
    void Expect(const clsNEBSlideShow& Show) {
        for (const auto& Track : Show.SoundTracks)
            Add(QStringLiteral("SoundTracks/"), Track->SoundTrackLoc,
                tr("sound track %1 of show %2").arg(Track->SoundTrackSeq).arg(Show.SlideShowID));
    }

  private:
    void Add(const QString& Folder, const QString& Loc, const QString& What) {
        if (Loc.isEmpty()) return;
        if (HoldsSeparator(Loc))
            mAlbum.Outside.emplace_back(Loc, What);
        else
            mAlbum.Files.try_emplace((Folder + Loc).toUpper(), Named{Folder + Loc, What});
    }

    AlbumToCheck& mAlbum;
};

AlbumToCheck ToCheck(const clsDBEngine& theDB, const clsNEBAlbum& Album) {
    AlbumToCheck Made{AlbumFolder(theDB.DBPath(), Album.AlbumID), Album.AlbumName, {}, {}};
    Expectations Wanted(Made);
    for (const auto& Slide : Album.Slides) Wanted.Expect(*Slide);
    for (const auto& Show : Album.SlideShows) Wanted.Expect(*Show);
    return Made;
}

// What the thread that reads tells the one that waits.
class Told {
  public:
    std::atomic<int> Files = 0, OfFiles = 0;
    std::atomic<qint64> Bytes = 0, OfBytes = 0;

    SumsProgress Now() const { return {Files, OfFiles, Bytes, OfBytes}; }
    template <class Part>
    void Change(const Part& Do) {
        const std::lock_guard Lock(mMutex);
        Do(mSoFar);
    }
    PicturesChecked SoFar() {
        const std::lock_guard Lock(mMutex);
        return mSoFar;
    }

  private:
    std::mutex mMutex;
    PicturesChecked mSoFar;
};

// A file that is there.
struct FileThere {
    QString Path;  // in the album
    qint64 Size;
    bool IsFolder;
};

// On the thread that reads.
class Checker {
  public:
    Checker(QString DBPath, std::vector<AlbumToCheck> Albums, SumsLists Lists,
            std::shared_ptr<Told> Tells, const JobState& State)
        : mDBPath(std::move(DBPath)),
          mAlbums(std::move(Albums)),
          mLists(Lists),
          mTold(std::move(Tells)),
          mState(State) {}

    void Run() {
        for (const auto& [Place, From] : CommittedPlaces(mDBPath)) mWaiting.insert(Place);
        std::vector<std::vector<FileThere>> There;
        for (const AlbumToCheck& Album : mAlbums) {
            There.push_back(ListFiles(Album));
            if (mState.Stop) return;
        }
        for (size_t I = 0; I < mAlbums.size() && !mState.Stop; ++I) Check(mAlbums[I], There[I]);
        FindStrayAlbums();
        if (!mState.Stop) mTold->Change([](PicturesChecked& Now) { Now.IsWhole = true; });
    }

  private:
    std::vector<FileThere> ListFiles(const AlbumToCheck& Album) {
        std::vector<FileThere> Found;
        for (const char* Folder : {"Slides/", "SoundTracks/"})
            for (const DirEntry& Entry : ListDir(Album.Folder + QLatin1String(Folder))) {
                const QString Path = QLatin1String(Folder) + Entry.Name;
                Found.push_back({Path, FileSize(Album.Folder + Path), Entry.IsFolder});
                if (!Album.Files.contains(Path.toUpper())) continue;
                ++mTold->OfFiles;
                mTold->OfBytes += std::max<qint64>(0, Found.back().Size);
            }
        return Found;
    }

    void Check(const AlbumToCheck& Album, const std::vector<FileThere>& There) {
        ListOfAlbum List{ReadList(Album.Folder), {}};
        for (ListedSum& Each : SumsIn(List.Text.value_or(QByteArray())))
            List.Lines.emplace(Each.Path.toUpper(), std::move(Each));
        std::set<QString> Upper;
        std::map<QString, ListedSum> Right;
        for (const FileThere& Each : There) {
            if (mState.Stop) return;
            Upper.insert(Each.Path.toUpper());
            if (auto Line = CheckOne(Album, Each, List))
                Right.emplace(Each.Path.toUpper(), std::move(*Line));
        }
        FindMissing(Album, Upper);
        PutRight(Album, List.Text, Upper, Right);
        MendThumbnails();
    }

    struct ListOfAlbum {
        std::optional<QByteArray> Text;
        std::multimap<QString, ListedSum> Lines;

        bool Has(const QString& Upper) const { return Lines.contains(Upper); }
        bool Has(const QString& Upper, const QByteArray& Sum) const {
            const auto [First, Last] = Lines.equal_range(Upper);
            return std::any_of(First, Last,
                               [&](const auto& Each) { return Each.second.Sum == Sum; });
        }
        // The line that came last; nothing when there is none.
        std::optional<ListedSum> LastOf(const QString& Upper) const {
            const auto [First, Last] = Lines.equal_range(Upper);
            return First == Last ? std::nullopt : std::optional(std::prev(Last)->second);
        }
    };

    // One that cannot be read counts as none, and is none that could be put right.
    std::optional<QByteArray> ReadList(const QString& Folder) {
        try {
            return ReadAlbumSums(Folder);
        } catch (const Fault&) {
            Add({Kind::Unreadable, AlbumSumsPath(Folder), {}, {}});
            return std::nullopt;
        }
    }

    // The line that the file is to have. Of several for a name the one that matches is right: the
    // file was being replaced.
    std::optional<ListedSum> CheckOne(const AlbumToCheck& Album, const FileThere& File,
                                      const ListOfAlbum& List) {
        const QString Upper = File.Path.toUpper();
        const auto Expected = Album.Files.find(Upper);
        if (Expected == Album.Files.end() || File.IsFolder) {
            if (!IsInTheMaking(Album, File.Path))
                Add({Kind::Stray, Album.Folder + File.Path, {}, Album.Name});
            return List.LastOf(Upper);
        }
        const auto Sum = Read(Album, File, Expected->second);
        if (!Sum) return List.LastOf(Upper);
        if (List.Text) mTold->Change([](PicturesChecked& Now) { ++Now.Files; });
        if (!List.Has(Upper) || List.Has(Upper, *Sum)) return ListedSum{File.Path, *Sum};
        Damaged(Kind::Changed, Album, File, Expected->second);
        return List.LastOf(Upper);
    }

    // Its check sum; nothing when it is empty, cannot be read, or the work is stopped.
    std::optional<QByteArray> Read(const AlbumToCheck& Album, const FileThere& File,
                                   const Named& Is) {
        ++mTold->Files;
        if (File.Size == 0) {
            Damaged(Kind::Empty, Album, File, Is);
            return std::nullopt;
        }
        try {
            return SumOfFile(Album.Folder + File.Path, [this](qint64 Piece) {
                mTold->Bytes += Piece;
                return !mState.Stop;
            });
        } catch (const Fault&) {
            Damaged(Kind::Unreadable, Album, File, Is);
            return std::nullopt;
        }
    }

    // A thumbnail is made of its picture again, where that is possible.
    void Damaged(Kind What, const AlbumToCheck& Album, const FileThere& File, const Named& Is) {
        const PictureFinding Found{What, Album.Folder + File.Path, Is.What, Album.Name};
        if (Is.IsThumbnail() && mLists == SumsLists::PutRight)
            mThumbnails.emplace_back(Found, Is.Picture);
        else
            Add(Found);
    }
    void MendThumbnails() {
        for (const auto& [Found, Picture] : std::exchange(mThumbnails, {})) {
            if (mState.Stop) return;
            try {
                StoreAnew(Found.Path, ThumbnailBmp(MakeThumbnail(Picture)));
                ListStored(Found.Path);
            } catch (const Fault&) {
                Add(Found);
            }
        }
    }

    void FindMissing(const AlbumToCheck& Album, const std::set<QString>& There) {
        for (const auto& [Upper, File] : Album.Files)
            if (!File.IsThumbnail() && !There.contains(Upper) &&
                !mWaiting.contains((Album.Folder + Upper).toUpper()))
                Add({Kind::Missing, Album.Folder + File.Path, File.What, Album.Name});
        for (const auto& [Path, What] : Album.Outside)
            if (!FileExists(Path)) Add({Kind::Missing, Path, What, Album.Name});
    }
    // In the order in which the lines stand; what they lack follows. Lines of files that are
    // neither there nor named go, and so do remarks.
    void PutRight(const AlbumToCheck& Album, const std::optional<QByteArray>& List,
                  const std::set<QString>& There, std::map<QString, ListedSum>& Right) {
        if (!List && Right.empty()) return;
        const bool MayWrite = mLists == SumsLists::PutRight && !FileIsHidden(Album.Folder, List);
        if (!List)
            mTold->Change(
                [&](PicturesChecked& Now) { ++(MayWrite ? Now.NewLists : Now.WithoutLists); });
        if (!MayWrite) return;
        QByteArray Text;
        for (const ListedSum& Each : SumsIn(List.value_or(QByteArray()))) {
            const QString Upper = Each.Path.toUpper();
            if (const auto Found = Right.find(Upper); Found != Right.end()) {
                Text += SumLine(Found->second);
                Right.erase(Found);
            } else if (!There.contains(Upper) && Album.Files.contains(Upper)) {
                Text += SumLine(Each);  // it is missing, and may come back
            }
        }
        for (const auto& [Upper, Each] : Right) Text += SumLine(Each);
        if (Text != List) MendAlbumSums(Album.Folder, List, Text);
    }
    static bool FileIsHidden(const QString& Folder, const std::optional<QByteArray>& List) {
        return !List && NameExists(AlbumSumsPath(Folder));
    }

    // A store that was cut short has left it: no record ever named it, or the file that it was has
    // another one in its place.
    static bool IsInTheMaking(const AlbumToCheck& Album, const QString& Path) {
        const QString Upper = Path.toUpper(),
                      Of = Upper.chopped(std::min<qsizetype>(4, Path.size()));
        return Upper.endsWith(u".NEW") || (Upper.endsWith(u".OLD") && Album.Files.contains(Of) &&
                                           FileExists(Album.Folder + Path.chopped(4)));
    }

    void FindStrayAlbums() {
        std::set<QString> Known;
        for (const AlbumToCheck& Album : mAlbums) Known.insert(Album.Folder);
        const QString Albums = mDBPath + QStringLiteral("Albums/");
        for (const DirEntry& Entry : ListDir(Albums))
            if (!mState.Stop && !Known.contains(Albums + Entry.Name + u'/'))
                Add({Kind::Stray, Albums + Entry.Name, {}, {}});
    }

    void Add(const PictureFinding& Found) {
        mTold->Change([&](PicturesChecked& Now) { Now.Found.push_back(Found); });
    }

    const QString mDBPath;
    const std::vector<AlbumToCheck> mAlbums;
    const SumsLists mLists;
    const std::shared_ptr<Told> mTold;
    const JobState& mState;
    // Damaged ones of the album at hand, and their pictures.
    std::vector<std::pair<PictureFinding, QString>> mThumbnails;
    std::set<QString> mWaiting;  // places of a transfer's files that are not there yet
};

// By Kind.
constexpr const char* Words[] = {QT_TR_NOOP("changed: "), QT_TR_NOOP("empty: "),
                                 QT_TR_NOOP("missing: "), QT_TR_NOOP("cannot be read: "),
                                 QT_TR_NOOP("no slide or show has it: ")};

}  // namespace

QString PictureFinding::Line() const {
    QString Text = tr(Words[static_cast<size_t>(Is)]);
    if (!What.isEmpty()) Text += What + tr(" in the album \"%1\": ").arg(Album);
    return Text + Path;
}

namespace {

constexpr int Patience = 20;  // milliseconds

// A disk that answers ends the work at once, and nothing of it runs on into the end of the program;
// one that hangs keeps nobody.
void EndSoon(Job<>& Work, const Told& Tells, const SumsGoOn& GoOn) {
    constexpr int Tries = 50;
    Work.Cancel();
    for (int Try = 0; Try < Tries && !Work.Wait(Patience); ++Try) GoOn(Tells.Now());
}

}  // namespace

PicturesChecked CheckAllPictures(const clsDBEngine& theDB, SumsLists Lists, const SumsGoOn& GoOn) {
    std::vector<AlbumToCheck> Albums;
    std::set<std::int32_t> Seen;  // a second album of one number owns nothing
    for (const auto& Album : theDB.Albums)
        if (Seen.insert(Album->AlbumID).second) Albums.push_back(ToCheck(theDB, *Album));
    const auto Tells = std::make_shared<Told>();
    Job<> Work([DBPath = theDB.DBPath(), Albums = std::move(Albums), Lists,
                Tells](JobState& State) { Checker(DBPath, Albums, Lists, Tells, State).Run(); });
    do {
        if (!GoOn || GoOn(Tells->Now())) continue;
        EndSoon(Work, *Tells, GoOn);
        return Tells->SoFar();
    } while (!Work.Wait(Patience));
    Work.Take();
    if (GoOn) GoOn(Tells->Now());
    return Tells->SoFar();
}

}  // namespace neb
