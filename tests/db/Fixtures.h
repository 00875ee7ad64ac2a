// What the tests of the album store share: bytes from hex, record files in a directory, a small
// database with one of everything, and the whole content of an engine as text to compare.
#pragma once

#include <map>
#include <sstream>

#include "db/clsDBEngine.h"
#include "db/records/modJournal.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb::harness {

using namespace Qt::StringLiterals;

inline QByteArray Hex(const char* Digits) {
    return QByteArray::fromHex(Digits);
}
inline QByteArray Blanks(qsizetype Count) {
    return QByteArray(Count, ' ');
}

inline QByteArray FileBytes(const QString& Dir, const char* Name) {
    return ReadFile(Dir + QLatin1String(Name));
}

// All eight files of a directory by name, and Words.dat; a missing one is not in the map.
inline std::map<std::string, QByteArray> AllRecords(const QString& Dir) {
    std::map<std::string, QByteArray> Files;
    for (const RecordFile File : AllRecordFiles)
        if (FileExists(Dir + QLatin1String(RecordFileName(File))))
            Files[RecordFileName(File)] = FileBytes(Dir, RecordFileName(File));
    if (FileExists(Dir + u"Words.dat"_s)) Files["Words.dat"] = FileBytes(Dir, "Words.dat");
    return Files;
}

// Record files held in memory.
inline RecordSource InMemory(std::map<RecordFile, QByteArray> Files) {
    return [Files = std::move(Files)](RecordFile File) -> std::optional<RecordBytes> {
        const auto Found = Files.find(File);
        if (Found == Files.end()) return std::nullopt;
        return Found->second;
    };
}

// One of everything, twice over, with texts that tell Marker; nothing is written.
inline void FillDatabase(clsDBEngine& Engine, const QString& Marker) {
    for (const char* Name : {" one", " two"}) {
        std::int32_t AlbumID = 0, SlideID = 0, ShowID = 0;
        Engine.SaveAlbum(AlbumID, Marker + QLatin1String(Name));
        clsNEBAlbum* Album = Engine.GetAlbum(AlbumID);
        Album->SaveSlide(SlideID, Marker + u" caption"_s, u"00000001.JPG"_s, {}, true, false,
                         Engine);
        Album->SaveSlideShow(ShowID, Marker + u" show"_s, 1, Engine);
        Engine.SaveSlideShowDetail(ShowID, AlbumID, SlideID, 1, Marker);
        Engine.SaveSlideShowSoundTrack(ShowID, AlbumID, 1, u"00000001_1.mp3"_s, 1, 3, true, false,
                                       true);
    }
    Engine.SaveProperty(u"Marker"_s.leftJustified(20), Marker);
    Engine.SaveEffectStat(7, 0.25);
}

inline std::unique_ptr<clsDBEngine> OpenEngine(const QString& Dir,
                                               Recovery How = Recovery::CarryOut) {
    auto Engine = std::make_unique<clsDBEngine>();
    Engine->SetDBPath(Dir);
    Engine->InitializeDB(How);
    return Engine;
}

}  // namespace neb::harness
