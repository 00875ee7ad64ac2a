#include <QDirIterator>
#include <QFile>

#include "LayerRules.h"

using namespace neb::layout;

namespace {

QString TextOf(const QString& Path) {
    QFile File(Path);
    EXPECT_TRUE(File.open(QIODevice::ReadOnly)) << qPrintable(Path);
    return QString::fromUtf8(File.readAll());
}

const QString Root = QStringLiteral(NEB_SOURCE_DIR "/");

// The files below src with these names, as paths from there.
QStringList AllFiles(const QStringList& Masks) {
    QStringList Found;
    QDirIterator Files(Root + QStringLiteral("src"), Masks, QDir::Files,
                       QDirIterator::Subdirectories);
    while (Files.hasNext()) Found << Files.next().sliced(Root.size() + 4);
    Found.sort();
    return Found;
}

QStringList Sources() {
    return AllFiles({QStringLiteral("*.cpp"), QStringLiteral("*.h")});
}

const House& TheHouse() {
    static const House Rooms = ReadHouse(QStringLiteral(NEB_HOUSE));
    return Rooms;
}

// A house to try the rules on.
const House Small = ReadHouse(QStringLiteral(
    "1:support:texts:|1:support/files:texts:|2:sound:texts:support|2:db/records:texts:support|"
    "2:db:texts:support|3:albums:pictures:db|3:controls:windows:support|"
    "4:windows/frame:windows:controls,albums|4:tools:pictures:albums|5:program:windows:windows"));

QStringList FaultsOfAll(QStringList (*Check)(const QString& Path, const QString& Text)) {
    QStringList Faults;
    for (const QString& Path : Sources())
        Faults << Check(Path, TextOf(Root + QStringLiteral("src/") + Path));
    return Faults;
}

std::string Lines(const QStringList& Faults) {
    return Faults.join(u'\n').toStdString();
}

std::string Includes(const char* Path, const char* Text) {
    return Lines(IncludeFaults(Small, QString::fromUtf8(Path), QString::fromUtf8(Text)));
}

std::string HostFiles(const char* Path, const char* Text) {
    return Lines(FileSystemFaults(QString::fromUtf8(Path), QString::fromUtf8(Text)));
}

std::string Drawing(const char* Text) {
    static const House Three = ReadHouse(
        QStringLiteral("1:support:texts:|1:support/files:texts:|2:db/records:texts:|2:db:texts:|"
                       "5:program:windows:"));
    return Lines(DrawingFaults(Three, QString::fromUtf8(Text)));
}

}  // namespace

TEST(Layers, NoArrowGoesUp) {
    EXPECT_EQ("", Lines(FloorFaults(TheHouse())));
    EXPECT_EQ("", Lines(FaultsOfAll([](const QString& Path, const QString& Text) {
                  return IncludeFaults(TheHouse(), Path, Text);
              })));
}

TEST(Layers, NoRoomIsCrowded) {
    EXPECT_EQ("", Lines(CrowdFaults(AllFiles({QStringLiteral("*")}))));
}

TEST(Layers, OnlyTheHostFileRoutinesTouchTheFileSystem) {
    EXPECT_EQ("", Lines(FaultsOfAll(FileSystemFaults)));
}

TEST(Layers, SourcesAndHeadersKeepToTheirSize) {
    EXPECT_EQ("", Lines(FaultsOfAll(SizeFaults)));
}

TEST(Layers, TheDrawingOfTheArchitectureShowsTheHouse) {
    const QString Path = Root + QStringLiteral("docs/ARCHITECTURE.md");
    ASSERT_TRUE(QFile::exists(Path));
    EXPECT_EQ("", Lines(DrawingFaults(TheHouse(), TextOf(Path))));
}

TEST(Layers, TheArchitectureNamesTheFileToReadFirstInEachRoom) {
    const QString Document = TextOf(Root + QStringLiteral("docs/ARCHITECTURE.md"));
    EXPECT_EQ("", Lines(GuideFaults(TheHouse(), Document, Sources())));
}

TEST(Layers, TheArchitectureKnowsEveryWindow) {
    const QString Document = TextOf(Root + QStringLiteral("docs/ARCHITECTURE.md"));
    QStringList Forms = AllFiles({QStringLiteral("frm*.h")});
    EXPECT_GT(Forms.size(), 20);
    EXPECT_EQ("", Lines(WindowTableFaults(Document, Forms)));
}

TEST(Layers, WhatIsLeftToSomeRoomsIsNotDoneElsewhere) {
    EXPECT_EQ("", Lines(FaultsOfAll(WordFaults)));
}

TEST(Layers, TheScanSeesTheSources) {
    EXPECT_TRUE(Sources().contains(QStringLiteral("support/files/modHostFiles.cpp")));
    EXPECT_TRUE(Sources().contains(QStringLiteral("program/main.cpp")));
    EXPECT_GT(Sources().size(), 50);
    EXPECT_GT(TheHouse().size(), 20);
}

TEST(LayerRules, AFileBelongsToTheRoomOfItsFolder) {
    const auto Folder = [](const char* Path) {
        const Room* Found = RoomOf(Small, QString::fromUtf8(Path));
        return Found ? Found->Folder : QString();
    };
    EXPECT_EQ(u"support", Folder("support/Fault.h"));
    EXPECT_EQ(u"windows/frame", Folder("windows/frame/Openers.h"));
    EXPECT_EQ(u"", Folder("windows/Openers.h")) << "windows are sorted into rooms";
    EXPECT_EQ(u"", Folder("misc/x.h"));
    EXPECT_EQ(u"", Folder("x.h"));
}

TEST(LayerRules, TheHouseIsReadFromItsList) {
    EXPECT_EQ(u"windows/frame", Small[7].Folder);
    EXPECT_EQ(4, Small[7].Floor);
    EXPECT_EQ(u"windows", Small[7].Knows);
    EXPECT_EQ((QStringList{QStringLiteral("controls"), QStringLiteral("albums")}), Small[7].Uses);
    EXPECT_EQ("", Lines(FloorFaults(Small)));
    EXPECT_EQ("db comes after a room of a higher floor",
              Lines(FloorFaults(ReadHouse(QStringLiteral("2:albums:texts:|1:db:texts:")))));
}

TEST(LayerRules, AnIncludeAgainstTheOrderIsFound) {
    EXPECT_EQ("db/a.cpp:2: db may not use albums/x.h, which stands above it",
              Includes("db/a.cpp", "#include \"support/Fault.h\"\n#include \"albums/x.h\"\n"));
    EXPECT_EQ("db/records/a.h:1: db/records may not use db/x.h, which stands above it",
              Includes("db/records/a.h", "  #  include \"db/x.h\""));
    EXPECT_EQ("support/a.h:1: support may not use support/files/x.h, which stands above it",
              Includes("support/a.h", "#include \"support/files/x.h\""));
    EXPECT_EQ("windows/frame/a.h:1: windows/frame may not use program/x.h, which stands above it",
              Includes("windows/frame/a.h", "#include \"program/x.h\""));
}

TEST(LayerRules, AnIncludeOfWhatTheRoomIsNotBuiltUponIsFound) {
    EXPECT_EQ("db/a.cpp:1: db may not use sound/x.h: it is not built upon it",
              Includes("db/a.cpp", "#include \"sound/x.h\""));
    EXPECT_EQ("tools/a.cpp:1: tools may not use windows/frame/x.h: it is not built upon it",
              Includes("tools/a.cpp", "#include \"windows/frame/x.h\""));
    EXPECT_EQ("albums/a.cpp:1: albums may not use sound/x.h: it is not built upon it",
              Includes("albums/a.cpp", "#include \"sound/x.h\""));
}

TEST(LayerRules, IncludesDownTheHouseAreFine) {
    EXPECT_EQ("", Includes("windows/frame/a.cpp",
                           "#include \"windows/frame/a.h\"\n#include \"albums/x.h\"\n"
                           "#include \"support/files/x.h\"\n#include <QWidget>\n"
                           "#include \"ui_frmAlbumExport.h\"\n#include \"a.moc\"\n"));
    EXPECT_EQ("", Includes("program/a.cpp", "#include \"windows/frame/x.h\""));
    EXPECT_EQ("", Includes("db/a.cpp", "#include \"db/records/y.h\""));
}

TEST(LayerRules, ACrowdedRoomIsFound) {
    QStringList Paths;
    for (int I = 0; I < 35; ++I) Paths << QStringLiteral("db/%1.h").arg(I);
    EXPECT_EQ("", Lines(CrowdFaults(Paths)));
    Paths << QStringLiteral("db/records/x.h");
    EXPECT_EQ("", Lines(CrowdFaults(Paths)));
    Paths << QStringLiteral("db/one-more.ui");
    EXPECT_EQ("db holds 36 files, more than 35", Lines(CrowdFaults(Paths)));
}

TEST(LayerRules, CommentedIncludesDoNotCountAndHiddenOnesDo) {
    EXPECT_EQ("",
              Includes("db/a.cpp", "// #include \"albums/x.h\"\n/* \n#include \"albums/x.h\"\n*/"));
    EXPECT_EQ("db/a.cpp:3: db may not use albums/x.h, which stands above it",
              Includes("db/a.cpp", "/* two\nlines */\n#include \"albums/x.h\"  // why\n"));
}

TEST(LayerRules, IncludesThatAreNotFromTheRootOrLeadNowhereAreFound) {
    EXPECT_EQ("db/a.cpp:1: a.h is not written from the root",
              Includes("db/a.cpp", "#include \"a.h\""));
    EXPECT_EQ("db/a.cpp:1: misc/a.h lies in no room",
              Includes("db/a.cpp", "#include \"misc/a.h\""));
    EXPECT_EQ("misc/a.cpp:1: the file lies in no room", Includes("misc/a.cpp", ""));
}

TEST(LayerRules, WindowsAndPicturesAreFoundInTheRoomsThatKnowNone) {
    const auto Of = [](const char* Path, const char* Header) {
        return Includes(Path, (std::string("#include <") + Header + ">").c_str());
    };
    for (const char* Header : {"QImage", "QPixmap", "QPainter", "QtGui/QColor", "QTextLayout"}) {
        EXPECT_NE("", Of("db/a.cpp", Header)) << Header;
        EXPECT_EQ("", Of("albums/a.cpp", Header)) << Header;
        EXPECT_EQ("", Of("windows/frame/a.cpp", Header)) << Header;
    }
    for (const char* Header :
         {"QWidget", "QDialog", "QCheckBox", "QtWidgets/QLabel", "qwidget.h"}) {
        EXPECT_NE("", Of("db/a.cpp", Header)) << Header;
        EXPECT_NE("", Of("albums/a.cpp", Header)) << Header;
        EXPECT_EQ("", Of("windows/frame/a.cpp", Header)) << Header;
    }
    EXPECT_EQ("",
              Includes("db/a.cpp", "#include <QString>\n#include <QDateTime>\n#include <QRect>"));
}

TEST(LayerRules, UsesOfTheFileSystemAreFound) {
    for (const char* Use :
         {"QFile F(Path);", "return QFileInfo(Path).exists();", "QDir().mkpath(P);",
          "QDir::home();", "QSaveFile S;", "QTemporaryDir T;", "QTemporaryFile T;",
          "QDirIterator I(P);", "QLockFile L(P);", "std::ifstream In(P);", "std::ofstream Out;",
          "std::fstream F;", "std::fopen(P, \"r\");", "std::filesystem::exists(P);",
          "namespace fs = std::filesystem; fs::x(); filesystem::path P;"})
        EXPECT_NE("", HostFiles("windows/a.cpp", Use)) << Use;
    EXPECT_EQ("windows/a.cpp:2: QFile belongs into the host file routines alone",
              HostFiles("windows/a.cpp", "int A;\nQFile F(\"x\");\n"));
}

TEST(LayerRules, WhatOnlyLooksLikeTheFileSystemIsNotFound) {
    for (const char* Use :
         {"QFileDialog::getOpenFileName();", "// a QFile would do", "/* QDir */ int A;",
          "Text(\"QFile\");", "QFileSystemModel M;", "M.setFilter(QDir::AllDirs | QDir::Drives);",
          "QDir::separator()", "#include <QDir>", "MyQFile F;", "R\"x(QFile \" QDir)x\""})
        EXPECT_EQ("", HostFiles("windows/a.cpp", Use)) << Use;
}

TEST(LayerRules, TheHostFileRoutinesThemselvesMayUseTheFileSystem) {
    for (const char* Path : {"support/files/modHostFiles.cpp", "support/files/NameCache.h"})
        EXPECT_EQ("", HostFiles(Path, "QFile F;")) << Path;
    for (const char* Path : {"support/locked/Lock.cpp", "support/locked/LockedRoom.cpp"})
        EXPECT_EQ("", HostFiles(Path, "std::fopen(A, B);")) << Path;
    for (const char* Path : {"support/modFUFL.cpp", "db/modHostFiles.cpp",
                             "support/work/NameCache.cpp", "support/locked/LockedProcess.cpp"})
        EXPECT_NE("", HostFiles(Path, "QFile F;")) << Path;
}

TEST(LayerRules, StringsAndCommentsAreToldApart) {
    const auto Code = [](const char* Text, bool Keep) {
        return WithoutComments(QString::fromUtf8(Text), Keep).toStdString();
    };
    EXPECT_EQ("a \"//no\" b", Code("a \"//no\" b", true));
    EXPECT_EQ("a        b", Code("a \"//no\" b", false));
    EXPECT_EQ("a \"\\\"//\" b     ", Code("a \"\\\"//\" b // c", true));
    EXPECT_EQ("int A = 1'000'000; QFile F;", Code("int A = 1'000'000; QFile F;", false));
    EXPECT_EQ("u   ; QFile F;", Code("u'\"'; QFile F;", false));
    EXPECT_EQ("int A = 18'000; QFile F;", Code("int A = 18'000; QFile F;", false));
    EXPECT_EQ("u8   ; QFile F;", Code("u8'x'; QFile F;", false));
    EXPECT_EQ("  \n  \nx", Code("/*\n*/\nx", true));
    EXPECT_EQ("   ", Code("/* ", true)) << "a comment that never ends";
}

TEST(LayerRules, TooLongFilesAreFound) {
    const auto Size = [](const char* Path, int Count, bool Closed = true) {
        QString Text = QStringLiteral("x\n").repeated(Count);
        if (!Closed) Text.chop(1);
        return Lines(SizeFaults(QString::fromUtf8(Path), Text));
    };
    EXPECT_EQ("", Size("a.cpp", 400));
    EXPECT_EQ("a.cpp:401: longer than 400 lines", Size("a.cpp", 401));
    EXPECT_EQ("a.cpp:401: longer than 400 lines", Size("a.cpp", 401, false));
    EXPECT_EQ("", Size("a.h", 150));
    EXPECT_EQ("a.h:151: longer than 150 lines", Size("a.h", 151));
    EXPECT_EQ("", Size("a.ui", 2000));
}

TEST(LayerRules, ADrawingFromTheRoofDownIsAccepted) {
    const char* Plain =
        "# Architecture\n\n```\nsrc/\n  program/   entry\n  db/    albums\n    records/ layouts\n"
        "  support/     texts\n    files/    the disk\ntests/<folder>/\nbench/  speed\n```\n";
    EXPECT_EQ("", Drawing(Plain));
    const char* Tree =
        "```\nsrc/\n├── program/\n├── db/\n│   └── records/\n└── support/\n    └── files/\n```\n";
    EXPECT_EQ("", Drawing(Tree));
}

TEST(LayerRules, AMissingAForeignAndAMisplacedRoomAreFoundInADrawing) {
    EXPECT_EQ("db/records/ is missing in the drawing of src/",
              Drawing("```\nsrc/\n  program/\n  db/\n  support/\n    files/\n```\n"));
    EXPECT_EQ("misc/ is no room", Drawing("```\nsrc/\n  program/\n  misc/\n  db/\n    records/\n"
                                          "  support/\n    files/\n```\n"));
    EXPECT_NE("",
              Drawing("```\nsrc/\n  db/\n    records/\n  program/\n  support/\n    files/\n```\n"));
    EXPECT_NE("", Drawing("program, support: words alone\n"));
}

TEST(LayerRules, ARoomWithoutAFileToReadFirstIsFound) {
    const House One = ReadHouse(QStringLiteral("1:db/records:texts:"));
    const QStringList There{QStringLiteral("db/records/Codec.h")};
    const auto Guide = [&](const char* Text) {
        return Lines(GuideFaults(One, QString::fromUtf8(Text), There));
    };
    EXPECT_EQ("", Guide("# Rooms\n\n- `db/records` — `Codec.h`: layouts\n"));
    EXPECT_EQ("db/records has no Other.h", Guide("- `db/records` — `Other.h`: layouts\n"));
    EXPECT_NE("", Guide("The room `db/records` — `Codec.h`: layouts\n"));
}

TEST(LayerRules, AWindowThatTheTableDoesNotKnowIsFound) {
    const QStringList Forms{QStringLiteral("windows/show/frmPreferences.ui")};
    const auto Table = [&](const char* Text) {
        return Lines(WindowTableFaults(QString::fromUtf8(Text), Forms));
    };
    EXPECT_EQ("", Table("| Preferences | `frmPreferences` | `windows/show` | prefs |"));
    EXPECT_NE("", Table("| Preferences | `frmPreferences` | `windows/albums` | prefs |"));
}

TEST(LayerRules, BoxesRecordsAndNoticesAreLeftToTheirRooms) {
    const auto Words = [](const char* Path, const char* Text) {
        return Lines(WordFaults(QString::fromUtf8(Path), QString::fromUtf8(Text)));
    };
    EXPECT_EQ("show/a.cpp:1: only windows show boxes", Words("show/a.cpp", "MsgBox(Text);"));
    EXPECT_NE("", Words("albums/a.cpp", "if (AskYesNo(A, B)) return;"));
    EXPECT_NE("", Words("db/a.cpp", "TheServices().Boxes->Show(It);"));
    EXPECT_EQ("", Words("windows/slides/a.cpp", "MsgBox(Text);"));
    EXPECT_EQ("", Words("show/a.cpp", "// no MsgBox(here)\nText(\"MsgBox(\");"));
    EXPECT_NE("", Words("windows/slides/a.cpp", "Slide->SlideText = Caption;"));
    EXPECT_NE("", Words("windows/albums/a.cpp", "DBEngine->SaveAlbum(AlbumID, Name);"));
    EXPECT_EQ("", Words("windows/slides/a.cpp", "if (Slide->SlideText == Caption) return;"));
    EXPECT_EQ("", Words("db/Changes.cpp", "Slide->SlideText = SlideText;"));
    EXPECT_NE("", Words("windows/slides/a.cpp", "BroadcastEvent(A, B, this, {});"));
    EXPECT_EQ("", Words("windows/frame/modBroadcast.cpp", "void BroadcastEvent(A) {"));
}

TEST(LayerRules, LibrariesThatReadPicturesAreLeftToTheLockedDoor) {
    const auto Words = [](const char* Path, const char* Text) {
        return Lines(WordFaults(QString::fromUtf8(Path), QString::fromUtf8(Text)));
    };
    for (const char* Use :
         {"#include <Magick++.h>", "#include <libheif/heif.h>", "#include <openjpeg.h>",
          "#include <tiffio.h>", "#include <turbojpeg.h>", "#include <exiv2/exiv2.hpp>",
          "#include <lcms2.h>", "#include <jpeglib.h>", "#include <QImageReader>",
          "QMovie Film(Path);", "QColorSpace::fromIccProfile(Bytes);",
          "auto P = QImage::fromData(Bytes);", "Pixmap.loadFromData(Bytes);",
          "Drag.mimeData()->imageData();", "DecodeHere(Bytes);", "return TurnedJpeg(Jpeg, Turn);"})
        for (const char* Path : {"pictures/ImgX.cpp", "windows/home/a.cpp", "printing/a.cpp",
                                 "pictures/workers/ReadingLocked.cpp"})
            EXPECT_EQ(std::string(Path) +
                          ":1: foreign pictures are looked at behind the locked door alone",
                      Words(Path, Use))
                << Use;
    EXPECT_EQ("", Words("pictures/decoders/a.cpp", "#include <QImageReader>"));
    EXPECT_EQ("", Words("pictures/notes/JpegTurn.cpp", "#include <turbojpeg.h>"));
    EXPECT_NE("", Words("pictures/notes/JpegParts.cpp", "#include <turbojpeg.h>"));
    EXPECT_EQ("", Words("pictures/JpegWriter.cpp", "#include <jpeglib.h>"));
    EXPECT_EQ("", Words("windows/home/a.cpp", "ThePictureReader().Turned(Jpeg, Turn);"));
}
