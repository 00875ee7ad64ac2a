// A large file that takes hours to write, perhaps: it lies beside its place under another name
// ("Holiday.mp4.new") until all of it is on the disk, and takes its own name by a rename. What lies
// at that place stays until then. Used by what makes films.
#pragma once

#include <QString>
#include <memory>

namespace neb {

// All of them throw Fault, with the path that the file is to have at last.
class FileInTheMaking {
  public:
    // What an ended program has left of a file of that path goes. A fault as well where another
    // program, or this one, is making a file of the same path at the moment, or a folder lies
    // there.
    explicit FileInTheMaking(const QString& Path);
    ~FileInTheMaking();  // the file goes unless it took its name
    FileInTheMaking(const FileInTheMaking&) = delete;
    FileInTheMaking& operator=(const FileInTheMaking&) = delete;

    // At the place where the last call ended, or where Seek has put it.
    void Write(const char* Data, qint64 Length);
    // Bytes from the start; what is skipped beyond the end is zeros until it is written.
    void Seek(qint64 Place);
    // Bytes read, fewer at the end alone. The place of writing stays.
    qint64 Read(qint64 Place, char* Into, qint64 MaxLength);
    qint64 Length() const;  // bytes, so far
    void Sync();            // all that was written is on the disk afterwards
    // After a Sync. The file is under its name, and that on the disk; nothing may be written more.
    void TakeName();

  private:
    struct State;
    std::unique_ptr<State> mState;
};

}  // namespace neb
