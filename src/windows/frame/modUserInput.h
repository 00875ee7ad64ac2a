// Tests of what a user has entered that tell him in a box what is wrong. For every window.
#pragma once

#include <QString>

namespace neb {

// False after a box that names each illegal character of the text once.
bool ValidateUserInput(const QString& FieldName, const QString& Text);
// The folder of the albums below Root is no source of pictures: true after a box for a path that
// begins like it, to the letter. Root ends in a separator.
bool IsReservedForAlbums(const QString& Path, const QString& Root);

}  // namespace neb
