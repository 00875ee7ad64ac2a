// Numbers to and from text, as the settings file, the captions and the file names want them.
#pragma once

#include <QString>
#include <cstdint>

namespace neb {

// The tolerant parse: leading blanks are skipped, the longest number at the start counts (sign,
// digits, a point, an exponent); text that begins with no number is 0. Always a decimal point.
double Val(QStringView Text);

// Rounds to the nearest integer, halves to the even one; limited to the range of 32 bits.
std::int32_t CInt(double Value);

// The masks in use: "0…0" pads an integer with zeros to that many digits (more digits stay),
// "##0" rounds to an integer, "##0.0" to one decimal, "###,##0.0" also parts the thousands by
// commas. Halves go away from zero.
QString Format(double Value, const char* Mask);
QString Format(std::int32_t Value, const char* Mask);

// The shortest decimal form that reads back as the same value, without exponent for common sizes.
QString ShortestDecimal(double Value);
QString ShortestDecimal(float Value);

}  // namespace neb
