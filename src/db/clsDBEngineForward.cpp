// What the engine hands on to the album, the show or the table that it concerns.
#include "db/clsDBEngine.h"
#include "db/modClearRecords.h"
#include "support/Texts.h"

namespace neb {

Answer<clsNEBAlbum*> clsDBEngine::FoundAlbum(std::int32_t AlbumID) const {
    if (clsNEBAlbum* Album = GetAlbum(AlbumID)) return Album;
    return Refuse(tr("The Album was not found."));
}

Answer<clsNEBSlideShow*> clsDBEngine::FoundSlideShow(std::int32_t AlbumID,
                                                     std::int32_t SlideShowID) const {
    Answer<clsNEBAlbum*> Album = FoundAlbum(AlbumID);
    if (!Album) return Album.Refusal();
    if (clsNEBSlideShow* Show = (*Album)->GetSlideShow(SlideShowID)) return Show;
    return Refuse(tr("The Slide Show was not found."));
}

Answer<> clsDBEngine::SaveSlide(std::int32_t SlideID, std::int32_t AlbumID,
                                const QString& SlideText, const QString& SlideLoc,
                                const QString& SoundTrackLoc, bool Override, bool Repeat) {
    Answer<clsNEBAlbum*> Album = FoundAlbum(AlbumID);
    if (!Album) return Album.Refusal();
    (*Album)->SaveSlide(SlideID, SlideText, SlideLoc, SoundTrackLoc, Override, Repeat, *this);
    return Done();
}

void clsDBEngine::LoadSlidesCombo(ComboList& cboSlides, std::int32_t AlbumID) {
    cboSlides.Clear();
    if (clsNEBAlbum* Album = GetAlbum(AlbumID)) Album->LoadSlidesCombo(cboSlides);
}

Answer<> clsDBEngine::SaveSlideShow(std::int32_t SlideShowID, std::int32_t AlbumID,
                                    const QString& SlideShowName, std::int32_t ProgressionMethod) {
    Answer<clsNEBAlbum*> Album = FoundAlbum(AlbumID);
    if (!Album) return Album.Refusal();
    (*Album)->SaveSlideShow(SlideShowID, SlideShowName, ProgressionMethod, *this);
    return Done();
}

void clsDBEngine::LoadSlideShowsCombo(ComboList& cboSlideShows, std::int32_t AlbumID) {
    cboSlideShows.Clear();
    if (clsNEBAlbum* Album = GetAlbum(AlbumID)) Album->LoadSlideShowsCombo(cboSlideShows);
}

Answer<> clsDBEngine::SaveSlideShowDetail(std::int32_t SlideShowID, std::int32_t AlbumID,
                                          std::int32_t SlideID, std::int32_t SlideSeq,
                                          const QString& SlideText) {
    Answer<clsNEBSlideShow*> Show = FoundSlideShow(AlbumID, SlideShowID);
    if (!Show) return Show.Refusal();
    (*Show)->SaveDetail(SlideID, SlideSeq, SlideText);
    return Done();
}

void clsDBEngine::LoadSlideShowDetailsCombo(ComboList& cboSlideShowDetails, std::int32_t AlbumID,
                                            std::int32_t SlideShowID) {
    cboSlideShowDetails.Clear();
    const clsNEBAlbum* Album = GetAlbum(AlbumID);
    clsNEBSlideShow* Show = Album ? Album->GetSlideShow(SlideShowID) : nullptr;
    if (Show) Show->LoadDetailsCombo(cboSlideShowDetails);
}

Answer<> clsDBEngine::SaveSlideShowSoundTrack(std::int32_t SlideShowID, std::int32_t AlbumID,
                                              std::int32_t SoundTrackSeq,
                                              const QString& SoundTrackLoc,
                                              std::int32_t SlideSeqStart, std::int32_t SlideSeqEnd,
                                              bool Repeat, bool FitToSong, bool Fade) {
    Answer<clsNEBSlideShow*> Show = FoundSlideShow(AlbumID, SlideShowID);
    if (!Show) return Show.Refusal();
    (*Show)->SaveSoundTrack(SoundTrackSeq, SoundTrackLoc, SlideSeqStart, SlideSeqEnd, Repeat,
                            FitToSong, Fade);
    return Done();
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

Answer<> clsDBEngine::ClearAlbumData(clsNEBAlbum& theAlbum) {
    return ClearAlbumContents(*this, theAlbum);
}

Answer<> clsDBEngine::ClearSlideShowData(clsNEBAlbum& theAlbum, clsNEBSlideShow& theSlideShow) {
    return ClearSlideShowContents(*this, theAlbum, theSlideShow);
}

}  // namespace neb
