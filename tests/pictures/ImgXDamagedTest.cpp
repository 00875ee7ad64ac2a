// Files from anywhere: cut, with flipped bits, or lying about their size. A process of its own
// reads them, so that a crash or run-away memory is seen and counted.
#include <sys/resource.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QtEndian>
#include <random>

#include "harness/ChildRole.h"
#include "pictures/Pictures.h"
#include "pictures/formats/PatientDevice.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/metafiles/MetafileSvg.h"

using namespace neb;
using namespace neb::tests;

namespace {

constexpr const char* FolderVariable = "NEB_DAMAGED_FOLDER";
constexpr int FlippedEach = 8, CutEach = 4;
constexpr qint64 MostKilobytes = 1 << 20;
constexpr int MostMilliseconds = 10000;

std::vector<std::pair<QString, QByteArray>> GoodFiles() {
    std::vector<std::pair<QString, QByteArray>> Good;
    for (const char* Folder : {"pictures/", ""})
        for (const DirEntry& Entry : ListDir(harness::DataFile(Folder))) {
            const QString File = harness::DataFile(Folder) + Entry.Name;
            if (Entry.IsFolder || FaultOf(File) != 0) continue;
            Good.emplace_back(Entry.Name, ReadFile(File));
        }
    return Good;
}

// Where formats keep their measures, bits flip more often than elsewhere.
QByteArray Flipped(QByteArray Bytes, std::mt19937& Random) {
    const int Flips = 1 + int(Random() % 6);
    for (int I = 0; I < Flips; ++I) {
        const qsizetype Range =
            Random() % 2 ? std::min<qsizetype>(Bytes.size(), 200) : Bytes.size();
        const auto At = static_cast<qsizetype>(Random() % static_cast<size_t>(Range));
        Bytes[At] = static_cast<char>(Bytes[At] ^ (1 << Random() % 8));
    }
    return Bytes;
}

int WriteDamaged(const harness::TempFolder& Folder) {
    std::mt19937 Random(20);
    int Count = 0;
    for (const auto& [Name, Bytes] : GoodFiles()) {
        for (int I = 1; I <= CutEach; ++I, ++Count)
            WriteFile(Folder / QStringLiteral("%1.cut%2").arg(Name).arg(I),
                      Bytes.left(Bytes.size() * I * 24 / 100));
        for (int I = 0; I < FlippedEach; ++I, ++Count)
            WriteFile(Folder / QStringLiteral("%1.flip%2").arg(Name).arg(I),
                      Flipped(Bytes, Random));
    }
    return Count;
}

struct Outcome {
    QString File;
    bool Picture;
    int Milliseconds;
    QString Text;
};

QString Describe(const QString& File) {
    QElapsedTimer Time;
    Time.start();
    QString Text = QStringLiteral("picture\t");
    try {
        Loaded(File);
    } catch (const Fault& Reason) {
        Text = QStringLiteral("fault\t") + Reason.What();
    }
    return QStringLiteral("%1\t%2\t%3\n").arg(File).arg(Time.elapsed()).arg(Text);
}

// Reads the folder in a process of its own; its peak of memory in kilobytes goes to Peak.
std::vector<Outcome> ReadElsewhere(const harness::TempFolder& Folder, qint64& Peak) {
    QProcess Child;
    auto Environment = QProcessEnvironment::systemEnvironment();
    Environment.insert(QString::fromLatin1(FolderVariable), Folder.Path());
    Child.setProcessEnvironment(Environment);
    Child.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--role"), QStringLiteral("read-the-folder")});
    EXPECT_TRUE(Child.waitForFinished(100000));
    std::vector<Outcome> All;
    for (const QString& Line : QString::fromUtf8(Child.readAllStandardOutput()).split(u'\n')) {
        const QStringList Parts = Line.split(u'\t');
        if (Parts.size() == 2 && Parts[0] == u"peak") Peak = Parts[1].toLongLong();
        if (Parts.size() == 4)
            All.push_back({Parts[0], Parts[2] == u"picture", Parts[1].toInt(), Parts[3]});
    }
    EXPECT_EQ(QProcess::NormalExit, Child.exitStatus())
        << "after " << (All.empty() ? "none" : All.back().File.toStdString());
    return All;
}

QByteArray Big32(quint32 Number) {
    QByteArray Bytes(4, '\0');
    qToBigEndian(Number, Bytes.data());
    return Bytes;
}

// The motif's file with its measures made 60000 by 60000 (or as much as fits the field).
QByteArray Giant(const char* Name, std::initializer_list<qsizetype> Places, int Width, bool Big) {
    QByteArray Bytes = ReadFile(PictureFile(QString::fromLatin1(Name)));
    const QByteArray Number = Big32(60000).right(Width);
    for (qsizetype At : Places)
        for (int I = 0; I < Width; ++I) Bytes[At + I] = Number[Big ? I : Width - 1 - I];
    return Bytes;
}

// What the copy of this program does: reads every file of the folder in the variable.
int ReadTheFolder() {
    const QString Folder = qEnvironmentVariable(FolderVariable);
    for (const DirEntry& Entry : ListDir(Folder)) {
        std::fputs(qPrintable(Describe(Folder + Entry.Name)), stdout);
        std::fflush(stdout);
    }
    rusage Usage = {};
    getrusage(RUSAGE_SELF, &Usage);
    std::printf("peak\t%ld\n", Usage.ru_maxrss);
    return 0;
}

const harness::ChildRole Reader("read-the-folder", &ReadTheFolder);

}  // namespace

TEST(ImgXDamaged, EveryDamagedFileEndsInAPictureOrASentence) {
    const harness::TempFolder Folder;
    const int Count = WriteDamaged(Folder);
    EXPECT_GE(Count, 300);
    qint64 Peak = 0;
    const auto All = ReadElsewhere(Folder, Peak);
    EXPECT_EQ(Count, static_cast<int>(All.size()));
    EXPECT_GT(Peak, 0);
    EXPECT_LT(Peak, MostKilobytes);
    for (const Outcome& Each : All) {
        EXPECT_LT(Each.Milliseconds, MostMilliseconds) << Each.File.toStdString();
        EXPECT_TRUE(Each.Picture || Each.Text.size() > 20) << Each.File.toStdString();
        const bool Cut = Each.File.contains(u".cut");
        EXPECT_FALSE(Cut && Each.Picture) << Each.File.toStdString() << " is cut";
    }
}

TEST(ImgXDamaged, GiantsAreRefusedAtOnce) {
    const harness::TempFolder Folder;
    const std::pair<const char*, QByteArray> Giants[] = {
        {"a.png", Giant("rgb8.png", {16, 20}, 4, true)},
        {"a.bmp", Giant("rgb24.bmp", {18, 22}, 4, false)},
        {"a.tga", Giant("top24.tga", {12, 14}, 2, false)},
        {"a.pcx", Giant("rgb24.pcx", {8, 10}, 2, false)},
        {"a.psd", Giant("rgb8.psd", {14, 18}, 4, true)},
        {"a.jpg", Giant("rgb444.jpg", {163, 165}, 2, true)}};
    for (const auto& [Name, Bytes] : Giants) {
        SCOPED_TRACE(Name);
        const QString File = Folder / QString::fromLatin1(Name);
        WriteFile(File, Bytes);
        QElapsedTimer Time;
        Time.start();
        EXPECT_NE(0U, FaultOf(File));
        EXPECT_LT(Time.elapsed(), 5000);
    }
}

TEST(ImgXDamaged, AGiantsSentenceTellsItsSize) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("giant.bmp");
    WriteFile(File, Giant("rgb24.bmp", {18, 22}, 4, false));
    EXPECT_EQ(FaultTooLarge, FaultOf(File));
    try {
        Loaded(File);
    } catch (const Fault& Reason) {
        EXPECT_EQ("The picture is too large to be read: 60000 by 60000 pixels.",
                  Reason.What().toStdString());
    }
}

TEST(ImgXDamaged, ADrawingCannotReachOtherFiles) {
    const QByteArray Png = ReadFile(PictureFile(QStringLiteral("rgb8.png"))).toBase64();
    const QByteArray Kept = "<image xlink:href=\"data:image/png;base64," + Png +
                            "\"/><use xlink:href='#a'/><text>href is a word</text>";
    EXPECT_EQ(Kept, WithoutOutsideReferences(Kept));
    for (const QByteArray Target :
         {"file:///etc/passwd", "http://example.org/a.png", "/a.png", "a.png", "&#x2f;a.png",
          "data:image/svg+xml;base64,PHN2Zz4=", "data:image/png;base64,PHN2Zz4="}) {
        const QByteArray Svg = "<image xlink:href = \"" + Target + "\"/>";
        EXPECT_FALSE(WithoutOutsideReferences(Svg).contains("href")) << Target.constData();
    }
    EXPECT_THROW(WithoutOutsideReferences("<!DOCTYPE svg [<!ENTITY a 'b'>]><svg/>"), Fault);
}

TEST(ImgXDamaged, ADrawingCannotCarryGiantPictures) {
    QByteArray Giant = ReadFile(PictureFile(QStringLiteral("bilevel.png")));
    Giant.replace(16, 8, Big32(30000) + Big32(30000));
    // The checksum of the header; the reader looks at it first.
    quint32 Sum = 0xFFFFFFFF;
    for (qsizetype At = 12; At < 29; ++At) {
        Sum ^= static_cast<uchar>(Giant[At]);
        for (int Bit = 0; Bit < 8; ++Bit) Sum = Sum >> 1 ^ (Sum & 1 ? 0xEDB88320 : 0);
    }
    Giant.replace(29, 4, Big32(~Sum));
    const QByteArray Svg = "<image xlink:href=\"data:image/png;base64," + Giant.toBase64() + "\"/>";
    EXPECT_FALSE(WithoutOutsideReferences(Svg).contains("href"));
}

TEST(ImgXDamaged, PaintingEndsWhenPatienceDoes) {
    QImage Picture(2000, 2000, QImage::Format_RGB32);
    PatientDevice Device(Picture, 200);
    QElapsedTimer Time;
    Time.start();
    QPainter Painter(&Device);
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setBrush(QColor(1, 2, 3, 4));
    for (int I = 0; I < 100000; ++I) Painter.drawEllipse(0, 0, 2000, 2000);
    Painter.end();
    EXPECT_TRUE(Device.GaveUp());
    EXPECT_LT(Time.elapsed(), 10000);
}
