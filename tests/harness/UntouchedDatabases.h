// Proof that databases are as they were, on the disk and in memory.
#pragma once

#include <gtest/gtest.h>

#include <map>

#include "db/clsDBEngine.h"
#include "db/modLoadRecords.h"
#include "harness/FolderState.h"

namespace neb::harness {

using namespace Qt::StringLiterals;

// All that lies in a database's folder, Temp too, by path and content; the lock of an open one
// aside.
inline std::map<QString, QByteArray> Tree(const QString& Dir) {
    std::map<QString, QByteArray> All;
    QDirIterator Walk(Dir, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                      QDirIterator::Subdirectories);
    while (Walk.hasNext()) {
        QFile File(Walk.next());
        const bool IsFile = Walk.fileInfo().isFile() && File.open(QIODevice::ReadOnly);
        if (!File.fileName().endsWith(u"InUse.lock"_s))
            All[File.fileName().mid(Dir.size())] = IsFile ? File.readAll() : QByteArray("a folder");
    }
    return All;
}
inline std::string TreeDifferences(const std::map<QString, QByteArray>& Before,
                                   const std::map<QString, QByteArray>& Now) {
    QString Text;
    for (const auto& [Path, Content] : Before)
        if (!Now.contains(Path) || Now.at(Path) != Content) Text += u"\n- "_s + Path;
    for (const auto& [Path, Content] : Now)
        if (!Before.contains(Path) || Before.at(Path) != Content) Text += u"\n+ "_s + Path;
    return Text.toStdString();
}
// The files of a database that is only read, with the dates of their last change.
inline QStringList WithDates(const QString& Dir) {
    QStringList All = Everything(Dir);
    All.removeIf([&](const QString& Line) {
        return Line.startsWith(Dir + u"Temp"_s) || Line.startsWith(Dir + u"InUse.lock"_s);
    });
    return All;
}
// What an engine would write.
inline std::map<std::string, QByteArray> MemoryOf(const clsDBEngine& Engine) {
    const RecordImage Image = BuildImage(Engine);
    std::map<std::string, QByteArray> Files;
    for (const RecordFile File : AllRecordFiles) Files[RecordFileName(File)] = Image[File].Unpack();
    if (!Image.Words->isEmpty()) Files[RecordFileName(RecordFile::Words)] = *Image.Words;
    return Files;
}

// Both databases, on the disk and in memory, for proving that nothing has changed.
class Untouched {
  public:
    Untouched(const clsDBEngine& One, const clsDBEngine& Other)
        : mOne(One),
          mOther(Other),
          mTrees{Tree(One.DBPath()), Tree(Other.DBPath())},
          mMemory{MemoryOf(One), MemoryOf(Other)} {}
    void Expect(const std::string& Where = "") const {
        EXPECT_EQ("", TreeDifferences(mTrees[0], Tree(mOne.DBPath()))) << Where;
        EXPECT_EQ("", TreeDifferences(mTrees[1], Tree(mOther.DBPath()))) << Where;
        EXPECT_EQ(mMemory[0], MemoryOf(mOne)) << Where;
        EXPECT_EQ(mMemory[1], MemoryOf(mOther)) << Where;
    }

  private:
    const clsDBEngine &mOne, &mOther;
    std::map<QString, QByteArray> mTrees[2];
    std::map<std::string, QByteArray> mMemory[2];
};

}  // namespace neb::harness
