#include "pictures/notes/PhotoshopResources.h"

#include "pictures/formats/ByteView.h"

namespace neb {

// Behind the mark: the kind, a name that is filled up to an even length, and the bytes, which are
// too.
std::vector<PhotoshopResource> ResourcesIn(QByteArrayView Bytes) {
    std::vector<PhotoshopResource> Found;
    const ByteView View(Bytes);
    for (qint64 At = 0; View.Is(At, "8BIM");) {
        const qint64 Data = At + 6 + ((View.U8(At + 6) + 2) & ~1);
        const qint64 Length = View.U32(Data, true);
        const qint64 Next = Data + 4 + ((Length + 1) & ~qint64(1));
        Found.push_back(
            {View.U16(At + 4, true), View.Part(At, Next - At), View.Part(Data + 4, Length)});
        At = Next;
    }
    return Found;
}

}  // namespace neb
