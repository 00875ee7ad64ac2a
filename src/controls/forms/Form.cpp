#include "controls/forms/Form.h"

#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScopeGuard>

#include "controls/fields/LabelTips.h"
#include "controls/fields/ScrollWithin.h"
#include "controls/fields/WheelGuard.h"
#include "controls/forms/DefaultButton.h"
#include "controls/forms/StandOver.h"

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
        Abandon();
        throw;
    }
    KeepDefaultButton(*this);
    KeepChoicesFromWheel(*this);
    GiveLabelsTips(*this);
    ScrollWithinScreen(*this);
}

void Form::ShowModal() {
    const auto Held = shared_from_this();
    Load();
    if (!IsLoaded()) return;
    mModal = true;
    exec();
    mModal = false;
    AwaitFocus();
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

void Form::Command(const std::function<void()>& Do) {
    const auto Held = shared_from_this();
    if (!IsLoaded() || IsBusy()) return;
    FinishEdits();
    Do();
}

bool Form::Unload() {
    const auto Held = shared_from_this();
    return QueryUnload() && UnloadAsked();
}

bool Form::QueryUnload() {
    if (mState == State::Loaded) FinishEdits();
    return AgreesIn(State::Asking, &Form::Form_QueryUnload);
}

bool Form::UnloadAsked() {
    const auto Held = shared_from_this();
    if (!AgreesIn(State::Unloading, &Form::Form_Unload)) return false;
    if (mState == State::Loaded) Finish();
    return true;
}

// One that is not loaded has nothing to say; one that is just being asked has not said it yet.
bool Form::AgreesIn(State Step, bool (Form::*Asked)()) {
    if (mState != State::Loaded) return mState == State::Created || mState == State::Unloaded;
    const auto Held = shared_from_this();
    const auto Again = qScopeGuard([this, Step] {
        if (mState == Step) mState = State::Loaded;
    });
    mState = Step;
    return (this->*Asked)();
}

void Form::Finish() {
    mState = State::Unloaded;
    LeaveFrame();
    done(0);
    Unregister(this);
}

// After a fault the window goes even if it would rather stay: nobody could close it any more, and
// the fault that ended it is the one to tell.
void Form::Abandon() {
    const auto Held = shared_from_this();
    try {
        Unload();
    } catch (const std::exception&) {
    }
    if (IsLoaded()) Finish();
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

void Form::reject() {
    if (!qobject_cast<QMdiSubWindow*>(parentWidget())) CloseRequested();
}

void Form::closeEvent(QCloseEvent* Event) {
    Event->ignore();  // a fault on the way leaves the window
    CloseRequested();
    Event->setAccepted(mState == State::Unloaded || mState == State::Created);
}

// The desktop is told what it stands over before it is on the screen. Platforms without a window
// manager report no activation by themselves.
void Form::showEvent(QShowEvent* Event) {
    QDialog::showEvent(Event);
    QWidget* Opener = mModal ? WindowInUse() : nullptr;
    StandOver(*this, Opener);
    // over it, and so on its screen
    if (Opener && !testAttribute(Qt::WA_Moved)) adjustPosition(Opener);
    ActivateLater();
}

bool Form::event(QEvent* Event) {
    const bool Handled = QDialog::event(Event);
    if (Event->type() == QEvent::WindowActivate) ActivateLater();
    // within the main window the toolkit tells nobody what a window is called
    if (Event->type() == QEvent::WindowTitleChange) setAccessibleName(windowTitle());
    return Handled;
}

// Some platforms report it from inside the showing: work that ended there would unload the window
// before the modal wait has begun, which would then never end.
void Form::ActivateLater() {
    QMetaObject::invokeMethod(this, &Form::Activate, Qt::QueuedConnection);
}

void Form::Activate() {
    if (!IsLoaded() || !isVisible()) return;
    const auto Held = shared_from_this();
    try {
        Form_Activate();
    } catch (...) {
        if (!mModal) throw;
        mRaised = std::current_exception();
        Abandon();
    }
}

}  // namespace neb
