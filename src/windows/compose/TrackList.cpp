#include "windows/compose/TrackList.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QUrl>

#include "albums/TrackRanges.h"
#include "albums/modLoadShow.h"
#include "controls/grid/HeaderTips.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/FlagText.h"
#include "support/MediaTypes.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/files/HostNames.h"
#include "support/modFUFL.h"
#include "support/modNumbers.h"
#include "support/modText.h"
#include "windows/compose/SongReading.h"
#include "windows/compose/TrackPlayer.h"
#include "windows/frame/modWindowState.h"

namespace neb {
namespace {

// The columns of flags have no texts of their own: the heading says what they are.
const struct {
    FlexKind Kind;
    const char* Heading;
    int Letters;  // wide; 0: what its kind needs
    bool Editable = true;
} Looks[TrackList::Columns] = {
    {FlexKind::List, QT_TR_NOOP("Start Slide\nSeq"), 0},
    {FlexKind::List, QT_TR_NOOP("End Slide\nSeq"), 0},
    {FlexKind::Check, QT_TR_NOOP("Repeat"), 0},
    {FlexKind::Check, QT_TR_NOOP("Fit To\nSong"), 0},
    {FlexKind::Check, QT_TR_NOOP("Fade On\nLast Slide"), 0},
    {FlexKind::Button, QT_TR_NOOP("Sound Track\nFile Location"), 0},
    {FlexKind::Fixed, QT_TR_NOOP("No."), 5, false},
    {FlexKind::Text, QT_TR_NOOP("Hear"), 8, false},
    {FlexKind::Text, QT_TR_NOOP("Song"), 0, false},
};

// A button in a cell; empty cells have none.
class PlayButtons : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* Painter, const QStyleOptionViewItem& Option,
               const QModelIndex& Index) const override {
        QStyleOptionViewItem Cell = Option;
        initStyleOption(&Cell, Index);
        QStyleOptionButton Button;
        Button.text = std::exchange(Cell.text, QString());
        QStyle& Style = *Option.widget->style();
        Style.drawControl(QStyle::CE_ItemViewItem, &Cell, Painter, Option.widget);
        if (Button.text.isEmpty()) return;
        Button.rect = Option.rect.adjusted(2, 1, -2, -1);
        Button.palette = Option.palette;
        Button.fontMetrics = Option.fontMetrics;
        Button.state =
            QStyle::State_Enabled | QStyle::State_Raised | (Option.state & QStyle::State_HasFocus);
        Style.drawControl(QStyle::CE_PushButton, &Button, Painter, nullptr);
    }
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
    if (Track == ShowTrack()) return QStringList(TrackList::ColFile + 1);
    return {PlaceText(Track.SlideSeqStart), PlaceText(Track.SlideSeqEnd), FlagText(Track.Repeat),
            FlagText(Track.FitToSong),      FlagText(Track.Fade),         Track.SoundTrackLoc};
}

QString LastFolder() {
    return ReadText(OpenSettings(), Setting::SoundFolder);
}

void KeepLastFolder(const QString& Folder) {
    if (Folder == LastFolder() || Folder.contains(u'\n')) return;  // a setting is one line
    clsSettings Settings = OpenSettings();
    PutText(Settings, Setting::SoundFolder, Folder);
    SaveMemory(Settings);
}

QStringList SoundsIn(const QMimeData& Dragged) {
    QStringList Files;
    for (const QUrl& Each : Dragged.urls())
        if (const QString Path = FileOfUrl(Each); IsSoundName(Path)) Files << Path;
    return Files;
}

}  // namespace

TrackList::TrackList(QWidget* Parent)
    : FlexGrid(Parent), mSongs(new SongReading(this)), mPlayer(new TrackPlayer(this)) {
    connect(this, &FlexGrid::EnterCell, this, &TrackList::EnteredCell);
    connect(this, &FlexGrid::AfterEdit, this, &TrackList::FileTyped);
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex& Cell) {
        if (Cell.column() == ColPlay) PlayOrStop(Cell.row());
    });
    connect(mSongs, &SongReading::Read, this, &TrackList::ShowSongs);
    connect(mPlayer, &TrackPlayer::Changed, this, &TrackList::ShowButtons);
    connect(mPlayer, &TrackPlayer::Failed, this, &TrackList::CannotPlay);
}

void TrackList::SetUp(bool Editable) {
    mEditable = Editable;
    SetUpColumns();
    OrderColumns();
    ExplainColumns();
    SetRows(TrackRows);
    for (int Row = 0; Row < Rows(); ++Row) SetTextMatrix(Row, ColNumber, QString::number(Row + 1));
    SetBeforeEdit([this](int Row, int) { return Row < Rows(); });
    setItemDelegateForColumn(ColPlay, new PlayButtons(this));
    viewport()->setAcceptDrops(true);
}

QSize TrackList::minimumSizeHint() const {
    const int Rows = 2 * verticalHeader()->defaultSectionSize();
    const int Edges = horizontalHeader()->sizeHint().height() +
                      horizontalScrollBar()->sizeHint().height() + 2 * frameWidth();
    return FlexGrid::minimumSizeHint().expandedTo({0, Rows + Edges});
}

void TrackList::SetUpColumns() {
    SetCols(Columns);
    const int Letter = fontMetrics().averageCharWidth();
    for (int Col = 0; Col < Columns; ++Col)
        SetColumn(Col, {.Kind = Looks[Col].Kind,
                        .Editable = mEditable && Looks[Col].Editable,
                        .Stretch = Col == ColFile || Col == ColSong,
                        .IsPath = Col == ColFile,
                        .Width = Looks[Col].Letters * Letter,
                        .Align = Col == ColPlay ? Qt::AlignHCenter : Qt::AlignLeft,
                        .Heading = tr(Looks[Col].Heading)});
}

void TrackList::ExplainColumns() {
    QStringList Tips(Columns);
    Tips[ColNumber] = tr("The number of the track; tracks are heard in this order");
    Tips[ColPlay] = tr("Play lets the track be heard here; Stop ends it");
    Tips[ColStart] = tr("With which slide of the show the track begins, by its number in the show");
    Tips[ColEnd] = tr("With which slide of the show the track ends");
    Tips[ColRepeat] = tr("A track that is over before its last slide begins anew");
    Tips[ColFitToSong] = tr("Its slides stay for so long that they and the track end together");
    Tips[ColFade] = tr("The track grows quieter while its last slide is shown");
    Tips[ColFile] = tr("The file of the sound; the ... button chooses one");
    Tips[ColSong] = tr("Artist and title, where the file names them");
    SetHeaderTips(*this, Tips);
}

void TrackList::OrderColumns() {
    QHeaderView& Header = *horizontalHeader();
    Header.moveSection(Header.visualIndex(ColNumber), 0);
    Header.moveSection(Header.visualIndex(ColPlay), 1);
    Header.moveSection(Header.visualIndex(ColSong), Header.visualIndex(ColFile));
}

void TrackList::SetFolder(const QString& Folder) {
    mFolder = Folder;
    StopPlaying();
}

void TrackList::ShowTracks(const std::vector<ShowTrack>& Tracks) {
    SetRedraw(false);
    for (int Row = 0; Row < Rows(); ++Row) {
        const auto Index = static_cast<size_t>(Row);
        const QStringList Cells = Texts(Index < Tracks.size() ? Tracks[Index] : ShowTrack());
        for (int Col = 0; Col < Cells.size(); ++Col) SetTextMatrix(Row, Col, Cells[Col]);
    }
    SetRedraw(true);
    AskSongs();
}

void TrackList::ShowPlaces(const std::vector<ShowTrack>& Shown) {
    const std::vector<ShowTrack> Before = Tracks();
    for (size_t Row = 0; Row < std::min(Before.size(), Shown.size()); ++Row) {
        const ShowTrack &Was = Before[Row], &Is = Shown[Row];
        if (Was.SlideSeqStart != Is.SlideSeqStart)
            SetTextMatrix(static_cast<int>(Row), ColStart, PlaceText(Is.SlideSeqStart));
        if (Was.SlideSeqEnd != Is.SlideSeqEnd)
            SetTextMatrix(static_cast<int>(Row), ColEnd, PlaceText(Is.SlideSeqEnd));
    }
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
    const QString Folder = HoldsSeparator(Present) ? GetFilePath(Present) : LastFolder();
    const QString File =
        TheServices().Dialogs->OpenFile(tr("Choose a Sound Track"), Folder, SoundFilters());
    if (File.isEmpty()) return;
    KeepLastFolder(GetFilePath(File));
    TakeFile(Row, File);
}

void TrackList::TakeFile(int Row, const QString& File) {
    SetTextMatrix(Row, ColFile, File);
    FileTyped(Row, ColFile);
}

// Of a path that was typed as well.
void TrackList::FileTyped(int Row, int Col) {
    if (Col != ColFile) return;
    if (!PathOf(Row).isEmpty()) ProposePlaces(Row);
    AskSongs();
}

// Places that somebody has given stay.
void TrackList::ProposePlaces(int Row) {
    const bool HasPlace = !TextMatrix(Row, ColStart).trimmed().isEmpty() ||
                          !TextMatrix(Row, ColEnd).trimmed().isEmpty();
    const auto Range = ProposedRange(Tracks(), static_cast<size_t>(mPlaces));
    if (HasPlace || !Range) return;
    SetTextMatrix(Row, ColStart, QString::number(Range->First));
    SetTextMatrix(Row, ColEnd, QString::number(Range->Last));
}

void TrackList::EmptySelected() {
    if (!mEditable) return;
    for (int I = 0; I < SelectedRows(); ++I)
        for (int Col = 0; Col <= ColFile; ++Col) SetTextMatrix(SelectedRow(I), Col, {});
    AskSongs();
}

QString TrackList::PathOf(int Row) const {
    const QString File = TextMatrix(Row, ColFile).trimmed();
    return File.isEmpty() || HoldsSeparator(File) ? File : mFolder + File;
}

void TrackList::PlayOrStop(int Row) {
    const QString Path = PathOf(Row);
    const bool Plays = !mPlayer->Playing().isEmpty() && mPlayer->Playing() == Path;
    if (Plays || Path.isEmpty()) return StopPlaying();
    mPlayer->Play(Path);
}

void TrackList::StopPlaying() {
    mPlayer->Stop();
}

// Whoever goes to another row listens no longer.
void TrackList::EnteredCell(int Row) {
    OfferPlaces();
    const QString& Playing = mPlayer->Playing();
    if (!Playing.isEmpty() && PathOf(Row) != Playing) StopPlaying();
}

// Until its name has been read a song is known by its file.
void TrackList::AskSongs() {
    QStringList Paths;
    for (int Row = 0; Row < Rows(); ++Row)
        if (const QString Path = PathOf(Row); !Path.isEmpty()) Paths << Path;
    const QString& Playing = mPlayer->Playing();
    if (!Playing.isEmpty() && !Paths.contains(Playing)) StopPlaying();
    ShowSongs();
    ShowButtons();
    Paths.removeDuplicates();
    mSongs->Ask(Paths);
}

void TrackList::ShowSongs() {
    for (int Row = 0; Row < Rows(); ++Row) {
        const QString Path = PathOf(Row);
        const QString Song = mSongs->Names().value(Path, ReadableText(GetFileName(Path)));
        if (TextMatrix(Row, ColSong) != Song) SetTextMatrix(Row, ColSong, Song);
    }
}

void TrackList::ShowButtons() {
    for (int Row = 0; Row < Rows(); ++Row) {
        const QString Path = PathOf(Row);
        const QString Text = Path.isEmpty()               ? QString()
                             : Path == mPlayer->Playing() ? tr("Stop")
                                                          : tr("Play", "a track");
        if (TextMatrix(Row, ColPlay) != Text) SetTextMatrix(Row, ColPlay, Text);
    }
}

// Space in the columns that are not edited, and Ctrl+Space in all.
void TrackList::keyPressEvent(QKeyEvent* Event) {
    const bool Asks = Event->key() == Qt::Key_Space && Row() >= 0 && !IsEditing();
    const bool OnSong = Event->modifiers() == Qt::NoModifier &&
                        (Col() == ColPlay || Col() == ColSong || Col() == ColNumber);
    if (Asks && (OnSong || Event->modifiers() == Qt::ControlModifier)) return PlayOrStop(Row());
    FlexGrid::keyPressEvent(Event);
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
        TakeFile(Row, File);
        while (++Row < Rows() && !TextMatrix(Row, ColFile).trimmed().isEmpty()) {
        }
    }
}

}  // namespace neb
