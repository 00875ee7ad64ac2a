#include "windows/transfer/TransferSide.h"

#include <QAbstractItemView>
#include <QSignalBlocker>

#include "controls/fields/ComboBoxList.h"
#include "db/clsDBEngine.h"
#include "support/Texts.h"

namespace neb {
namespace {

std::int32_t ChosenIn(QComboBox& Box) {
    return ComboBoxList(Box).ItemData(Box.currentIndex());
}

void ChooseFirst(QComboBox& Box) {
    if (Box.count() > 0) Box.setCurrentIndex(0);
}

QStringList EntriesOf(const QComboBox& Box) {
    QStringList All;
    for (int I = 0; I < Box.count(); ++I) All << Box.itemText(I);
    return All;
}

// What is done to the entries of a list, an open one closed before, leaves the choice where it was.
template <class Function>
void KeepChoice(QComboBox& Box, Function Do) {
    const QSignalBlocker Quiet(Box);
    Box.hidePopup();
    const bool None = Box.currentIndex() < 0;
    const std::int32_t Chosen = ChosenIn(Box);
    Do();
    ComboBoxList Combo(Box);
    if (!None) ComboSelectByData(Combo, Chosen, -2);
}

}  // namespace

TransferSide::TransferSide(Controls Given) : mControls(Given) {
    for (QComboBox* Each : {mControls.cboAlbum, mControls.cboSlideShow})
        Each->view()->setAccessibleName(Each->accessibleName());
}

void TransferSide::List(clsDBEngine* theDB) {
    mEngine = theDB;
    FillAlbums();
    FillShows();
    ChooseFirst(*mControls.cboAlbum);
}

void TransferSide::ListShows() {
    FillShows();
    ChooseFirst(*mControls.cboSlideShow);
}

void TransferSide::Choose(std::int32_t AlbumID, std::int32_t SlideShowID) const {
    ComboBoxList Albums(*mControls.cboAlbum), Shows(*mControls.cboSlideShow);
    ComboSelectByData(Albums, AlbumID, -2);
    if (SlideShowID != 0) ComboSelectByData(Shows, SlideShowID, -2);
}

void TransferSide::ListAgain() {
    KeepChoice(*mControls.cboAlbum, [this] { FillAlbums(); });
    KeepChoice(*mControls.cboSlideShow, [this] { FillShows(); });
}

void TransferSide::FillAlbums() {
    ComboBoxList Combo(*mControls.cboAlbum);
    Combo.Clear();
    if (mEngine) mEngine->LoadAlbumsCombo(Combo, mControls.TakesNew);
    OpenAsWideAsNames(*mControls.cboAlbum);
}

void TransferSide::FillShows() {
    ComboBoxList Combo(*mControls.cboSlideShow);
    Combo.Clear();
    if (!mControls.ListsShows || !HasAlbum()) return;
    if (mEngine) mEngine->LoadSlideShowsCombo(Combo, AlbumID());
    if (mControls.TakesNew) Combo.InsertItem(0, tr("<NEW SLIDE SHOW>"), 0);
    OpenAsWideAsNames(*mControls.cboSlideShow);
}

void TransferSide::Follow(const QString& ObjectType, const QString& EventType,
                          const EventKeys& Keys) {
    const bool Deleted = EventType == u"Delete";
    if (Keys.empty() || (!Deleted && EventType != u"Insert" && EventType != u"Update")) return;
    if (ObjectType == u"Album" && Deleted) RemoveAlbum(Keys[0]);
    if (ObjectType == u"Album" && !Deleted) ListAgain();
    if (ObjectType == u"Slide Show" && Keys[0] == AlbumID())
        KeepChoice(*mControls.cboSlideShow, [this] { FillShows(); });
}

void TransferSide::RemoveAlbum(std::int32_t AlbumID) {
    ComboBoxList Combo(*mControls.cboAlbum);
    mControls.cboAlbum->hidePopup();
    ComboRemoveByData(Combo, AlbumID);
    if (!HasAlbum()) FillShows();
}

std::int32_t TransferSide::AlbumID() const {
    return ChosenIn(*mControls.cboAlbum);
}

std::int32_t TransferSide::SlideShowID() const {
    return ChosenIn(*mControls.cboSlideShow);
}

bool TransferSide::HasAlbum() const {
    return mControls.cboAlbum->currentIndex() >= 0;
}

bool TransferSide::IsNewAlbum() const {
    return mControls.TakesNew && mControls.cboAlbum->currentIndex() == 0;
}

bool TransferSide::IsNewSlideShow() const {
    return mControls.TakesNew && mControls.cboSlideShow->currentIndex() == 0;
}

std::optional<QString> TransferSide::NameIn(const QComboBox& Box) const {
    if (Box.currentIndex() < (mControls.TakesNew ? 1 : 0)) return std::nullopt;
    return Box.currentText();
}

std::optional<QString> TransferSide::AlbumName() const {
    return NameIn(*mControls.cboAlbum);
}

std::optional<QString> TransferSide::SlideShowName() const {
    return NameIn(*mControls.cboSlideShow);
}

QStringList TransferSide::AlbumEntries() const {
    return EntriesOf(*mControls.cboAlbum);
}

QStringList TransferSide::SlideShowEntries() const {
    return EntriesOf(*mControls.cboSlideShow);
}

}  // namespace neb
