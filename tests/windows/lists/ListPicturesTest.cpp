// What the lists of slides show: the thumbnails in the true proportions of the pictures, and on a
// fine screen the pictures themselves; and that no more is read for it than what is seen.
#include "windows/lists/ListPictures.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <QProcess>
#include <QScrollBar>
#include <set>

#include "controls/grid/FlexGridDrag.h"
#include "harness/ChildRole.h"
#include "windows/compose/ManagerRig.h"
#include "windows/transfer/frmAlbumView.h"

namespace neb {
namespace {

using namespace harness;

constexpr auto ListedPic = clsImageBuffer::ColPicture;

// Notes which pictures of a folder are opened.
class OpenedFiles {
  public:
    explicit OpenedFiles(const QString& Folder) : mWatch(::inotify_init1(IN_NONBLOCK)) {
        ::inotify_add_watch(mWatch, QFile::encodeName(Folder).constData(), IN_OPEN);
    }
    ~OpenedFiles() { ::close(mWatch); }
    OpenedFiles(const OpenedFiles&) = delete;
    OpenedFiles& operator=(const OpenedFiles&) = delete;
    // Full pictures since the last question; thumbnails do not count.
    std::set<QString> Pictures() {
        std::set<QString> All;
        alignas(inotify_event) char Bytes[65536];
        for (ssize_t Got; (Got = ::read(mWatch, Bytes, sizeof Bytes)) > 0;)
            for (char* At = Bytes; At < Bytes + Got;) {
                const auto* Event = reinterpret_cast<const inotify_event*>(At);
                const QString Name = QString::fromLatin1(Event->len ? Event->name : "");
                if (Name.endsWith(u".jpg")) All.insert(Name);
                At += sizeof(inotify_event) + Event->len;
            }
        return All;
    }

  private:
    int mWatch;
};

class ListPicturesShown : public ManagerRig {
  protected:
    // A slide whose stored picture is this one.
    std::int32_t AddPicture(const QImage& Picture) {
        const std::int32_t SlideID = AddSlide(u"slide"_s).SlideID;
        Picture.save(PicturePath(SlideID), "jpg", 100);
        return SlideID;
    }
    static QImage Plain(QSize Size, QColor Colour = Qt::red) {
        QImage Made(Size, QImage::Format_RGB32);
        Made.fill(Colour);
        return Made;
    }
    // Lines as wide as a 144th of the picture.
    static QImage Lines() {
        QImage Made(1152, 864, QImage::Format_RGB32);
        for (int Y = 0; Y < Made.height(); ++Y)
            for (int X = 0; X < Made.width(); ++X)
                Made.setPixel(X, Y, X / 8 % 2 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
        return Made;
    }
    void AddLines() { AddPicture(Lines()); }

    // The picture's cell as it is painted, in pixels of the screen.
    static QImage Cell(const FlexGrid& Grid, int Row) {
        QCoreApplication::processEvents();
        const QRect Room = Grid.visualRect(Grid.model()->index(Row, ListedPic));
        QImage Shot = Grid.viewport()->grab(Room).toImage();
        Shot.setDevicePixelRatio(1);
        return Shot;
    }
    // Whether this part is somewhere in the cell that begins there.
    static bool Holds(const QImage& Whole, const QImage& Part, QPointF Cell) {
        for (int Y = 0; Y < Part.width(); ++Y)
            for (int X = 0; X < Part.height(); ++X) {
                const QRect Place(Cell.toPoint() + QPoint(X, Y), Part.size());
                if (Whole.copy(Place).convertToFormat(Part.format()) == Part) return true;
            }
        return false;
    }
    static double Ratio(const FlexGrid& Grid) { return Grid.devicePixelRatioF(); }
    // Where this colour is seen, in logical pixels.
    static QRectF Seen(const FlexGrid& Grid, int Row, QColor Colour = Qt::red) {
        const QImage Shot = Cell(Grid, Row);
        QRect Found;
        for (int Y = 0; Y < Shot.height(); ++Y)
            for (int X = 0; X < Shot.width(); ++X) {
                const QColor At = Shot.pixelColor(X, Y);
                if (qAbs(At.red() - Colour.red()) + qAbs(At.green() - Colour.green()) +
                        qAbs(At.blue() - Colour.blue()) <
                    30)
                    Found |= QRect(X, Y, 1, 1);
            }
        return {QPointF(Found.topLeft()) / Ratio(Grid), QSizeF(Found.size()) / Ratio(Grid)};
    }
    // How far neighbours differ in the middle line, on average.
    static double Contrast(const FlexGrid& Grid, int Row) {
        const QImage Shot = Cell(Grid, Row);
        const int Middle = Shot.width() / 2, Span = qRound(20 * Ratio(Grid));
        double Sum = 0;
        for (int X = Middle - Span; X < Middle + Span; ++X)
            Sum += qAbs(qGreen(Shot.pixel(X, Shot.height() / 2)) -
                        qGreen(Shot.pixel(X + 1, Shot.height() / 2)));
        return Sum / (2 * Span);
    }
    static void ExpectShown(const FlexGrid& Grid, int Row, QSizeF Size, QColor Colour = Qt::red) {
        const auto IsThere = [&] {
            const QSizeF Now = Seen(Grid, Row, Colour).size();
            return qAbs(Now.width() - Size.width()) + qAbs(Now.height() - Size.height()) <= 1;
        };
        EXPECT_TRUE(QTest::qWaitFor(IsThere, 3000))
            << Seen(Grid, Row, Colour).width() << " by " << Seen(Grid, Row, Colour).height();
    }
    // Until nothing more is read.
    static void Settle(const FlexGrid& Grid) {
        QCoreApplication::processEvents();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !PicturesOf(Grid).IsReading(); }, 5000));
        QCoreApplication::processEvents();
    }
    static const ListPictures& PicturesOf(const FlexGrid& Grid) {
        for (const QObject* Each : Grid.children())
            if (const auto* Found = dynamic_cast<const ListPictures*>(Each)) return *Found;
        throw std::runtime_error("a list without pictures");
    }
    static int InView(const FlexGrid& Grid) {
        return Grid.viewport()->height() / Grid.rowHeight(0) + 2;
    }
    // Thousands of slides, whose files are links to those of the first.
    void AddMany(int Count) {
        const std::int32_t First = AddPicture(Plain({96, 64}));
        const QString Folder = SlidesFolder(Engine.DBPath(), AlbumID);
        WriteFile(Folder + ThumbnailName(First), ThumbnailBmp(Plain(ThumbnailSize)));
        for (int I = 1; I < Count; ++I) {
            std::int32_t SlideID = 0;
            Album().SaveSlide2(SlideID, u"slide %1"_s.arg(I), {}, {}, false, false, Engine);
            Album().GetSlide(SlideID)->SlideLoc = FileStem(SlideID) + u".JPG"_s;
            Link(PicturePath(First), PicturePath(SlideID));
            Link(Folder + ThumbnailName(First), Folder + ThumbnailName(SlideID));
        }
    }
    static void Link(const QString& From, const QString& To) {
        ASSERT_EQ(0,
                  ::link(QFile::encodeName(From).constData(), QFile::encodeName(To).constData()));
    }
};

TEST_F(ListPicturesShown, AreInTheirTrueProportionsInTheBulkManager) {
    AddPicture(Plain({1024, 256}));
    AddPicture(Plain({256, 1024}));
    AddPicture(Plain({1024, 768}));
    AddPicture(Plain({40, 40}));
    const auto Bulk = OpenBulk(AlbumID);
    const QSizeF Sizes[] = {{72, 18}, {18, 72}, {72, 54}, {72, 72}};
    for (int Row = 0; Row < 4; ++Row) {
        ExpectShown(GridOf(Bulk), Row, Sizes[Row]);
        const QRectF Room(QPointF(), QSizeF(Cell(GridOf(Bulk), Row).size()) / Ratio(GridOf(Bulk)));
        EXPECT_LE((Seen(GridOf(Bulk), Row).center() - Room.center()).manhattanLength(), 1.5);
        EXPECT_EQ(ThumbnailSize, GridOf(Bulk).CellPicture(Row, ListedPic).size())
            << "as on the disk";
    }
}

TEST_F(ListPicturesShown, AreSoInBothListsOfTheShowManagerAndAtThePointer) {
    AddPicture(Plain({1024, 256}));
    AddPicture(Plain({1024, 256}));
    OpenMgr(AlbumID, AddShow(u"Walk"_s, {2}));
    ExpectShown(Left(), 0, {72, 18});
    ExpectShown(Right(), 0, {72, 18});
    Pick(Left(), {0});
    const QSizeF Dragged = DragPicture(Left()).deviceIndependentSize();
    EXPECT_EQ(QSizeF(72, 18), Dragged);
    Push("cmdMoveRightOne");
    ExpectShown(Right(), 1, {72, 18});
}

TEST_F(ListPicturesShown, AreSoInTheViewer) {
    AddPicture(Plain({1024, 256}));
    const auto View = NewForm<frmAlbumView>();
    View->ViewAlbum(Engine, AlbumID, u"Garden"_s);
    ExpectShown(In<FlexGrid>(*View, "flxAlbum"), 0, {72, 18});
}

TEST_F(ListPicturesShown, AreAsFineAsTheScreen) {
    AddLines();
    const auto Bulk = OpenBulk(AlbumID);
    const FlexGrid& Grid = GridOf(Bulk);
    Settle(Grid);
    EXPECT_EQ(qEnvironmentVariable("QT_SCALE_FACTOR", u"1"_s).toDouble(), Ratio(Grid));
    if (Ratio(Grid) == 2)
        EXPECT_GT(Contrast(Grid, 0), 110);
    else
        EXPECT_LT(Contrast(Grid, 0), 60) << "the thumbnail has all that can be seen";
}

// Whatever the scaling: a picture that lay between the pixels would be blurred once more.
TEST_F(ListPicturesShown, AreDrawnPixelForPixel) {
    AddLines();
    AddPicture(Lines().transformed(QTransform().rotate(90)));
    const auto Bulk = OpenBulk(AlbumID);
    const FlexGrid& Grid = GridOf(Bulk);
    Settle(Grid);
    QImage Shot = Grid.viewport()->grab().toImage();
    Shot.setDevicePixelRatio(1);
    for (int Row = 0; Row < 2; ++Row) {
        QImage Ready = FittedPicture(Grid.ShownPicture(Row, ListedPic), Ratio(Grid));
        EXPECT_EQ(qRound(72 * Ratio(Grid)), std::max(Ready.width(), Ready.height()));
        Ready.setDevicePixelRatio(1);
        const QRect Room = Grid.visualRect(Grid.model()->index(Row, ListedPic));
        EXPECT_TRUE(Holds(Shot, Ready, QPointF(Room.topLeft()) * Ratio(Grid))) << Row;
    }
}

TEST_F(ListPicturesShown, ChangeWithTheSlide) {
    AddPicture(Plain({1024, 256}));
    AddPicture(Plain({1024, 256}));
    OpenMgr(AlbumID, AddShow(u"Walk"_s, {2}));
    const auto Bulk = OpenBulk(AlbumID);
    ExpectShown(Right(), 0, {72, 18});
    Settle(GridOf(Bulk));
    for (const std::int32_t SlideID : {1, 2}) {
        Plain({300, 600}, Qt::blue).save(PicturePath(SlideID), "jpg", 100);
        DeleteFile(SlidesFolder(Engine.DBPath(), AlbumID) + ThumbnailName(SlideID));
        BroadcastEvent(u"Album"_s, u"Add Slides"_s, nullptr, {AlbumID, SlideID});
    }
    ExpectShown(Left(), 0, {36, 72}, Qt::blue);
    ExpectShown(Right(), 0, {36, 72}, Qt::blue);
    ExpectShown(GridOf(Bulk), 0, {36, 72}, Qt::blue);
    Settle(GridOf(Bulk));
    ExpectShown(GridOf(Bulk), 0, {36, 72}, Qt::blue);
}

TEST_F(ListPicturesShown, TurnWithTheSlideInTheSlideManager) {
    MakePicture(App / u"NoSlide.bmp"_s, 60, 40, Qt::gray);
    AddPicture(Plain({1024, 256}));
    const auto Bulk = OpenBulk(AlbumID);
    ExpectShown(GridOf(Bulk), 0, {72, 18});
    const auto Slides = NewForm<frmSlideDBM>();
    Slides->LoadSlideMgr();
    Activate(*Slides);
    QCoreApplication::processEvents();
    for (const auto& [Name, Key] : {std::pair("cboAlbum", AlbumID), std::pair("cboSlides", 1)}) {
        auto& Box = In<QComboBox>(*Slides, Name);
        Box.setCurrentIndex(Box.findData(Key));
    }
    Press(*Slides, "cmdRotate2");
    Press(*Slides, "cmdSave");
    ExpectShown(GridOf(Bulk), 0, {18, 72});
    Settle(GridOf(Bulk));
    ExpectShown(GridOf(Bulk), 0, {18, 72});
}

TEST_F(ListPicturesShown, OfAPictureThatHasGoneTheThumbnailStays) {
    AddPicture(Plain({1024, 256}));
    WriteFile(SlidesFolder(Engine.DBPath(), AlbumID) + ThumbnailName(1),
              ThumbnailBmp(Plain(ThumbnailSize)));
    WriteFile(PicturePath(1), "no picture any more");
    const auto Bulk = OpenBulk(AlbumID);
    Settle(GridOf(Bulk));
    ExpectShown(GridOf(Bulk), 0, {72, 72});
    DeleteFile(PicturePath(1));
    BroadcastEvent(u"Album"_s, u"Add Slides"_s, nullptr, {AlbumID, 1});
    Settle(GridOf(Bulk));
    ExpectShown(GridOf(Bulk), 0, {72, 72});
}

TEST_F(ListPicturesShown, OfTenThousandOnlyThoseThatAreSeenAreRead) {
    AddMany(10000);
    OpenedFiles Opened(SlidesFolder(Engine.DBPath(), AlbumID));
    const auto Bulk = OpenBulk(AlbumID);
    FlexGrid& Grid = GridOf(Bulk);
    Settle(Grid);
    const int Page = InView(Grid), Ahead = Ratio(Grid) > 1 ? Page : 0;
    EXPECT_LE(static_cast<int>(Opened.Pictures().size()), Page + Ahead);
    Grid.SetRow(0);
    Grid.setFocus();
    constexpr int Pages = 30;
    std::set<QString> Read;
    for (int I = 0; I < Pages; ++I) {
        QTest::keyClick(&Grid, Qt::Key_PageDown);
        QCoreApplication::processEvents();
        Read.merge(Opened.Pictures());
    }
    EXPECT_GT(Grid.Row(), Pages * (Page - 4)) << "it has scrolled";
    ExpectShown(Grid, Grid.Row(), {72, 48});
    Settle(Grid);
    Read.merge(Opened.Pictures());
    EXPECT_LE(static_cast<int>(Read.size()), (Pages + 1) * Page + 2 * Ahead);
    EXPECT_LE(PicturesOf(Grid).Kept(), 3 * Page) << "what has gone by is not kept";
    Grid.EnsureRowVisible(9999);
    ExpectShown(Grid, 9999, {72, 48});
}

// A list of thumbnails whose pictures are these files.
void FillList(FlexGrid& Grid, const QStringList& Paths) {
    SetSlideColumns(Grid, false);
    for (const QString& Path : Paths) {
        const int Row = Grid.AddItem();
        QImage Thumbnail(ThumbnailSize, QImage::Format_RGB32);
        Thumbnail.fill(Qt::red);
        Grid.SetTextMatrix(Row, clsImageBuffer::ColPath, Path);
        Grid.SetCellPicture(Row, ListedPic, Thumbnail);
    }
    Grid.setGeometry(50, 50, 400, 300);
    Grid.show();
}

// The scaling of a display is fixed when a program starts.
void ExpectPassing(const char* Scale, const QString& Tests, const char* Count) {
    QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
    Environment.insert(u"QT_SCALE_FACTOR"_s, QString::fromLatin1(Scale));
    QProcess Copy;
    Copy.setProcessEnvironment(Environment);
    Copy.setProcessChannelMode(QProcess::MergedChannels);
    Copy.start(QCoreApplication::applicationFilePath(), {u"--gtest_filter="_s + Tests});
    ASSERT_TRUE(Copy.waitForFinished(60000));
    const QByteArray Said = Copy.readAll();
    EXPECT_EQ(QProcess::NormalExit, Copy.exitStatus());
    EXPECT_EQ(0, Copy.exitCode()) << Scale << ": " << Said.toStdString();
    EXPECT_TRUE(Said.contains(Count)) << Said.toStdString();
}

TEST(ListPicturesOnAFineScreen, AreShownAsWell) {
    ExpectPassing("2", u"ListPicturesShown.*"_s, "[  PASSED  ] 9 tests");
}

TEST(ListPicturesOnAFineScreen, AreSharpAtScalingsBetween) {
    for (const char* Scale : {"1.25", "1.5"})
        ExpectPassing(Scale, u"ListPicturesShown.AreDrawnPixelForPixel"_s, "[  PASSED  ] 1 test");
}

// A list that goes over to a fine screen, and back.
int MoveBetweenScreens() {
    const TempFolder Folder;
    const QString Path = Folder / u"lines.jpg"_s;
    QImage Lines(1152, 864, QImage::Format_RGB32);
    for (int Y = 0; Y < Lines.height(); ++Y)
        for (int X = 0; X < Lines.width(); ++X)
            Lines.setPixel(X, Y, X / 8 % 2 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
    Lines.save(Path, "jpg", 100);
    FlexGrid Grid;
    FillList(Grid, {Path});
    const auto Waits = [&](double Ratio, QSize Pixels) {
        return QTest::qWaitFor(
            [&] {
                const QSize Now = Grid.ShownPicture(0, ListedPic).Picture.size();
                return Grid.devicePixelRatioF() == Ratio && Now == Pixels;
            },
            5000);
    };
    if (!Waits(1, ThumbnailSize)) return 2;
    Grid.setGeometry(850, 50, 400, 300);
    if (!Waits(2, {144, 108})) return 3;
    Grid.setGeometry(50, 50, 400, 300);
    return Waits(1, ThumbnailSize) ? 0 : 4;
}

const ChildRole Mover("move-a-list-between-screens", &MoveBetweenScreens);

TEST(ListPicturesOnAFineScreen, FollowTheWindowThere) {
    const TempFolder Folder;
    WriteFile(Folder / u"screens.json"_s,
              R"({"screens":[{"name":"one","x":0,"y":0,"width":800,"height":600,"logicalDpi":96,)"
              R"("logicalBaseDpi":96,"dpr":1},{"name":"two","x":800,"y":0,"width":800,)"
              R"("height":600,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})");
    QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
    Environment.insert(u"QT_QPA_PLATFORM"_s,
                       u"offscreen:configfile="_s + (Folder / u"screens.json"_s));
    Environment.insert(u"QT_SCREEN_SCALE_FACTORS"_s, u"one=1;two=2"_s);
    QProcess Copy;
    Copy.setProcessEnvironment(Environment);
    Copy.setProcessChannelMode(QProcess::ForwardedChannels);
    Copy.start(QCoreApplication::applicationFilePath(),
               {u"--role"_s, u"move-a-list-between-screens"_s});
    ASSERT_TRUE(Copy.waitForFinished(30000));
    EXPECT_EQ(QProcess::NormalExit, Copy.exitStatus());
    EXPECT_EQ(0, Copy.exitCode()) << "2: not shown, 3: not followed, 4: not followed back";
}

}  // namespace
}  // namespace neb
