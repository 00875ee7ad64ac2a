#include "windows/lists/frmPicturePopup.h"

#include <QKeyEvent>

#include "controls/picture/PictureView.h"
#include "pictures/ImgX.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "ui_frmPicturePopup.h"
#include "windows/frame/modWindowState.h"

namespace neb {
namespace {

const WindowMemory Memory{QStringLiteral("frmPicturePopup"), 6675, 7260};
constexpr quint32 CannotOpen = 0x8004028E;

}  // namespace

frmPicturePopup::frmPicturePopup() : mUi(std::make_unique<Ui::frmPicturePopup>()) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    connect(mUi->imgSlide, &PictureView::Clicked, this, &frmPicturePopup::Unload);
}

frmPicturePopup::~frmPicturePopup() = default;

void frmPicturePopup::LoadSlide(QString& Path) {
    try {
        ImgX Picture;
        Picture.Load(Path);
        mUi->imgSlide->SetPicture(Picture.Picture());
    } catch (const Fault& Problem) {
        if (Problem.Number() != CannotOpen) return;
        MsgBox(QStringLiteral("Failed to Load the Picture.\n"
                              "Make sure that you have permission to use the file."),
               QStringLiteral("Load Failed"), BoxIcon::Critical);
    }
}

void frmPicturePopup::Form_Load() {
    RestoreWindow(*this, Memory);
}

bool frmPicturePopup::Form_Unload() {
    SaveWindow(*this, Memory);
    return true;
}

void frmPicturePopup::keyPressEvent(QKeyEvent* Event) {
    switch (Event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Escape:
            Unload();
            break;
        default:
            Form::keyPressEvent(Event);
    }
}

void PopUpPicture(QString Path) {
    try {
        const auto Popup = NewForm<frmPicturePopup>();
        Popup->LoadSlide(Path);
        Popup->ShowModal();
    } catch (const Fault&) {
        // a preview that cannot be shown is simply not shown
    }
}

}  // namespace neb
