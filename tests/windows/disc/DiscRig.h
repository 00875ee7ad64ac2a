// A user at the window that writes a folder for a disc, and at the check of one: two albums in the
// program's own database, folders beside it, and boxes that note what they are asked.
#pragma once

#include <QDropEvent>
#include <QMimeData>
#include <QTreeWidget>

#include "albums/DiscRig.h"
#include "windows/disc/frmDiscFolder.h"
#include "windows/disc/modDiscCheck.h"
#include "windows/frame/Openers.h"
#include "windows/import/IntakeHarness.h"
#include "windows/transfer/frmTransferProgress.h"

namespace neb::harness {

class NotedBoxes : public MessageBoxes {
  public:
    NotedBoxes() : mBefore(TheServices().Boxes) { TheServices().Boxes = this; }
    ~NotedBoxes() override { TheServices().Boxes = mBefore; }
    BoxAnswer Show(const BoxRequest& Request) override {
        Shown.push_back(Request);
        return Request.Buttons == BoxButtons::Ok ? BoxAnswer::Ok : Answer;
    }
    std::vector<BoxRequest> Shown;
    BoxAnswer Answer = BoxAnswer::No;

  private:
    MessageBoxes* mBefore;
};

class OneFolder : public FileDialogs {
  public:
    OneFolder() : mBefore(TheServices().Dialogs) { TheServices().Dialogs = this; }
    ~OneFolder() override { TheServices().Dialogs = mBefore; }
    QString OpenFile(const QString&, const QString&, const QString&) override { return {}; }
    QString SaveFile(const QString&, const QString&, const QString&) override { return {}; }
    QString ChooseFolder(const QString&, const QString& Start) override {
        Proposed << Start;
        return Answer;
    }
    QString Answer;
    QStringList Proposed;

  private:
    FileDialogs* mBefore;
};

class DiscUser : public Intake {
  protected:
    DiscUser() {
        DBEngine = &Source.Engine;
        BroadcastChangesOf(Source.Engine);
        DBPathCache = Own.Path();
        TheOpeners().Notice = [this](const QString& Text) { Notice = Text; };
    }
    ~DiscUser() override { TheOpeners().Notice = {}; }

    // The box that was shown last; empty for none.
    BoxRequest LastBox() const { return Said.Shown.empty() ? BoxRequest() : Said.Shown.back(); }
    // Presses Stop once, at the first yield of the work at which Now says so.
    static void StopWhen(std::function<bool()> Now) {
        SetDoEventsHook([Now, Done = false]() mutable {
            const auto* Bar = harness::Open<frmTransferProgress>();
            if (Done || !Bar || !Now()) return;
            Done = true;
            Press(*Bar, "cmdStop");
        });
    }

    TempFolder Own, Out;
    DiscSource Source{Own.Path()};
    const QString Dir = Out / u"disc/"_s;
    NotedBoxes Said;
    OneFolder Dialog;
    QString Notice;
};

}  // namespace neb::harness
