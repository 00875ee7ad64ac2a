#include "db/recovery/StateDifferences.h"

#include <algorithm>
#include <set>
#include <unordered_map>

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

// Objects by their numbers, the first one of a number standing.
template <class Object>
class ByNumber {
  public:
    ByNumber(const std::vector<std::unique_ptr<Object>>& All, std::int32_t Object::*Number)
        : mNumber(Number) {
        for (const auto& Each : All) mObjects.try_emplace(Each.get()->*Number, Each.get());
    }
    const Object* Find(const Object& Other) const {
        const auto Found = mObjects.find(Other.*mNumber);
        return Found == mObjects.end() ? nullptr : Found->second;
    }

  private:
    std::int32_t Object::*mNumber;
    std::unordered_map<std::int32_t, const Object*> mObjects;
};

bool IsSame(const clsNEBSlideShowDetail& One, const clsNEBSlideShowDetail& Other) {
    return One.SlideID == Other.SlideID && One.SlideSeq == Other.SlideSeq &&
           One.SlideText == Other.SlideText;
}

bool IsSame(const clsNEBSlideShowSoundTrack& One, const clsNEBSlideShowSoundTrack& Other) {
    return One.SoundTrackSeq == Other.SoundTrackSeq && One.SoundTrackLoc == Other.SoundTrackLoc &&
           One.SlideSeqStart == Other.SlideSeqStart && One.SlideSeqEnd == Other.SlideSeqEnd &&
           One.Repeat == Other.Repeat && One.FitToSong == Other.FitToSong && One.Fade == Other.Fade;
}

template <class Object>
bool AreSame(const std::vector<std::unique_ptr<Object>>& One,
             const std::vector<std::unique_ptr<Object>>& Other) {
    return std::equal(One.begin(), One.end(), Other.begin(), Other.end(),
                      [](const auto& A, const auto& B) { return IsSame(*A, *B); });
}

bool IsSame(const clsNEBSlideShow& One, const clsNEBSlideShow& Other) {
    return One.SlideShowName == Other.SlideShowName &&
           One.ProgressionMethod == Other.ProgressionMethod &&
           AreSame(One.Details, Other.Details) && AreSame(One.SoundTracks, Other.SoundTracks);
}

// But for the caption.
bool IsSame(const clsNEBSlide& One, const clsNEBSlide& Other) {
    return One.SlideLoc == Other.SlideLoc && One.SoundTrackLoc == Other.SoundTrackLoc &&
           One.Override == Other.Override && One.Repeat == Other.Repeat;
}

QString Quoted(const QString& Name) {
    return u'"' + Name + u'"';
}

QString NameOf(const clsNEBSlideShow& Show, const clsNEBAlbum& Album) {
    return tr("\"%1\" of \"%2\"").arg(Show.SlideShowName, Album.AlbumName);
}

class Comparison {
  public:
    StateDifferences Run(const clsDBEngine& Then, const clsDBEngine& Now) {
        const ByNumber<clsNEBAlbum> InThen(Then.Albums, &clsNEBAlbum::AlbumID);
        const ByNumber<clsNEBAlbum> InNow(Now.Albums, &clsNEBAlbum::AlbumID);
        static const clsNEBAlbum None;
        for (const auto& Album : Then.Albums) {
            const clsNEBAlbum* const Other = InNow.Find(*Album);
            if (!Other) mFound.AlbumsThen << Quoted(Album->AlbumName);
            CompareAlbums(*Album, Other ? *Other : None);
        }
        for (const auto& Album : Now.Albums) {
            if (InThen.Find(*Album)) continue;
            mFound.AlbumsNow << Quoted(Album->AlbumName);
            CompareAlbums(None, *Album);
        }
        return std::move(mFound);
    }

  private:
    void CompareAlbums(const clsNEBAlbum& Then, const clsNEBAlbum& Now) {
        if (Then.AlbumID == Now.AlbumID && Then.AlbumName != Now.AlbumName)
            mFound.AlbumsRenamed
                << tr("\"%1\" instead of \"%2\"").arg(Then.AlbumName, Now.AlbumName);
        CompareSlides(Then, Now);
        CompareShows(Then, Now);
    }
    void CompareSlides(const clsNEBAlbum& Then, const clsNEBAlbum& Now) {
        const ByNumber<clsNEBSlide> InThen(Then.Slides, &clsNEBSlide::SlideID);
        const ByNumber<clsNEBSlide> InNow(Now.Slides, &clsNEBSlide::SlideID);
        for (const auto& Slide : Then.Slides) {
            const clsNEBSlide* const Other = InNow.Find(*Slide);
            mFound.SlidesThen += !Other;
            mFound.CaptionsChanged += Other && Other->SlideText != Slide->SlideText;
            mFound.SlidesChanged += Other && !IsSame(*Other, *Slide);
        }
        for (const auto& Slide : Now.Slides) mFound.SlidesNow += !InThen.Find(*Slide);
    }
    void CompareShows(const clsNEBAlbum& Then, const clsNEBAlbum& Now) {
        const ByNumber<clsNEBSlideShow> InThen(Then.SlideShows, &clsNEBSlideShow::SlideShowID);
        const ByNumber<clsNEBSlideShow> InNow(Now.SlideShows, &clsNEBSlideShow::SlideShowID);
        for (const auto& Show : Then.SlideShows) {
            const clsNEBSlideShow* const Other = InNow.Find(*Show);
            if (!Other) mFound.ShowsThen << NameOf(*Show, Then);
            mFound.ShowsChanged += Other && !IsSame(*Other, *Show);
        }
        for (const auto& Show : Now.SlideShows)
            if (!InThen.Find(*Show)) mFound.ShowsNow << NameOf(*Show, Now);
    }

    StateDifferences mFound;
};

// Nothing for none of them.
QStringList Sentence(int Count, const char* OfOne, const char* OfMany) {
    if (Count == 0) return {};
    return {Count == 1 ? tr(OfOne) : tr(OfMany).arg(Count)};
}

QStringList Sentence(const char* Words, const QStringList& Names) {
    if (Names.isEmpty()) return {};
    return {tr(Words) + Names.join(QStringLiteral(", ")) + u'.'};
}

// The files of one folder that records name and that are not there. Names differ in case freely.
class FolderOfFiles {
  public:
    FolderOfFiles(const QString& Path, QStringList& Missing) : mPath(Path), mMissing(Missing) {
        for (const DirEntry& Entry : ListDir(Path))
            if (!Entry.IsFolder) mThere.insert(Entry.Name.toUpper());
    }
    // As a record has it: a name in this folder, or a full path outside; blank is none.
    void Expect(const QString& Loc) {
        const QString Name = Loc.trimmed();
        if (Name.isEmpty() || !mAsked.insert(Name.toUpper()).second) return;
        if (HoldsSeparator(Name) ? FileExists(Name) : mThere.contains(Name.toUpper())) return;
        mMissing << (HoldsSeparator(Name) ? Name : mPath + Name);
    }

  private:
    QString mPath;
    QStringList& mMissing;
    std::set<QString> mThere, mAsked;
};

}  // namespace

bool StateDifferences::AreNone() const {
    return AlbumsThen.isEmpty() && AlbumsNow.isEmpty() && AlbumsRenamed.isEmpty() &&
           ShowsThen.isEmpty() && ShowsNow.isEmpty() && ShowsChanged == 0 && SlidesThen == 0 &&
           SlidesNow == 0 && CaptionsChanged == 0 && SlidesChanged == 0;
}

QStringList StateDifferences::Sentences() const {
    if (AreNone()) return {tr("No album, slide or slide show differs.")};
    return Sentence(QT_TR_NOOP("Albums that come back: "), AlbumsThen) +
           Sentence(QT_TR_NOOP("Slide shows that come back: "), ShowsThen) +
           Sentence(SlidesThen, QT_TR_NOOP("1 slide comes back."),
                    QT_TR_NOOP("%1 slides come back.")) +
           Sentence(QT_TR_NOOP("Albums that go: "), AlbumsNow) +
           Sentence(QT_TR_NOOP("Slide shows that go: "), ShowsNow) +
           Sentence(SlidesNow, QT_TR_NOOP("1 slide goes."), QT_TR_NOOP("%1 slides go.")) +
           Sentence(QT_TR_NOOP("Albums that get their earlier names: "), AlbumsRenamed) +
           Sentence(CaptionsChanged, QT_TR_NOOP("1 caption changes back."),
                    QT_TR_NOOP("%1 captions change back.")) +
           Sentence(SlidesChanged, QT_TR_NOOP("1 slide gets its earlier picture or sound."),
                    QT_TR_NOOP("%1 slides get their earlier pictures or sounds.")) +
           Sentence(ShowsChanged, QT_TR_NOOP("1 slide show changes back."),
                    QT_TR_NOOP("%1 slide shows change back."));
}

StateDifferences Compare(const clsDBEngine& Then, const clsDBEngine& Now) {
    return Comparison().Run(Then, Now);
}

QStringList MissingFiles(const clsDBEngine& Records) {
    QStringList Missing;
    for (const auto& Album : Records.Albums) {
        FolderOfFiles Slides(SlidesFolder(Records.DBPath(), Album->AlbumID), Missing);
        for (const auto& Slide : Album->Slides) {
            Slides.Expect(Slide->SlideLoc);
            Slides.Expect(Slide->SoundTrackLoc);
        }
        FolderOfFiles Sounds(SoundTracksFolder(Records.DBPath(), Album->AlbumID), Missing);
        for (const auto& Show : Album->SlideShows)
            for (const auto& Track : Show->SoundTracks) Sounds.Expect(Track->SoundTrackLoc);
    }
    return Missing;
}

}  // namespace neb
