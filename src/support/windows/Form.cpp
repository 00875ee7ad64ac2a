#include "support/windows/Form.h"

#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace neb {
namespace {

std::vector<std::shared_ptr<Form>>& Registry() {
    static std::vector<std::shared_ptr<Form>> Forms;
    return Forms;
}

void Unregister(const Form* Gone) {
    std::erase_if(Registry(), [Gone](const auto& Held) { return Held.get() == Gone; });
}

}  // namespace

std::vector<std::shared_ptr<Form>> LoadedForms() {
    return Registry();
}

Form::Form() {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void Form::Load() {
    if (mState != State::Created) return;
    mState = State::Loaded;
    Registry().push_back(shared_from_this());
    try {
        Form_Load();
    } catch (...) {
        Unload();
        throw;
    }
}

void Form::ShowModal() {
    const auto Held = shared_from_this();
    Load();
    if (!IsLoaded()) return;
    mModal = true;
    exec();
    mModal = false;
    if (mRaised) std::rethrow_exception(std::exchange(mRaised, nullptr));
}

void Form::ShowModeless() {
    const auto Held = shared_from_this();
    Load();
    if (!IsLoaded()) return;
    QWidget* Frame = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (Frame) Frame->show();
    show();
}

bool Form::Unload() {
    if (mState != State::Loaded) return mState != State::Unloading;
    const auto Held = shared_from_this();
    mState = State::Unloading;
    if (!Form_Unload()) {
        mState = State::Loaded;
        return false;
    }
    mState = State::Unloaded;
    LeaveFrame();
    done(0);
    Unregister(this);
    return true;
}

// A child of the main window leaves its frame behind, which then goes.
void Form::LeaveFrame() {
    auto* Frame = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (!Frame) return;
    hide();
    Frame->setWidget(nullptr);
    setParent(nullptr);
    if (QMdiArea* Area = Frame->mdiArea()) Area->removeSubWindow(Frame);
    Frame->hide();
    Frame->deleteLater();
}

void Form::closeEvent(QCloseEvent* Event) {
    CloseRequested();
    Event->setAccepted(mState == State::Unloaded);
}

// The activation comes after the showing is done; platforms without a window manager report none
// by themselves.
void Form::showEvent(QShowEvent* Event) {
    QDialog::showEvent(Event);
    QMetaObject::invokeMethod(this, &Form::Activate, Qt::QueuedConnection);
}

bool Form::event(QEvent* Event) {
    const bool Handled = QDialog::event(Event);
    if (Event->type() == QEvent::WindowActivate) Activate();
    return Handled;
}

void Form::Activate() {
    if (!IsLoaded() || !isVisible()) return;
    const auto Held = shared_from_this();
    try {
        Form_Activate();
    } catch (...) {
        if (!mModal) throw;
        mRaised = std::current_exception();
        Unload();
    }
}

}  // namespace neb
