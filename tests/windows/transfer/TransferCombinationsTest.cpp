// Each combination of (album, show) by (export, import) by (new, existing destination) by (own
// database, another one), as a user makes it with mouse and keyboard, with both databases compared
// behind it; then names that clash, albums and shows with nothing in them, and very many slides.
#include <QElapsedTimer>

#include "CombinationsRig.h"
#include "harness/Heartbeat.h"

namespace neb {
namespace {

using namespace harness;

enum class What { Album, Show };
enum class From { Export, Import };
// Into an album that is there a transfer adds, or it replaces what is in it: the whole album, or
// the show of an album.
enum class Into { New, Added, Replaced };
enum class Over { Own, Other };
using Combination = std::tuple<What, From, Into, Over>;

std::string NameOf(const ::testing::TestParamInfo<Combination>& Each) {
    const auto& [Of, Way, Place, Database] = Each.param;
    static const char* const Places[] = {"ToANewOne", "AddedToOneThatIsThere",
                                         "OverOneThatIsThere"};
    return std::string(Of == What::Album ? "Album" : "Show") +
           (Way == From::Export ? "Exported" : "Imported") + Places[static_cast<int>(Place)] +
           (Database == Over::Own ? "InItsOwnDatabase" : "AcrossDatabases");
}

class TransferCombinations : public CombinationsRig,
                             public ::testing::WithParamInterface<Combination> {
  protected:
    TransferCombinations() {
        const auto& [Of, Way, Place, Database] = GetParam();
        User = {.Imports = Way == From::Import, .ToOwn = Database == Over::Own};
        User.SrcAlbum = SourceOf(User) == MyDir ? u"Garden"_s : u"Hills"_s;
        User.Replaces = Of == What::Album && Place == Into::Replaced;
        User.Proposed = Numbered(User.SrcAlbum);
        if (Place != Into::New)
            User.DstAlbum = User.Proposed = TargetOf(User) == MyDir ? u"Sea"_s : u"Town"_s;
        if (Of == What::Show) AlsoOfAShow(Place);
    }
    void AlsoOfAShow(Into Place) {
        User.SrcShow = User.SrcAlbum + u" walk"_s;
        User.ProposedShow = Numbered(User.SrcShow);
        if (Place == Into::Replaced) User.DstShow = User.ProposedShow = User.DstAlbum + u" run"_s;
    }
    // In its own database nothing keeps its name.
    QString Numbered(const QString& Name) const { return User.ToOwn ? Name + u" 2"_s : Name; }

    Steps User;
};

TEST_P(TransferCombinations, ArriveUnderTheProposedNames) {
    ExpectDone(User);
}

TEST_P(TransferCombinations, ArriveUnderNamesOfTheUsersOwn) {
    User.Typed = u"Bob's \"best\""_s;
    if (!User.SrcShow.isNull()) User.TypedShow = u"\"Again\" 'n' again"_s;
    ExpectDone(User);
}

INSTANTIATE_TEST_SUITE_P(, TransferCombinations,
                         ::testing::Combine(::testing::Values(What::Album, What::Show),
                                            ::testing::Values(From::Export, From::Import),
                                            ::testing::Values(Into::New, Into::Added,
                                                              Into::Replaced),
                                            ::testing::Values(Over::Own, Over::Other)),
                         &NameOf);

class TransferClashes : public CombinationsRig {
  protected:
    void ExpectCritical(const QString& Text, const QString& Title) {
        Boxes.Expect(Text, Title, BoxIcon::Critical, BoxAnswer::Ok);
    }
    void ExpectEqualShows(const QString& Adjective) {
        ExpectInformation(
            u"1 or more Slide Shows within the selected Destination Album have\n"
            "names identical to those of Slide Shows in the Source\nAlbum.  You can only "_s +
                Adjective +
                u" unique Slide Shows.\n"
                "Use the Update Feature to overwrite an existing album."_s,
            u"Operation Unsuccessful"_s);
    }
};

TEST_F(TransferClashes, ATakenNameIsProposedWithTheNextFreeNumberAndArrivesSo) {
    Theirs.AddAlbum(u"GARDEN"_s);
    Theirs.AddAlbum(u"garden 2"_s);
    Mine.AddAlbum(u"Hills"_s);
    WriteBoth();
    ExpectDone({.SrcAlbum = u"Garden"_s, .Proposed = u"Garden 3"_s});
    ExpectDone({.Imports = true, .SrcAlbum = u"Hills"_s, .Proposed = u"Hills 2"_s});
    ExpectDone({.ToOwn = true, .SrcAlbum = u"Garden"_s, .Proposed = u"Garden 2"_s});
    ExpectDone({.ToOwn = true, .SrcAlbum = u"Garden"_s, .Proposed = u"Garden 3"_s});
}

TEST_F(TransferClashes, ANewAlbumOfATakenNameIsRefusedUntilItHasAnother) {
    Steps Export{.SrcAlbum = u"Garden"_s, .Proposed = u"Garden"_s, .Typed = u"TOWN"_s};
    const auto Window = OpenFor(Export);
    FillIn(*Window, Export);
    ExpectCritical(u"Album Name is already in use."_s, u"Invalid Album Name"_s);
    ExpectRefused(*Window, Export);
    const Moment Before = Now();
    Retype(*Window, "txtAlbumName", Export.Typed = u"City"_s);
    PressStart(*Window, Export);
    ASSERT_FALSE(Window->IsLoaded());
    ExpectArrived(Before, Export);
}

TEST_F(TransferClashes, AShowIntoANewAlbumOfATakenNameIsRefusedUntilItHasAnother) {
    Steps Import{.Imports = true,
                 .SrcAlbum = u"Town"_s,
                 .SrcShow = u"Town run"_s,
                 .Proposed = u"Town"_s,
                 .ProposedShow = u"Town run"_s,
                 .Typed = u"sea"_s};
    const auto Window = OpenFor(Import);
    FillIn(*Window, Import);
    ExpectCritical(u"Album Name is already in use."_s, u"Invalid Album Name"_s);
    ExpectRefused(*Window, Import);
    const Moment Before = Now();
    Retype(*Window, "txtAlbumName", Import.Typed = u"City"_s);
    PressStart(*Window, Import);
    ASSERT_FALSE(Window->IsLoaded());
    ExpectArrived(Before, Import);
}

TEST_F(TransferClashes, AnAlbumThatIsThereTakesTheNameOfAnother) {
    ExpectDone({.SrcAlbum = u"Garden"_s,
                .DstAlbum = u"Town"_s,
                .Proposed = u"Town"_s,
                .Typed = u"Hills"_s});
    ExpectDone({.Imports = true,
                .SrcAlbum = u"Hills"_s,
                .SrcShow = u"Hills walk"_s,
                .DstAlbum = u"Sea"_s,
                .DstShow = u"Sea walk"_s,
                .Proposed = u"Sea"_s,
                .ProposedShow = u"Sea walk"_s,
                .Typed = u"Garden"_s});
}

TEST_F(TransferClashes, ShowsOfEqualNamesAreNotAddedAndAreReplaced) {
    Theirs.AddFilledAlbum(u"GARDEN"_s);
    WriteBoth();
    for (const bool Imports : {false, true}) {
        Steps User{.Imports = Imports,
                   .SrcAlbum = Imports ? u"GARDEN"_s : u"Garden"_s,
                   .DstAlbum = Imports ? u"Garden"_s : u"GARDEN"_s,
                   .Proposed = Imports ? u"Garden"_s : u"GARDEN"_s};
        const auto Window = OpenFor(User);
        FillIn(*Window, User);
        ExpectEqualShows(Imports ? u"Import"_s : u"Export"_s);
        ExpectRefused(*Window, User);
        const Moment Before = Now();
        User.Replaces = true;
        ClickReplace(*Window);
        PressStart(*Window, User);
        ASSERT_FALSE(Window->IsLoaded());
        ExpectArrived(Before, User);
    }
}

TEST_F(TransferClashes, AShowOfATakenNameIsProposedWithANumberAndMayTakeTheNameAllTheSame) {
    Steps Export{.ToOwn = true,
                 .SrcAlbum = u"Garden"_s,
                 .SrcShow = u"Garden walk"_s,
                 .DstAlbum = u"Garden"_s,
                 .Proposed = u"Garden"_s,
                 .ProposedShow = u"Garden walk 2"_s};
    ExpectDone(Export);
    Export.ProposedShow = u"Garden walk 3"_s;
    Export.TypedShow = u"Garden walk"_s;
    ExpectDone(Export);
}

TEST_F(TransferClashes, AShowOverAnotherOfItsOwnAlbumSharesItsSlides) {
    for (const bool Imports : {false, true})
        ExpectDone({.Imports = Imports,
                    .ToOwn = true,
                    .SrcAlbum = u"Garden"_s,
                    .SrcShow = u"Garden walk"_s,
                    .DstAlbum = u"Garden"_s,
                    .DstShow = u"Garden run"_s,
                    .Proposed = u"Garden"_s,
                    .ProposedShow = u"Garden run"_s});
}

TEST_F(TransferClashes, NothingGoesOverItself) {
    Steps Import{.Imports = true,
                 .ToOwn = true,
                 .SrcAlbum = u"Sea"_s,
                 .DstAlbum = u"Sea"_s,
                 .Replaces = true,
                 .Proposed = u"Sea"_s};
    const auto OfAlbum = OpenFor(Import);
    FillIn(*OfAlbum, Import);
    ExpectInformation(u"You cannot Export an Album to itself!"_s, u"Invalid User Input"_s);
    ExpectRefused(*OfAlbum, Import);
    Import.Replaces = false;
    Import.SrcShow = Import.DstShow = Import.ProposedShow = u"Sea run"_s;
    const auto OfShow = OpenFor(Import);
    FillIn(*OfShow, Import);
    ExpectInformation(u"You cannot Export a Slide Show to itself!"_s, u"Invalid User Input"_s);
    ExpectRefused(*OfShow, Import);
}

// Twice there and back: numbers have moved on, and what was replaced has gone.
TEST_F(TransferClashes, WhatWasBroughtGoesBackOverWhereItCameFrom) {
    const Steps Out{
        .SrcAlbum = u"Garden"_s, .DstAlbum = u"Hills"_s, .Replaces = true, .Proposed = u"Hills"_s};
    const Steps Back{.Imports = true,
                     .SrcAlbum = u"Hills"_s,
                     .DstAlbum = u"Garden"_s,
                     .Replaces = true,
                     .Proposed = u"Garden"_s};
    for (const Steps& Each : {Out, Back, Out, Back}) ExpectDone(Each);
}

class TransferOfLittleAndMuch : public CombinationsRig {
  protected:
    // Slides with pictures of a few bytes, all of them in one show.
    void AddMany(FilledDatabase& To, const QString& Name, int Slides) {
        const std::int32_t Many = To.AddAlbum(Name);
        std::vector<std::int32_t> All;
        for (int I = 0; I < Slides; ++I)
            All.push_back(To.AddSlide(Many, QString::number(I)).SlideID);
        To.AddShow(Many, Name + u" show"_s, 0, All);
    }
    // Measured while the transfer runs and its windows come and go.
    void ExpectDoneWithoutStandstill(const Steps& User) {
        const Moment Before = Now();
        const auto Window = OpenFor(User);
        FillIn(*Window, User);
        Heartbeat Beats;
        PressStart(*Window, User);
        const double Longest = Beats.LongestStandstill();
        ASSERT_FALSE(Window->IsLoaded());
        EXPECT_GT(Beats.Beats(), 5);
        EXPECT_LT(Longest, 100);
        ExpectArrived(Before, User);
    }
};

TEST_F(TransferOfLittleAndMuch, AnAlbumWithoutSlidesArrivesEverywhere) {
    Mine.AddAlbum(u"Bare"_s);
    Theirs.AddAlbum(u"Blank"_s);
    WriteBoth();
    ExpectDone({.SrcAlbum = u"Bare"_s, .Proposed = u"Bare"_s});
    ExpectDone({.SrcAlbum = u"Bare"_s, .DstAlbum = u"Hills"_s, .Proposed = u"Hills"_s});
    ExpectDone(
        {.SrcAlbum = u"Bare"_s, .DstAlbum = u"Town"_s, .Replaces = true, .Proposed = u"Town"_s});
    ExpectDone({.Imports = true, .SrcAlbum = u"Blank"_s, .Proposed = u"Blank"_s});
    ExpectDone({.Imports = true,
                .SrcAlbum = u"Blank"_s,
                .DstAlbum = u"Sea"_s,
                .Replaces = true,
                .Proposed = u"Sea"_s});
    ExpectDone({.ToOwn = true, .SrcAlbum = u"Bare"_s, .Proposed = u"Bare 2"_s});
    ExpectDone({.SrcAlbum = u"Garden"_s, .DstAlbum = u"Bare"_s, .Proposed = u"Bare"_s});
}

TEST_F(TransferOfLittleAndMuch, AShowWithoutSlidesArrivesEverywhere) {
    const std::int32_t Garden = Mine.Engine.AlbumIndex.front().ID;
    clsNEBSlideShow& Still = Mine.AddShow(Garden, u"Still"_s, 2, {});
    Mine.AddTrack(Garden, Still, 1, u".mp3"_s);
    Theirs.AddShow(Theirs.AddAlbum(u"Blank"_s), u"Void"_s, 1, {});
    WriteBoth();
    Steps Export{.SrcAlbum = u"Garden"_s,
                 .SrcShow = u"Still"_s,
                 .Proposed = u"Garden"_s,
                 .ProposedShow = u"Still"_s};
    ExpectDone(Export);
    Export.DstAlbum = Export.Proposed = u"Town"_s;
    Export.DstShow = Export.ProposedShow = u"Town walk"_s;
    ExpectDone(Export);
    Steps Import{.Imports = true,
                 .SrcAlbum = u"Blank"_s,
                 .SrcShow = u"Void"_s,
                 .DstAlbum = u"Garden"_s,
                 .Proposed = u"Garden"_s,
                 .ProposedShow = u"Void"_s};
    ExpectDone(Import);
    Import.DstAlbum = Import.Proposed = u"Sea"_s;
    Import.DstShow = Import.ProposedShow = u"Sea walk"_s;
    ExpectDone(Import);
}

TEST_F(TransferOfLittleAndMuch, FiveThousandSlidesGoOutAndComeBackAndNothingStandsStill) {
    AddMany(Mine, u"Many"_s, 5000);
    WriteBoth();
    ExpectDoneWithoutStandstill({.SrcAlbum = u"Many"_s, .Proposed = u"Many"_s});
    ExpectDoneWithoutStandstill({.Imports = true,
                                 .SrcAlbum = u"Many"_s,
                                 .DstAlbum = u"Many"_s,
                                 .Replaces = true,
                                 .Proposed = u"Many"_s});
}

}  // namespace
}  // namespace neb
