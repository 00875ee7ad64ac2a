// The list of sound tracks of the slide show manager: each row lays a sound over a run of slides.
// It shows tracks and reads them back as values; files come into it by its "..." button and from
// other programs.
#pragma once

#include "albums/ShowContent.h"
#include "controls/grid/FlexGrid.h"

namespace neb {

class TrackList : public FlexGrid {
    Q_OBJECT

  public:
    enum TrackColumn { ColStart, ColEnd, ColRepeat, ColFitToSong, ColFade, ColFile, Columns };

    explicit TrackList(QWidget* Parent = nullptr);

    // Columns and rows; cells can be edited and files dropped when Editable.
    void SetUp(bool Editable);
    void ShowTracks(const std::vector<ShowTrack>& Tracks);  // row 1 first; rows behind are emptied
    // A place that is no number is 0; a flag that was never ticked is off.
    std::vector<ShowTrack> Tracks() const;
    // The places 1 to Count are offered where one is chosen.
    void SetPlaces(int Count);
    void ChooseFile(int Row);  // asks for it; a cancel leaves the row
    void EmptySelected();      // the rows below keep their numbers

  protected:
    bool viewportEvent(QEvent* Event) override;

  private:
    void OfferPlaces();
    bool FilterDrop(QEvent& Event);
    void TakeFiles(const QStringList& Files, int Row);

    bool mEditable = false;
    int mPlaces = 0;
    QString mSoundFolder;  // where the last file was chosen
};

}  // namespace neb
