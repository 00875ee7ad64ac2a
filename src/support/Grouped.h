// Numbers for people. For every text that counts pictures, pages, files, captions or bytes.
#pragma once

#include <QString>

namespace neb {

// The thousands parted as the user's language does it: "1,000" or "1.000".
QString Grouped(qint64 Number);
// With so many places behind the user's decimal point: "1,234.5" or "1.234,5".
QString Decimal(double Number, int Places);
// With as many as there are, and no thousands parted, as in a field to be typed in: "5.5" or "5,5".
QString Decimal(double Number);
// One or Many in the user's language, as QT_TR_NOOP marks them, with the number grouped: "%1
// slide",
// "%1 slides".
QString Counted(qint64 Number, const char* One, const char* Many);
// "1.2 GB", "640 MB", "12 KB", as powers of 1000.
QString ShortSize(qint64 Bytes);

// From now on as in English, whatever language the user has: for a program whose words scripts
// read.
void WriteNumbersPlainly();

}  // namespace neb
