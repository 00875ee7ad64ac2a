// Paths taken apart, with the separators of every system.
#include "support/modFUFL.h"

#include <gtest/gtest.h>
#include <QDir>

namespace neb {
namespace {

struct PathCase {
    const char* Path;
    const char* Part;
};
using PathTable = std::initializer_list<PathCase>;

void ExpectParts(QString (*Take)(const QString&), PathTable Table) {
    for (const PathCase& Row : Table)
        EXPECT_EQ(Take(QString::fromLatin1(Row.Path)), Row.Part) << Row.Path;
}

TEST(Paths, TheExtensionIsAllFromTheLastDot) {
    ExpectParts(GetFileExt, {{"photo", ""},
                             {"photo.tar.gz", ".gz"},
                             {"photo.", "."},
                             {".hidden", ".hidden"},
                             {"", ""},
                             {"C:\\Pics\\a.JPG", ".JPG"},
                             {"C:\\a.b\\c", ".b\\c"},
                             {"/a.b/c", ".b/c"}});
}

TEST(Paths, TheBaseNameHasNoDirectoryAndNoExtension) {
    ExpectParts(GetFileBaseName, {{"C:\\Pics\\photo.tar.gz", "photo.tar"},
                                  {"C:\\Pics\\photo", "photo"},
                                  {"/home/me/photo.jpg", "photo"},
                                  {"C:\\a.b\\c", "c"},
                                  {".hidden", ""},
                                  {"C:\\Pics\\", ""},
                                  {"photo.", "photo"},
                                  {"", ""}});
}

TEST(Paths, ThePathEndsWithTheLastSeparator) {
    ExpectParts(GetFilePath, {{"photo.jpg", ""},
                              {"C:\\Pics\\photo.jpg", "C:\\Pics\\"},
                              {"/photo.jpg", "/"},
                              {"a/b\\c", "a/b\\"},
                              {"C:\\Pics\\", "C:\\Pics\\"},
                              {"", ""}});
}

TEST(Paths, TheFileNameIsAllBehindTheLastSeparator) {
    ExpectParts(GetFileName, {{"C:\\Pics\\photo.jpg", "photo.jpg"},
                              {"/home/photo.jpg", "photo.jpg"},
                              {"photo.jpg", "photo.jpg"},
                              {"C:\\Pics\\", ""},
                              {"", ""}});
}

TEST(Paths, TheParentIsTheDirectoryAbove) {
    ExpectParts(GetParentDir, {{"C:\\Pics\\2003\\", "C:\\Pics\\"},
                               {"C:\\Pics\\2003", "C:\\Pics\\"},
                               {"C:\\Pics", "C:\\"},
                               {"C:\\", ""},
                               {"C:", ""},
                               {"\\\\host\\share\\dir", "\\\\host\\share\\"},
                               {"\\\\host\\share\\", ""},
                               {"\\\\host\\", ""},
                               {"Pics", ""},
                               {"Pics\\", ""},
                               {"\\", ""},
                               {"", ""},
                               {"/home/me/Pics", "/home/me/"},
                               {"/home", "/"},
                               {"/", ""}});
}

TEST(Paths, BothSeparatorsCount) {
    EXPECT_TRUE(HoldsSeparator(u"a\\b"));
    EXPECT_TRUE(HoldsSeparator(u"/b"));
    EXPECT_FALSE(HoldsSeparator(u"00000012.JPG"));
    EXPECT_FALSE(HoldsSeparator(u""));
}

TEST(Paths, AClosingSeparatorIsAddedOnce) {
    EXPECT_EQ(WithSeparator("C:\\Pics"), "C:\\Pics\\");
    EXPECT_EQ(WithSeparator("C:\\Pics\\"), "C:\\Pics\\");
    EXPECT_EQ(WithSeparator("/home/me"), "/home/me/");
    EXPECT_EQ(WithSeparator("/home/me/"), "/home/me/");
    EXPECT_EQ(WithSeparator("Pics"), QString("Pics") + QDir::separator());
}

}  // namespace
}  // namespace neb
