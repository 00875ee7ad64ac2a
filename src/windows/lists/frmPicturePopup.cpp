#include "windows/lists/frmPicturePopup.h"

#include <QKeyEvent>

#include "controls/picture/PictureView.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/modCharacters.h"
#include "support/modFUFL.h"
#include "ui_frmPicturePopup.h"
#include "windows/frame/modWindowState.h"
#include "windows/lists/ScreenPicture.h"

namespace neb {
namespace {

const WindowMemory Memory{QStringLiteral("frmPicturePopup"), 6675, 7260};
constexpr int MomentMs = 80, PopupLookMs = 15;

}  // namespace

frmPicturePopup::frmPicturePopup() : mUi(std::make_unique<Ui::frmPicturePopup>()) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    mLook.setInterval(PopupLookMs);
    connect(&mLook, &QTimer::timeout, this, &frmPicturePopup::Look);
    connect(mUi->imgSlide, &PictureView::Clicked, this, &frmPicturePopup::Unload);
}

frmPicturePopup::~frmPicturePopup() = default;

bool frmPicturePopup::LoadSlide(const QString& Path) {
    const QSize Largest = PictureView::LargestScreen();
    mReading = std::make_unique<Job<QImage>>(
        [Path, Largest](JobState&) { return ReadForScreen(Path, Largest); });
    mUi->imgSlide->SetPicture({});
    mUi->imgSlide->SetEmptyText(tr("Reading %1 ...").arg(InOwnDirection(GetFileName(Path))));
    if (mReading->Wait(MomentMs)) return Take();
    mLook.start();
    return true;
}

bool frmPicturePopup::Take() {
    const auto Read = std::exchange(mReading, nullptr);
    mLook.stop();
    try {
        mUi->imgSlide->SetPicture(Read->Take());
        return true;
    } catch (const std::exception&) {
        Unload();
        MsgBox(tr("Failed to Load the Picture.\n"
                  "Make sure that you have permission to use the file."),
               tr("Load Failed"), BoxIcon::Critical);
        return false;
    }
}

void frmPicturePopup::Look() {
    const auto Held = shared_from_this();
    if (mReading && mReading->Wait(0)) Take();
}

void frmPicturePopup::Form_Load() {
    RestoreWindow(*this, Memory);
}

// What is still being read is let go of: nobody waits for a medium that hangs.
bool frmPicturePopup::Form_Unload() {
    mLook.stop();
    mReading.reset();
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
        if (Popup->LoadSlide(Path)) Popup->ShowModal();
    } catch (const Fault&) {
        // a window that cannot keep its place is no reason for a box about the picture
    }
}

}  // namespace neb
