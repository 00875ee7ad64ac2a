// How the slide manager follows what other windows do. It asks and tells nothing meanwhile, and
// what the user is in the middle of stays on the screen: it can be saved as before, or as a new
// slide where its own, or its album, has gone.
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "ui_frmSlideDBM.h"
#include "windows/slides/frmSlideDBM.h"

namespace neb {

void frmSlideDBM::Report(const QString& Text, const QString& Title) const {
    if (!mFollowing) MsgBox(Text, Title);
}

void frmSlideDBM::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                               const EventKeys& EventData) {
    static const struct {
        QLatin1String EventType;
        void (frmSlideDBM::*Follow)(const EventKeys& Keys);
    } Events[] = {
        {QLatin1String("Delete"), &frmSlideDBM::FollowDelete},
        {QLatin1String("Insert"), &frmSlideDBM::FollowAlbums},
        {QLatin1String("Update"), &frmSlideDBM::FollowUpdate},
        {QLatin1String("Add Slides"), &frmSlideDBM::FollowAddSlides},
        {QLatin1String("Delete Slides"), &frmSlideDBM::FollowDeleteSlides},
    };
    if (ObjectType != u"Album" || !mActivated) return;
    const Guard Following(mFollowing);
    for (const auto& Row : Events)
        if (EventType == Row.EventType) (this->*Row.Follow)(EventData);
}

// No album is shown any more.
void frmSlideDBM::LeaveAlbum() {
    Slides().Clear();
    ShowAlbumName();
    mCurrentAlbumID = mCurrentSlideID = 0;
    mUi->cmdDelete->setEnabled(false);
    if (!mDirty) ClearSlideFields();
    mUi->cboSlides->update();
}

void frmSlideDBM::FollowDelete(const EventKeys& Keys) {
    const bool Shown = Keys.at(0) == AlbumID();
    const Guard Quiet(mIgnoreClick);
    if (Shown) mUi->cboAlbum->setCurrentIndex(-1);
    ComboBoxList List = Albums();
    ComboRemoveByData(List, Keys.at(0));
    if (Shown) LeaveAlbum();
}

void frmSlideDBM::FollowAlbums(const EventKeys&) {
    const std::int32_t Shown = AlbumID();
    const Guard Quiet(mIgnoreClick);
    ComboBoxList List = Albums();
    DBEngine->LoadAlbumsCombo(List, false);
    if (Shown == 0) return;
    if (ComboSelectByData(List, Shown, -2))
        ShowAlbumName();
    else
        LeaveAlbum();
    mUi->cboAlbum->update();
}

void frmSlideDBM::FollowUpdate(const EventKeys& Keys) {
    FollowAlbums(Keys);
    FollowAddSlides(Keys);
}

void frmSlideDBM::FollowAddSlides(const EventKeys& Keys) {
    if (AlbumID() != 0 && Keys.at(0) == AlbumID()) ReloadSlides();
}

void frmSlideDBM::ReloadSlides() {
    const std::int32_t Shown = SlideID();
    LoadAlbumSlides();
    ComboBoxList List = Slides();
    {
        const Guard Quiet(mIgnoreClick);
        if (!ComboSelectByData(List, Shown, 0)) mCurrentSlideID = 0;
    }
    if (!mDirty) cboSlides_Click();
}

void frmSlideDBM::FollowDeleteSlides(const EventKeys& Keys) {
    const std::int32_t Gone = Keys.at(1);
    if (AlbumID() == 0 || Keys.at(0) != AlbumID() || Gone == 0) return;
    const bool Shown = Gone == SlideID();
    const Guard Quiet(mIgnoreClick);
    if (Shown) mUi->cboSlides->setCurrentIndex(-1);
    ComboBoxList List = Slides();
    ComboRemoveByData(List, Gone);
    if (!Shown) return;
    mCurrentSlideID = 0;
    mUi->cmdDelete->setEnabled(false);
    if (!mDirty) ClearSlideFields();
}

}  // namespace neb
