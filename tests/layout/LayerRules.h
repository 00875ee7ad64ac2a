// What the layout of the sources has to keep to, as checks on the text of one file: each answers
// with sentences that name the file and line, none when all is well. Used by LayersTest alone.
#pragma once

#include <QString>
#include <QStringList>

namespace neb::layout {

// A folder of src: "support/files", on which floor, what of Qt it knows ("texts", "pictures" or
// "windows"), and the top folders that its own is built upon ("*": any).
struct Room {
    QString Folder;
    int Floor = 0;
    QString Knows;
    QStringList Uses;
};

// From the ground up: a room uses those before it and none after it.
using House = QList<Room>;

// The house as CMake tells it: "1:support:texts:|2:db:texts:support".
House ReadHouse(const QString& List);
// The room of a path below src; null when it lies in none.
const Room* RoomOf(const House& Rooms, const QString& Path);

// Rooms that stand after one of a higher floor.
QStringList FloorFaults(const House& Rooms);
// Folders of more than 35 files; the paths of all files are given.
QStringList CrowdFaults(const QStringList& Sources);

// The same text with comments blanked, and strings too unless they are wanted; lines stay.
QString WithoutComments(const QString& Text, bool KeepStrings);

// Includes that go up the house, or sideways to what the room is not built upon, that are not
// written from the root, or that bring windows or pictures into a room that knows none.
QStringList IncludeFaults(const House& Rooms, const QString& Path, const QString& Text);
// Uses of file system classes outside the host file routines.
QStringList FileSystemFaults(const QString& Path, const QString& Text);
// Sources of more than 400 lines, headers of more than 150.
QStringList SizeFaults(const QString& Path, const QString& Text);
// The drawing of src/ in a fenced block has to name all rooms, the roof first.
QStringList DrawingFaults(const House& Rooms, const QString& Document);

// Each room has a line "- `room` — `File.h`: ..." in the document, with a file that it holds.
QStringList GuideFaults(const House& Rooms, const QString& Document, const QStringList& Sources);
// Each window (a form, by its header) stands in the table of windows with its
// class and its folder: "| Title | `frmClass` | `windows/x` | page |".
QStringList WindowTableFaults(const QString& Document, const QStringList& Forms);
// Words that a file below the windows, or a window, has to leave to others: boxes are shown by
// windows alone, records changed by db and albums alone, changes told by windows/frame alone.
QStringList WordFaults(const QString& Path, const QString& Text);

}  // namespace neb::layout
