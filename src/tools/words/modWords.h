// The words behind a command of nebctl: options with values, numbers, sizes. Used by the commands
// that take more than a directory.
#pragma once

#include <QSize>
#include <QStringList>
#include <optional>

namespace neb {

// The value behind a word, which goes with the word; nothing when the word is not there. The
// value is empty when the line ends before it.
std::optional<QString> TakeOption(QStringList& Words, const QString& Name);
// Nothing for what is no whole number from Low to High.
std::optional<int> WholeNumber(const QString& Text, int Low, int High);
// Of "1920x1080", sides 1 to 16384; nothing for what is no size.
std::optional<QSize> SizeOf(const QString& Text);

// A number of things, such as "1 slide" or "3 slides".
QString Counted(int Number, const char* What);

}  // namespace neb
