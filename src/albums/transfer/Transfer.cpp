// Which transfers are refused, in which order and with which words; and what the plan of one is.
#include "albums/transfer/Transfer.h"

#include "albums/modSaveShow.h"
#include "albums/transfer/OtherDatabase.h"
#include "albums/transfer/TransferRun.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "db/records/modJournal.h"
#include "support/Texts.h"
#include "support/modDEValidation.h"

namespace neb {
namespace {

using Boxes = std::vector<BoxRequest>;

// Boxes in place of a plan; none: the plan stands.
struct Decision {
    TransferPlan Plan;
    Boxes No;
};

TransferResult Decided(Decision Made, clsDBEngine& DstDB, const TransferDesk& Desk,
                       const QObject* Asker) {
    if (!Made.No.empty()) return {.Boxes = std::move(Made.No)};
    return CarryOut(std::move(Made.Plan), DstDB, Desk, Asker);
}

Boxes Say(const QString& Text) {
    return {Refuse(Text)};
}

Boxes Say(const Answer<>& Is) {
    return Is ? Boxes() : Boxes{Is.Refusal()};
}

TransferPlan PlanFor(const clsDBEngine& DstDB) {
    TransferPlan Plan;
    Plan.Base = Plan.Next = {DstDB.NextAlbumID, DstDB.NextSlideID, DstDB.NextSlideShowID};
    return Plan;
}

Boxes PlanNewAlbum(const clsDBEngine& DstDB, const QString& Name, TransferPlan& Plan) {
    if (DstDB.FindAlbum(0, Name))
        return {{.Text = tr("Album Name is already in use."),
                 .Title = tr("Invalid Album Name"),
                 .Icon = BoxIcon::Critical}};
    if (const Answer<> Is = DstDB.CheckAlbumName(0, Name); !Is)
        return {Is.Refusal(), Refuse(tr("Failed to create the album."))};
    Plan.IsNewAlbum = true;
    Plan.AlbumID = FreeAlbumID(DstDB.DBPath(), Plan.Next.AlbumID);
    Plan.Next.AlbumID = Plan.AlbumID + 1;
    return {};
}

// An album that is there takes the name without a look at the others; but a blank or a cut name
// would be a loss.
Boxes PlanOldAlbum(const clsDBEngine& DstDB, std::int32_t AlbumID, const QString& Name,
                   TransferPlan& Plan) {
    if (!DstDB.GetAlbum(AlbumID)) return Say(tr("Failed to load the destination album."));
    Plan.AlbumID = AlbumID;
    return Say(clsDBEngine::CheckAlbumText(Name));
}

Boxes PlanDestination(const clsDBEngine& DstDB, std::int32_t AlbumID, const QString& NewAlbumName,
                      TransferPlan& Plan) {
    Plan.AlbumName = CleanName(NewAlbumName);
    Boxes No = AlbumID != 0 ? PlanOldAlbum(DstDB, AlbumID, Plan.AlbumName, Plan)
                            : PlanNewAlbum(DstDB, Plan.AlbumName, Plan);
    if (!No.empty()) return No;
    Plan.TakenSlides = NumbersIn(SlidesFolder(DstDB.DBPath(), Plan.AlbumID));
    Plan.TakenShows = NumbersIn(SoundTracksFolder(DstDB.DBPath(), Plan.AlbumID));
    if (!DstDB.CountersAreSound()) return {DamagedCounters(DstDB.DBPath())};
    if (MayWriteDatabase(DstDB.DBPath())) return {};
    return {Refuse(tr("The database in\n%1\nis read-only.").arg(DstDB.DBPath()),
                   tr("Read-Only Database"))};
}

bool SharesAName(const clsNEBAlbum& One, const clsNEBAlbum& Other) {
    for (const auto& Show : One.SlideShows)
        for (const auto& Taken : Other.SlideShows)
            if (CaselessName(Show->SlideShowName) == CaselessName(Taken->SlideShowName))
                return true;
    return false;
}

Boxes CheckShowNames(const clsNEBAlbum& Source, const clsNEBAlbum* Destination,
                     const QString& Adjective) {
    if (!Destination || !SharesAName(Source, *Destination)) return {};
    return {Refuse(tr("1 or more Slide Shows within the selected Destination Album have\n"
                      "names identical to those of Slide Shows in the Source\n"
                      "Album.  You can only %1 unique Slide Shows.\n"
                      "Use the Update Feature to overwrite an existing album.")
                       .arg(Adjective),
                   tr("Operation Unsuccessful"))};
}

Decision DecideAlbum(const AlbumTransfer& What) {
    Decision Made{PlanFor(What.DstDB), {}};
    TransferPlan& Plan = Made.Plan;
    if (What.SrcAlbumID == What.DstAlbumID &&
        IsSameDatabase(What.SrcDB.DBPath(), What.DstDB.DBPath()))
        return {{},
                {Refuse(tr("You cannot Export an Album to itself!"), tr("Invalid User Input"))}};
    const clsNEBAlbum* Source = What.SrcDB.GetAlbum(What.SrcAlbumID);
    if (!Source) return {{}, Say(tr("Failed to load the source album."))};
    Made.No = PlanDestination(What.DstDB, What.DstAlbumID, What.NewAlbumName, Plan);
    if (!Made.No.empty()) return Made;
    const clsNEBAlbum* Destination = What.DstDB.GetAlbum(Plan.AlbumID);
    Plan.ClearsAlbum = What.Replace && Destination;
    if (Plan.ClearsAlbum) Plan.Gone = ClearingOf(What.DstDB, *Destination);
    if (!What.Replace) Made.No = CheckShowNames(*Source, Destination, What.Adjective);
    TransferPlanner(What.SrcDB, What.SrcAlbumID, Plan).AddAlbum(*Source);
    return Made;
}

// The show that is replaced; the plan's album is known.
Boxes PlanReplacedShow(const SlideShowTransfer& What, TransferPlan& Plan) {
    if (What.DstSlideShowID == 0) return {};
    const clsNEBAlbum* Album = What.DstDB.GetAlbum(Plan.AlbumID);
    const clsNEBSlideShow* Show = Album ? Album->GetSlideShow(What.DstSlideShowID) : nullptr;
    if (!Show) return Say(tr("Failed to load destination slide show."));
    Plan.ReplacedShowID = What.DstSlideShowID;
    Plan.Gone = ClearingOf(What.DstDB, *Album, *Show);
    return {};
}

bool IsWithinAlbum(const SlideShowTransfer& What) {
    return What.SrcAlbumID == What.DstAlbumID &&
           IsSameDatabase(What.SrcDB.DBPath(), What.DstDB.DBPath());
}

// Within one album slides are shared. Between two databases an equal number means nothing.
Boxes PlanSlides(const TransferPlan& Plan, const clsNEBAlbum& Album, const clsNEBSlideShow& Source,
                 TransferPlanner& Planner) {
    std::unordered_map<std::int32_t, const clsNEBSlide*> Slides;
    for (const auto& Slide : Album.Slides) Slides.emplace(Slide->SlideID, Slide.get());
    for (const auto& Detail : Source.Details) {
        if (Plan.IsWithinAlbum) {
            Planner.ShareSlide(Detail->SlideID);
            continue;
        }
        const auto Found = Slides.find(Detail->SlideID);
        if (Found == Slides.end()) return Say(tr("1 or more source slides could not be found."));
        Planner.AddSlide(*Found->second);
    }
    return {};
}

Decision DecideShow(const SlideShowTransfer& What) {
    if (What.SrcSlideShowID == What.DstSlideShowID && IsWithinAlbum(What))
        return {
            {},
            {Refuse(tr("You cannot Export a Slide Show to itself!"), tr("Invalid User Input"))}};
    clsNEBAlbum* Album = What.SrcDB.GetAlbum(What.SrcAlbumID);
    if (!Album) return {{}, Say(tr("Failed to load the source Album."))};
    const clsNEBSlideShow* Source = Album->GetSlideShow(What.SrcSlideShowID);
    if (!Source) return {{}, Say(tr("Failed to load the source Slide Show."))};
    Decision Made{PlanFor(What.DstDB), {}};
    TransferPlan& Plan = Made.Plan;
    Plan.IsOfShow = true;
    Plan.IsWithinAlbum = IsWithinAlbum(What);
    const QString Name = CleanName(What.NewSlideShowName);
    Made.No = PlanDestination(What.DstDB, What.DstAlbumID, What.NewAlbumName, Plan);
    if (Made.No.empty()) Made.No = PlanReplacedShow(What, Plan);
    if (Made.No.empty()) Made.No = Say(CheckShowName(Name));
    TransferPlanner Planner(What.SrcDB, What.SrcAlbumID, Plan);
    if (Made.No.empty()) Made.No = PlanSlides(Plan, *Album, *Source, Planner);
    if (!Made.No.empty()) return Made;
    std::set<QString> Taken;
    if (const clsNEBAlbum* Destination = What.DstDB.GetAlbum(Plan.AlbumID))
        Taken = SoundsOfOthers(*Destination, What.DstSlideShowID);
    Planner.AddShow(*Source, Name, What.DstSlideShowID, std::move(Taken));
    return Made;
}

}  // namespace

TransferResult TransferAlbum(const AlbumTransfer& What, const TransferDesk& Desk,
                             const QObject* Asker) {
    return Decided(DecideAlbum(What), What.DstDB, Desk, Asker);
}

TransferResult TransferSlideShow(const SlideShowTransfer& What, const TransferDesk& Desk,
                                 const QObject* Asker) {
    return Decided(DecideShow(What), What.DstDB, Desk, Asker);
}

}  // namespace neb
