// What two databases have other than each other, in words.
#include <QStringList>
#include <algorithm>

#include "harness/TransferChecker.h"

namespace neb::harness {

using namespace Qt::StringLiterals;

namespace {

QString Text(const QByteArray& Field) {
    return QString::fromLatin1(FieldText(Field));
}
QString Numbers(std::initializer_list<std::int32_t> All) {
    QStringList Words;
    for (const std::int32_t Each : All) Words << QString::number(Each);
    return Words.join(u' ');
}

QString Words(const AlbumRow& Row) {
    return QStringLiteral("album %1 [%2]").arg(Row.AlbumID).arg(Text(Row.AlbumName));
}
QString Words(const SlideRow& Row) {
    return u"slide "_s + Numbers({Row.SlideID, Row.AlbumID, Row.Override, Row.Repeat}) + u" ["_s +
           Text(Row.SlideText) + u"] "_s + Text(Row.SlideLoc) + u' ' + Text(Row.SoundTrackLoc);
}
QString Words(const ShowRow& Row) {
    return u"show "_s + Numbers({Row.SlideShowID, Row.AlbumID, Row.ProgressionMethod}) + u" ["_s +
           Text(Row.SlideShowName) + u']';
}
QString Words(const DetailRow& Row) {
    return u"detail "_s + Numbers({Row.SlideShowID, Row.AlbumID, Row.SlideID, Row.SlideSeq}) +
           u" ["_s + Text(Row.SlideText) + u']';
}
QString Words(const TrackRow& Row) {
    return u"track "_s +
           Numbers({Row.SlideShowID, Row.AlbumID, Row.SoundTrackSeq, Row.SlideSeqStart,
                    Row.SlideSeqEnd, Row.Repeat, Row.FitToSong, Row.Fade}) +
           u' ' + Text(Row.SoundTrackLoc);
}

template <class Row>
void CompareRows(QStringList& All, const std::vector<Row>& Wanted, const std::vector<Row>& Found) {
    if (Wanted == Found) return;
    const qsizetype Before = All.size();
    std::vector<bool> Used(Found.size(), false);
    for (const Row& Each : Wanted) {
        size_t I = 0;
        while (I < Found.size() && (Used[I] || !(Found[I] == Each))) ++I;
        if (I < Found.size())
            Used[I] = true;
        else
            All << u"not there: "_s + Words(Each);
    }
    for (size_t I = 0; I < Found.size(); ++I)
        if (!Used[I]) All << u"too many: "_s + Words(Found[I]);
    if (All.size() == Before) All << u"not in this order: "_s + Words(Wanted[0]) + u" ..."_s;
}

template <class Value>
void CompareValue(QStringList& All, const char* Name, const Value& Wanted, const Value& Found) {
    if (!(Wanted == Found)) All << QLatin1String(Name) + QStringLiteral(" differs");
}
void CompareCounter(QStringList& All, const char* Name, std::int32_t Wanted, std::int32_t Found) {
    if (Wanted != Found)
        All << QStringLiteral("%1 is %2 in place of %3")
                   .arg(QLatin1String(Name))
                   .arg(Found)
                   .arg(Wanted);
}

// By names that are alike whatever their case; two of which cannot lie beside each other.
std::map<QString, QByteArray> InUpperCase(QStringList& All,
                                          const std::map<QString, QByteArray>& Files) {
    std::map<QString, QByteArray> Upper;
    for (const auto& [Path, Content] : Files)
        if (!Upper.emplace(Path.toUpper(), Content).second)
            All << u"two names that differ in case alone: "_s + Path;
    return Upper;
}
void CompareFiles(QStringList& All, const DatabaseState& Wanted, const DatabaseState& Found) {
    const auto Should = InUpperCase(All, Wanted.Files), Is = InUpperCase(All, Found.Files);
    for (const auto& [Path, Content] : Should) {
        const auto There = Is.find(Path);
        if (There == Is.end()) All << u"no file "_s + Path;
        if (There != Is.end() && There->second != Content) All << u"other content in "_s + Path;
    }
    for (const auto& [Path, Content] : Is)
        if (!Should.contains(Path)) All << u"stray file "_s + Path;
}

void CompareFolders(QStringList& All, const DatabaseState& Wanted, const DatabaseState& Found) {
    for (const QString& Each : Wanted.Folders)
        if (!Found.Folders.contains(Each)) All << u"no folder "_s + Each;
    for (const QString& Each : Found.Folders)
        if (!Wanted.Folders.contains(Each)) All << u"stray folder "_s + Each;
    for (const QString& Each : Found.Temp) All << u"left behind: "_s + Each;
}

}  // namespace

std::string DifferencesFrom(const DatabaseState& Wanted, const DatabaseState& Found) {
    QStringList All;
    CompareCounter(All, "NextAlbumID", Wanted.NextAlbumID, Found.NextAlbumID);
    CompareCounter(All, "NextSlideID", Wanted.NextSlideID, Found.NextSlideID);
    CompareCounter(All, "NextSlideShowID", Wanted.NextSlideShowID, Found.NextSlideShowID);
    CompareRows(All, Wanted.Albums, Found.Albums);
    CompareRows(All, Wanted.Slides, Found.Slides);
    CompareRows(All, Wanted.Shows, Found.Shows);
    CompareRows(All, Wanted.Details, Found.Details);
    CompareRows(All, Wanted.Tracks, Found.Tracks);
    CompareValue(All, "Properties.dat", Wanted.Properties, Found.Properties);
    CompareValue(All, "EffectStats.dat", Wanted.EffectStats, Found.EffectStats);
    CompareFiles(All, Wanted, Found);
    CompareFolders(All, Wanted, Found);
    for (const QString& Each : Wanted.Irregular) All << u"the source before: "_s + Each;
    for (const QString& Each : Found.Irregular)
        if (std::count(Wanted.Irregular.begin(), Wanted.Irregular.end(), Each) == 0) All << Each;
    return All.join(u'\n').toStdString();
}

}  // namespace neb::harness
