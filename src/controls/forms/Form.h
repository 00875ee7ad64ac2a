// What all windows of the program share: they are loaded once, shown (modally or not), activated
// and unloaded, and an unload may be refused. The loaded forms are known in one list, over which
// changes are announced and which the end of the program walks.
#pragma once

#include <QDialog>
#include <exception>
#include <memory>
#include <vector>

namespace neb {

class Form : public QDialog, public std::enable_shared_from_this<Form> {
    Q_OBJECT

  public:
    Form();

    bool IsLoaded() const { return mState == State::Loaded; }
    // Runs Form_Load the first time; later calls do nothing.
    void Load();
    // Loads and shows; returns after the unload. A fault raised by Form_Activate unloads the
    // window and passes out of this call.
    void ShowModal();
    // Loads and shows beside the other windows.
    void ShowModeless();
    // Runs Form_Unload and takes the window off the screen; false when it was refused. A fault in
    // Form_Unload leaves it loaded. The object lives on as long as somebody holds it. Harmless when
    // repeated.
    bool Unload();

  protected:
    virtual void Form_Load() {}
    virtual void Form_Activate() {}  // at every activation
    virtual bool Form_Unload() { return true; }
    // The close button, and Esc outside the main window's frame: unload, unless a window wants
    // otherwise. A child keeps its work when Esc is pressed once too often.
    virtual void CloseRequested() { Unload(); }

    void closeEvent(QCloseEvent* Event) override;
    void showEvent(QShowEvent* Event) override;
    bool event(QEvent* Event) override;
    // Runs Form_Activate as an activation does: a fault ends a modal show and passes out of it.
    void Activate();
    void reject() override;
    void accept() override {}

  private:
    enum class State { Created, Loaded, Unloading, Unloaded };
    void ActivateLater();
    bool AgreesToUnload();
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
