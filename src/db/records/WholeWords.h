// Which texts of a record are kept whole beside it, and which of those that were kept go with it
// still: a text counts only where a record of that key has the very bytes for which it was kept, so
// that a record that an earlier version of the program has changed wins. Used where records become
// objects and objects records.
#pragma once

#include <map>

#include "db/records/RecordCodec.h"
#include "db/records/WordsFile.h"

namespace neb {

namespace words {

// What the field of a record holds in the place of a text, or nothing where it holds that text
// (accents as letters of their own, or as parts of theirs, are one text, but two names of files).
std::optional<QByteArray> StoredInstead(FieldKind Kind, int Width, const QString& Text);
// As it is kept: valid, and up to a NUL, which ends it in the record too.
QString Kept(const QString& Text);

template <class Value>
inline constexpr bool IsText = std::is_same_v<std::remove_cvref_t<Value>, QString>;

// Visit gets the number of each text, its place in Row, its kind and its width.
template <class Record, class Visitor>
void ForEachText(Record& Row, Visitor Visit) {
    int Number = 0;
    const auto Look = [&](const auto& Field) {
        if constexpr (IsText<decltype(Row.*Field.Member)>)
            Visit(Number++, Row.*Field.Member, Field.Kind, Field.Width);
    };
    std::apply([&](const auto&... Fields) { (Look(Fields), ...); },
               LayoutOf<std::remove_const_t<Record>>::Fields);
}

template <class Record>
RecordKey KeyOf(const Record& Row) {
    RecordKey Key{};
    size_t Count = 0;
    bool IsBefore = true;
    const auto Look = [&](const auto& Field) {
        IsBefore = IsBefore && Field.Kind == FieldKind::Number;
        if constexpr (std::is_same_v<decltype(Row.*Field.Member), const std::int32_t&>)
            if (IsBefore) Key[Count++] = Row.*Field.Member;
    };
    std::apply([&](const auto&... Fields) { (Look(Fields), ...); }, LayoutOf<Record>::Fields);
    return Key;
}

}  // namespace words

// Adds what a record that is written cannot hold of its texts.
template <class Record>
void NoteWhole(std::vector<WholeText>& Into, const Record& Row) {
    words::ForEachText(Row, [&](int Number, const QString& Text, FieldKind Kind, int Width) {
        if (auto Instead = words::StoredInstead(Kind, Width, Text))
            Into.push_back({LayoutOf<Record>::File, Number, words::KeyOf(Row), std::move(*Instead),
                            words::Kept(Text)});
    });
}

// The texts of a file, to be given to the records that are read. Of records of one key and the same
// bytes the first gets the first text.
class WholeWords {
  public:
    explicit WholeWords(std::vector<WholeText> Texts);

    // Puts the whole texts into a record that was read, which are not given out again.
    template <class Record>
    void Complete(Record& Row) {
        if (mTexts.empty()) return;
        words::ForEachText(Row, [&](int Number, QString& Text, FieldKind Kind, int Width) {
            const Place At{LayoutOf<Record>::File, Number, words::KeyOf(Row)};
            Take(At, codec::Stored(Kind, Width, Text), Text);
        });
    }
    // Those that no record has got, in order.
    std::vector<WholeText> Left() const;

  private:
    using Place = std::tuple<RecordFile, int, RecordKey>;
    void Take(const Place& At, const QByteArray& Stored, QString& Text);

    std::map<Place, std::vector<WholeText>> mTexts;
};

}  // namespace neb
