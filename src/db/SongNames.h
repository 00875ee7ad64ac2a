// What the sound tracks of an album were called when they were chosen. In the album they bear
// numbers, as records name them, so their own names stand in a list beside: Songs.txt in the
// album's folder, a line a track with its file, its length in bytes and its name. Whoever does not
// know the list loses nothing by it. Written when a show is saved or comes in by a transfer; read
// by the slide show manager.
//
// Album is an album's folder, with closing separator. May be called on any thread.
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <map>
#include <vector>

namespace neb {

inline constexpr char SongNamesFile[] = "Songs.txt";

struct NamedSong {
    QString File;  // in the album's folder of tracks
    qint64 Bytes = 0;
    QString Name;
    bool operator==(const NamedSong&) const = default;
};

class SongNames {
  public:
    SongNames() = default;
    explicit SongNames(const QByteArray& List);  // what cannot be understood is passed over
    // Empty where there is no list, or none that can be read.
    static SongNames Of(const QString& Album);

    // Empty for a file that has none, or another length than it had: it is another song.
    QString NameOf(const QString& File, qint64 Bytes) const;
    QString NameOfMissing(const QString& File) const;  // whatever its length was
    // In place of the name of a file in which only the case differs.
    void Enter(const NamedSong& Song);
    void KeepOnly(const std::function<bool(const QString& File)>& IsThere);
    bool IsEmpty() const { return mSongs.empty(); }
    QByteArray List() const;

  private:
    std::map<QString, NamedSong> mSongs;  // by the file, in small letters
};

QString SongNamesPath(const QString& Album);
// Enters these into the album's list, from which goes what is no longer there. What fails changes
// nothing: a name is not worth a box. A file of the list's name that is none stays as it is.
void KeepSongNames(const QString& Album, const std::vector<NamedSong>& Came);

}  // namespace neb
