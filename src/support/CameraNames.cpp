#include "support/CameraNames.h"

#include <QRegularExpression>
#include <QStringList>
#include <span>

namespace neb {
namespace {

// Before a number of four digits or more, in one piece with it: "Sam 2005" is no such name.
constexpr char Makers[] =
    "(?:_?(?:DSC[FINPT]?|SDC|SANY|IMGP?|MVIMG|PICT|PXL|DJI|GOPR|HPIM|CIMG|IMAG|RIMG|RSCN|EPSN|SUNP|"
    "YDXJ|DCP|DCAM|FILE|BURST|PANO|IGP|MVC|CRW|MG|SCAN)[_-]?|"
    "(?:SAM|STA|STB|PIC|KIF|KIC|PDR|NIK|LRG|HAS|FB_IMG|RECEIVED|SNAPCHAT|MMEXPORT)[_-])"
    "[0-9]{4,}[A-Z]?(?:[_-][0-9]{2,})*(?:_[A-Z])?";
// What telephones and programs put before a day.
constexpr char BeforeDays[] =
    "(?:IMG|VID|PXL|MVIMG|PANO|BURST|WP|WIN|PHOTO|IMAG|DSC|C360|CYMERA|RETRICA|B612|SNOW|"
    "BEAUTYPLUS|"
    "PICSART|INSHOT|COLLAGE|MEITU|SNAPSEED|LRM|LRM_EXPORT|SIGNAL|TRIM|SCAN|CAMSCANNER|P|STK|AUD)";
// The rest of such names: a day and what may stand behind it.
constexpr char Day[] = "(?:19|20)[0-9]{6}(?:[_-]?[0-9]{2}[0-9_]{2,9}|[_-]WA[0-9]{1,6})?(?:_Pro)?";

// Names that cameras and programs give, of which they and people make copies.
constexpr const char* Numbered[] = {
    "_[A-Z0-9]{3}[0-9]{4}",  // with letters that the camera has been told: "_D3X1234"
    "P[0-9A-C][0-9]{6}", "[BGLR][0-9]{7}", "MVC-[0-9]{3}[A-Z]",
    "1[0-9]{2}[_-][0-9]{4}(?:_IMG)?",  // folder and number: "100_0001"
    // a day and a time
    ("(?:19|20)[0-9]{2}([-_.])[0-9]{2}\\1[0-9]{2}[ _T-]+"
     "[0-9]{2}[-_.:h]?[0-9]{2}(?:[-_.:]?[0-9]{2})?(?:[._][0-9]{1,6})?"),
    "(?!(?:18|19|20)[0-9]{2}(?![0-9]))[0-9]+",  // a number that can be no year
    "[0-9]{5,}(?:_[0-9]+)+_[a-z]", "[0-9a-f]{8}-?(?:[0-9a-f]{4}-?){3}[0-9a-f]{12}",
    "(?=.*[0-9])(?=.*[a-f])[0-9a-f]{16,}"};

constexpr char Copies[] =
    "(?:[ _-]?\\([0-9]{1,3}\\)|[ ._~-](?:[0-9]{1,3}|edited|edit|bearbeitet|copy|copie|kopie|copia|"
    "hdr|burst[0-9]*|cover|top|portrait|night|pano|mp|original|effects|animation|rotated|crop)){0,"
    "4}";

constexpr const char* OtherNames[] = {
    // what programs call a picture that nobody has named; a number behind a blank is by hand
    "(?:image|img|photo|picture|pic|bild|foto|scan|untitled|unnamed|unbenannt|download|temp|camera|"
    "capture|clipboard)(?:[0-9]+|[_-][0-9]{3,})?(?: ?\\([0-9]+\\))?",
    "(?:WhatsApp|Telegram|Viber)[ _-](?:Image|Photo|Bild|Foto)[ _-].*[0-9]{4}.*",
    "(?:signal|telegram|photo)[-_](?:19|20)[0-9]{2}-[0-9]{2}-[0-9]{2}[-_ 0-9]*.*",
    "(?:Screenshot|Screen[ _]Shot|Bildschirmfoto|Capture d.[eé]cran|Captura de pantalla|Schermata|"
    "Снимок экрана)[ _-].*[0-9]{2}.*"};

constexpr const char* Words[] = {
    "(?:[A-Z]+[ _]){0,2}DIGITAL[ _](?:STILL[ _])?(?:CAMERA|PICTURES?|PHOTO|IMAGE)",
    "(?:SAMSUNG )?CAMERA PICTURES?|SONY DSC|Exif[_ -]?JPEG.*|JPEG|DEFAULT|ASCII|UNICODE|charset "
    "?=.*",
    // where the camera had put the file
    "DCIM[\\\\/].*|.*[\\\\/].*\\.(?:jpe?g|tiff?|png|bmp|hei[cf]|dng)",
    // a telephone's notes to itself, and its marks for the way a picture was made
    "Maker ?:.*|(?:filter|fileterIntensity|filterIntensity|hw-rem|module|touch|modeInfo|sceneMode|"
    "cct_value|AI_Scene|aec_lux|weatherinfo)[a-z]* ?:.*",
    "(?:cof|hdr|mde|edf|sdr|dav|bty|oznor|rhdr|hdrpl|ptr|btf|rpt|nor|hbm|fbt|qrf|nfd|dig|vsco|btr|"
    "mtr|"
    "burst)(?:[_;,].*)?",
    "untitled|unnamed|unbenannt|ohne titel|sans titre|sin t[ií]tulo|no title|none|null|n/a|title|"
    "description|caption|image description|comment|user comments?|this is a comment|"
    "your comments? here|binary comment",
    // what programs say of themselves
    "lead technologies.*|file written by .*|created with (?:the )?(?:gimp|paint|adobe).*|"
    "processed with .*|intel\\(r\\).*|acd ?systems.*|creator: gd-jpeg.*",
    "[\\W_]*"};

QStringList Texts(std::span<const char* const> Patterns) {
    QStringList All;
    for (const char* Each : Patterns) All << QString::fromUtf8(Each);
    return All;
}

// One of these, from the first letter to the last, in any case.
QRegularExpression OneOf(const QStringList& Patterns) {
    return QRegularExpression(
        QRegularExpression::anchoredPattern(Patterns.join(u'|')),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
}

QString NumberedNames() {
    QStringList All = Texts(Numbered);
    All << QLatin1String(Makers)
        << QStringLiteral("(?:%1[_-])?%2").arg(QLatin1String(BeforeDays), QLatin1String(Day));
    return QStringLiteral("(?:copy of |kopie von |copie de |copia de )?(?:") + All.join(u'|') +
           u')' + QLatin1String(Copies);
}

const QRegularExpression& CameraNames() {
    static const QRegularExpression Names = OneOf(QStringList(NumberedNames()) + Texts(OtherNames));
    return Names;
}

const QRegularExpression& CameraWords() {
    static const QRegularExpression All = OneOf(Texts(Words));
    return All;
}

bool Matches(const QRegularExpression& Pattern, const QString& Text) {
    return Pattern.match(Text).hasMatch();
}

// The words may be a file's whole name.
QString WithoutEnding(const QString& Said) {
    static const QRegularExpression Ending(
        QStringLiteral("\\.(?:jpe?g|tiff?|png|bmp|gif|webp|hei[cf]|avif|psd|dng|nef|cr[23]|arw)$"),
        QRegularExpression::CaseInsensitiveOption);
    return QString(Said).remove(Ending);
}

}  // namespace

bool IsCameraName(const QString& BaseName) {
    return Matches(CameraNames(), BaseName.trimmed());
}

bool IsCameraWords(const QString& Said) {
    const QString Text = Said.simplified();
    return Matches(CameraWords(), Text) || IsCameraName(WithoutEnding(Text));
}

QDateTime TimeInName(const QString& BaseName) {
    static const QRegularExpression Form(QStringLiteral(
        "(?<![0-9])((?:19|20)[0-9]{2})([-_.]?)([0-9]{2})\\2([0-9]{2})(?:[ _T-]*(?:at |um |à )?"
        "([01][0-9]|2[0-3])[-_.:h]?([0-5][0-9])[-_.:]?([0-5][0-9])[0-9]{0,6})?(?![0-9])"));
    const auto Found = Form.match(BaseName);
    const auto Number = [&](int Which) { return Found.captured(Which).toInt(); };
    const QDate Date(Number(1), Number(3), Number(4));
    if (!Found.hasMatch() || !Date.isValid()) return {};
    return {Date, QTime(Number(5), Number(6), Number(7)), Qt::UTC};
}

}  // namespace neb
