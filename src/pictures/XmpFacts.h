// What an XMP packet says of a picture. For PictureFacts.
#pragma once

#include <QByteArray>
#include <QString>

namespace neb {

struct XmpFacts {
    QString Title, Headline, Description;  // in the user's language where there are several
    QString Taken, Created, Digitized;     // as they are written: "2003-12-24T18:30:05.25+01:00"
};

// Empty as far as nothing is there; of a damaged packet what stands before the damage.
XmpFacts ReadXmp(const QByteArray& Packet);

}  // namespace neb
