// The slides of the slide show manager: those of the album that are not in the show, those that
// are, in their order, and behind both a hidden list of all. Slides go from one list to the other
// and change places. The window fills it and reads the show back from it.
#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "albums/TrackRanges.h"
#include "support/KeepGoing.h"

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace neb {

class FlexGrid;
class clsNEBAlbum;
class clsNEBSlide;
class frmLoading;

// The row, from 0, for a place as it was typed, in a list of so many rows; none when it is no
// number or no place in the list. A fraction is rounded.
std::optional<int> TypedPlace(const QString& Text, int Rows);

class TwoLists : public QObject {
    Q_OBJECT

  public:
    // The two grids as they come from the designer; the hidden one, flxBuffer, becomes a child of
    // Owner. Slides can be moved and edited when Editable.
    TwoLists(FlexGrid& NonSelected, FlexGrid& Selected, QWidget& Owner, bool Editable);

    void Clear();
    // What the lists say while they are empty: whether there is an album at all, and one is chosen.
    void SayWhatToDo(bool HasAlbums, bool IsChosen);

    // Enters a slide of the album, or brings it up to date: in the list of all alone, as long as no
    // show has been sorted in, or in every list. A caption of the show's own stays.
    void ReadSlide(std::int32_t AlbumID, const clsNEBSlide& Slide,
                   const std::shared_ptr<frmLoading>& Loading);
    void RefreshSlide(std::int32_t AlbumID, const clsNEBSlide& Slide,
                      const std::shared_ptr<frmLoading>& Loading);
    // Puts these slides of the album into the show, in this order, and all others beside it. A
    // slide that is not in the album any more is dropped, and so is a second place of one.
    // GoesOn is asked at each slide; false leaves the lists as they are then.
    void TakeShow(const std::vector<ShowSlide>& Slides, const KeepGoing& GoesOn);
    SlideOrder Order() const;
    std::vector<ShowSlide> Slides() const;  // of the show, place 1 first

    // Those that are listed and not in the album any more. Hint is looked at first (0: none): of
    // thousands that are deleted one by one, each is found by itself.
    std::vector<std::int32_t> GoneFrom(const clsNEBAlbum& Album, std::int32_t Hint) const;
    void DropSlides(const std::vector<std::int32_t>& SlideIDs);

    // The selected slides, or all; the row behind those that went is selected, so that slide after
    // slide can be moved.
    void MoveIntoShow(bool All);
    void MoveOutOfShow(bool All);
    // Stands on a slide of the show; false where it is none.
    bool GoTo(std::int32_t SlideID);
    void MoveBy(int Step);  // the current slide of the show; -1: one place earlier
    // Rows that were dragged: into the show at the place where they were let go, out of it at the
    // end. The list of the album has no order of its own.
    void TakeDragged(FlexGrid& From, FlexGrid& To, int Before);
    void Renumber();
    void FinishEdits();

  Q_SIGNALS:
    void Counted(int NonSelected, int Selected);  // the rows, whenever they may be others
    // The slides of the show are others than Before, or in another order; Moved were taken to
    // another place. Not told where a show is taken up.
    void Rearranged(const SlideOrder& Before, const SlideOrder& After,
                    const std::set<std::int32_t>& Moved);

  private:
    void Rearrange(const std::set<std::int32_t>& Moved, const std::function<void()>& Do);
    void MoveTo(int Row, int NewRow);
    void SetUpGrid(FlexGrid& Grid, bool Editable);
    void Move(FlexGrid& From, FlexGrid& To, bool All);
    void PutBefore(FlexGrid& From, std::vector<int> Rows, int Before);
    void StandOn(int Row);
    void AfterEdit(int Row, int Col);
    void Reset();
    std::vector<int> PutIntoShow(const std::vector<ShowSlide>& Slides, const KeepGoing& GoesOn);

    FlexGrid& mNonSelected;
    FlexGrid& mSelected;
    FlexGrid& mAll;  // flxBuffer: every slide of the album, never seen
};

}  // namespace neb
