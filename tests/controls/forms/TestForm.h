// A window and a worker whose handlers a test supplies, and the waiting that the tests of windows
// share.
#pragma once

#include <QTest>
#include <functional>

#include "controls/forms/Form.h"
#include "controls/forms/Progress.h"

namespace neb::harness {

class TestForm : public Form {
  public:
    std::function<void()> OnLoad, OnActivate, OnClose;
    std::function<bool()> OnQuery, OnUnload;
    int Loads = 0, Activations = 0, Queries = 0, Unloads = 0;
    bool Busy = false;
    int Finished = 0;
    using Form::Command;
    using Form::On;

  protected:
    bool IsBusy() const override { return Busy; }
    void FinishEdits() override { ++Finished; }
    void Form_Load() override {
        ++Loads;
        if (OnLoad) OnLoad();
    }
    void Form_Activate() override {
        ++Activations;
        if (OnActivate) OnActivate();
    }
    bool Form_QueryUnload() override {
        ++Queries;
        return OnQuery ? OnQuery() : true;
    }
    bool Form_Unload() override {
        ++Unloads;
        return OnUnload ? OnUnload() : true;
    }
    void CloseRequested() override {
        if (OnClose) OnClose();
        Unload();
    }
};

class TestWorker : public ProgressParent {
  public:
    std::function<void()> OnActivity, OnOperation;
    int Activities = 0, Operations = 0, Aborts = 0;
    bool Aborted = false;

    void DoActivity() override {
        ++Activities;
        if (OnActivity) OnActivity();
    }
    void StartOperation() override {
        ++Operations;
        if (OnOperation) OnOperation();
    }
    void DoAbort() override {
        ++Aborts;
        Aborted = true;
    }
};

// Lets everything that waits happen, deletions included.
inline void Settle() {
    QTest::qWait(5);
}

// Unloads whatever a failed test has left open, so that the next one starts with nothing.
class NoFormsLeft {
  public:
    ~NoFormsLeft() {
        for (const auto& Left : LoadedForms()) Left->Unload();
        Settle();
    }
};

}  // namespace neb::harness
