// What all windows of the program share: they are loaded once, shown (modally or not), activated
// and unloaded, and an unload may be refused. The loaded forms are known in one list, over which
// changes are announced and which the end of the program walks.
#pragma once

#include <QDialog>
#include <exception>
#include <functional>
#include <memory>
#include <vector>

namespace neb {

class Form : public QDialog, public std::enable_shared_from_this<Form> {
    Q_OBJECT

  public:
    Form();

    bool IsLoaded() const { return mState == State::Loaded || mState == State::Asking; }
    // Runs Form_Load the first time; later calls do nothing.
    void Load();
    // Loads and shows; returns after the unload. A fault raised by Form_Activate unloads the
    // window and passes out of this call.
    void ShowModal();
    // Loads and shows beside the other windows.
    void ShowModeless();
    // Asks by Form_QueryUnload, runs Form_Unload and takes the window off the screen; false when
    // either has refused. A fault in one of them leaves it loaded. The object lives on as long as
    // somebody holds it. Harmless when repeated, also while it asks: the answer decides.
    bool Unload();
    // Asks alone, and the window stays for now: false when it is to stay. For an end that asks all
    // windows before the first of them goes.
    bool QueryUnload();
    // Unloads without asking, which QueryUnload has done.
    bool UnloadAsked();

  protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}  // at every activation
    // Asks about work that is not saved, and saves it where the user wants that; false: the window
    // stays. What is being typed in a cell has been finished.
    virtual bool Form_QueryUnload() { return true; }
    virtual bool Form_Unload() { return true; }
    // The close button, and Esc outside the main window's frame: unload, unless a window wants
    // otherwise. A child keeps its work when Esc is pressed once too often.
    virtual void CloseRequested() { Unload(); }

    // A command is what the user asks for by a button, a key, a menu entry, a list. While work is
    // under way in the window none begins.
    virtual bool IsBusy() const { return false; }
    // A command acts on what the user sees: what is being typed in a cell counts.
    virtual void FinishEdits() {}
    // Runs a command, unless the form is busy or not loaded; the form lives until it is over, even
    // when a box or another window that it opened has the form closed.
    void Command(const std::function<void()>& Do);
    // Makes a signal of a control a command; Do is a member of the form.
    template <class Sender, class Signal, class Window>
    void On(Sender* Control, Signal Happens, void (Window::*Do)()) {
        connect(Control, Happens, this,
                [this, Do] { Command([this, Do] { (static_cast<Window*>(this)->*Do)(); }); });
    }

    void closeEvent(QCloseEvent* Event) override;
    void showEvent(QShowEvent* Event) override;
    bool event(QEvent* Event) override;
    // Runs Form_Activate as an activation does: a fault ends a modal show and passes out of it.
    void Activate();
    void reject() override;
    void accept() override {}

  private:
    enum class State { Created, Loaded, Asking, Unloading, Unloaded };
    void ActivateLater();
    bool AgreesIn(State Step, bool (Form::*Asked)());
    void Finish();
    void Abandon();
    void LeaveFrame();

    State mState = State::Created;
    bool mModal = false;
    std::exception_ptr mRaised;
};

// Makes a form that may be released inside its own events: it is deleted when they are over.
template <class F, class... Arguments>
std::shared_ptr<F> NewForm(Arguments&&... Given) {
    return std::shared_ptr<F>(new F(std::forward<Arguments>(Given)...),
                              [](F* Gone) { Gone->deleteLater(); });
}

// All loaded forms in the order of loading.
std::vector<std::shared_ptr<Form>> LoadedForms();

}  // namespace neb
