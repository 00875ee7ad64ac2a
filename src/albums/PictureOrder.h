// In which order pictures are listed before they come into an album, and what they are called then.
// The import windows and nebctl share it.
#pragma once

#include <QStringList>
#include <vector>

#include "pictures/PictureFacts.h"

namespace neb {

enum class PictureOrder { ByName, ByTime };

// As people read names, in the user's language: IMG_2 comes before IMG_10 (digits of any script),
// letters in any case, a name before the same with more behind it; equal ones by their letters'
// codes. Of paths the folders are compared first, one by one, so that a folder's own pictures stand
// before those of the folders in it: the order in which folders are walked.
bool IsNamedBefore(const QString& PathA, const QString& PathB);
// The same for many names or paths; 10,000 take some hundredths of a second.
void SortByName(QStringList& Paths);

// A picture to be listed, with what was read of it before.
struct PictureInOrder {
    QString Path;
    PictureFacts Facts;
};

// ByTime: as the pictures were taken, to the fraction of a second where the camera tells it. Where
// the file does not tell, its name may ("IMG-20200101-WA0001"); else the file's own last change
// stands in, which is when it was scanned or sent. What has no time at all comes last; of equal
// times the names decide. No file is looked at.
void SortPictures(std::vector<PictureInOrder>& Pictures, PictureOrder Order);

// The caption that is proposed for a picture: its own words where it has some, else the file's base
// name, else, for a name that cameras give, when it was taken; the base name where that is not told
// either. Nothing but letters, whatever the file's name.
QString ProposedCaption(const QString& Path, const PictureFacts& Facts);

}  // namespace neb
