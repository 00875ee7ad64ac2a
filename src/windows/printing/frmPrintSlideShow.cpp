#include "windows/printing/frmPrintSlideShow.h"

#include <QSignalBlocker>

#include "controls/fields/ComboBoxList.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "ui_SheetForm.h"

namespace neb {

frmPrintSlideShow::frmPrintSlideShow() {
    setObjectName(QStringLiteral("frmPrintSlideShow"));
    setWindowTitle(tr("Print Slide Show"));
    Controls().chkName->setText(tr("The slide show's name at the &foot"));
    Controls().chkName->setToolTip(tr("The name of the slide show at the foot of each page"));
}

void frmPrintSlideShow::PrintSlideShow(std::int32_t AlbumID, std::int32_t SlideShowID) {
    SetAlbumID(AlbumID);
    mSlideShowID = SlideShowID;
    ShowModal();
}

std::int32_t frmPrintSlideShow::SlideShowID() const {
    const QComboBox& Box = *Controls().cboSlideShow;
    return Box.currentData().toInt();
}

void frmPrintSlideShow::AlbumChosen() {
    if (AlbumID() != 0) LoadSlideShows();
    SheetForm::AlbumChosen();
}

// What the caller wanted is chosen once; from then on it is for the user to choose.
void frmPrintSlideShow::LoadSlideShows() {
    const QSignalBlocker Quiet(Controls().cboSlideShow);
    ComboBoxList Shows(*Controls().cboSlideShow);
    Shows.Clear();
    if (DBEngine->GetAlbum(AlbumID()))
        DBEngine->LoadSlideShowsCombo(Shows, AlbumID());
    else
        MsgBox(tr("Could not find the album."));
    OpenAsWideAsNames(*Controls().cboSlideShow);
    if (Shows.ListCount() == 0) return;
    if (TakeAlbumID() > 0)
        ComboSelectByData(Shows, std::exchange(mSlideShowID, 0), -2);
    else
        Shows.SetListIndex(0);
}

bool frmPrintSlideShow::CanPrint() const {
    return SheetForm::CanPrint() && (AlbumID() == 0 || Controls().cboSlideShow->count() > 0);
}

QString frmPrintSlideShow::WhatToDo() const {
    if (!SheetForm::CanPrint()) return SheetForm::WhatToDo();
    return tr("This album has no slide show yet. The Slide Show Manager makes one.");
}

Answer<> frmPrintSlideShow::IsChosen() const {
    Answer<> Album = SheetForm::IsChosen();
    if (!Album || SlideShowID() != 0) return Album;
    return Refuse(tr("You must select a Slide Show to print."), tr("Missing User Input"));
}

Answer<SheetForm::SheetMatter> frmPrintSlideShow::Matter() const {
    const clsNEBAlbum* Album = DBEngine->GetAlbum(AlbumID());
    if (!Album) return Refuse(tr("Album not found."));
    const clsNEBSlideShow* Show = Album->GetSlideShow(SlideShowID());
    if (!Show) return Refuse(tr("Slide Show not found."));
    return SheetMatter{SlidesOf(*Album, *Show, DBEngine->DBPath()), Show->SlideShowName};
}

int frmPrintSlideShow::SlideCount() const {
    Answer<SheetMatter> Given = Matter();
    return Given ? static_cast<int>(Given->Slides.Paths.size()) : 0;
}

}  // namespace neb
