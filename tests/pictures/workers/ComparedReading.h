// What comes of a picture behind the locked door and without one, side by side. For the tests of
// the processes that read pictures.
#pragma once

#include "pictures/Pictures.h"
#include "pictures/workers/ReadingHere.h"
#include "pictures/workers/ReadingLocked.h"

namespace neb::tests {

// The bytes, the picture or the words that a reader answers with.
struct Outcome {
    quint32 Number = 0;
    QString Sentence;
    QImage Picture;
    QSize Full;
    std::optional<QByteArray> Bytes;
    bool operator==(const Outcome&) const = default;
};

inline void PrintTo(const Outcome& Is, std::ostream* Out) {
    *Out << Is.Number << " \"" << Is.Sentence.toStdString() << "\" " << Is.Picture.width() << "x"
         << Is.Picture.height() << " of " << Is.Full.width() << "x" << Is.Full.height() << ", "
         << (Is.Bytes ? Is.Bytes->size() : -1) << " bytes";
}

template <class Work>
Outcome OutcomeOf(Work Do) {
    Outcome Is;
    try {
        Do(Is);
    } catch (const Fault& Reason) {
        Is.Number = Reason.Number();
        Is.Sentence = Reason.What();
    }
    return Is;
}

inline Outcome Decoded(PictureReader& By, const QByteArray& File, const NeededSize& Needed = {}) {
    return OutcomeOf([&](Outcome& Is) {
        const DecodedPicture Made = By.Decode(File, Needed);
        Is.Picture = Made.Picture.convertToFormat(QImage::Format_RGB32);
        Is.Full = Made.Full;
    });
}

// As one asks who shows a picture in a small place.
inline QSize AThird(QSize Full) {
    return {(Full.width() + 2) / 3, (Full.height() + 2) / 3};
}

// The same bits, sizes and words, of the whole and of less.
inline void ExpectSame(PictureReader& Locked, const QByteArray& File) {
    ReadingHere Here;
    EXPECT_EQ(Decoded(Here, File), Decoded(Locked, File));
    EXPECT_EQ(Decoded(Here, File, AThird), Decoded(Locked, File, AThird));
}

// All that else is made of a file behind the door.
inline std::vector<Outcome> MadeOf(PictureReader& By, const QByteArray& File) {
    std::vector<Outcome> All;
    for (const bool KeepsPlace : {true, false})
        All.push_back(OutcomeOf([&](Outcome& Is) {
            Is.Bytes = By.NotesFor({48, 32}, File, KeepsPlace);
        }));
    All.push_back(OutcomeOf([&](Outcome& Is) { Is.Bytes = By.WithoutPlace(File); }));
    for (const bool Mirrored : {false, true})
        for (int Quarters = 0; Quarters < 4; ++Quarters)
            All.push_back(OutcomeOf([&](Outcome& Is) {
                Is.Bytes = By.Turned(File, {Mirrored, Quarters});
            }));
    return All;
}

struct NamedFile {
    std::string Name;
    QByteArray Bytes;
};

// Every picture among the files of the tests, but those that are drawn.
inline std::vector<NamedFile> AllSamples() {
    std::vector<NamedFile> All;
    for (const char* Folder : {"pictures/", "today/"})
        for (const DirEntry& Entry : ListDir(harness::DataFile(Folder)))
            if (!Entry.IsFolder && !Entry.Name.endsWith(QLatin1String(".sh")))
                All.push_back(
                    {Entry.Name.toStdString(), ReadFile(harness::DataFile(Folder) + Entry.Name)});
    All.push_back({"photo.pcd", ReadFile(harness::DataFile("photo.pcd"))});
    return All;
}

}  // namespace neb::tests
