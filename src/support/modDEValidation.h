// The tests and filters that every entry field runs through. Straight quotes become typographic
// ones on their way in, digit fields take digits alone.
//
// Keys are Windows-1252 codes; a filter changes the code of the key about to be inserted, 0
// cancels it.
#pragma once

#include <QString>
#include <cstdint>

namespace neb {

// The text of an entry field and the number of characters left of its caret.
struct EntryState {
    QString Text;
    int SelStart = 0;
};

// Straight quotes replaced: opening ones at the start, behind a blank or a line feed, closing
// ones elsewhere. May be run any number of times.
QString ConvertQuotes(const QString& Text);
// The same for one key in a text field, and in the cell editor of a grid.
void FixQuoteKey(const EntryState& Field, std::int16_t& KeyAscii);
void FixQuoteKeyInGrid(const EntryState& Editor, std::int16_t& KeyAscii);
// What a record has room for of a caption or a name, and all that earlier versions of the program
// know of it: 80 bytes of Windows-1252, of which a character that the code page does not have may
// need several. Whole characters only.
constexpr qsizetype RecordTextBytes = 80;
QString FitToRecord(const QString& Text);
// UTF-16 units that a caption may have, and the name of an album or a show.
constexpr qsizetype MaxCaption = 2000;
constexpr qsizetype MaxName = 80;
// A typed caption as it is kept: its quotes converted, and no longer than MaxCaption.
QString CleanText(const QString& Text);
// A typed name of an album or a show as it is kept: its quotes converted, its letters composed. One
// that is too long stays so, and is refused by whoever is to keep it.
QString CleanName(const QString& Text);
// A letter may be one code or two, "é" or "e" and the accent, as systems have it: it looks the
// same, and it is the same in the name of an album or a show.
QString ComposedName(const QString& Name);
// What two names have in common that are the same in any case.
QString CaselessName(const QString& Name);
// Digits alone, with a "-" in front when AllowNegative; an empty text passes. On a refusal
// Message names the first character that is no digit.
bool IsNumericText(const QString& Text, QString& Message, bool AllowNegative);
// Lets digits and backspace pass, and a "-" at the start when AllowNegative.
void FilterNumericKey(const EntryState& Editor, std::int16_t& KeyAscii, bool AllowNegative);

}  // namespace neb
