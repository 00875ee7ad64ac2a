// What the engine hands on to the album, the show or the table that it concerns.
#include "db/clsDBEngine.h"
#include "support/Services.h"

namespace neb {

clsNEBAlbum* clsDBEngine::AlbumOrBox(std::int32_t AlbumID) const {
    clsNEBAlbum* Album = GetAlbum(AlbumID);
    if (!Album) MsgBox(QStringLiteral("The Album was not found."));
    return Album;
}

clsNEBSlideShow* clsDBEngine::SlideShowOrBox(std::int32_t AlbumID, std::int32_t SlideShowID) const {
    const clsNEBAlbum* Album = AlbumOrBox(AlbumID);
    if (!Album) return nullptr;
    clsNEBSlideShow* Show = Album->GetSlideShow(SlideShowID);
    if (!Show) MsgBox(QStringLiteral("The Slide Show was not found."));
    return Show;
}

bool clsDBEngine::SaveSlide(std::int32_t SlideID, std::int32_t AlbumID, const QString& SlideText,
                            const QString& SlideLoc, const QString& SoundTrackLoc, bool Override,
                            bool Repeat) {
    clsNEBAlbum* Album = AlbumOrBox(AlbumID);
    return Album &&
           Album->SaveSlide(SlideID, SlideText, SlideLoc, SoundTrackLoc, Override, Repeat, *this);
}

void clsDBEngine::LoadSlidesCombo(ComboList& cboSlides, std::int32_t AlbumID) {
    cboSlides.Clear();
    if (clsNEBAlbum* Album = GetAlbum(AlbumID)) Album->LoadSlidesCombo(cboSlides);
}

bool clsDBEngine::SaveSlideShow(std::int32_t SlideShowID, std::int32_t AlbumID,
                                const QString& SlideShowName, std::int32_t ProgressionMethod) {
    clsNEBAlbum* Album = AlbumOrBox(AlbumID);
    return Album && Album->SaveSlideShow(SlideShowID, SlideShowName, ProgressionMethod, *this);
}

void clsDBEngine::LoadSlideShowsCombo(ComboList& cboSlideShows, std::int32_t AlbumID) {
    cboSlideShows.Clear();
    if (clsNEBAlbum* Album = GetAlbum(AlbumID)) Album->LoadSlideShowsCombo(cboSlideShows);
}

bool clsDBEngine::SaveSlideShowDetail(std::int32_t SlideShowID, std::int32_t AlbumID,
                                      std::int32_t SlideID, std::int32_t SlideSeq,
                                      const QString& SlideText) {
    clsNEBSlideShow* Show = SlideShowOrBox(AlbumID, SlideShowID);
    return Show && Show->SaveDetail(SlideID, SlideSeq, SlideText);
}

void clsDBEngine::LoadSlideShowDetailsCombo(ComboList& cboSlideShowDetails, std::int32_t AlbumID,
                                            std::int32_t SlideShowID) {
    cboSlideShowDetails.Clear();
    const clsNEBAlbum* Album = GetAlbum(AlbumID);
    clsNEBSlideShow* Show = Album ? Album->GetSlideShow(SlideShowID) : nullptr;
    if (Show) Show->LoadDetailsCombo(cboSlideShowDetails);
}

bool clsDBEngine::SaveSlideShowSoundTrack(std::int32_t SlideShowID, std::int32_t AlbumID,
                                          std::int32_t SoundTrackSeq, const QString& SoundTrackLoc,
                                          std::int32_t SlideSeqStart, std::int32_t SlideSeqEnd,
                                          bool Repeat, bool FitToSong, bool Fade) {
    clsNEBSlideShow* Show = SlideShowOrBox(AlbumID, SlideShowID);
    return Show && Show->SaveSoundTrack(SoundTrackSeq, SoundTrackLoc, SlideSeqStart, SlideSeqEnd,
                                        Repeat, FitToSong, Fade);
}

void clsDBEngine::LoadSlideShowSoundTracksCombo(ComboList& cboSoundTracks,
                                                std::int32_t SlideShowID) {
    cboSoundTracks.Clear();
    for (const auto& Album : Albums) {
        clsNEBSlideShow* Show = Album->GetSlideShow(SlideShowID);
        if (Show) return Show->LoadSoundTracksCombo(cboSoundTracks);
    }
}

void clsDBEngine::SaveProperty(const QString& PropertyName, const QString& PropertyValue) {
    SetProperty(Properties, PropertyName, PropertyValue);
}

QString clsDBEngine::LoadPropertyValue(const QString& PropertyName) const {
    return PropertyValueOf(Properties, PropertyName);
}

void clsDBEngine::LoadPropertiesCombo(ComboList& cboProperties) const {
    FillWithProperties(Properties, cboProperties);
}

void clsDBEngine::SaveEffectStat(std::int32_t Effect, double AvgTime) {
    SetEffectStat(EffectStats, Effect, AvgTime);
}

void clsDBEngine::LoadEffectStatsCombo(ComboList& cboEffectStats) const {
    FillWithEffectStats(EffectStats, cboEffectStats);
}

void clsDBEngine::ClassifyEffects(std::span<std::uint8_t> EffectClasses, std::int32_t MaxEffect,
                                  std::int32_t LowerBound) const {
    ClassifyByTime(EffectStats, EffectClasses, MaxEffect, LowerBound);
}

}  // namespace neb
