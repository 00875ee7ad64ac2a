#include "pictures/workers/WarmDecoders.h"

#include <QImageReader>
#include <cstdlib>
#include <ctime>

#include "pictures/formats/PictureColour.h"
#include "pictures/formats/PictureDecoder.h"
#include "pictures/notes/JpegParts.h"
#include "pictures/notes/JpegTurn.h"
#include "pictures/notes/PictureNotes.h"
#include "pictures/workers/WarmSamples.h"
#include "support/Fault.h"
#include "support/MediaTypes.h"

namespace neb {
namespace {

// A library asks for the zone of the time each time, and reads its file anew unless it has a name.
void ReadTimeZone() {
    ::setenv("TZ", ":/etc/localtime", 0);
    ::tzset();
}

void Decode(const QByteArray& File) try { DecodeHere(File); } catch (const Fault&) {
    // what was to be loaded is loaded all the same
}

void DecodeSamples() {
    SetExtraFormats(true);
    for (const char* const Each : WarmSamples) Decode(QByteArray::fromBase64(Each));
}

// Complaints have their words in files, and the smallest whole Photo CD is a large picture.
void DecodeDamaged() {
    Decode(QByteArray(2048, '\0') + "PCD_IPI" + QByteArray(2048, '\0'));
}

void ChangeColours() {
    QImage Point(1, 1, QImage::Format_RGB32);
    Point.fill(Qt::gray);
    ToScreenColours(Point, AdobeRgbProfile());
}

void ReadNotes() {
    const QByteArray Packet =
        "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
        "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><rdf:Description "
        "xmlns:exif=\"http://ns.adobe.com/exif/1.0/\" exif:GPSLatitude=\"0,0N\"/></rdf:RDF>"
        "</x:xmpmeta>";
    const QByteArray Jpeg = QByteArray::fromBase64(WarmSamples[0]);
    const QByteArray Noted = WithMore(Jpeg, JpegPartOf(ExifMarker, XmpMark + Packet));
    NotesFor({1, 1}, Noted, false);
    NotesFor({1, 1}, "no picture", false);
    WithoutPlace(Noted);
    TurnedJpeg(Jpeg, {true, 1});
}

}  // namespace

void WarmDecoders() {
    ReadTimeZone();
    DecodeSamples();
    DecodeDamaged();
    ChangeColours();
    ReadNotes();
}

}  // namespace neb
