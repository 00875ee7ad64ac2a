// What can happen to a record file beside the program, for tables of tests: each kind of damage to
// each of the eight files of a database in which every one of them has records.
#pragma once

#include <unistd.h>

#include <sys/stat.h>

#include "db/Fixtures.h"
#include "harness/FilledDatabase.h"

namespace neb::harness {

enum class Damage { Missing, Empty, Cut, CutAtARecord, Flipped, Folder, Unreadable };
inline constexpr Damage AllDamage[] = {Damage::Missing,      Damage::Empty,   Damage::Cut,
                                       Damage::CutAtARecord, Damage::Flipped, Damage::Folder,
                                       Damage::Unreadable};

inline std::string NameOf(RecordFile File, Damage Kind) {
    static constexpr const char* Kinds[] = {"missing", "empty",    "cut",       "cut at a record",
                                            "flipped", "a folder", "unreadable"};
    return std::string(RecordFileName(File)) + ' ' + Kinds[static_cast<int>(Kind)];
}

// Two albums with slides, shows, places, sound tracks and all the files that they name; a property
// and a time of an effect. Saved twice, so that there is an earlier state.
inline void MakeWholeDatabase(const QString& Dir) {
    FilledDatabase Filled(Dir, u"mine"_s);
    Filled.AddFilledAlbum(u"Sea"_s);
    Filled.Engine.SaveProperty(u"Marker"_s.leftJustified(20), u"here"_s);
    Filled.Engine.SaveProperty(u"Second"_s.leftJustified(20), u"there"_s);
    Filled.Engine.SaveEffectStat(7, 0.25);
    Filled.Engine.SaveEffectStat(8, 0.5);
    Filled.Engine.FinalizeDB();
    Filled.AddFilledAlbum(u"Hills"_s);
    Filled.Engine.FinalizeDB();
}

// Without what the program noted of its last write: a database of an earlier version.
inline void ForgetSums(const QString& Dir) {
    DeleteFile(Dir + u"Temp/Journal/Records.sums"_s);
}

inline void Harm(const QString& Dir, RecordFile File, Damage Kind) {
    const QString Path = RecordPath(Dir, File);
    QByteArray Bytes = ReadFile(Path);
    const qsizetype Width = RecordLength(File);
    switch (Kind) {
        case Damage::Missing:
            return DeleteFile(Path);
        case Damage::Empty:
            return WriteFile(Path, {});
        case Damage::Cut:
            return WriteFile(Path, Bytes.chopped(Width / 2 - 1));
        case Damage::CutAtARecord:
            return WriteFile(Path, Bytes.chopped(Width));
        case Damage::Flipped:
            Bytes[0] = static_cast<char>(Bytes[0] ^ 0x40);
            return WriteFile(Path, Bytes);
        case Damage::Folder:
            DeleteFile(Path);
            MakeDirs(Path);
            return WriteFile(Path + u"/inside"_s, "kept");
        case Damage::Unreadable:
            EXPECT_EQ(0, chmod(qPrintable(Path), 0));
    }
}

// The bytes of all files below a directory but the lock, by their paths.
inline std::map<QString, QByteArray> BytesBelow(const QString& Dir, const QString& Below = {}) {
    std::map<QString, QByteArray> All;
    for (const DirEntry& Each : ListDir(Dir + Below)) {
        const QString Name = Below + Each.Name;
        if (Each.IsFolder)
            All.merge(BytesBelow(Dir, Name + u'/'));
        else
            All[Name] = CanReadFile(Dir + Name) ? ReadFile(Dir + Name) : "unreadable";
    }
    return All;
}

}  // namespace neb::harness
