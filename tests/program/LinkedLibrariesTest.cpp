// What is loaded with the programs: none of the libraries that read foreign pictures, which are the
// business of processes behind a locked door.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>

namespace {

const QString Bin = QStringLiteral(NEB_BINARY_DIR "/bin/");
const QString Parts = QStringLiteral(NEB_BINARY_DIR "/lib/neb-slide-show/");

// The names of all libraries that a program brings along, also by others.
QStringList LoadedWith(const QString& Program) {
    QProcess Tool;
    Tool.start(QStringLiteral("ldd"), {Program});
    EXPECT_TRUE(Tool.waitForFinished() && Tool.exitCode() == 0) << qPrintable(Program);
    QStringList Names;
    for (const QString& Line :
         QString::fromLocal8Bit(Tool.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts))
        Names << Line.trimmed().section(u' ', 0, 0);
    return Names;
}

QStringList Decoders(const QString& Program) {
    static const QRegularExpression Names(
        QStringLiteral("^lib(?:Magick|heif|tiff|openjp2|exiv2|turbojpeg|Qt6Svg|webp|gif|raw|"
                       "de265|aom|dav1d|x265|seccomp|emf)"));
    return LoadedWith(Program).filter(Names);
}

}  // namespace

TEST(LinkedLibraries, NoneThatReadsPicturesIsLoadedWithTheProgram) {
    EXPECT_EQ("", Decoders(Bin + QStringLiteral("neb-slide-show")).join(u' ').toStdString());
    EXPECT_EQ("", Decoders(Bin + QStringLiteral("nebctl")).join(u' ').toStdString());
}

TEST(LinkedLibraries, TheyAreLoadedWithWhatStandsBehindTheDoor) {
    const QStringList Found = Decoders(Parts + QStringLiteral("neb-pictures"));
    for (const char* Name : {"libMagick", "libheif", "libtiff", "libopenjp2"})
        EXPECT_FALSE(Found.filter(QLatin1String(Name)).isEmpty()) << Name;
}

// A name that is defined here would go before that of the library, for all letters on the screen.
TEST(LinkedLibraries, FontsAreOpenedByTheLibraryThatIsMadeForIt) {
    void* const Opens = ::dlsym(RTLD_DEFAULT, "FT_New_Face");
    Dl_info Where = {};
    ASSERT_TRUE(Opens && ::dladdr(Opens, &Where) != 0);
    EXPECT_NE(std::string(Where.dli_fname).find("libfreetype"), std::string::npos)
        << Where.dli_fname;
}
