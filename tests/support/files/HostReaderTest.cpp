// Reading a file piece by piece.
#include <gtest/gtest.h>

#include "harness/TempFolder.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

TEST(HostReader, HandsAFileOutInPiecesThenNothing) {
    const harness::TempFolder Dir;
    WriteFile(Dir / "a.dat", "0123456789");
    HostReader Reader(Dir / "A.DAT");
    EXPECT_EQ(Reader.Length(), 10);
    char Bytes[8] = {};
    EXPECT_EQ(Reader.Read(Bytes, 8), 8);
    EXPECT_EQ(QByteArray(Bytes, 8), "01234567");
    EXPECT_EQ(Reader.Read(Bytes, 8), 2);
    EXPECT_EQ(QByteArray(Bytes, 2), "89");
    EXPECT_EQ(Reader.Read(Bytes, 8), 0);
}

TEST(HostReader, GoesToAnyPlaceOfItsFile) {
    const harness::TempFolder Dir;
    WriteFile(Dir / "a.dat", "0123456789");
    HostReader Reader(Dir / "a.dat");
    char Bytes[8] = {};
    Reader.Seek(7);
    EXPECT_EQ(Reader.Read(Bytes, 8), 3);
    EXPECT_EQ(QByteArray(Bytes, 3), "789");
    Reader.Seek(0);
    EXPECT_EQ(Reader.Read(Bytes, 2), 2);
    EXPECT_EQ(QByteArray(Bytes, 2), "01");
    Reader.Seek(10);
    EXPECT_EQ(Reader.Read(Bytes, 8), 0);
    Reader.Seek(1000);
    EXPECT_EQ(Reader.Read(Bytes, 8), 0);
    EXPECT_THROW(Reader.Seek(-1), Fault);
}

TEST(HostReader, AFileThatIsNotThereIsAFault) {
    const harness::TempFolder Dir;
    EXPECT_THROW(HostReader(Dir / "none"), Fault);
}

}  // namespace
}  // namespace neb
