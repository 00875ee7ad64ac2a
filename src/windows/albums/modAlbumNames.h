// The calls that rename and delete albums, and what the windows around names share: what is said of
// a missing name, and what a field does in which a name is typed.
#pragma once

#include <QString>
#include <cstdint>

#include "support/Answer.h"

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace neb {

// Show their window modally; true when something was done. AlbumID 0: the user chooses the album.
bool ShowRenameAlbum(std::int32_t AlbumID);
bool ShowDeleteAlbum(std::int32_t AlbumID);

// Asks whether an album that the user has pointed at is to be deleted, and deletes it; false when
// it is not.
bool DeleteAlbumAsked(std::int32_t AlbumID);
// The question alone.
bool IsAlbumToBeDeleted();

// Refused when the name is empty or blank. Adjective is the noun of the name.
Answer<> CheckName(const QString& Adjective, const QString& Name);
// For a field in which the name of an album or a show is typed: it grows no longer than it can be
// kept, straight quotes become typographic ones when they are typed, and when the field is left all
// of it is as it is kept.
void KeepNameClean(QLineEdit& Field);
// The same of the quotes alone, for texts that are no names.
void KeepQuotesClean(QLineEdit& Field);
// The field with a name that was refused, ready to be typed anew.
void ReturnTo(QLineEdit& Field);

}  // namespace neb
