#include "harness/TransferChecker.h"

#include <QFile>
#include <algorithm>
#include <optional>

namespace neb::harness {

using namespace Qt::StringLiterals;

namespace {

// Opening quotes at the start, behind a blank or a line feed; closing ones elsewhere. One byte a
// character, as records hold it.
QByteArray NameBytes(const QString& Name) {
    QByteArray Bytes = Name.toLatin1();
    for (qsizetype I = 0; I < Name.size(); ++I) {
        const bool Opens = I == 0 || Name[I - 1] == u' ' || Name[I - 1] == u'\n';
        if (Name[I] == u'\'') Bytes[I] = Opens ? '\x91' : '\x92';
        if (Name[I] == u'"') Bytes[I] = Opens ? '\x93' : '\x94';
    }
    return Bytes;
}

QString Stem(std::int32_t ID) {
    return QString::number(ID).rightJustified(8, u'0');
}

// From the last dot of the name on.
QString Ending(const QString& Path) {
    const QString Name = Path.mid(Path.lastIndexOf(u'/') + 1);
    const qsizetype Dot = Name.lastIndexOf(u'.');
    return Dot < 0 ? QString() : Name.mid(Dot);
}

QByteArray PathField(const QString& Name) {
    return TextField(Name.toLatin1(), 255);
}

QString AlbumDir(std::int32_t AlbumID) {
    return QStringLiteral("Albums/%1/").arg(AlbumID);
}

using Contents = std::map<QString, QByteArray>;

// Names are found whatever their case.
Contents InUpperCase(const Contents& Files) {
    Contents Upper;
    for (const auto& [Path, Content] : Files) Upper.emplace(Path.toUpper(), Content);
    return Upper;
}

// The destination, step by step as the rules say.
class Model {
  public:
    Model(const DatabaseState& Source, const DatabaseState& Destination, const StatedTransfer& What)
        : mSrc(Source),
          mSrcFiles(InUpperCase(Source.Files)),
          mNow(Destination),
          mWhat(What),
          mAlbumID(What.DstAlbumID) {
        mNow.Files = InUpperCase(Destination.Files);
    }

    DatabaseState Run() {
        TakeAlbum();
        if (mWhat.SrcSlideShowID == 0)
            WholeAlbum();
        else
            OneShow();
        PutInOrder();
        return mNow;
    }

  private:
    void TakeAlbum() {
        const QByteArray Name = TextField(NameBytes(mWhat.NewAlbumName), 80);
        if (mAlbumID == 0) {
            while (HoldsFiles(mNow.NextAlbumID)) ++mNow.NextAlbumID;
            mAlbumID = mNow.NextAlbumID++;
            mNow.Albums.push_back({mAlbumID, Name, 0});
            mNow.Folders.insert(QStringLiteral("Albums"));
            for (const char* Each : {"", "/Slides", "/SoundTracks"})
                mNow.Folders.insert(AlbumDir(mAlbumID).chopped(1) + QLatin1String(Each));
        }
        for (AlbumRow& Each : mNow.Albums)
            if (Each.AlbumID == mAlbumID) Each.AlbumName = Name;
        for (const auto& [Path, Content] : mNow.Files) mBefore.push_back(Path);
    }
    bool HoldsFiles(std::int32_t AlbumID) const {
        const QString Upper = AlbumDir(AlbumID).toUpper();
        const auto At = mNow.Files.lower_bound(Upper);
        return At != mNow.Files.end() && At->first.startsWith(Upper);
    }
    // The next number that no file of the album bore before; the counter goes on behind it.
    std::int32_t Draw(std::int32_t& Counter, const char* Folder) const {
        const auto IsTaken = [&](std::int32_t Number) {
            const QString Start =
                (AlbumDir(mAlbumID) + QLatin1String(Folder) + Stem(Number)).toUpper();
            return std::any_of(mBefore.begin(), mBefore.end(), [&](const QString& Path) {
                return Path.startsWith(Start) &&
                       !(Path.size() > Start.size() && Path[Start.size()].isDigit());
            });
        };
        while (IsTaken(Counter)) ++Counter;
        return Counter++;
    }

    void WholeAlbum() {
        if (mWhat.Replace) EmptyAlbum();
        for (const SlideRow& Each : mSrc.Slides)
            if (Each.AlbumID == mWhat.SrcAlbumID) CopySlide(Each);
        for (const ShowRow& Each : mSrc.Shows) {
            if (Each.AlbumID != mWhat.SrcAlbumID) continue;
            const std::int32_t ID = Draw(mNow.NextSlideShowID, "SoundTracks/");
            mNow.Shows.push_back({ID, mAlbumID, Each.SlideShowName, Each.ProgressionMethod, 0});
            FillShow(Each, ID);
        }
    }
    void EmptyAlbum() {
        const auto IsOfAlbum = [&](const auto& Row) { return Row.AlbumID == mAlbumID; };
        std::erase_if(mNow.Slides, IsOfAlbum);
        std::erase_if(mNow.Shows, IsOfAlbum);
        std::erase_if(mNow.Details, IsOfAlbum);
        std::erase_if(mNow.Tracks, IsOfAlbum);
        for (const char* Folder : {"Slides/", "SoundTracks/"})
            Drop(AlbumDir(mAlbumID) + QLatin1String(Folder));
    }
    // The files, not the folders, whose paths begin so.
    void Drop(const QString& Beginning) {
        const QString Upper = Beginning.toUpper();
        auto& Files = mNow.Files;
        for (auto At = Files.lower_bound(Upper); At != Files.end() && At->first.startsWith(Upper);)
            At = At->first.mid(Upper.size()).contains(u'/') ? std::next(At) : Files.erase(At);
    }

    void OneShow() {
        const ShowRow* Source = Find(mSrc.Shows, mWhat.SrcAlbumID, mWhat.SrcSlideShowID);
        if (!Source) return mNow.Irregular.push_back(QStringLiteral("there is no such show"));
        std::int32_t ID = mWhat.DstSlideShowID;
        if (ID == 0) {
            ID = Draw(mNow.NextSlideShowID, "SoundTracks/");
            mNow.Shows.push_back({ID, mAlbumID, {}, 0, 0});
        } else {
            EmptyShow(ID);
        }
        ShowRow* Row = Find(mNow.Shows, mAlbumID, ID);
        Row->SlideShowName = TextField(NameBytes(mWhat.NewSlideShowName), 80);
        Row->ProgressionMethod = Source->ProgressionMethod;
        TakeSlidesOf(*Source);
        FillShow(*Source, ID);
    }
    template <class Rows>
    static auto Find(Rows& In, std::int32_t AlbumID, std::int32_t ShowID) -> decltype(In.data()) {
        for (auto& Each : In)
            if (Each.AlbumID == AlbumID && Each.SlideShowID == ShowID) return &Each;
        return nullptr;
    }
    void EmptyShow(std::int32_t ShowID) {
        const auto IsOfShow = [&](const auto& Row) {
            return Row.AlbumID == mAlbumID && Row.SlideShowID == ShowID;
        };
        std::set<std::int32_t> Going;
        for (const DetailRow& Each : mNow.Details)
            if (IsOfShow(Each)) Going.insert(Each.SlideID);
        for (const DetailRow& Each : mNow.Details)
            if (Each.AlbumID == mAlbumID && !IsOfShow(Each)) Going.erase(Each.SlideID);
        std::vector<QString> Sounds;
        for (const TrackRow& Each : mNow.Tracks)
            if (IsOfShow(Each)) Sounds.push_back(Name(Each.SoundTrackLoc));
        std::erase_if(mNow.Details, IsOfShow);
        std::erase_if(mNow.Tracks, IsOfShow);
        std::erase_if(mNow.Slides, [&](const SlideRow& Row) {
            return Row.AlbumID == mAlbumID && Going.contains(Row.SlideID);
        });
        for (const std::int32_t Each : Going) Drop(AlbumDir(mAlbumID) + u"Slides/"_s + Stem(Each));
        for (const QString& Each : Sounds)
            if (!Each.contains(u'/') && !IsPlayed(Each)) mNow.Files.erase(TrackPath(Each));
    }
    QString TrackPath(const QString& File) const {
        return (AlbumDir(mAlbumID) + u"SoundTracks/"_s + File).toUpper();
    }
    // Whether a show of the album has this file.
    bool IsPlayed(const QString& File) const {
        return std::any_of(mNow.Tracks.begin(), mNow.Tracks.end(), [&](const TrackRow& Each) {
            return Each.AlbumID == mAlbumID &&
                   Name(Each.SoundTrackLoc).compare(File, Qt::CaseInsensitive) == 0;
        });
    }

    // Within one album a show shares its slides with the other.
    void TakeSlidesOf(const ShowRow& Show) {
        const bool IsWithin = mSrc.Dir == mNow.Dir && mAlbumID == mWhat.SrcAlbumID;
        for (const DetailRow& Each : mSrc.Details) {
            if (Each.AlbumID != Show.AlbumID || Each.SlideShowID != Show.SlideShowID) continue;
            if (IsWithin) mMap[Each.SlideID] = Each.SlideID;
            if (mMap.contains(Each.SlideID)) continue;
            for (const SlideRow& Slide : mSrc.Slides)
                if (Slide.AlbumID == Show.AlbumID && Slide.SlideID == Each.SlideID)
                    CopySlide(Slide);
        }
    }

    void CopySlide(const SlideRow& From) {
        SlideRow To = From;
        To.SlideID = Draw(mNow.NextSlideID, "Slides/");
        To.AlbumID = mAlbumID;
        mMap[From.SlideID] = To.SlideID;
        const QString Folder = mSrc.Dir + AlbumDir(mWhat.SrcAlbumID) + u"Slides/"_s;
        To.SlideLoc = PathField(Copy(Full(Folder, From.SlideLoc), u"Slides/"_s + Stem(To.SlideID)));
        CopyThumbnail(Full(Folder, From.SlideLoc), To);
        const QString Sound = Name(From.SoundTrackLoc).trimmed();
        To.SoundTrackLoc = PathField(Sound.isEmpty() ? QString()
                                                     : Copy(Full(Folder, From.SoundTrackLoc),
                                                            u"Slides/"_s + Stem(To.SlideID)));
        if (FieldText(To.SoundTrackLoc).isEmpty()) To.Override = To.Repeat = 0;
        mNow.Slides.push_back(To);
    }
    // Where the whole path has no dot, the picture before has said what is copied. Without a
    // picture there is none.
    void CopyThumbnail(const QString& Picture, const SlideRow& To) {
        const qsizetype Dot = Picture.lastIndexOf(u'.');
        if (Dot >= 0) mThumbnail = Picture.left(Dot) + u"Small.bmp"_s;
        if (mThumbnail.isEmpty() || FieldText(To.SlideLoc).isEmpty()) return;
        const auto Content = ContentOf(mThumbnail);
        if (Content) Put(u"Slides/"_s + Stem(To.SlideID) + u"Small.bmp"_s, *Content);
    }

    void FillShow(const ShowRow& From, std::int32_t ShowID) {
        for (DetailRow Each : mSrc.Details) {
            if (Each.AlbumID != From.AlbumID || Each.SlideShowID != From.SlideShowID) continue;
            if (!mMap.contains(Each.SlideID)) continue;
            Each.SlideID = mMap[Each.SlideID];
            Each.AlbumID = mAlbumID;
            Each.SlideShowID = ShowID;
            mNow.Details.push_back(Each);
        }
        for (const TrackRow& Each : mSrc.Tracks)
            if (Each.AlbumID == From.AlbumID && Each.SlideShowID == From.SlideShowID)
                CopyTrack(Each, ShowID);
    }
    void CopyTrack(TrackRow Track, std::int32_t ShowID) {
        const QString From =
            Full(mSrc.Dir + AlbumDir(Track.AlbumID) + u"SoundTracks/"_s, Track.SoundTrackLoc);
        const QString Ext = Ending(From);
        Track.AlbumID = mAlbumID;
        Track.SlideShowID = ShowID;
        if (Name(Track.SoundTrackLoc).trimmed().isEmpty()) {  // its record goes along all the same
            Track.SoundTrackLoc = PathField({});
            return mNow.Tracks.push_back(Track);
        }
        QString Number = QString::number(Track.SoundTrackSeq);
        for (int Free = 100; IsPlayed(Stem(ShowID) + u'_' + Number + Ext); ++Free)
            Number = QString::number(Free);
        const QString Taken = Copy(From, u"SoundTracks/"_s + Stem(ShowID) + u'_' + Number);
        Track.SoundTrackLoc = PathField(Taken);
        if (!Taken.isEmpty()) mNow.Tracks.push_back(Track);
    }

    // A full path stays one; a bare name lies in the folder. Empty for an empty field.
    static QString Name(const QByteArray& Field) {
        return QString::fromLatin1(FieldText(Field)).replace(u'\\', u'/');
    }
    static QString Full(const QString& Folder, const QByteArray& Field) {
        const QString File = Name(Field);
        return File.isEmpty() || File.contains(u'/') ? File : Folder + File;
    }
    // The name under which the file arrives; empty where there is none to copy.
    QString Copy(const QString& From, const QString& To) {
        if (From.isEmpty()) return {};
        const auto Content = ContentOf(From);
        if (Content) Put(To + Ending(From), *Content);
        if (!Content && !mWhat.WithoutMissing) mNow.Irregular.push_back(From + u" is missing"_s);
        return Content ? (To + Ending(From)).section(u'/', -1) : QString();
    }
    std::optional<QByteArray> ContentOf(const QString& Path) const {
        if (Path.startsWith(mSrc.Dir)) {
            const auto Found = mSrcFiles.find(Path.mid(mSrc.Dir.size()).toUpper());
            return Found == mSrcFiles.end() ? std::nullopt : std::optional(Found->second);
        }
        QFile Outside(Path);
        if (!Outside.open(QIODevice::ReadOnly)) return std::nullopt;
        return Outside.readAll();
    }
    void Put(const QString& InAlbum, const QByteArray& Content) {
        mNow.Files[(AlbumDir(mAlbumID) + InAlbum).toUpper()] = Content;
    }

    // Records lie album by album and show by show.
    void PutInOrder() {
        std::map<std::int32_t, size_t> Albums;
        for (const AlbumRow& Each : mNow.Albums) Albums.try_emplace(Each.AlbumID, Albums.size());
        const auto ByAlbum = [&](const auto& A, const auto& B) {
            return Albums[A.AlbumID] < Albums[B.AlbumID];
        };
        std::stable_sort(mNow.Slides.begin(), mNow.Slides.end(), ByAlbum);
        std::stable_sort(mNow.Shows.begin(), mNow.Shows.end(), ByAlbum);
        std::map<std::int32_t, size_t> Shows;
        for (const ShowRow& Each : mNow.Shows) Shows.try_emplace(Each.SlideShowID, Shows.size());
        const auto ByShow = [&](const auto& A, const auto& B) {
            return Shows[A.SlideShowID] < Shows[B.SlideShowID];
        };
        std::stable_sort(mNow.Details.begin(), mNow.Details.end(), ByShow);
        std::stable_sort(mNow.Tracks.begin(), mNow.Tracks.end(), ByShow);
    }

    const DatabaseState& mSrc;
    const Contents mSrcFiles;
    DatabaseState mNow;
    const StatedTransfer& mWhat;
    std::int32_t mAlbumID;
    std::vector<QString> mBefore;  // paths of files, upper-cased
    std::map<std::int32_t, std::int32_t> mMap;
    QString mThumbnail;
};

}  // namespace

DatabaseState Dictated(const DatabaseState& Source, const DatabaseState& Destination,
                       const StatedTransfer& What) {
    return Model(Source, Destination, What).Run();
}

std::string CheckTransfer(const DatabaseState& SourceBefore, const DatabaseState& DestinationBefore,
                          const DatabaseState& DestinationAfter, const StatedTransfer& What) {
    return DifferencesFrom(Dictated(SourceBefore, DestinationBefore, What), DestinationAfter);
}

}  // namespace neb::harness
