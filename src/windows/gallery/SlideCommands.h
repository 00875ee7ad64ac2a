// What can be done to slides where an album is looked through, the same among the thumbnails and in
// the full screen: captions stored, slides turned, deleted, printed, shown in the slide manager.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QMenu;
class QWidget;
QT_END_NAMESPACE

namespace neb {

// Whether albums may be changed; a box tells why not.
bool MayChangeSlides();
// Cleaned as in all windows. A refusal is told in its box.
void StoreCaption(std::int32_t AlbumID, std::int32_t SlideID, const QString& Caption);
// Asks first, and tells of those that are still there. Window: the one that asks.
void DeleteSlidesAsked(const QWidget& Window, std::int32_t AlbumID,
                       const std::vector<std::int32_t>& SlideIDs);
void TurnSlides(std::int32_t AlbumID, const std::vector<std::int32_t>& SlideIDs, int Quarters);
// Shows the dialog that prints one slide, or the one that prints contact sheets of several.
void PrintSlides(std::int32_t AlbumID, const std::vector<std::int32_t>& SlideIDs);
// Shows the dialog that prints a sheet full of one slide.
void PrintSlideSheet(std::int32_t AlbumID, std::int32_t SlideID);
void OpenInSlideManager(std::int32_t AlbumID, std::int32_t SlideID);

// An entry of the menu. Keys: as the menu names them.
struct SlideEntry {
    const char* Name;  // empty: a separator
    const char *Text, *Keys, *Icon;
    bool Changes, IsForOne;  // the database; one slide alone
};
// Entries that cannot be used are grey. The name of the one that was chosen; empty for none.
QString AskInMenu(QWidget& Window, const std::vector<SlideEntry>& Entries, const QPoint& GlobalPos,
                  bool IsOne);

}  // namespace neb
