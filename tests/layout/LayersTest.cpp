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

// Every source and header below src, as path from there.
QStringList Sources() {
    QStringList Found;
    QDirIterator Files(Root + QStringLiteral("src"),
                       {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (Files.hasNext()) Found << Files.next().sliced(Root.size() + 4);
    Found.sort();
    return Found;
}

QStringList FaultsOfAll(QStringList (*Check)(const QString&, const QString&)) {
    QStringList Faults;
    for (const QString& Path : Sources())
        Faults << Check(Path, TextOf(Root + QStringLiteral("src/") + Path));
    return Faults;
}

std::string Lines(const QStringList& Faults) {
    return Faults.join(u'\n').toStdString();
}

std::string Includes(const char* Path, const char* Text) {
    return Lines(IncludeFaults(QString::fromUtf8(Path), QString::fromUtf8(Text)));
}

std::string HostFiles(const char* Path, const char* Text) {
    return Lines(FileSystemFaults(QString::fromUtf8(Path), QString::fromUtf8(Text)));
}

std::string Drawing(const char* Text, const QStringList& Existing) {
    return Lines(DrawingFaults(QString::fromUtf8(Text), Existing));
}

const QStringList Four{QStringLiteral("support"), QStringLiteral("support/windows"),
                       QStringLiteral("shell"), QStringLiteral("shell/main")};

}  // namespace

TEST(Layers, IncludesGoUpTheOrderOnly) {
    EXPECT_EQ("", Lines(FaultsOfAll(IncludeFaults)));
}

TEST(Layers, OnlyTheHostFileRoutinesTouchTheFileSystem) {
    EXPECT_EQ("", Lines(FaultsOfAll(FileSystemFaults)));
}

TEST(Layers, SourcesAndHeadersKeepToTheirSize) {
    EXPECT_EQ("", Lines(FaultsOfAll(SizeFaults)));
}

TEST(Layers, TheDrawingOfTheArchitectureShowsThemInTheirOrder) {
    const QString Path = Root + QStringLiteral("docs/ARCHITECTURE.md");
    ASSERT_TRUE(QFile::exists(Path));
    QStringList Existing;
    for (const QString& Source : Sources())
        if (!Existing.contains(LayerOf(Source))) Existing << LayerOf(Source);
    EXPECT_EQ("", Lines(DrawingFaults(TextOf(Path), Existing)));
}

TEST(Layers, TheScanSeesTheSources) {
    EXPECT_TRUE(Sources().contains(QStringLiteral("support/modHostFiles.cpp")));
    EXPECT_TRUE(Sources().contains(QStringLiteral("shell/main/main.cpp")));
    EXPECT_GT(Sources().size(), 50);
}

TEST(LayerRules, AFileBelongsToTheLayerOfItsFolder) {
    EXPECT_EQ(u"support", LayerOf(QStringLiteral("support/Fault.h")));
    EXPECT_EQ(u"support/windows", LayerOf(QStringLiteral("support/windows/Form.h")));
    EXPECT_EQ(u"shell/main", LayerOf(QStringLiteral("shell/main/main.cpp")));
    EXPECT_EQ(u"", LayerOf(QStringLiteral("misc/x.h")));
    EXPECT_EQ(u"", LayerOf(QStringLiteral("x.h")));
}

TEST(LayerRules, AnIncludeAgainstTheOrderIsFound) {
    EXPECT_EQ("db/a.cpp:2: db may use support alone, not shell/x.h",
              Includes("db/a.cpp", "#include \"support/Fault.h\"\n#include \"shell/x.h\"\n"));
    EXPECT_EQ("effects/a.h:1: effects may not use platform/x.h, which comes after it",
              Includes("effects/a.h", "  #  include \"platform/x.h\""));
    EXPECT_EQ("support/a.h:1: support may use support alone, not support/windows/Form.h",
              Includes("support/a.h", "#include \"support/windows/Form.h\""));
    EXPECT_EQ("shell/a.h:1: shell may not use shell/main/x.h, which comes after it",
              Includes("shell/a.h", "#include \"shell/main/x.h\""));
    EXPECT_EQ("printing/a.h:1: printing may not use intake/x.h, which comes after it",
              Includes("printing/a.h", "#include \"intake/x.h\""));
    EXPECT_EQ("transfer/a.h:1: transfer may not use tools/x.h, which comes after it",
              Includes("transfer/a.h", "#include \"tools/x.h\""));
}

TEST(LayerRules, IncludesUpTheOrderAreFine) {
    EXPECT_EQ("", Includes("transfer/a.cpp",
                           "#include \"transfer/a.h\"\n#include \"authoring/x.h\"\n"
                           "#include \"support/windows/Form.h\"\n#include <QWidget>\n"
                           "#include \"ui_frmAlbumExport.h\"\n#include \"a.moc\"\n"));
    EXPECT_EQ("", Includes("shell/main/a.cpp", "#include \"tools/x.h\"\n#include \"intake/y.h\""));
    EXPECT_EQ("", Includes("tools/a.cpp", "#include \"shell/main/x.h\""));
}

TEST(LayerRules, CommentedIncludesDoNotCountAndHiddenOnesDo) {
    EXPECT_EQ("",
              Includes("db/a.cpp", "// #include \"shell/x.h\"\n/* \n#include \"shell/x.h\"\n*/"));
    EXPECT_EQ("db/a.cpp:3: db may use support alone, not shell/x.h",
              Includes("db/a.cpp", "/* two\nlines */\n#include \"shell/x.h\"  // why\n"));
}

TEST(LayerRules, IncludesThatAreNotFromTheRootOrLeadNowhereAreFound) {
    EXPECT_EQ("db/a.cpp:1: a.h is not written from the root",
              Includes("db/a.cpp", "#include \"a.h\""));
    EXPECT_EQ("db/a.cpp:1: misc/a.h lies in no layer",
              Includes("db/a.cpp", "#include \"misc/a.h\""));
    EXPECT_EQ("misc/a.cpp:1: the file lies in no layer", Includes("misc/a.cpp", ""));
}

TEST(LayerRules, WindowsAndPicturesAreFoundInTheLayersThatKnowNone) {
    for (const char* Header : {"QWidget", "QImage", "QPixmap", "QDialog", "QPainter", "QCheckBox",
                               "QtGui/QColor", "QtWidgets/QLabel", "qwidget.h"}) {
        const std::string Text = std::string("#include <") + Header + ">";
        EXPECT_NE("", Includes("support/a.cpp", Text.c_str())) << Header;
        EXPECT_NE("", Includes("db/a.cpp", Text.c_str())) << Header;
        EXPECT_EQ("", Includes("support/windows/a.cpp", Text.c_str())) << Header;
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
        EXPECT_NE("", HostFiles("intake/a.cpp", Use)) << Use;
    EXPECT_EQ("intake/a.cpp:2: QFile belongs into the host file routines alone",
              HostFiles("intake/a.cpp", "int A;\nQFile F(\"x\");\n"));
}

TEST(LayerRules, WhatOnlyLooksLikeTheFileSystemIsNotFound) {
    for (const char* Use :
         {"QFileDialog::getOpenFileName();", "// a QFile would do", "/* QDir */ int A;",
          "Text(\"QFile\");", "QFileSystemModel M;", "M.setFilter(QDir::AllDirs | QDir::Drives);",
          "QDir::separator()", "#include <QDir>", "MyQFile F;", "R\"x(QFile \" QDir)x\""})
        EXPECT_EQ("", HostFiles("intake/a.cpp", Use)) << Use;
}

TEST(LayerRules, TheHostFileRoutinesThemselvesMayUseTheFileSystem) {
    for (const char* Path :
         {"support/modHostFiles.cpp", "support/modHostFilesWrite.cpp", "support/NameCache.cpp"})
        EXPECT_EQ("", HostFiles(Path, "QFile F;")) << Path;
    for (const char* Path :
         {"support/modFUFL.cpp", "db/modHostFiles.cpp", "support/NameCacheX.cpp"})
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

TEST(LayerRules, ADrawingInTheRightOrderIsAccepted) {
    const char* Plain =
        "# Architecture\n\n```\nsrc/\n  support/   texts\n    windows/ boxes\n"
        "  shell/     paths\n    main/    entry\ntests/<layer>/\nbench/  speed\n```\n";
    EXPECT_EQ("", Drawing(Plain, Four));
    const char* Tree =
        "```\nsrc/\n├── support/\n│   └── windows/\n└── shell/\n    └── main/\n```\n";
    EXPECT_EQ("", Drawing(Tree, Four));
}

TEST(LayerRules, AMissingAForeignAndAMisplacedLayerAreFoundInADrawing) {
    EXPECT_EQ("shell/main/ is missing in the drawing of src/",
              Drawing("```\nsrc/\n  support/\n    windows/\n  shell/\n```\n", Four));
    EXPECT_EQ(
        "misc/ is no layer",
        Drawing("```\nsrc/\n  support/\n    windows/\n  misc/\n  shell/\n    main/\n```\n", Four));
    EXPECT_NE("", Drawing("```\nsrc/\n  shell/\n    main/\n  support/\n    windows/\n```\n", Four));
    EXPECT_NE("", Drawing("support, shell: words alone\n", Four));
}
