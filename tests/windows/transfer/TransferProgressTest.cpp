// The window over a transfer: what it shows, that it stops when it is asked to and not before, and
// that nothing stands still meanwhile.
#include <QThread>

#include "TransferRig.h"
#include "harness/Heartbeat.h"

namespace neb {
namespace {

using namespace harness;

class UnderWay : public TransferRig {
  protected:
    std::shared_ptr<frmAlbumExport> W;
    // With so many slides more, of so many bytes each.
    void OpenWith(int Slides, int Bytes = 0) {
        for (int I = 0; I < Slides; ++I) {
            const std::int32_t SlideID = AddSlide(Engine, u"x"_s);
            if (Bytes > 0) AppendFile(PicturePath(Engine, SlideID), QByteArray(Bytes, 'x'));
        }
        W = OpenNew<frmAlbumExport>();
        Load(*W, OtherDb.Path());
    }
    static frmTransferProgress* Bar() { return harness::Open<frmTransferProgress>(); }
    static bool IsCopying() {
        return Bar() && In<QLabel>(*Bar(), "lblProgress").text().startsWith(u"picture");
    }
};

TEST_F(UnderWay, ShowsHowFarItIs) {
    OpenWith(20);
    SlowDown(5);
    QStringList Lines;
    QString Title;
    int Most = 0;
    const Heartbeat Beats([&] {
        if (!Bar()) return;
        Title = Bar()->windowTitle();
        Lines << In<QLabel>(*Bar(), "lblProgress").text();
        const auto& Progress = In<QProgressBar>(*Bar(), "pgbTransfer");
        if (Progress.maximum() > 0) Most = std::max(Most, Progress.value());
        EXPECT_FALSE(In<QWidget>(*W, "cmdExport").isEnabled());
        EXPECT_FALSE(In<QWidget>(*W, "cboSrcAlbum").isEnabled());
    });
    Press(*W, "cmdExport");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ("Exporting Album", Title.toStdString());
    EXPECT_FALSE(Lines.filter(u" of 22, "_s).isEmpty()) << Lines.join(u'\n').toStdString();
    EXPECT_GT(Most, 0);
}

TEST_F(UnderWay, StopAsksWithNoAsItsDefaultAndGoesOnWhenTheAnswerIsNo) {
    OpenWith(60);
    SlowDown(5);
    ExpectStopQuestion(BoxAnswer::No);
    WhenOpen<frmTransferProgress>([](frmTransferProgress& Shown) { Press(Shown, "cmdStop"); },
                                  &IsCopying);
    Press(*W, "cmdExport");
    EXPECT_EQ(BoxAnswer::No, Boxes.Last().Default);
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ(2u, OnDisk(OtherDb.Path()).find("ttic:") + 1);
}

TEST_F(UnderWay, EscStopsAndLeavesBothDatabasesAsTheyWere) {
    OpenWith(60);
    const std::string Before = OnDisk(OtherDb.Path());
    const QStringList Lying = Everything(OtherDb / u"Albums"_s);
    SlowDown(5);
    ExpectStopQuestion(BoxAnswer::Yes);
    WhenOpen<frmTransferProgress>(
        [](frmTransferProgress& Shown) { QTest::keyClick(&Shown, Qt::Key_Escape); }, &IsCopying);
    Press(*W, "cmdExport");
    ASSERT_TRUE(W->IsLoaded());
    EXPECT_EQ(nullptr, Bar());
    EXPECT_EQ("Stopped; nothing was changed.", Notice.toStdString());
    EXPECT_EQ(Before, OnDisk(OtherDb.Path()));
    EXPECT_EQ("", Differences(Lying, Everything(OtherDb / u"Albums"_s)));
    EXPECT_TRUE(IsOn(*W, "cmdExport"));
    EXPECT_EQ("<NEW ALBUM>*|Attic", Listed(*W, "cboDstAlbum"));
    EXPECT_EQ("cmdExport", W->focusWidget()->objectName().toStdString());
    SetHostWatcher({});
    Press(*W, "cmdExport");
    EXPECT_FALSE(W->IsLoaded()) << "and the next attempt succeeds";
}

TEST_F(UnderWay, NeitherWindowClosesWhileItRuns) {
    OpenWith(60);
    SlowDown(5);
    bool Tried = false;
    WhenOpen<frmTransferProgress>(
        [&](frmTransferProgress&) {
            W->close();
            EXPECT_TRUE(W->IsLoaded());
            EXPECT_FALSE(W->Unload());
            Tried = true;
        },
        &IsCopying);
    Press(*W, "cmdExport");
    EXPECT_TRUE(Tried);
    EXPECT_FALSE(W->IsLoaded());
}

// The end of the program does not wait for the question to be answered.
TEST_F(UnderWay, AnUnloadStopsTheTransferFirst) {
    OpenWith(60);
    SlowDown(5);
    WhenOpen<frmTransferProgress>([&](frmTransferProgress& Shown) { EXPECT_FALSE(Shown.Unload()); },
                                  &IsCopying);
    Press(*W, "cmdExport");
    EXPECT_TRUE(W->IsLoaded());
    EXPECT_EQ("Attic: lamp [Winter 1]", OnDisk(OtherDb.Path()));
}

TEST_F(UnderWay, WhatIsBeingWrittenCannotBeStopped) {
    const auto Bar = NewForm<frmTransferProgress>();
    bool Before = false, While = true;
    Bar->ShowOver([&] {
        EXPECT_TRUE(Bar->Show({.At = TransferProgress::Stage::Copying, .OfPictures = 3}));
        Before = In<QPushButton>(*Bar, "cmdStop").isEnabled();
        EXPECT_TRUE(Bar->Show({.At = TransferProgress::Stage::Writing}));
        EXPECT_EQ("", In<QProgressBar>(*Bar, "pgbTransfer").text().toStdString());
        EXPECT_EQ(0, In<QProgressBar>(*Bar, "pgbTransfer").maximum()) << "it shows as busy";
        While = In<QPushButton>(*Bar, "cmdStop").isEnabled();
        QTest::keyClick(Bar.get(), Qt::Key_Escape);
    });
    EXPECT_TRUE(Before);
    EXPECT_FALSE(While);
    EXPECT_FALSE(Bar->IsLoaded());
}

TEST_F(UnderWay, AFaultPassesOutOfIt) {
    const auto Bar = NewForm<frmTransferProgress>();
    EXPECT_THROW(Bar->ShowOver([] { throw Fault(u"broken"_s); }), Fault);
    EXPECT_FALSE(Bar->IsLoaded());
}

TEST_F(UnderWay, NothingStandsStillDuringATransferOfHundredsOfSlides) {
    OpenWith(400, 200000);
    Heartbeat Beats;
    Press(*W, "cmdExport");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_GT(Beats.Beats(), 5);
    EXPECT_LT(Beats.LongestStandstill(), 100);
    EXPECT_NE(std::string::npos, OnDisk(OtherDb.Path()).find("Garden: rose tulip x"));
}

}  // namespace
}  // namespace neb
