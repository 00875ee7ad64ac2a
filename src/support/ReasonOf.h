// What went wrong, in words for the user: of a fault, and of whatever else is thrown, want of
// memory first of all. Windows and the application object show it.
#pragma once

#include <QString>
#include <exception>

namespace neb {

// A fault's sentence with its file on a line of its own, as a box shows it.
QString ReasonOf(const std::exception& Problem);
// The sentence alone, where the file is named beside it.
QString SentenceOf(const std::exception& Problem);
// What another process of ours has said, all of which speak English, with whatever numbers in it.
// What has no translation stays as it was said.
QString InUsersLanguage(const QString& Said);

}  // namespace neb
