#include "LayerRules.h"

#include <QRegularExpression>

namespace neb::layout {
namespace {

constexpr qsizetype SourceLines = 400;
constexpr qsizetype HeaderLines = 150;

const QStringList FreeOfOrder{QStringLiteral("shell/main"), QStringLiteral("tools")};
const QStringList WithoutWindows{QStringLiteral("support"), QStringLiteral("db")};

// Headers of Qt's drawing and windows modules that somebody might reach for.
const QRegularExpression GuiHeader(QStringLiteral(
    "^(?:Qt(?:Gui|Widgets|PrintSupport|Svg)/.*|Q(?:Abstract(?:Button|ItemView|ScrollArea)|Action|"
    "Application|Bitmap|Brush|Check?Box|Clipboard|Color|ColorSpace|ComboBox|Cursor|"
    "DesktopServices|Dialog|DialogButtonBox|Drag|FileDialog|FileSystemModel|Font|FontMetrics|"
    "Frame|GridLayout|GroupBox|GuiApplication|HBoxLayout|Icon|Image|ImageReader|ImageWriter|"
    "KeyEvent|KeySequence|Label|Layout|LineEdit|ListView|ListWidget|MainWindow|MdiArea|"
    "MdiSubWindow|Menu|MenuBar|MessageBox|MouseEvent|Movie|PaintDevice|Painter|PainterPath|"
    "Palette|PdfWriter|Pen|Picture|Pixmap|PlainTextEdit|Polygon|PolygonF|PrintDialog|Printer|"
    "PrinterInfo|ProgressBar|PushButton|RadioButton|Raster[A-Z][A-Za-z]*|Region|RgbaFloat|Screen|"
    "ScrollArea|ScrollBar|Slider|SpinBox|StandardItemModel|Style|StyleOption|SvgRenderer|"
    "TabWidget|TableView|TableWidget|TextDocument|TextEdit|ToolBar|ToolButton|ToolTip|Transform|"
    "TreeView|TreeWidget|VBoxLayout|Validator|Vector[234]D|Widget|Window|Wizard)|q(?:widget|"
    "image|pixmap|painter|dialog|application|color|font)\\.h)$"));

// The filter names and the separator of QDir look at no disk.
const QRegularExpression HostFileUse(QStringLiteral(
    "\\b(?:QDir(?!::(?:separator|AllDirs|Dirs|Files|Drives|Hidden|NoDot|NoDotDot|NoDotAndDotDot|"
    "NoFilter|NoSymLinks|Readable|Writable)\\b)|QFile|QFileInfo|QSaveFile|QTemporary(?:File|Dir)|"
    "QDirIterator|QLockFile|QFileDevice|[iow]?[io]?fstream|filebuf|fopen|freopen|opendir|"
    "(?:std::)?filesystem(?=::))\\b"));

const QRegularExpression HostFileSource(
    QStringLiteral("^support/(?:modHostFiles[A-Za-z]*|NameCache)\\.(?:cpp|h)$"));

const QRegularExpression Include(QStringLiteral("^\\s*#\\s*include\\s*(?:\"([^\"]*)\"|<([^>]*)>)"));

QString At(const QString& Path, qsizetype Line, const QString& What) {
    return QStringLiteral("%1:%2: %3").arg(Path).arg(Line).arg(What);
}

QString OrderFault(const QString& From, const QString& Header) {
    const QString To = LayerOf(Header);
    if (!Header.contains(u'/')) {
        const bool Outside = Header.startsWith(QStringLiteral("ui_")) || Header.endsWith(u".moc") ||
                             Header == QStringLiteral("InitAssets.h");
        return Outside ? QString() : Header + QStringLiteral(" is not written from the root");
    }
    if (To.isEmpty()) return Header + QStringLiteral(" lies in no layer");
    if (WithoutWindows.contains(From) && To != From && To != QStringLiteral("support"))
        return From + QStringLiteral(" may use support alone, not ") + Header;
    if (FreeOfOrder.contains(From) || LayerOrder().indexOf(To) <= LayerOrder().indexOf(From))
        return {};
    return QStringLiteral("%1 may not use %2, which comes after it").arg(From, Header);
}

QString GuiFault(const QString& From, const QString& Header) {
    if (!WithoutWindows.contains(From) || !GuiHeader.match(Header).hasMatch()) return {};
    return QStringLiteral("%1 knows no windows or pictures: <%2>").arg(From, Header);
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

// The directories drawn below "src/", with their parents: "support", "support/windows", ...
QStringList DrawnLayers(const QString& Document) {
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

// A folder inside another is drawn right below it, whatever its place in the order.
QStringList DrawingOrder(const QStringList& Existing) {
    QStringList Order;
    for (const QString& Layer : LayerOrder()) {
        if (!Existing.contains(Layer)) continue;
        const qsizetype Parent = Order.indexOf(Layer.section(u'/', 0, 0));
        Order.insert(Layer.contains(u'/') && Parent >= 0 ? Parent + 1 : Order.size(), Layer);
    }
    return Order;
}

}  // namespace

const QStringList& LayerOrder() {
    static const QStringList Order{
        QStringLiteral("support"),        QStringLiteral("support/windows"),
        QStringLiteral("effects"),        QStringLiteral("platform"),
        QStringLiteral("platform/sound"), QStringLiteral("db"),
        QStringLiteral("shell"),          QStringLiteral("presentation"),
        QStringLiteral("printing"),       QStringLiteral("intake"),
        QStringLiteral("authoring"),      QStringLiteral("transfer"),
        QStringLiteral("shell/main"),     QStringLiteral("tools")};
    return Order;
}

QString LayerOf(const QString& Path) {
    const QString Folder = Path.left(Path.lastIndexOf(u'/'));
    return Path.contains(u'/') && LayerOrder().contains(Folder) ? Folder : QString();
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

QStringList IncludeFaults(const QString& Path, const QString& Text) {
    const QString From = LayerOf(Path);
    if (From.isEmpty()) return {At(Path, 1, QStringLiteral("the file lies in no layer"))};
    QStringList Faults;
    qsizetype Line = 0;
    for (const QString& Code : WithoutComments(Text, true).split(u'\n')) {
        ++Line;
        const auto Match = Include.match(Code);
        if (!Match.hasMatch()) continue;
        const QString Own = Match.captured(1), Foreign = Match.captured(2);
        for (const QString& Fault :
             {Own.isEmpty() ? QString() : OrderFault(From, Own), GuiFault(From, Own + Foreign)})
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

QStringList DrawingFaults(const QString& Document, const QStringList& Existing) {
    QStringList Expected = DrawingOrder(Existing), Faults;
    QStringList Drawn = DrawnLayers(Document);
    for (const QString& Layer : Expected)
        if (!Drawn.contains(Layer))
            Faults << Layer + QStringLiteral("/ is missing in the drawing of src/");
    for (const QString& Layer : Drawn)
        if (!LayerOrder().contains(Layer)) Faults << Layer + QStringLiteral("/ is no layer");
    if (!Faults.isEmpty()) return Faults;
    Expected = DrawingOrder(Drawn);
    if (Drawn != Expected)
        Faults << QStringLiteral("the drawing has the layers in the order ") + Drawn.join(u", ") +
                      QStringLiteral(" instead of ") + Expected.join(u", ");
    return Faults;
}

}  // namespace neb::layout
