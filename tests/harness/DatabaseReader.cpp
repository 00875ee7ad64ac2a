#include "harness/DatabaseReader.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace neb::harness {
namespace {

QByteArray BytesOf(const QString& Path) {
    QFile File(Path);
    return File.open(QIODevice::ReadOnly) ? File.readAll() : QByteArray();
}

// The places of a record, one after the other as the reader asks for them.
class Places {
  public:
    Places(const QByteArray& File, qsizetype Record, qsizetype Length)
        : mBytes(File.mid(Record * Length, Length)) {}

    std::uint8_t Byte(qsizetype At) const {
        return At < mBytes.size() ? static_cast<std::uint8_t>(mBytes[At]) : 0;
    }
    std::int32_t Number(qsizetype At) const {
        std::uint32_t Value = 0;
        for (int I = 3; I >= 0; --I) Value = Value << 8 | Byte(At + I);
        return static_cast<std::int32_t>(Value);
    }
    std::int16_t Narrow(qsizetype At) const {
        return static_cast<std::int16_t>(Byte(At) | Byte(At + 1) << 8);
    }
    QByteArray Text(qsizetype At, qsizetype Width) const { return mBytes.mid(At, Width); }

  private:
    QByteArray mBytes;
};

AlbumRow Read(const Places& At, AlbumRow) {
    return {At.Number(0), At.Text(4, 80), At.Narrow(84)};
}
SlideRow Read(const Places& At, SlideRow) {
    return {At.Number(0),      At.Number(4),   At.Text(8, 80), At.Text(88, 255),
            At.Text(343, 255), At.Narrow(598), At.Narrow(600), At.Narrow(602)};
}
ShowRow Read(const Places& At, ShowRow) {
    return {At.Number(0), At.Number(4), At.Text(8, 80), At.Narrow(88), At.Narrow(90)};
}
DetailRow Read(const Places& At, DetailRow) {
    return {At.Number(0),  At.Number(4),    At.Number(8),
            At.Number(12), At.Text(16, 80), At.Narrow(96)};
}
TrackRow Read(const Places& At, TrackRow) {
    return {At.Number(0),   At.Number(4),   At.Number(8),   At.Text(12, 255), At.Number(267),
            At.Number(271), At.Narrow(275), At.Narrow(277), At.Narrow(279),   At.Narrow(281)};
}

template <class Row>
void ReadRows(DatabaseState& Into, const char* Name, qsizetype Length, std::vector<Row>& Rows) {
    const QByteArray File = BytesOf(Into.Dir + QLatin1String(Name));
    if (File.size() % Length != 0)
        Into.Irregular.push_back(QLatin1String(Name) + QStringLiteral(" is cut short"));
    for (qsizetype I = 0; I < File.size() / Length; ++I) {
        Rows.push_back(Read(Places(File, I, Length), Row()));
        if (Rows.back().Deleted == 0) continue;
        Rows.pop_back();
        Into.Irregular.push_back(QLatin1String(Name) + QStringLiteral(" holds a deleted record"));
    }
}

void ReadCounters(DatabaseState& Into) {
    const QByteArray File = BytesOf(Into.Dir + QStringLiteral("NextIDs.dat"));
    if (File.isEmpty()) return;
    const Places At(File, 0, 12);
    Into.NextAlbumID = At.Number(0);
    Into.NextSlideID = At.Number(4);
    Into.NextSlideShowID = At.Number(8);
    if (File.size() != 12) Into.Irregular.push_back(QStringLiteral("NextIDs.dat is no 12 bytes"));
}

bool IsRecordFile(const QString& Path) {
    return !Path.contains(u'/') && Path.endsWith(QStringLiteral(".dat"));
}

void ReadFiles(DatabaseState& Into) {
    QDirIterator Walk(Into.Dir, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                      QDirIterator::Subdirectories);
    while (Walk.hasNext()) {
        const QString Path = QDir(Into.Dir).relativeFilePath(Walk.next());
        // earlier states, kept whenever the records are replaced
        if (Path == QStringLiteral("Backups") || Path.startsWith(QStringLiteral("Backups/")))
            continue;
        const bool IsTemp =
            Path == QStringLiteral("Temp") || Path.startsWith(QStringLiteral("Temp/"));
        if (Walk.fileInfo().isDir() && !Walk.fileInfo().isSymLink()) {
            if (!IsTemp) Into.Folders.insert(Path);
        } else if (Path == QStringLiteral("Temp/Journal/Records.sums")) {
            continue;  // what the last write has left there, of itself
        } else if (IsTemp) {
            Into.Temp.insert(Path);
        } else if (Path.startsWith(QStringLiteral("Albums/")) && Path.count(u'/') == 2 &&
                   Path.endsWith(QStringLiteral("/Sums.sha256"))) {
            Into.Sums[Path.section(u'/', 0, 1) + u'/'] = BytesOf(Into.Dir + Path);
        } else if (Path.startsWith(QStringLiteral("Albums/")) && Path.count(u'/') == 2 &&
                   Path.endsWith(QStringLiteral("/Songs.txt"))) {
            continue;  // what the songs were called, which nobody depends on
        } else if (!IsRecordFile(Path) && Path != QStringLiteral("InUse.lock")) {
            Into.Files[Path] = BytesOf(Into.Dir + Path);
        }
    }
}

// Every file of an album that has a list stands in it with its check sum, and nothing else does.
void CheckSumsOf(DatabaseState& Into, const QString& Album, const QByteArray& List) {
    std::map<QString, QByteArray> Listed;
    for (const QByteArray& Line : List.split('\n'))
        if (!Line.isEmpty() && !Line.startsWith('#'))
            if (!Listed.emplace(QString::fromUtf8(Line.mid(66)), Line.left(64)).second)
                Into.Irregular.push_back(Album +
                                         QStringLiteral("Sums.sha256 has two lines of one"));
    for (const auto& [Path, Content] : Into.Files) {
        if (!Path.startsWith(Album) || Path.count(u'/') != 3) continue;
        const auto Line = Listed.find(Path.mid(Album.size()));
        if (Line == Listed.end() ||
            Line->second != QCryptographicHash::hash(Content, QCryptographicHash::Sha256).toHex())
            Into.Irregular.push_back(QStringLiteral("no right check sum of ") + Path);
        if (Line != Listed.end()) Listed.erase(Line);
    }
    for (const auto& [Path, Sum] : Listed)
        Into.Irregular.push_back(QStringLiteral("a check sum of no file: ") + Album + Path);
}

}  // namespace

DatabaseState ReadDatabase(const QString& Dir) {
    DatabaseState Found;
    Found.Dir = Dir;
    ReadCounters(Found);
    ReadRows(Found, "Albums.dat", 86, Found.Albums);
    ReadRows(Found, "Slides.dat", 604, Found.Slides);
    ReadRows(Found, "SlideShows.dat", 92, Found.Shows);
    ReadRows(Found, "SlideShowDetails.dat", 98, Found.Details);
    ReadRows(Found, "SlideShowSoundTracks.dat", 283, Found.Tracks);
    Found.Properties = BytesOf(Dir + QStringLiteral("Properties.dat"));
    Found.EffectStats = BytesOf(Dir + QStringLiteral("EffectStats.dat"));
    ReadFiles(Found);
    for (const auto& [Album, List] : Found.Sums) CheckSumsOf(Found, Album, List);
    return Found;
}

QByteArray FieldText(const QByteArray& Field) {
    const qsizetype End = Field.indexOf('\0');
    return End < 0 ? Field : Field.left(End);
}

QByteArray TextField(const QByteArray& Value, int Width) {
    return Value.size() >= Width ? Value.left(Width) : (Value + '\0').leftJustified(Width, ' ');
}

}  // namespace neb::harness
