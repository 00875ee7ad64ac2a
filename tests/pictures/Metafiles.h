// Metafiles put together record by record, for the tests of what draws them.
#pragma once

#include <QColor>
#include <initializer_list>

#include "pictures/Blocks.h"
#include "pictures/Pictures.h"

namespace neb::tests {

inline QByteArray Words(std::initializer_list<int> Numbers) {
    QByteArray Bytes;
    for (int Number : Numbers)
        Bytes.append(static_cast<char>(Number & 255)).append(static_cast<char>(Number >> 8 & 255));
    return Bytes;
}

// A metafile of 200 by 100 units with a placeable header of 96 units an inch, or without one.
class Wmf {
  public:
    Wmf& Add(int Function, std::initializer_list<int> Arguments, const QByteArray& Rest = {}) {
        const QByteArray Body = Words(Arguments) + Rest;
        const int Length = 3 + static_cast<int>(Body.size() + 1) / 2;
        mRecords += Words({Length, Length >> 16, Function}) + Body;
        if (Body.size() % 2) mRecords += '\0';
        return *this;
    }
    Wmf& Brush(QColor C, int Style = 0, int Hatch = 0) {
        return Add(0x02FC, {Style, C.red() | C.green() << 8, C.blue(), Hatch});
    }
    Wmf& Pen(QColor C, int Style = 0, int Width = 0) {
        return Add(0x02FA, {Style, Width, 0, C.red() | C.green() << 8, C.blue()});
    }
    Wmf& Select(int Index) { return Add(0x012D, {Index}); }
    // Left, top, right, bottom.
    Wmf& Box(int L, int T, int R, int B) { return Add(0x041B, {B, R, T, L}); }
    QByteArray Bytes(bool Placeable = true) const {
        QByteArray All;
        if (Placeable) All = Words({0xCDD7, 0x9AC6, 0, 0, 0, 200, 100, 96, 0, 0, 0});
        return All + Words({1, 9, 0x300, 0, 0, 10, 0, 0, 0}) + mRecords + Words({3, 0, 0});
    }
    QImage Played(bool Placeable = true) const { return PlayedBytes(Bytes(Placeable)); }
    static QImage PlayedBytes(const QByteArray& Bytes) {
        const harness::TempFolder Folder;
        const QString File = Folder / QStringLiteral("a.wmf");
        WriteFile(File, Bytes);
        return Loaded(File).Picture();
    }

  private:
    QByteArray mRecords;
};

inline QByteArray Numbers(std::initializer_list<qint32> Values) {
    QByteArray Bytes;
    for (qint32 Value : Values) Bytes += LittleEndian(Value);
    return Bytes;
}

// Of an enhanced metafile.
inline QByteArray Record(qint32 Type, QByteArray Body) {
    Body.append((4 - Body.size() % 4) % 4, '\0');
    return Numbers({Type, static_cast<qint32>(Body.size()) + 8}) + Body;
}

// An enhanced metafile of 400 by 300 pixels, ten of them a millimetre.
inline QByteArray EmfOf(const QByteArray& Records, QSize Size = {400, 300}) {
    const QByteArray All = Records + Record(14, Numbers({0, 0, 20}));
    const int W = Size.width(), H = Size.height();
    return Numbers({1, 108, 0, 0, W - 1, H - 1, 0, 0, W * 10, H * 10}) + " EMF" +
           Numbers({0x10000, static_cast<qint32>(108 + All.size()), 6, 9, 0, 0, 0, 4000, 3000, 400,
                    300, 0, 0, 0, 400000, 300000}) +
           All;
}

// A font is made and chosen, and letters are written, or glyphs by their numbers in the font.
inline QByteArray EmfFont(int Index, const QString& Face, int Weight = 400, bool Italic = false,
                          int Tenths = 0) {
    const auto Text = [](const QString& Of) {
        return QByteArray(reinterpret_cast<const char*>(Of.utf16()), Of.size() * 2);
    };
    QByteArray Name = Text(Face);
    Name.resize(64, '\0');
    return Record(82, Numbers({Index, -40, 0, Tenths, Tenths, Weight, Italic, 0}) + Name +
                          QByteArray(228, '\0')) +
           Record(37, Numbers({Index}));
}

inline QByteArray EmfText(QPoint At, const QString& Text, bool Glyphs = false) {
    constexpr qint32 ByGlyphs = 0x10, TextAt = 76, One = 0x3F800000;
    QByteArray Letters(reinterpret_cast<const char*>(Text.utf16()), Text.size() * 2);
    Letters.append(Letters.size() % 4, '\0');
    const auto Count = static_cast<qint32>(Text.size());
    QByteArray Advances;
    for (qint32 I = 0; I < Count; ++I) Advances += LittleEndian(20);
    return Record(84, Numbers({0, 0, 400, 300, 1, One, One, At.x(), At.y(), Count, TextAt,
                               Glyphs ? ByGlyphs : 0, 0, 0, -1, -1,
                               TextAt + static_cast<qint32>(Letters.size())}) +
                          Letters + Advances);
}

}  // namespace neb::tests
