#include "db/records/RecordSurvey.h"

#include <QtEndian>
#include <set>
#include <unordered_set>

#include "db/records/RecordCodec.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFilesAccess.h"

namespace neb {
namespace {

// The keys with which the records of albums, slides and shows begin; texts are not looked at.
struct Keys {
    std::int32_t First = 0, Second = 0;
};

class Surveyor {
  public:
    explicit Surveyor(const RecordSource& Source) : mSource(Source) {}

    RecordSurvey Run() {
        Count(RecordFile::Properties);
        Count(RecordFile::EffectStats);
        ReadCounters();
        ForEach(RecordFile::Albums, [this](Keys Row) {
            mAlbums.insert(Row.First);
            Take(mFound.Highest.AlbumID, Row.First);
        });
        ForEach(RecordFile::Slides, [this](Keys Row) {
            mFound.SlidesAlone += !mAlbums.contains(Row.Second);
            Take(mFound.Highest.SlideID, Row.First);
        });
        ForEach(RecordFile::SlideShows, [this](Keys Row) {
            const bool HasAlbum = mAlbums.contains(Row.Second);
            mFound.ShowsAlone += !HasAlbum;
            if (HasAlbum) mShows.insert({Row.First, Row.Second});
            Take(mFound.Highest.SlideShowID, Row.First);
        });
        CountAlone(RecordFile::SlideShowDetails, mFound.PlacesAlone);
        CountAlone(RecordFile::SlideShowSoundTracks, mFound.TracksAlone);
        return mFound;
    }

  private:
    // Visit gets what has no mark of deletion; a tail of more than half a record is one.
    template <class Visitor>
    void ForEach(RecordFile Which, Visitor Visit) {
        const std::optional<RecordBytes> File = mSource(Which);
        if (!File) return;
        const qint64 Width = RecordLength(Which);
        QByteArray Room((1 << 18) / Width * Width, Qt::Uninitialized);
        for (qint64 Got; (Got = File->Read(Room.data(), Room.size())) > 0;) {
            const qint64 Rows = RecordCount(Got, Width);
            if (Rows * Width > Got)
                std::fill(Room.data() + Got, Room.data() + Rows * Width, char(0));
            for (qint64 Row = 0; Row < Rows; ++Row) {
                const char* const Bytes = Room.constData() + Row * Width;
                if (Bytes[Width - 2] != 0 || Bytes[Width - 1] != 0) continue;
                ++mFound.Live[static_cast<size_t>(Which)];
                Visit(Keys{qFromLittleEndian<std::int32_t>(Bytes),
                           qFromLittleEndian<std::int32_t>(Bytes + 4)});
            }
        }
    }
    void Count(RecordFile Which) {
        ForEach(Which, [](Keys) {});
    }
    void CountAlone(RecordFile Which, qint64& Alone) {
        ForEach(Which, [&](Keys Row) { Alone += !mShows.contains({Row.First, Row.Second}); });
    }
    void ReadCounters() {
        const std::optional<RecordBytes> File = mSource(RecordFile::NextIDs);
        if (!File) return;
        const auto Row = DecodeFirst<NextIDsRecord>(*File);
        mFound.Next = {Row.NextAlbumID, Row.NextSlideID, Row.NextSlideShowID};
    }
    void Take(std::int32_t& Highest, std::int32_t Number) {
        if (Number < 1 || Number > MostNumbers)
            ++mFound.Senseless;
        else
            Highest = std::max(Highest, Number);
    }

    const RecordSource& mSource;
    RecordSurvey mFound;
    std::unordered_set<std::int32_t> mAlbums;
    std::set<std::pair<std::int32_t, std::int32_t>> mShows;  // with their albums behind
};

// A bad place of the disk may lie anywhere.
void ReadThrough(const QString& Path) {
    HostReader Reader(Path);
    QByteArray Room(1 << 18, Qt::Uninitialized);
    while (Reader.Read(Room.data(), Room.size()) > 0) continue;
}

bool IsCut(RecordFile File, qint64 Length) {
    return File == RecordFile::NextIDs ? Length != RecordLength(File)
                                       : Length % RecordLength(File) != 0;
}

}  // namespace

HighestNumbers HigherOf(const HighestNumbers& One, const HighestNumbers& Other) {
    return {std::max(One.AlbumID, Other.AlbumID), std::max(One.SlideID, Other.SlideID),
            std::max(One.SlideShowID, Other.SlideShowID)};
}

FileFound LookAtRecordFile(const QString& DBPath, RecordFile File) {
    using enum FileFound::State;
    const QString Path = RecordPath(DBPath, File);
    if (const QString Why = WhyUnseen(Path); !Why.isEmpty())
        return {Unreadable, 0, tr("The file cannot be read: %1.").arg(Why)};
    if (!NameExists(Path)) return {};
    if (FolderExists(Path)) return {NoFile, 0, tr("it is a folder")};
    const qint64 Length = FileSize(Path);
    try {
        const bool Odd = IsCut(File, Length);
        if (!Odd) ReadThrough(Path);
        return {Odd ? Cut : Whole, Length, {}};
    } catch (const Fault& Problem) {
        return {Unreadable, Length, Problem.What()};
    }
}

RecordSurvey SurveyRecords(const RecordSource& Source) {
    return Surveyor(Source).Run();
}

}  // namespace neb
