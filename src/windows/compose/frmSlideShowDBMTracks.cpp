// The list of sound tracks of the slide show manager: each row lays a sound over a run of slides.
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "albums/modLoadShow.h"
#include "controls/grid/FlexGrid.h"
#include "settings/modNEBSlideShow.h"
#include "support/MediaTypes.h"
#include "support/Services.h"
#include "support/modFUFL.h"
#include "ui_frmSlideShowDBM.h"
#include "windows/compose/frmSlideShowDBM.h"

namespace neb {
namespace {

// What stands in each column of a row.
QString ShowTrack::*const Cells[] = {
    &ShowTrack::SlideSeqStart, &ShowTrack::SlideSeqEnd, &ShowTrack::Repeat,
    &ShowTrack::FitToSong,     &ShowTrack::Fade,        &ShowTrack::SoundTrackLoc,
};

QStringList SoundsIn(const QMimeData& Dragged) {
    QStringList Files;
    for (const QUrl& Each : Dragged.urls())
        if (Each.isLocalFile() && IsSoundName(Each.toLocalFile())) Files << Each.toLocalFile();
    return Files;
}

}  // namespace

// The columns of flags have no texts of their own: the heading says what they are.
void frmSlideShowDBM::SetUpTracks() {
    const struct {
        FlexKind Kind;
        const char* Heading;
    } Columns[] = {
        {FlexKind::List, "Start Slide\nSeq"},
        {FlexKind::List, "End Slide\nSeq"},
        {FlexKind::Check, "Repeat"},
        {FlexKind::Check, "Fit To\nSong"},
        {FlexKind::Check, "Fade On\nLast Slide"},
        {FlexKind::Button, "Sound Track\nFile Location"},
    };
    FlexGrid& Grid = *mUi->flxSoundTracks;
    Grid.SetCols(TrackColumns);
    for (int Col = 0; Col < TrackColumns; ++Col)
        Grid.SetColumn(Col, {.Kind = Columns[Col].Kind,
                             .Editable = !ReadOnlyDB,
                             .Stretch = Col == ColFile,
                             .IsPath = Col == ColFile,
                             .Heading = QString::fromLatin1(Columns[Col].Heading)});
    Grid.SetRows(TrackRows);
    Grid.SetBeforeEdit([this](int Row, int) { return Row < mUi->flxSoundTracks->Rows(); });
    connect(&Grid, &FlexGrid::EnterCell, this, &frmSlideShowDBM::OfferPlaces);
    connect(&Grid, &FlexGrid::CellButtonClicked, this, &frmSlideShowDBM::ChooseFile);
    connect(&Grid, &FlexGrid::DeletePressed, this, &frmSlideShowDBM::EmptyTracks);
    Grid.viewport()->setAcceptDrops(true);
    Grid.viewport()->installEventFilter(this);
}

void frmSlideShowDBM::ShowTracks(const std::vector<ShowTrack>& Tracks) {
    FlexGrid& Grid = *mUi->flxSoundTracks;
    Grid.SetRedraw(false);
    for (int Row = 0; Row < Grid.Rows(); ++Row) {
        const auto Index = static_cast<size_t>(Row);
        const ShowTrack Track = Index < Tracks.size() ? Tracks[Index] : ShowTrack();
        for (int Col = 0; Col < TrackColumns; ++Col)
            Grid.SetTextMatrix(Row, Col, Track.*Cells[Col]);
    }
    Grid.SetRedraw(true);
}

std::vector<ShowTrack> frmSlideShowDBM::Tracks() const {
    const FlexGrid& Grid = *mUi->flxSoundTracks;
    std::vector<ShowTrack> All(static_cast<size_t>(Grid.Rows()));
    for (int Row = 0; Row < Grid.Rows(); ++Row)
        for (int Col = 0; Col < TrackColumns; ++Col)
            All[static_cast<size_t>(Row)].*Cells[Col] = Grid.TextMatrix(Row, Col);
    return All;
}

// The places that the show has, where one is chosen from them.
void frmSlideShowDBM::OfferPlaces() {
    FlexGrid& Grid = *mUi->flxSoundTracks;
    QStringList Places;
    const bool Chosen = Grid.Col() == ColStart || Grid.Col() == ColEnd;
    for (int Place = 1; Chosen && Place <= mUi->flxSelected->Rows(); ++Place)
        Places << QString::number(Place);
    for (int Col : {int(ColStart), int(ColEnd)})
        if (Grid.Column(Col).List != Places) Grid.SetColList(Col, Places);
}

void frmSlideShowDBM::ChooseFile(int Row) {
    const auto Held = shared_from_this();
    FlexGrid& Grid = *mUi->flxSoundTracks;
    if (ReadOnlyDB) return;
    Grid.FinishEdit();
    const QString Present = Grid.TextMatrix(Row, ColFile).trimmed();
    const QString Folder = HoldsSeparator(Present) ? GetFilePath(Present) : mSoundFolder;
    const QString File =
        TheServices().Dialogs->OpenFile(tr("Choose a Sound Track"), Folder, SoundFilters());
    if (File.isEmpty()) return;
    mSoundFolder = GetFilePath(File);
    Grid.SetTextMatrix(Row, ColFile, File);
}

// An empty row keeps its number, and the tracks below it theirs.
void frmSlideShowDBM::EmptyTracks() {
    FlexGrid& Grid = *mUi->flxSoundTracks;
    if (ReadOnlyDB) return;
    for (int I = 0; I < Grid.SelectedRows(); ++I)
        for (int Col = 0; Col < TrackColumns; ++Col)
            Grid.SetTextMatrix(Grid.SelectedRow(I), Col, {});
}

// Sound files are let go over a row of the list.
bool frmSlideShowDBM::FilterDrop(QEvent& Event) {
    const auto Type = Event.type();
    if (Type != QEvent::DragEnter && Type != QEvent::DragMove && Type != QEvent::Drop) return false;
    auto& Drop = static_cast<QDropEvent&>(Event);
    const QStringList Files = SoundsIn(*Drop.mimeData());
    const int Row = mUi->flxSoundTracks->indexAt(Drop.position().toPoint()).row();
    const bool Fits = !ReadOnlyDB && !Files.isEmpty() && (Row >= 0 || Type == QEvent::DragEnter);
    Drop.setDropAction(Qt::CopyAction);
    Drop.setAccepted(Fits);
    if (Fits && Type == QEvent::Drop) TakeFiles(Files, Row);
    return true;
}

// The first file is for the row itself, each further one for the next row without a file.
void frmSlideShowDBM::TakeFiles(const QStringList& Files, int Row) {
    FlexGrid& Grid = *mUi->flxSoundTracks;
    Grid.FinishEdit();
    Grid.SetRow(Row);
    for (const QString& File : Files) {
        if (Row >= Grid.Rows()) return;
        Grid.SetTextMatrix(Row, ColFile, File);
        while (++Row < Grid.Rows() && !Grid.TextMatrix(Row, ColFile).trimmed().isEmpty()) {
        }
    }
}

}  // namespace neb
