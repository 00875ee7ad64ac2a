// The settings file "QLM.ini": sections and keys with text values. Everything that a window or a
// show remembers goes through it; a user's own comments in the file stay.
#pragma once

#include <QString>
#include <memory>

namespace neb {

class clsSettings {
  public:
    clsSettings();
    ~clsSettings();
    clsSettings(clsSettings&&) noexcept;
    clsSettings& operator=(clsSettings&&) noexcept;

    void SetFileName(const QString& Path);
    const QString& FileName() const { return mFileName; }
    // The stored text, or Default when there is none. Section "" is the head of the file.
    QString GetValue(const QString& Section, const QString& Key, const QString& Default) const;
    // A value is one line: line breaks in it become blanks.
    void PutValue(const QString& Section, const QString& Key, const QString& Value);
    // Reads the file; a missing one is empty. Lines that are no settings are passed over.
    void Load();
    // Writes the file, as a whole or not at all. A file with lines that would be lost is first
    // kept beside it with ".damaged" behind its name.
    void Save();

  private:
    struct Store;
    std::unique_ptr<Store> mStore;
    QString mFileName;
    bool mDamaged = false;
};

}  // namespace neb
