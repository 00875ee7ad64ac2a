// A user at the slide show manager: an album with slides and shows, the window on them, its lists
// read as one line each, sounds to choose from.
#pragma once

#include "albums/modLoadShow.h"
#include "support/modDEValidation.h"
#include "windows/compose/TrackList.h"
#include "windows/compose/TwoLists.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/lists/SlideGrids.h"
#include "windows/lists/SlideRows.h"
#include "windows/slides/BulkRig.h"
#include "windows/slides/SlideRig.h"

namespace neb::harness {

using Mgr = frmSlideShowDBM;

class ManagerRig : public BulkRig {
  protected:
    // Slides of the album, numbered from 1 in this order.
    void AddAlbumSlides(const QStringList& Captions) {
        for (const QString& Each : Captions)
            AddSlide(Each, QColor::fromHsv(40 * mHue++ % 360, 200, 200));
    }
    clsNEBSlideShow& Show(std::int32_t ShowID) { return *Album().GetSlideShow(ShowID); }
    std::int32_t AddShow(const QString& Name, const std::vector<std::int32_t>& SlideIDs) {
        std::int32_t ShowID = 0, Place = 0;
        EXPECT_TRUE(Album().SaveSlideShow(ShowID, Name, 0, Engine));
        for (std::int32_t Each : SlideIDs) Show(ShowID).SaveDetail(Each, ++Place, {});
        return ShowID;
    }
    void AddTrack(std::int32_t ShowID, int Number, int Start, int End, const QString& File) {
        Show(ShowID).SaveSoundTrack(Number, File, Start, End, false, false, false);
    }
    QString TracksFolder() { return SoundTracksFolder(Engine.DBPath(), AlbumID); }
    // A file to be chosen as a sound track, with its own name as content.
    QString MakeSound(const QString& Name) {
        WriteFile(Sounds / Name, Name.toUtf8());
        return Sounds / Name;
    }

    // Another window; the steps below are done in the one that was opened or chosen last.
    Mgr& OpenMgr(std::int32_t Album, std::int32_t ShowID = 0) {
        Windows.push_back(NewForm<Mgr>());
        W = Windows.back().get();
        W->LoadSlideShowMgr(Album, ShowID);
        if (W->IsLoaded()) Activate(*W);
        return *W;
    }
    Mgr& OpenNew() { return OpenMgr(AlbumID); }
    // The album has slides a to e, a show of some of them is chosen.
    std::int32_t OpenGarden(const std::vector<std::int32_t>& SlideIDs = {3, 1}) {
        AddAlbumSlides({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});
        const std::int32_t ShowID = AddShow(u"Walk"_s, SlideIDs);
        OpenMgr(AlbumID, ShowID);
        return ShowID;
    }
    FlexGrid& Left() { return NonSelected(*W); }
    FlexGrid& Right() { return Selected(*W); }
    TrackList& Tracks() { return In<TrackList>(*W, "flxSoundTracks"); }
    static std::string Captions(const FlexGrid& Grid) {
        return Column(Grid, clsImageBuffer::ColText).join(u'|').toStdString();
    }
    // "captions left / captions right".
    std::string Lists() { return Captions(Left()) + " / " + Captions(Right()); }
    std::string Places() { return Column(Right(), ColPlace).join(u'|').toStdString(); }
    std::string Counts() {
        return (In<QLabel>(*W, "lblNonSelectedCnt").text() + u'/' +
                In<QLabel>(*W, "lblSelectedCnt").text())
            .toStdString();
    }
    QComboBox& Combo(const char* Name) { return In<QComboBox>(*W, Name); }
    QLineEdit& Name() { return In<QLineEdit>(*W, "txtName"); }
    std::string Entries(const char* Box) {
        QStringList All;
        for (int I = 0; I < Combo(Box).count(); ++I) All << Combo(Box).itemText(I);
        return All.join(u'|').toStdString();
    }
    void Choose(const char* Box, std::int32_t Data) {
        Combo(Box).setCurrentIndex(Combo(Box).findData(Data));
    }
    std::int32_t Chosen(const char* Box = "cboSlideShows") {
        return Combo(Box).currentData().toInt();
    }
    void Push(const char* Button) { Press(*W, Button); }
    static void Pick(FlexGrid& Grid, const std::vector<int>& Rows) {
        Grid.SetRow(Rows.front());
        for (int Row : Rows) Grid.SelectRow(Row);
    }
    static QLineEdit& Editor(FlexGrid& Grid) { return *Grid.findChildren<QLineEdit*>().back(); }
    // Opens the editor of a cell and types into it; it stays open.
    static void Begin(FlexGrid& Grid, int Row, int Col, const QString& Text) {
        ASSERT_TRUE(Grid.EditCell(Row, Col));
        Editor(Grid).selectAll();
        QTest::keyClicks(&Editor(Grid), Text);
    }
    static void Put(FlexGrid& Grid, int Row, int Col, const QString& Text) {
        ASSERT_TRUE(Grid.EditCell(Row, Col));
        Editor(Grid).setText(Text);
        QTest::keyClick(&Editor(Grid), Qt::Key_Return);
    }
    void PutCaption(int Row, const QString& Text) {
        Put(Right(), Row, clsImageBuffer::ColText, Text);
    }
    void SetTrack(int Row, const QStringList& Cells) {
        for (int Col = 0; Col < Cells.size(); ++Col) Tracks().SetTextMatrix(Row, Col, Cells[Col]);
    }
    // "row: cells" of each row in which something stands, rows from 1.
    std::string TrackCells() {
        QStringList All;
        for (int Row = 0; Row < Tracks().Rows(); ++Row) {
            QStringList Cells;
            for (int Col = 0; Col <= TrackList::ColFile; ++Col)
                Cells << Tracks().TextMatrix(Row, Col);
            if (!Cells.join(QString()).isEmpty())
                All << QString::number(Row + 1) + u": "_s + Cells.join(u',');
        }
        return All.join(u'|').toStdString();
    }
    // The stored show: name, method, then "place:slide[caption]", then "number:range file".
    std::string Stored(std::int32_t ShowID) {
        const clsNEBSlideShow* Found = Album().GetSlideShow(ShowID);
        if (!Found) return "none";
        QString All = Found->SlideShowName + u' ' + QString::number(Found->ProgressionMethod);
        for (const auto& Each : Found->Details)
            All += u" %1:%2[%3]"_s.arg(Each->SlideSeq).arg(Each->SlideID).arg(Each->SlideText);
        for (const auto& Each : Found->SoundTracks)
            All += u" | %1:%2-%3 %4"_s.arg(Each->SoundTrackSeq)
                       .arg(Each->SlideSeqStart)
                       .arg(Each->SlideSeqEnd)
                       .arg(Each->SoundTrackLoc);
        return All.toStdString();
    }
    std::string TrackFiles() {
        QStringList All;
        for (const DirEntry& Each : ListDir(TracksFolder()))
            All << Each.Name + u'=' + QString::fromUtf8(ReadFile(TracksFolder() + Each.Name));
        return All.join(u' ').toStdString();
    }
    void ExpectSaved() {
        Boxes.Expect(u"Slide Show Saved Successfully."_s, u"Save Successful"_s,
                     BoxIcon::Information, BoxAnswer::Ok);
    }
    void SaveWell() {
        ExpectSaved();
        Push("cmdSave");
    }
    // The question about changes to the show.
    void ExpectAsk(BoxAnswer Answer = BoxAnswer::Discard) {
        Boxes.Expect(u"Are you sure you want to discard the changes to the current slide show?"_s,
                     u"Discard Changes Confirmation"_s, BoxIcon::Question, Answer);
    }
    static void Tell(const QString& ObjectType, const QString& EventType, const EventKeys& Keys) {
        BroadcastEvent(ObjectType, EventType, nullptr, Keys);
    }

    TempFolder Sounds;
    FakeDialogs Dialogs;
    std::vector<std::shared_ptr<Mgr>> Windows;
    Mgr* W = nullptr;

  private:
    int mHue = 0;
};

}  // namespace neb::harness
