#include "tools/modCheckRecords.h"

#include <set>

#include "db/records/WholeWords.h"

namespace neb {
namespace {

using Key = std::array<std::int32_t, 3>;

class RecordChecker {
  public:
    RecordChecker(const RecordSource& Source, Findings& Found) : mSource(Source), mFound(Found) {}
    void Run();

  private:
    template <class Record>
    void CheckFile();
    void Look(const PropertyRecord& Row);
    void Look(const EffectStatRecord& Row);
    void Look(const AlbumRecord& Row);
    void Look(const SlideRecord& Row);
    void Look(const SlideShowRecord& Row);
    void Look(const SlideShowDetailRecord& Row);
    void Look(const SlideShowSoundTrackRecord& Row);
    void CheckLength(RecordFile File);
    void CheckCounters();
    void CheckCounter(const char* Name, std::int32_t Next, std::int32_t Highest);
    void CheckKey(const Key& TheKey, const QString& What);
    // False after a finding: the record has no owner and will be dropped.
    bool CheckAlbum(std::int32_t AlbumID, const QString& What);
    bool CheckShow(std::int32_t AlbumID, std::int32_t SlideShowID, const QString& What);
    void Add(const QString& Text) { mFound.Add(mWhere + Text); }

    const RecordSource& mSource;
    Findings& mFound;
    QString mWhere;       // the record at hand
    std::set<Key> mKeys;  // of the file at hand
    std::set<QString> mNames;
    std::set<std::int32_t> mAlbums;
    std::set<std::pair<std::int32_t, std::int32_t>> mShows, mSlides;  // with their albums in front
    std::int32_t mHighestAlbum = 0, mHighestSlide = 0, mHighestShow = 0;
};

void RecordChecker::Run() {
    for (const RecordFile File : AllRecordFiles) CheckLength(File);
    CheckFile<PropertyRecord>();
    CheckFile<EffectStatRecord>();
    CheckFile<AlbumRecord>();
    CheckFile<SlideRecord>();
    CheckFile<SlideShowRecord>();
    CheckFile<SlideShowDetailRecord>();
    CheckFile<SlideShowSoundTrackRecord>();
    CheckCounters();
}

template <class Record>
void RecordChecker::CheckFile() {
    const std::optional<RecordBytes> File = mSource(LayoutOf<Record>::File);
    if (!File) return;
    const QString Name = QLatin1String(RecordFileName(LayoutOf<Record>::File));
    mKeys.clear();
    qint64 Number = 0;
    ForEachRecordAtAll<Record>(*File, [&](Record&& Row) {
        mWhere = QStringLiteral("%1, record %2: ").arg(Name).arg(++Number);
        if (Row.Deleted == 0) Look(Row);
    });
}

void RecordChecker::CheckLength(RecordFile File) {
    const std::optional<RecordBytes> Bytes = mSource(File);
    mWhere = QLatin1String(RecordFileName(File)) + QStringLiteral(": ");
    if (!Bytes) return Add(QStringLiteral("the file is missing"));
    const qint64 Length = RecordLength(File);
    if (File == RecordFile::NextIDs ? Bytes->Length != Length : Bytes->Length % Length != 0)
        Add(QStringLiteral("%1 bytes are no whole number of records of %2 bytes")
                .arg(Bytes->Length)
                .arg(Length));
}

void RecordChecker::CheckKey(const Key& TheKey, const QString& What) {
    if (!mKeys.insert(TheKey).second) Add(What + QStringLiteral(" stands twice"));
}

bool RecordChecker::CheckAlbum(std::int32_t AlbumID, const QString& What) {
    if (mAlbums.contains(AlbumID)) return true;
    Add(QStringLiteral("%1 belongs to album %2, which is not there; it will be dropped")
            .arg(What)
            .arg(AlbumID));
    return false;
}

bool RecordChecker::CheckShow(std::int32_t AlbumID, std::int32_t SlideShowID, const QString& What) {
    if (mShows.contains({AlbumID, SlideShowID})) return true;
    Add(QStringLiteral("%1 belongs to show %2 of album %3, which is not there; it will be dropped")
            .arg(What)
            .arg(SlideShowID)
            .arg(AlbumID));
    return false;
}

void RecordChecker::Look(const PropertyRecord& Row) {
    if (!mNames.insert(Row.PropertyName).second)
        Add(QStringLiteral("property \"%1\" stands twice").arg(Row.PropertyName.trimmed()));
}

void RecordChecker::Look(const EffectStatRecord& Row) {
    CheckKey({Row.Effect}, QStringLiteral("effect %1").arg(Row.Effect));
}

void RecordChecker::Look(const AlbumRecord& Row) {
    CheckKey({Row.AlbumID}, QStringLiteral("album %1").arg(Row.AlbumID));
    mAlbums.insert(Row.AlbumID);
    mHighestAlbum = std::max(mHighestAlbum, Row.AlbumID);
}

void RecordChecker::Look(const SlideRecord& Row) {
    const QString What = QStringLiteral("slide %1").arg(Row.SlideID);
    CheckKey({Row.SlideID}, What);
    if (CheckAlbum(Row.AlbumID, What)) mSlides.insert({Row.AlbumID, Row.SlideID});
    mHighestSlide = std::max(mHighestSlide, Row.SlideID);
}

void RecordChecker::Look(const SlideShowRecord& Row) {
    const QString What = QStringLiteral("show %1").arg(Row.SlideShowID);
    CheckKey({Row.SlideShowID}, What);
    if (CheckAlbum(Row.AlbumID, What)) mShows.insert({Row.AlbumID, Row.SlideShowID});
    mHighestShow = std::max(mHighestShow, Row.SlideShowID);
}

void RecordChecker::Look(const SlideShowDetailRecord& Row) {
    const QString What = QStringLiteral("place %1").arg(Row.SlideSeq);
    if (!CheckShow(Row.AlbumID, Row.SlideShowID, What)) return;
    const QString Full = What + QStringLiteral(" of show %1").arg(Row.SlideShowID);
    CheckKey({Row.AlbumID, Row.SlideShowID, Row.SlideSeq}, Full);
    if (!mSlides.contains({Row.AlbumID, Row.SlideID}))
        Add(QStringLiteral("%1 shows slide %2, which is not in album %3")
                .arg(Full)
                .arg(Row.SlideID)
                .arg(Row.AlbumID));
}

void RecordChecker::Look(const SlideShowSoundTrackRecord& Row) {
    const QString What = QStringLiteral("sound track %1").arg(Row.SoundTrackSeq);
    if (CheckShow(Row.AlbumID, Row.SlideShowID, What))
        CheckKey({Row.AlbumID, Row.SlideShowID, Row.SoundTrackSeq},
                 What + QStringLiteral(" of show %1").arg(Row.SlideShowID));
}

void RecordChecker::CheckCounters() {
    const std::optional<RecordBytes> File = mSource(RecordFile::NextIDs);
    if (!File) return;
    mWhere = QStringLiteral("NextIDs.dat: ");
    const auto Row = DecodeFirst<NextIDsRecord>(*File);
    CheckCounter("NextAlbumID", Row.NextAlbumID, mHighestAlbum);
    CheckCounter("NextSlideID", Row.NextSlideID, mHighestSlide);
    CheckCounter("NextSlideShowID", Row.NextSlideShowID, mHighestShow);
}

void RecordChecker::CheckCounter(const char* Name, std::int32_t Next, std::int32_t Highest) {
    if (Next <= Highest)
        Add(QStringLiteral("%1 is %2, but %3 is taken already")
                .arg(QLatin1String(Name))
                .arg(Next)
                .arg(Highest));
}

template <class Record>
void Match(const RecordSource& Source, WholeWords& Words) {
    if (const std::optional<RecordBytes> File = Source(LayoutOf<Record>::File))
        ForEachRecord<Record>(*File, [&](Record&& Row) { Words.Complete(Row); });
}

QString OwnerOf(const WholeText& Each) {
    const auto Number = [&](size_t Which) { return QString::number(Each.Key[Which]); };
    switch (Each.File) {
        case RecordFile::Albums:
            return QStringLiteral("album ") + Number(0);
        case RecordFile::Slides:
            return QStringLiteral("slide ") + Number(0);
        case RecordFile::SlideShows:
            return QStringLiteral("show ") + Number(0);
        case RecordFile::SlideShowDetails:
            return QStringLiteral("place %1 of show %2").arg(Number(3), Number(0));
        default:
            return QStringLiteral("sound track %1 of show %2").arg(Number(2), Number(0));
    }
}

// The texts kept whole beside the records.
void CheckWords(const RecordSource& Source, Findings& Found) {
    const QString Where = QLatin1String(RecordFileName(RecordFile::Words)) + QStringLiteral(": ");
    WordsFound Is = WordsOf(Source);
    if (Is.Is == WordsFound::State::Damaged)
        Found.Add(Where + QStringLiteral("the file is damaged; texts are shown as their records "
                                         "have them"));
    if (Is.Is == WordsFound::State::Later)
        Found.Add(Where + QStringLiteral("the file was written by a later version of the program; "
                                         "texts are shown as their records have them"));
    WholeWords Words(std::move(Is.Texts));
    Match<AlbumRecord>(Source, Words);
    Match<SlideRecord>(Source, Words);
    Match<SlideShowRecord>(Source, Words);
    Match<SlideShowDetailRecord>(Source, Words);
    Match<SlideShowSoundTrackRecord>(Source, Words);
    for (const WholeText& Each : Words.Left())
        Found.Add(Where + QStringLiteral("\"%1\" does not go with the record of %2 any more, whose "
                                         "own text counts")
                              .arg(Each.Text, OwnerOf(Each)));
}

}  // namespace

void CheckRecords(const RecordSource& Source, Findings& Found) {
    RecordChecker(Source, Found).Run();
    CheckWords(Source, Found);
}

}  // namespace neb
