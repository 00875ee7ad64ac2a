#include "support/modNumbers.h"

#include <QLocale>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace neb {
namespace {

template <typename Number>
QString Shortest(Number Value) {
    char Buffer[64];
    auto End = std::to_chars(Buffer, Buffer + sizeof Buffer, Value).ptr;
    if (std::memchr(Buffer, 'e', static_cast<size_t>(End - Buffer)) && std::abs(Value) < 1e15 &&
        (Value == 0 || std::abs(Value) > 1e-5))
        End = std::to_chars(Buffer, Buffer + sizeof Buffer, Value, std::chars_format::fixed).ptr;
    return QString::fromLatin1(Buffer, End - Buffer);
}

QString ZeroPadded(std::int64_t Value, int Digits) {
    const QString Text = QString::number(std::abs(Value)).rightJustified(Digits, u'0');
    return Value < 0 ? u'-' + Text : Text;
}

QString WithThousands(QString Text) {
    const qsizetype Point = Text.indexOf(u'.');
    const qsizetype First = Text.startsWith(u'-') ? 1 : 0;
    for (qsizetype At = (Point < 0 ? Text.size() : Point) - 3; At > First; At -= 3)
        Text.insert(At, u',');
    return Text;
}

}  // namespace

double Val(QStringView Text) {
    const QByteArray Bytes = Text.trimmed().toLatin1();
    const char* First = Bytes.constData();
    const char* Last = First + Bytes.size();
    if (Last - First > 1 && First[0] == '+' && First[1] != '-') ++First;
    double Value = 0;
    const auto Result = std::from_chars(First, Last, Value);
    return Result.ec == std::errc() && std::isfinite(Value) ? Value : 0;
}

std::int32_t CInt(double Value) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (std::isnan(Value)) return 0;
    const double Floor = std::floor(Value);
    const double Rest = Value - Floor;
    const bool Up = Rest > 0.5 || (Rest == 0.5 && std::fmod(Floor, 2.0) != 0);
    const double Rounded = Up ? Floor + 1 : Floor;
    return static_cast<std::int32_t>(std::clamp<double>(Rounded, Limits::min(), Limits::max()));
}

QString Format(double Value, const char* Mask) {
    const char* Point = std::strchr(Mask, '.');
    const int Decimals = Point ? static_cast<int>(std::strlen(Point)) - 1 : 0;
    const double Scale = std::pow(10.0, Decimals);
    const QString Text = QString::number(std::round(Value * Scale) / Scale, 'f', Decimals);
    if (std::strchr(Mask, ',')) return WithThousands(Text);
    return Mask[0] == '0' && !Point
               ? ZeroPadded(Text.toLongLong(), static_cast<int>(std::strlen(Mask)))
               : Text;
}

QString Format(std::int32_t Value, const char* Mask) {
    return Format(static_cast<double>(Value), Mask);
}

QString ShortestDecimal(double Value) {
    return Shortest(Value);
}
QString ShortestDecimal(float Value) {
    return Shortest(Value);
}

}  // namespace neb
