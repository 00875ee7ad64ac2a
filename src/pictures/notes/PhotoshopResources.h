// The resources that PSD files have, and JPEG and TIFF files too in a block of their own: IPTC
// words, colour profiles, copies of what stands elsewhere. Used by what reads and what drops them.
#pragma once

#include <QByteArrayView>
#include <vector>

namespace neb {

struct PhotoshopResource {
    int Kind;
    QByteArrayView Whole;    // with its head, and what fills it up; cut where the bytes are
    QByteArrayView Content;  // the same
};
inline constexpr int IptcResourceKind = 0x0404, ExifResourceKind = 0x0422, XmpResourceKind = 0x0424;

// All up to the first bytes that are none. Views: of bytes that somebody else holds.
std::vector<PhotoshopResource> ResourcesIn(QByteArrayView Bytes);

}  // namespace neb
