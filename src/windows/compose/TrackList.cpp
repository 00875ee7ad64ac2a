#include "windows/compose/TrackList.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "albums/modLoadShow.h"
#include "support/FlagText.h"
#include "support/MediaTypes.h"
#include "support/Services.h"
#include "support/modFUFL.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

// The columns of flags have no texts of their own: the heading says what they are.
const struct {
    FlexKind Kind;
    const char* Heading;
} Headings[] = {
    {FlexKind::List, "Start Slide\nSeq"},
    {FlexKind::List, "End Slide\nSeq"},
    {FlexKind::Check, "Repeat"},
    {FlexKind::Check, "Fit To\nSong"},
    {FlexKind::Check, "Fade On\nLast Slide"},
    {FlexKind::Button, "Sound Track\nFile Location"},
};

QString PlaceText(std::optional<double> Place) {
    return Place ? ShortestDecimal(*Place) : QString();
}

std::optional<double> TypedPlace(const QString& Text) {
    if (Text.trimmed().isEmpty()) return {};
    return Val(Text);
}

// By column; a row without a track shows no flags either.
QStringList Texts(const ShowTrack& Track) {
    if (Track == ShowTrack()) return QStringList(TrackList::Columns);
    return {PlaceText(Track.SlideSeqStart), PlaceText(Track.SlideSeqEnd), FlagText(Track.Repeat),
            FlagText(Track.FitToSong),      FlagText(Track.Fade),         Track.SoundTrackLoc};
}

QStringList SoundsIn(const QMimeData& Dragged) {
    QStringList Files;
    for (const QUrl& Each : Dragged.urls())
        if (Each.isLocalFile() && IsSoundName(Each.toLocalFile())) Files << Each.toLocalFile();
    return Files;
}

}  // namespace

TrackList::TrackList(QWidget* Parent) : FlexGrid(Parent) {
    connect(this, &FlexGrid::EnterCell, this, &TrackList::OfferPlaces);
}

void TrackList::SetUp(bool Editable) {
    mEditable = Editable;
    SetCols(Columns);
    for (int Col = 0; Col < Columns; ++Col)
        SetColumn(Col, {.Kind = Headings[Col].Kind,
                        .Editable = Editable,
                        .Stretch = Col == ColFile,
                        .IsPath = Col == ColFile,
                        .Heading = QString::fromLatin1(Headings[Col].Heading)});
    SetRows(TrackRows);
    SetBeforeEdit([this](int Row, int) { return Row < Rows(); });
    viewport()->setAcceptDrops(true);
}

void TrackList::ShowTracks(const std::vector<ShowTrack>& Tracks) {
    SetRedraw(false);
    for (int Row = 0; Row < Rows(); ++Row) {
        const auto Index = static_cast<size_t>(Row);
        const QStringList Cells = Texts(Index < Tracks.size() ? Tracks[Index] : ShowTrack());
        for (int Col = 0; Col < Columns; ++Col) SetTextMatrix(Row, Col, Cells[Col]);
    }
    SetRedraw(true);
}

std::vector<ShowTrack> TrackList::Tracks() const {
    std::vector<ShowTrack> All;
    for (int Row = 0; Row < Rows(); ++Row)
        All.push_back({.SlideSeqStart = TypedPlace(TextMatrix(Row, ColStart)),
                       .SlideSeqEnd = TypedPlace(TextMatrix(Row, ColEnd)),
                       .Repeat = IsChecked(TextMatrix(Row, ColRepeat)),
                       .FitToSong = IsChecked(TextMatrix(Row, ColFitToSong)),
                       .Fade = IsChecked(TextMatrix(Row, ColFade)),
                       .SoundTrackLoc = TextMatrix(Row, ColFile).trimmed()});
    return All;
}

void TrackList::SetPlaces(int Count) {
    mPlaces = Count;
    OfferPlaces();
}

void TrackList::OfferPlaces() {
    QStringList Places;
    const bool Chosen = Col() == ColStart || Col() == ColEnd;
    for (int Place = 1; Chosen && Place <= mPlaces; ++Place) Places << QString::number(Place);
    for (int Each : {int(ColStart), int(ColEnd)})
        if (Column(Each).List != Places) SetColList(Each, Places);
}

void TrackList::ChooseFile(int Row) {
    if (!mEditable) return;
    const QString Present = TextMatrix(Row, ColFile).trimmed();
    const QString Folder = HoldsSeparator(Present) ? GetFilePath(Present) : mSoundFolder;
    const QString File =
        TheServices().Dialogs->OpenFile(tr("Choose a Sound Track"), Folder, SoundFilters());
    if (File.isEmpty()) return;
    mSoundFolder = GetFilePath(File);
    SetTextMatrix(Row, ColFile, File);
}

void TrackList::EmptySelected() {
    if (!mEditable) return;
    for (int I = 0; I < SelectedRows(); ++I)
        for (int Col = 0; Col < Columns; ++Col) SetTextMatrix(SelectedRow(I), Col, {});
}

bool TrackList::viewportEvent(QEvent* Event) {
    return FilterDrop(*Event) || FlexGrid::viewportEvent(Event);
}

// Sound files are let go over a row of the list.
bool TrackList::FilterDrop(QEvent& Event) {
    const auto Type = Event.type();
    if (Type != QEvent::DragEnter && Type != QEvent::DragMove && Type != QEvent::Drop) return false;
    auto& Drop = static_cast<QDropEvent&>(Event);
    const QStringList Files = SoundsIn(*Drop.mimeData());
    const int Row = indexAt(Drop.position().toPoint()).row();
    const bool Fits = mEditable && !Files.isEmpty() && (Row >= 0 || Type == QEvent::DragEnter);
    Drop.setDropAction(Qt::CopyAction);
    Drop.setAccepted(Fits);
    if (Fits && Type == QEvent::Drop) TakeFiles(Files, Row);
    return true;
}

// The first file is for the row itself, each further one for the next row without a file.
void TrackList::TakeFiles(const QStringList& Files, int Row) {
    FinishEdit();
    SetRow(Row);
    for (const QString& File : Files) {
        if (Row >= Rows()) return;
        SetTextMatrix(Row, ColFile, File);
        while (++Row < Rows() && !TextMatrix(Row, ColFile).trimmed().isEmpty()) {
        }
    }
}

}  // namespace neb
