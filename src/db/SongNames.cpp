#include "db/SongNames.h"

#include <QStringList>

#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr qint64 MostBytes = 4 << 20;  // of a list: a longer one is none of the program's

// A name is one line.
QString OneLine(QString Name) {
    for (QChar& Each : Name)
        if (Each.category() == QChar::Other_Control) Each = u' ';
    return Name.trimmed();
}

}  // namespace

SongNames::SongNames(const QByteArray& List) {
    for (const QString& Line : QString::fromUtf8(List).split(u'\n')) {
        const QStringList Parts = Line.split(u'\t');
        bool IsNumber = false;
        const qint64 Bytes = Parts.value(1).toLongLong(&IsNumber);
        if (Parts.size() == 3 && IsNumber && !Parts[0].isEmpty() && !OneLine(Parts[2]).isEmpty())
            Enter({Parts[0], Bytes, OneLine(Parts[2])});
    }
}

SongNames SongNames::Of(const QString& Album) try {
    const QString Path = SongNamesPath(Album);
    return FileExists(Path) ? SongNames(ReadFileHead(Path, MostBytes)) : SongNames();
} catch (const Fault&) {
    return {};
}

QString SongNames::NameOf(const QString& File, qint64 Bytes) const {
    const auto Its = mSongs.find(File.toCaseFolded());
    return Its == mSongs.end() || Its->second.Bytes != Bytes ? QString() : Its->second.Name;
}

QString SongNames::NameOfMissing(const QString& File) const {
    const auto Its = mSongs.find(File.toCaseFolded());
    return Its == mSongs.end() ? QString() : Its->second.Name;
}

void SongNames::Enter(const NamedSong& Song) {
    mSongs.insert_or_assign(Song.File.toCaseFolded(),
                            NamedSong{Song.File, Song.Bytes, OneLine(Song.Name)});
}

void SongNames::KeepOnly(const std::function<bool(const QString& File)>& IsThere) {
    std::erase_if(mSongs, [&](const auto& Each) { return !IsThere(Each.second.File); });
}

QByteArray SongNames::List() const {
    QString Text;
    for (const auto& [Key, Each] : mSongs)
        Text += Each.File + u'\t' + QString::number(Each.Bytes) + u'\t' + Each.Name + u'\n';
    return Text.toUtf8();
}

QString SongNamesPath(const QString& Album) {
    return Album + QLatin1String(SongNamesFile);
}

void KeepSongNames(const QString& Album, const std::vector<NamedSong>& Came) try {
    if (Came.empty()) return;
    SongNames Songs = SongNames::Of(Album);
    const qint64 There = FileSize(SongNamesPath(Album));
    if (There > MostBytes || (There > 0 && Songs.IsEmpty())) return;  // somebody else's file
    for (const NamedSong& Each : Came) Songs.Enter(Each);
    Songs.KeepOnly([&](const QString& File) {
        return FileExists(Album + QStringLiteral("SoundTracks/") + File);
    });
    ReplaceFile(SongNamesPath(Album), Songs.List());
} catch (const Fault&) {
    return;
}

}  // namespace neb
