// The rows of the two lists of an import window: pictures not yet selected, and those that are. A
// picture that was read becomes a row, rows follow the choices of order and of captions, and the
// selected ones are handed to the import.
#pragma once

#include <QStringList>
#include <memory>
#include <vector>

#include "albums/PictureOrder.h"
#include "albums/modImport.h"
#include "windows/import/ThumbnailSpool.h"

namespace neb {

class FlexGrid;

class PictureRows {
  public:
    // The columns of both lists. Data: the picture's number in the spool; a number where the user
    // has typed the caption; a number where an import could not take the picture in.
    enum Column { ColPicture, ColCaption, ColPath, ColCount };

    PictureRows(FlexGrid& NonSelected, FlexGrid& Selected);

    // A row for a picture at the end of those not selected. OwnWords: as in ImportOptions.
    void Add(const QString& Path, const ListedPicture& Picture, const PictureFacts& Facts,
             bool OwnWords);
    // Puts those not selected in order, from row First on; the selected ones are in the user's own.
    void Sort(PictureOrder Order, int First = 0);
    // Those that are selected, where the user has left their order to the window.
    void SortSelected(PictureOrder Order);
    // Captions that the user has not typed are proposed anew.
    void ProposeCaptions(bool OwnWords);
    // To be told of each edit that has ended: what differs from the proposal was typed.
    void NoteTyped(FlexGrid& Grid, int Row, bool OwnWords);

    // Whether a caption of a selected one was typed.
    bool HasTyped() const;

    QStringList SelectedPaths() const;
    // Of one that could not be taken in the thumbnail is left away: the file may be another picture
    // by now.
    PictureToImport Selected(int Row);
    void MarkLeftOut(int Row);
    // Takes these rows, ascending, out of the selected ones.
    void DropSelected(const std::vector<int>& Rows);

  private:
    void SortIn(FlexGrid& Grid, PictureOrder Order, int First);
    int NumberOf(const FlexGrid& Grid, int Row) const;
    ShapedPicture ShownIn(const FlexGrid& Grid, int Row);
    QString Proposed(const FlexGrid& Grid, int Row, bool OwnWords) const;
    void ProposeIn(FlexGrid& Grid, bool OwnWords);

    FlexGrid& mNonSelected;
    FlexGrid& mSelected;
    std::unique_ptr<ThumbnailSpool> mSpool;  // null before the first row
};

}  // namespace neb
