#include "printing/SlidesToPrint.h"

#include <QHash>

#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"
#include "support/Texts.h"

namespace neb {
namespace {

// The objects by their number, the first of each, so that none is searched for.
template <class Object>
QHash<std::int32_t, const Object*> ByNumber(const std::vector<std::unique_ptr<Object>>& Objects,
                                            std::int32_t Object::*Number) {
    QHash<std::int32_t, const Object*> Found;
    for (const auto& Each : Objects)
        if (!Found.contains((*Each).*Number)) Found.insert((*Each).*Number, Each.get());
    return Found;
}

void Add(SlidesToPrint& To, const QString& DBPath, std::int32_t AlbumID, const clsNEBSlide& Slide) {
    To.Paths << SlidePath(DBPath, AlbumID, Slide.SlideLoc);
    To.Captions << Slide.SlideText;
}

}  // namespace

SlidesToPrint SlidesOf(clsNEBAlbum& Album, const QString& DBPath,
                       const std::set<std::int32_t>& Only) {
    SlidesToPrint Result;
    const auto Slides = ByNumber(Album.Slides, &clsNEBSlide::SlideID);
    Album.SortSlides();
    for (const NameIndexEntry& Row : Album.SlideIndex)
        if (Only.empty() || Only.count(Row.ID) > 0)
            Add(Result, DBPath, Album.AlbumID, *Slides[Row.ID]);
    return Result;
}

SlidesToPrint SlidesOf(const clsNEBAlbum& Album, const clsNEBSlideShow& SlideShow,
                       const QString& DBPath) {
    SlidesToPrint Result;
    const auto Slides = ByNumber(Album.Slides, &clsNEBSlide::SlideID);
    const auto Details = ByNumber(SlideShow.Details, &clsNEBSlideShowDetail::SlideSeq);
    const int Places = static_cast<int>(SlideShow.Details.size());
    for (int I = 1; I <= Places; ++I) {
        const clsNEBSlideShowDetail* Detail = Details.value(I);
        const clsNEBSlide* Slide = Detail ? Slides.value(Detail->SlideID) : nullptr;
        if (Slide) {
            Add(Result, DBPath, Album.AlbumID, *Slide);
            continue;
        }
        const QString What = Detail ? tr("Slide") : tr("Detail");
        Result.Missing.push_back(Refuse(tr("%1 #%2 not found.").arg(What).arg(I)));
    }
    return Result;
}

QString NoSlideFile() {
    return AppPath() + QStringLiteral("NoSlide.bmp");
}

}  // namespace neb
