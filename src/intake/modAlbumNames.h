// The calls that rename and delete albums, and what the windows around names share: the question
// for a missing name, the cleaning of quotes, and the removal of a deleted album's files.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace neb {

// Show their window modally; true when something was done. AlbumID 0: the user chooses the album.
bool ShowRenameAlbum(std::int32_t AlbumID);
bool ShowDeleteAlbum(std::int32_t AlbumID);

// False after a box when the name is empty or blank. Adjective is the noun of the name.
bool IsNameGiven(const QString& Adjective, const QString& Name);
// Straight quotes become typographic ones when they are typed, and when the field is left.
void KeepQuotesClean(QLineEdit& Field);

// Takes the sounds, the pictures and the folders of an album off the disk. What cannot be removed,
// and what is not the program's, stays with its folder. A link is removed, what it leads to is not.
// Between is called all the while.
void DeleteAlbumFiles(const QString& DBPath, std::int32_t AlbumID,
                      const std::function<void()>& Between);

}  // namespace neb
