// One input for the readers of the record files: carved into up to eight files and a packed form,
// loaded, written to memory and loaded again. Used by the fuzz program and by a test that runs
// random inputs through the same door.
#pragma once

#include <map>

#include "db/modLoadRecords.h"

namespace neb::fuzz {

// Hands out the input from its front; when it is used up, nothing more.
class Carver {
  public:
    Carver(const char* Data, size_t Size) : mData(Data), mLeft(static_cast<qint64>(Size)) {}
    QByteArray Take(qint64 Count) {
        const qint64 Taken = std::min(Count, mLeft);
        const QByteArray Bytes(mData, Taken);
        mData += Taken;
        mLeft -= Taken;
        return Bytes;
    }
    unsigned TakeByte() {
        const QByteArray Byte = Take(1);
        return Byte.isEmpty() ? 0 : static_cast<unsigned char>(Byte[0]);
    }
    qint64 Left() const { return mLeft; }

  private:
    const char* mData;
    qint64 mLeft;
};

// Each file's length is a count of records and a tail, so that whole records come up often.
inline RecordSource CarvedFiles(Carver& Input) {
    std::map<RecordFile, QByteArray> Files;
    for (const RecordFile File : AllRecordFiles) {
        const unsigned Count = Input.TakeByte();
        if (Count == 255) continue;  // no such file
        const qint64 Tail = Input.TakeByte() % 16 == 15 ? RecordLength(File) / 2 : 0;
        Files[File] = Input.Take(Count % 8 * RecordLength(File) + Tail);
    }
    return [Files](RecordFile File) -> std::optional<RecordBytes> {
        const auto Found = Files.find(File);
        if (Found == Files.end()) return std::nullopt;
        return Found->second;
    };
}

// Everything that a window may ask of what was loaded.
inline void AskEverything(clsDBEngine& Engine) {
    MemoryComboList List;
    Engine.LoadAlbumsCombo(List, true);
    Engine.LoadPropertiesCombo(List);
    Engine.LoadEffectStatsCombo(List);
    std::vector<std::uint8_t> Classes(128, 1);
    Engine.ClassifyEffects(Classes, 127);
    for (const auto& Album : Engine.Albums) {
        Album->LoadSlidesCombo(List);
        Album->LoadSlideShowsCombo(List);
        for (const auto& Show : Album->SlideShows) {
            Show->LoadDetailsCombo(List);
            Show->LoadSoundTracksCombo(List);
        }
    }
}

// True when what is written reads back to the very same bytes.
inline bool RunRecords(const char* Data, size_t Size) {
    Carver Input(Data, Size);
    clsDBEngine Engine, Again;
    Engine.LoadFrom(CarvedFiles(Input));
    AskEverything(Engine);
    const RecordImage First = BuildImage(Engine);
    Again.LoadFrom(RecordsInImage(First));
    const RecordImage Second = BuildImage(Again);
    for (const RecordFile File : AllRecordFiles)
        if (First[File].Bytes() != Second[File].Bytes()) return false;
    const QByteArray Rest = Input.Take(Input.Left());
    const auto Packed = PackedRecords::FromBytes(Rest, Rest.size());
    return !Packed || Packed->Unpack().size() == Rest.size();
}

}  // namespace neb::fuzz
