#include "windows/slides/SlideLists.h"

#include <QSignalBlocker>

#include "controls/fields/ComboBoxList.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Texts.h"

namespace neb {
namespace {

std::int32_t ChosenIn(QComboBox& Box) {
    return ComboBoxList(Box).ItemData(Box.currentIndex());
}

bool Choose(QComboBox& Box, std::int32_t Key, int Fallback) {
    const QSignalBlocker Quiet(Box);
    ComboBoxList List(Box);
    return ComboSelectByData(List, Key, Fallback);
}

void ChooseAt(QComboBox& Box, int Index) {
    const QSignalBlocker Quiet(Box);
    Box.setCurrentIndex(Index);
}

void Remove(QComboBox& Box, std::int32_t Key) {
    ComboBoxList List(Box);
    ComboRemoveByData(List, Key);
}

}  // namespace

std::int32_t SlideLists::AlbumID() const {
    return ChosenIn(mAlbums);
}

std::int32_t SlideLists::SlideID() const {
    return ChosenIn(mSlides);
}

bool SlideLists::ListAlbums() const {
    const std::int32_t Chosen = AlbumID();
    ComboBoxList List(mAlbums);
    DBEngine->LoadAlbumsCombo(List, false);
    mAlbums.update();
    return Chosen == 0 || ChooseAlbum(Chosen);
}

void SlideLists::RemoveAlbum(std::int32_t AlbumID) const {
    Remove(mAlbums, AlbumID);
}

bool SlideLists::ChooseAlbum(std::int32_t AlbumID) const {
    return Choose(mAlbums, AlbumID, -2);
}

void SlideLists::ChooseAlbumAt(int Index) const {
    ChooseAt(mAlbums, Index);
}

Answer<> SlideLists::ListSlides() const {
    Clear();
    clsNEBAlbum* Album = DBEngine->GetAlbum(AlbumID());
    if (!Album) return Refuse(tr("Album not found."));
    ComboBoxList List(mSlides);
    Album->LoadSlidesCombo(List);
    List.InsertItem(0, tr("<NEW SLIDE>"), 0);
    return Done();
}

void SlideLists::RemoveSlide(std::int32_t SlideID) const {
    Remove(mSlides, SlideID);
}

bool SlideLists::ChooseSlide(std::int32_t SlideID) const {
    return Choose(mSlides, SlideID, 0);
}

void SlideLists::ChooseSlideAt(int Index) const {
    ChooseAt(mSlides, Index);
}

void SlideLists::Clear() const {
    ComboBoxList(mSlides).Clear();
    mSlides.update();
}

}  // namespace neb
