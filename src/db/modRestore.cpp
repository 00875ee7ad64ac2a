#include "db/modRestore.h"

#include "db/Changes.h"
#include "db/modLoadRecords.h"

namespace neb {
namespace {

constexpr std::int32_t MostNumbers = 2'000'000'000;  // what is above them is damage

void RaiseTo(std::int32_t& Counter, std::int32_t Next) {
    if (Next <= MostNumbers) Counter = std::max(Counter, Next);
}

// Above their own records as well: the counters of a damaged database can be too low for these.
void RaiseCounters(IDCounters& Next, const clsDBEngine& Records) {
    RaiseTo(Next.AlbumID, Records.NextAlbumID);
    RaiseTo(Next.SlideID, Records.NextSlideID);
    RaiseTo(Next.SlideShowID, Records.NextSlideShowID);
    const auto Above = [](std::int32_t ID) { return std::min(ID, MostNumbers) + 1; };
    for (const auto& Album : Records.Albums) {
        RaiseTo(Next.AlbumID, Above(Album->AlbumID));
        for (const auto& Slide : Album->Slides) RaiseTo(Next.SlideID, Above(Slide->SlideID));
        for (const auto& Show : Album->SlideShows)
            RaiseTo(Next.SlideShowID, Above(Show->SlideShowID));
    }
}

}  // namespace

std::unique_ptr<clsDBEngine> OpenGeneration(const Generation& Which, const QString& DBPath) {
    std::optional<RecordImage> Image = ReadGeneration(Which.Path);
    if (!Image) return nullptr;
    auto Then = std::make_unique<clsDBEngine>();
    Then->SetDBPath(DBPath);
    Then->LoadFrom(RecordsInImage(std::move(*Image)));
    return Then;
}

void RestoreState(clsDBEngine& theDB, clsDBEngine& Then) {
    IDCounters Next;
    RaiseCounters(Next, Then);
    RaiseCounters(Next, theDB);
    Then.NextAlbumID = Next.AlbumID;
    Then.NextSlideID = Next.SlideID;
    Then.NextSlideShowID = Next.SlideShowID;
    KeepGenerationOf(theDB.DBPath(), BuildImage(theDB));
    theDB.ReplaceBy(BuildImage(Then));
}

}  // namespace neb
