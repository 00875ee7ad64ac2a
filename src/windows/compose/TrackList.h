// The list of sound tracks of the slide show manager: each row lays a sound over a run of slides.
// It shows tracks and reads them back as values; files come into it by its "..." button and from
// other programs; each can be heard.
#pragma once

#include "albums/ShowContent.h"
#include "controls/grid/FlexGrid.h"

namespace neb {

class SongReading;
class TrackPlayer;

class TrackList : public FlexGrid {
    Q_OBJECT

  public:
    // In the order of the values. On the screen number and button stand first, and the song stands
    // before its file.
    enum TrackColumn {
        ColStart,
        ColEnd,
        ColRepeat,
        ColFitToSong,
        ColFade,
        ColFile,
        ColNumber,
        ColPlay,
        ColSong,
        Columns
    };

    explicit TrackList(QWidget* Parent = nullptr);
    QSize minimumSizeHint() const override;  // the headings and two rows

    // Columns and rows; cells can be edited and files dropped when Editable.
    void SetUp(bool Editable);
    // The album's folder of tracks, with closing separator: where files without a path lie.
    void SetFolder(const QString& Folder);
    void ShowTracks(const std::vector<ShowTrack>& Tracks);  // row 1 first; rows behind are emptied
    void ShowPlaces(const std::vector<ShowTrack>& Tracks);  // where they are others
    // A place that is no number is 0; a flag that was never ticked is off.
    std::vector<ShowTrack> Tracks() const;
    // The places 1 to Count are offered where one is chosen.
    void SetPlaces(int Count);
    void ChooseFile(int Row);  // asks for it; a cancel leaves the row
    void EmptySelected();      // the rows below keep their numbers

    // The file of a row, wherever it lies; empty for none.
    QString PathOf(int Row) const;
    // Lets the row be heard, or stops it where it plays.
    void PlayOrStop(int Row);
    void StopPlaying();

  Q_SIGNALS:
    void CannotPlay(const QString& Why);

  protected:
    bool viewportEvent(QEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;

  private:
    void SetUpColumns();
    void OrderColumns();
    void ExplainColumns();
    void OfferPlaces();
    bool FilterDrop(QEvent& Event);
    void TakeFiles(const QStringList& Files, int Row);
    void TakeFile(int Row, const QString& File);
    void FileTyped(int Row, int Col);
    void ProposePlaces(int Row);
    void EnteredCell(int Row);
    void AskSongs();
    void ShowSongs();
    void ShowButtons();

    bool mEditable = false;
    int mPlaces = 0;
    QString mFolder;
    SongReading* mSongs;
    TrackPlayer* mPlayer;
};

}  // namespace neb
