#include "LayerRules.h"

#include <QMap>
#include <QRegularExpression>
#include <algorithm>

namespace neb::layout {
namespace {

constexpr qsizetype SourceLines = 400;
constexpr qsizetype HeaderLines = 150;
constexpr int RoomFiles = 35;

// Headers of Qt's modules that somebody might reach for: what draws, and what is or serves a
// window.
const QString Drawing = QStringLiteral(
    "Bitmap|Brush|Color|ColorSpace|Font|FontMetrics|Image|ImageReader|ImageWriter|PaintDevice|"
    "Painter|PainterPath|Palette|PdfWriter|Pen|Picture|Pixmap|Polygon|PolygonF|Printer|PrinterInfo|"
    "Raster[A-Z][A-Za-z]*|"
    "Region|RgbaFloat|SvgRenderer|TextDocument|TextLayout|Transform|Vector[234]D");
const QString Windows = QStringLiteral(
    "Abstract(?:Button|ItemView|ScrollArea)|Action|Application|Check?Box|Clipboard|ComboBox|Cursor|"
    "DesktopServices|Dialog|DialogButtonBox|Drag|FileDialog|FileSystemModel|Frame|GridLayout|"
    "GroupBox|HBoxLayout|Icon|KeyEvent|KeySequence|Label|Layout|LineEdit|ListView|ListWidget|"
    "MainWindow|MdiArea|MdiSubWindow|Menu|MenuBar|MessageBox|MouseEvent|Movie|PlainTextEdit|"
    "PrintDialog|ProgressBar|PushButton|RadioButton|Screen|ScrollArea|ScrollBar|Slider|SpinBox|"
    "StandardItemModel|Style|StyleOption|StyledItemDelegate|TabWidget|TableView|TableWidget|"
    "TextEdit|ToolBar|ToolButton|ToolTip|TreeView|TreeWidget|VBoxLayout|Validator|Widget|Window|"
    "Wizard");

QRegularExpression HeaderOf(const QString& Modules, const QString& Classes, const QString& Old) {
    return QRegularExpression(
        QStringLiteral("^(?:Qt(?:%1)/.*|Q(?:%2)|q(?:%3)\\.h)$").arg(Modules, Classes, Old));
}

const QRegularExpression DrawingHeader =
    HeaderOf(QStringLiteral("Gui|Svg|PrintSupport"), Drawing,
             QStringLiteral("image|pixmap|painter|color|font"));
const QRegularExpression WindowHeader =
    HeaderOf(QStringLiteral("Widgets"), Windows, QStringLiteral("widget|dialog|application"));

// The filter names and the separator of QDir look at no disk.
const QRegularExpression HostFileUse(QStringLiteral(
    "\\b(?:QDir(?!::(?:separator|AllDirs|Dirs|Files|Drives|Hidden|NoDot|NoDotDot|NoDotAndDotDot|"
    "NoFilter|NoSymLinks|Readable|Writable)\\b)|QFile|QFileInfo|QSaveFile|QTemporary(?:File|Dir)|"
    "QDirIterator|QLockFile|QFileDevice|[iow]?[io]?fstream|filebuf|fopen|freopen|opendir|"
    "(?:std::)?filesystem(?=::))\\b"));

// The locked side looks at itself and gives up the file system, before and without ours.
const QRegularExpression HostFileSource(
    QStringLiteral("^support/(?:files/[A-Za-z]*\\.(?:cpp|h)|locked/Lock(?:edRoom)?\\.cpp)$"));

const QRegularExpression Include(QStringLiteral("^\\s*#\\s*include\\s*(?:\"([^\"]*)\"|<([^>]*)>)"));

// What is left to some rooms alone.
struct WordRule {
    QRegularExpression Words, FreeIn;
    const char* Says;
};

const WordRule WordRules[] = {
    {QRegularExpression(
         QStringLiteral("\\b(?:MsgBox|AskYesNo|ShowBox)\\s*\\(|Boxes\\s*->\\s*Show\\b")),
     QRegularExpression(QStringLiteral("^(?:windows|controls|program)/|^support/Services\\.")),
     "only windows show boxes"},
    {QRegularExpression(QStringLiteral(
         "\\b(?:[A-Za-z]*Engine|theDB|mDB|[A-Za-z]*Album|Found)(?:\\(\\))?(?:->|\\.)"
         "(?:SaveAlbum|DeleteAlbum|SaveSlide2?|SaveSlideShow|DeleteSlide|DeleteSlideShow|"
         "SaveSlideShowDetail|SaveSlideShowSoundTrack|ClearDetails|ClearSoundTracks|ClearContents)"
         "\\s*\\(|->(?:AlbumName|SlideText|SlideLoc|SoundTrackLoc|"
         "Override|Repeat|SlideShowName|"
         "ProgressionMethod|FitToSong|Fade|Slides|SlideShows|Details|SoundTracks)\\s*=[^=]")),
     QRegularExpression(QStringLiteral("^db/")),
     "albums, slides and shows change through db/Changes alone"},
    {QRegularExpression(QStringLiteral("\\bBroadcastEvent\\b")),
     QRegularExpression(QStringLiteral("^windows/frame/")),
     "changes are told by their announcement"},
    // The writer of JPEGs is given pixels; its library's reader is called behind the door, and for
    // what the program has made itself.
    {QRegularExpression(QStringLiteral(
         "<(?:Magick|libheif/|openjpeg|tiff|turbojpeg|exiv2/|lcms2)|"
         "\\bQ(?:ImageReader|ImageIOHandler|ImageIOPlugin|Movie|SvgRenderer|SvgWidget)\\b|"
         "\\b(?:fromData|loadFromData|fromIccProfile)\\s*\\(|\\bimageData\\s*\\(")),
     QRegularExpression(QStringLiteral("^pictures/(?:decoders/|metafiles/|workers/"
                                       "(?:Warm(?:Decoders|Drawings)|ReadingHere)\\.cpp|"
                                       "notes/(?:HeifBlocks|JpegTurn|PictureNotes)\\.cpp)")),
     "foreign pictures are looked at behind the locked door alone"},
    {QRegularExpression(QStringLiteral("<jpeglib")),
     QRegularExpression(
         QStringLiteral("^pictures/(?:decoders/PictureDecoderJpeg|JpegWriter)\\.cpp$")),
     "foreign pictures are looked at behind the locked door alone"},
    // What calls a decoder in its own process.
    {QRegularExpression(
         QStringLiteral("\\b(?:DecodeHere|ReadingHere|TurnedJpeg|BlocksOfHeif|EmfToSvg|"
                        "Decode(?:Jpeg|ByQt|Bmp|Pcx|Psd|Tga|Tiff|ByMagick|Heif|"
                        "Jp2|Emf|Wmf))\\b")),
     QRegularExpression(QStringLiteral(
         "^pictures/(?:formats|decoders|metafiles|notes)/|"
         "^pictures/workers/(?:ReadingHere|OwnPictures|WarmDecoders|WarmDrawings|main)\\.")),
     "foreign pictures are looked at behind the locked door alone"},
};

QString At(const QString& Path, qsizetype Line, const QString& What) {
    return QStringLiteral("%1:%2: %3").arg(Path).arg(Line).arg(What);
}

QString TopOf(const QString& Folder) {
    return Folder.section(u'/', 0, 0);
}

qsizetype PlaceOf(const House& Rooms, const QString& Folder) {
    for (qsizetype I = 0; I < Rooms.size(); ++I)
        if (Rooms[I].Folder == Folder) return I;
    return -1;
}

// Whether a top folder is built upon another, straight or through a third.
bool StandsOn(const House& Rooms, const Room& From, const QString& Top) {
    if (TopOf(From.Folder) == Top || From.Uses.contains(u"*") || From.Uses.contains(Top))
        return true;
    return std::any_of(Rooms.begin(), Rooms.end(), [&](const Room& Each) {
        return From.Uses.contains(TopOf(Each.Folder)) && TopOf(Each.Folder) != TopOf(From.Folder) &&
               StandsOn(Rooms, Each, Top);
    });
}

// What Qt's tools and the build make has no folder.
bool IsMade(const QString& Header) {
    return Header.startsWith(QStringLiteral("ui_")) || Header.endsWith(u".moc") ||
           Header == QStringLiteral("InitAssets.h");
}

QString OrderFault(const House& Rooms, const Room& From, const QString& Header) {
    if (IsMade(Header)) return {};
    if (!Header.contains(u'/')) return Header + QStringLiteral(" is not written from the root");
    const Room* To = RoomOf(Rooms, Header);
    if (!To) return Header + QStringLiteral(" lies in no room");
    if (PlaceOf(Rooms, To->Folder) > PlaceOf(Rooms, From.Folder))
        return QStringLiteral("%1 may not use %2, which stands above it").arg(From.Folder, Header);
    if (StandsOn(Rooms, From, TopOf(To->Folder))) return {};
    return QStringLiteral("%1 may not use %2: it is not built upon it").arg(From.Folder, Header);
}

QString DrawingFault(const Room& From, const QString& Header) {
    const bool Window = WindowHeader.match(Header).hasMatch();
    if (Window && From.Knows != u"windows")
        return QStringLiteral("%1 knows no windows: <%2>").arg(From.Folder, Header);
    if (DrawingHeader.match(Header).hasMatch() && From.Knows == u"texts")
        return QStringLiteral("%1 knows no pictures: <%2>").arg(From.Folder, Header);
    return {};
}

// Finds the end of what starts at From: a comment, a string, a raw string, or one character.
struct Piece {
    qsizetype Length = 1;
    bool Comment = false, String = false;
};

qsizetype EndOfQuoted(const QString& Text, qsizetype From) {
    const QChar Quote = Text[From];
    for (qsizetype I = From + 1; I < Text.size(); ++I) {
        if (Text[I] == u'\\')
            ++I;
        else if (Text[I] == Quote || Text[I] == u'\n')
            return I + 1;
    }
    return Text.size();
}

qsizetype EndAfter(const QString& Text, const QString& Mark, qsizetype From) {
    const qsizetype Found = Text.indexOf(Mark, From);
    return Found < 0 ? Text.size() : Found + Mark.size();
}

bool IsDigitSeparator(const QString& Text, qsizetype From) {
    const QString Before = Text.mid(qMax<qsizetype>(0, From - 2), qMin<qsizetype>(2, From));
    if (Before.isEmpty() || !Before.back().isLetterOrNumber() || Before == u"u8") return false;
    const bool Prefix = QStringLiteral("uUL").contains(Before.back());
    return !Prefix || (Before.size() == 2 && Before.front().isLetterOrNumber());
}

Piece PieceAt(const QString& Text, qsizetype From) {
    const QStringView Rest = QStringView(Text).sliced(From);
    if (Rest.startsWith(u"//")) {
        const qsizetype End = Text.indexOf(u'\n', From);
        return {(End < 0 ? Text.size() : End) - From, true, false};
    }
    if (Rest.startsWith(u"/*"))
        return {EndAfter(Text, QStringLiteral("*/"), From + 2) - From, true};
    if (Rest.startsWith(u"R\"")) {
        const qsizetype Open = Text.indexOf(u'(', From);
        const QString Close = u')' + Text.mid(From + 2, Open - From - 2) + u'"';
        return {EndAfter(Text, Close, Open) - From, false, true};
    }
    const bool Quote = Rest[0] == u'"' || (Rest[0] == u'\'' && !IsDigitSeparator(Text, From));
    return Quote ? Piece{EndOfQuoted(Text, From) - From, false, true} : Piece{};
}

// The folders drawn below "src/", with their parents: "support", "support/files", ...
QStringList DrawnFolders(const QString& Document) {
    static const QRegularExpression Folder(QStringLiteral("^([^A-Za-z`]*)([a-z]+)/(?:\\s|$)"));
    QStringList Drawn, Parents;
    QList<qsizetype> Indents;
    bool Below = false;
    for (const QString& Line : Document.split(u'\n')) {
        const auto Match = Folder.match(Line);
        if (Line.startsWith(u"```")) Below = false;
        if (!Match.hasMatch()) continue;
        const qsizetype Indent = Match.capturedLength(1);
        while (!Indents.isEmpty() && Indents.last() >= Indent) {
            Indents.removeLast();
            if (!Parents.isEmpty()) Parents.removeLast();
        }
        if (Match.captured(2) == u"src" && Indent == 0) {
            Below = true;
            continue;
        }
        if (!Below || Indent == 0) {
            Below = false;
            continue;
        }
        Parents << Match.captured(2);
        Indents << Indent;
        Drawn << Parents.join(u'/');
    }
    return Drawn;
}

// As a house is drawn: the roof first, what a top folder holds right below its name.
QStringList DrawingOrder(const House& Rooms) {
    QStringList Order;
    for (auto Each = Rooms.rbegin(); Each != Rooms.rend(); ++Each) {
        const QString Top = TopOf(Each->Folder);
        if (!Order.contains(Top)) Order << Top;
        if (Each->Folder != Top) Order << Each->Folder;
    }
    return Order;
}

}  // namespace

House ReadHouse(const QString& List) {
    House Rooms;
    for (const QString& Line : List.split(u'|', Qt::SkipEmptyParts)) {
        const QStringList Fields = Line.split(u':');
        Rooms << Room{Fields.value(1), Fields.value(0).toInt(), Fields.value(2),
                      Fields.value(3).split(u',', Qt::SkipEmptyParts)};
    }
    return Rooms;
}

const Room* RoomOf(const House& Rooms, const QString& Path) {
    const qsizetype Place = PlaceOf(Rooms, Path.left(Path.lastIndexOf(u'/')));
    return Path.contains(u'/') && Place >= 0 ? &Rooms[Place] : nullptr;
}

QStringList FloorFaults(const House& Rooms) {
    QStringList Faults;
    for (qsizetype I = 1; I < Rooms.size(); ++I)
        if (Rooms[I].Floor < Rooms[I - 1].Floor)
            Faults
                << QStringLiteral("%1 comes after a room of a higher floor").arg(Rooms[I].Folder);
    return Faults;
}

QStringList CrowdFaults(const QStringList& Sources) {
    QMap<QString, int> Counts;
    for (const QString& Path : Sources) ++Counts[Path.left(Path.lastIndexOf(u'/'))];
    QStringList Faults;
    for (auto Each = Counts.begin(); Each != Counts.end(); ++Each)
        if (Each.value() > RoomFiles)
            Faults << QStringLiteral("%1 holds %2 files, more than %3")
                          .arg(Each.key())
                          .arg(Each.value())
                          .arg(RoomFiles);
    return Faults;
}

QString WithoutComments(const QString& Text, bool KeepStrings) {
    QString Out;
    Out.reserve(Text.size());
    for (qsizetype I = 0; I < Text.size();) {
        const Piece Next = PieceAt(Text, I);
        const bool Keep = !Next.Comment && (KeepStrings || !Next.String);
        for (const QChar Character : QStringView(Text).sliced(I, Next.Length))
            Out += Keep || Character == u'\n' ? Character : QChar(u' ');
        I += Next.Length;
    }
    return Out;
}

QStringList IncludeFaults(const House& Rooms, const QString& Path, const QString& Text) {
    const Room* From = RoomOf(Rooms, Path);
    if (!From) return {At(Path, 1, QStringLiteral("the file lies in no room"))};
    QStringList Faults;
    qsizetype Line = 0;
    for (const QString& Code : WithoutComments(Text, true).split(u'\n')) {
        ++Line;
        const auto Match = Include.match(Code);
        if (!Match.hasMatch()) continue;
        const QString Own = Match.captured(1), Foreign = Match.captured(2);
        for (const QString& Fault : {Own.isEmpty() ? QString() : OrderFault(Rooms, *From, Own),
                                     DrawingFault(*From, Own + Foreign)})
            if (!Fault.isEmpty()) Faults << At(Path, Line, Fault);
    }
    return Faults;
}

QStringList FileSystemFaults(const QString& Path, const QString& Text) {
    if (HostFileSource.match(Path).hasMatch()) return {};
    QStringList Faults;
    qsizetype Line = 0;
    for (const QString& Code : WithoutComments(Text, false).split(u'\n')) {
        ++Line;
        const auto Match = HostFileUse.match(Code);
        if (Match.hasMatch() && !Include.match(Code).hasMatch())
            Faults << At(
                Path, Line,
                Match.captured() + QStringLiteral(" belongs into the host file routines alone"));
    }
    return Faults;
}

QStringList SizeFaults(const QString& Path, const QString& Text) {
    const bool Header = Path.endsWith(QStringLiteral(".h"));
    if (!Header && !Path.endsWith(QStringLiteral(".cpp"))) return {};
    const qsizetype Limit = Header ? HeaderLines : SourceLines;
    const qsizetype Lines = Text.count(u'\n') + (Text.isEmpty() || Text.endsWith(u'\n') ? 0 : 1);
    if (Lines <= Limit) return {};
    return {At(Path, Lines, QStringLiteral("longer than %1 lines").arg(Limit))};
}

QStringList DrawingFaults(const House& Rooms, const QString& Document) {
    const QStringList Expected = DrawingOrder(Rooms), Drawn = DrawnFolders(Document);
    QStringList Faults;
    for (const QString& Folder : Expected)
        if (!Drawn.contains(Folder))
            Faults << Folder + QStringLiteral("/ is missing in the drawing of src/");
    for (const QString& Folder : Drawn)
        if (!Expected.contains(Folder)) Faults << Folder + QStringLiteral("/ is no room");
    if (Faults.isEmpty() && Drawn != Expected)
        Faults << QStringLiteral("the drawing has the rooms in the order ") + Drawn.join(u", ") +
                      QStringLiteral(" instead of ") + Expected.join(u", ");
    return Faults;
}

QStringList GuideFaults(const House& Rooms, const QString& Document, const QStringList& Sources) {
    QStringList Faults;
    for (const Room& Each : Rooms) {
        const QRegularExpression Line(
            QStringLiteral("^- `%1` — `([A-Za-z]+\\.(?:h|cpp))`: ").arg(Each.Folder),
            QRegularExpression::MultilineOption);
        const auto Match = Line.match(Document);
        if (!Match.hasMatch())
            Faults << Each.Folder +
                          QStringLiteral(" has no line that names the file to read first");
        else if (!Sources.contains(Each.Folder + u'/' + Match.captured(1)))
            Faults << QStringLiteral("%1 has no %2").arg(Each.Folder, Match.captured(1));
    }
    return Faults;
}

QStringList WindowTableFaults(const QString& Document, const QStringList& Forms) {
    QStringList Faults;
    for (const QString& Form : Forms) {
        const QString Folder = Form.left(Form.lastIndexOf(u'/'));
        const QString Class = Form.mid(Folder.size() + 1).section(u'.', 0, 0);
        if (!Document.contains(QStringLiteral("| `%1` | `%2` |").arg(Class, Folder)))
            Faults << QStringLiteral("%1 of %2 is not in the table of windows").arg(Class, Folder);
    }
    return Faults;
}

QStringList WordFaults(const QString& Path, const QString& Text) {
    QStringList Faults;
    const QString Code = WithoutComments(Text, false);
    for (const WordRule& Rule : WordRules) {
        if (Rule.FreeIn.match(Path).hasMatch()) continue;
        const QStringList Lines = Code.split(u'\n');
        for (qsizetype I = 0; I < Lines.size(); ++I)
            if (Rule.Words.match(Lines[I]).hasMatch())
                Faults << At(Path, I + 1, QString::fromUtf8(Rule.Says));
    }
    return Faults;
}

}  // namespace neb::layout
