#include "controls/forms/frmLoadSlide.h"

#include <QScreen>

#include "controls/forms/Progress.h"
#include "controls/forms/modTwips.h"

namespace neb {
namespace {
constexpr int PastTheEdge = 200;  // twips
}

frmLoadSlide::frmLoadSlide() {
    setObjectName(QStringLiteral("frmLoadSlide"));
    setWindowTitle(tr("Loading Slide"));
    setAttribute(Qt::WA_DontShowOnScreen);
    Timer1.setInterval(5000);
    connect(&Timer1, &QTimer::timeout, this, &frmLoadSlide::Activate);
}

void frmLoadSlide::LoadSlide(ProgressParent& Parent) {
    mParent = &Parent;
    ShowModal();
}

void frmLoadSlide::Form_Load() {
    Timer1.start();
    if (const QScreen* On = screen())
        move(On->virtualGeometry().bottomRight() +
             QPoint(ToPixels(PastTheEdge), ToPixels(PastTheEdge)));
}

void frmLoadSlide::Form_Activate() {
    Timer1.stop();
    if (mActivated) return;
    mActivated = true;
    if (mParent) mParent->DoActivity();
    Unload();  // the worker may have done it already
}

bool frmLoadSlide::Form_Unload() {
    Timer1.stop();
    mParent = nullptr;
    return true;
}

}  // namespace neb
