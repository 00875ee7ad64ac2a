// What is told at the end of a transfer, and what the other windows find afterwards.
#include "TransferRig.h"

namespace neb {
namespace {

using namespace harness;

class TransferEnd : public TransferRig {
  protected:
    std::shared_ptr<frmAlbumExport> W = OpenNew<frmAlbumExport>();
    static void RefusePlaces(const QString& Below) {
        SetHostWatcher([Below](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Rename && Path.startsWith(Below) && Path.contains(u"/Slides/"_s))
                throw Fault(u"The stick has gone."_s);
        });
    }
    void ExpectNotYetCompleted() {
        Boxes.Expect(
            u"The transfer is done, but not all of its files are in their places yet; the "
            "next opening of the database will put them there. The stick has gone."_s,
            u"Operation Not Yet Completed"_s, BoxIcon::Information, BoxAnswer::Ok);
    }
};

TEST_F(TransferEnd, FilesThatWereLeftOutAreCounted) {
    DeleteFile(PicturePath(Engine, 1));
    Load(*W, OtherDb.Path());
    Boxes.Expect(
        u"A file of the source is missing or cannot be read:\nAlbums/1/Slides/00000001.jpg\n\n"
        "Do you want to go on without what is missing?"_s,
        BoxAnswer::Yes);
    Press(*W, "cmdExport");
    EXPECT_EQ("Album \"Garden\" exported: 2 slides, 1 slide show, 1 file left out.",
              Notice.toStdString());
    EXPECT_EQ("", Boxes.Last().Details.toStdString()) << "it is in the question";
}

TEST_F(TransferEnd, OfManyFilesThatAreMissingAllAreInTheDetails) {
    for (int I = 0; I < 28; ++I) AddSlide(Engine, u"x"_s);
    QStringList Names;
    for (std::int32_t Each = 1; Each <= 30; ++Each) {
        DeleteFile(PicturePath(Engine, Each));
        Names << PicturePath(Engine, Each).mid(Db.Path().size());
    }
    Load(*W, OtherDb.Path());
    Boxes.Expect(u"30 files of the source are missing or cannot be read:\n"_s +
                     Names.mid(0, 15).join(u'\n') +
                     u"\n... and 15 more\n\nDo you want to go on without what is missing?"_s,
                 BoxAnswer::Yes);
    Press(*W, "cmdExport");
    EXPECT_EQ(Names.join(u'\n').toStdString(), Boxes.Last().Details.toStdString());
    EXPECT_EQ("Album \"Garden\" exported: 30 slides, 1 slide show, 30 files left out.",
              Notice.toStdString());
}

TEST_F(TransferEnd, OfAShowItsPlacesAreCountedAlsoWhereNoSlideIsCopied) {
    AddShowOf(Engine, u"Round"_s, {1, 2, 1});
    const auto S = OpenNew<frmSlideShowExport>();
    Load(*S, Db.Path());
    Choose(*S, "cboSrcSlideShow", u"Round"_s);
    Choose(*S, "cboDstAlbum", u"Garden"_s);
    Press(*S, "cmdExport");
    EXPECT_FALSE(S->IsLoaded());
    EXPECT_EQ("Slide show \"Round 2\" exported: 3 slides.", Notice.toStdString());
    EXPECT_EQ("Garden: rose tulip [Summer 2] [Round 3] [Round 2 3]", Content(Engine));
}

TEST_F(TransferEnd, AViewerShowsWhatCameAlsoWhenItsFilesWaitForTheirPlaces) {
    Load(*W, OtherDb.Path());
    Choose(*W, "cboDstAlbum", u"Attic"_s);
    Press(*W, "cmdViewDstAlbum");
    auto* View = harness::Open<frmAlbumView>();
    ASSERT_NE(nullptr, View);
    RefusePlaces(OtherDb.Path());
    ExpectNotYetCompleted();
    Press(*W, "cmdExport");
    SetHostWatcher({});
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ("lamp|rose|tulip", Shown(*View));
    View->Unload();
}

TEST_F(TransferEnd, ThumbnailsOfAReplacedAlbumGoAlsoWhenItsFilesWaitForTheirPlaces) {
    const std::int32_t Spare = AddAlbum(u"Spare"_s);
    clsNEBAlbum& Filled = *Engine.GetAlbum(Spare);
    std::int32_t SlideID = 0;
    clsNEBSlide& Slide = *Filled.SaveSlide2(SlideID, u"x"_s, {}, {}, false, false, Engine);
    const int Before = Store.Rows();
    Buffer.UpdateSlide(Spare, Slide, true);
    ASSERT_EQ(Before + 1, Store.Rows());
    W->Unload();
    W = OpenNew<frmAlbumExport>();
    Load(*W, Db.Path());
    Choose(*W, "cboDstAlbum", u"Spare"_s);
    In<QCheckBox>(*W, "chkReplace").setChecked(true);
    int Then = -1;
    Others->OnEvent = [&] { Then = Store.Rows(); };
    RefusePlaces(Db.Path());
    ExpectNotYetCompleted();
    Press(*W, "cmdExport");
    SetHostWatcher({});
    EXPECT_EQ("Album Update 2", Heard());
    EXPECT_EQ(Before, Then) << "before the others hear of it";
    EXPECT_EQ(Before, Store.Rows());
}

}  // namespace
}  // namespace neb
