// Names and words that cameras, telephones, scanners and programs give to every picture alike: they
// tell nothing of what is on it. Used where a picture's own words and its file's name are weighed
// as its caption. A name in which anybody might have written something is left alone.
#pragma once

#include <QDateTime>
#include <QString>

namespace neb {

// Of a file's name without its ending: "DSC_0001", "IMG_20231224_183000", "IMG-20200101-WA0001",
// "Screenshot_...", "1234", a UUID, "image001"; with what copies add ("IMG_1234 (2)",
// "DSC_0001-edited"). Not "Foto 12", which somebody has counted by hand, nor a year by itself.
bool IsCameraName(const QString& BaseName);

// What a camera writes for want of words: "OLYMPUS DIGITAL CAMERA", "SONY DSC", "untitled", a name
// as above, or nothing that can be read.
bool IsCameraWords(const QString& Said);

// When a picture of such a name was taken: "IMG_20231224_183000". Without a time of day it is
// midnight; invalid where the name tells no day. Universal time by its form, as
// PictureFacts::Taken.
QDateTime TimeInName(const QString& BaseName);

}  // namespace neb
