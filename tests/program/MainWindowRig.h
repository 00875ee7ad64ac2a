// The real main window on folders of its own, and the ways in which a test works it.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include "MeasuredMachine.h"
#include "controls/forms/Form.h"
#include "db/Changes.h"
#include "db/clsDBEngine.h"
#include "harness/ScriptedBoxes.h"
#include "harness/TempFolder.h"
#include "program/frmNEBSlideShow.h"
#include "settings/modNEBSlideShow.h"
#include "support/files/modHostFiles.h"
#include "windows/frame/Openers.h"
#include "windows/show/frmPreferences.h"

namespace neb {

// Main windows, one at a time, on a documents and a program folder of their own.
class MainWindow : public ::testing::Test {
  protected:
    MainWindow() {
        SetDocumentsPath(mDocuments.Path());
        AppPathCache = mProgram.Path();
        OwnPathCache = mOwn.Path();
        test::MarkAsMeasured();
        ReadOnlyDB = false;
        DebugMode = false;
    }
    ~MainWindow() override {
        SetHostWatcher({});
        const harness::LettingGo Answers;
        for (const auto& Window : LoadedForms()) Window->Unload();
        TheOpeners() = {};
        AppPathCache.clear();
        OwnPathCache.clear();
    }

    void Start(const CommandLine& Line = {}) {
        mWindow = std::make_unique<frmNEBSlideShow>();
        mWindow->Form_Load(Line);
    }
    QAction* Entry(const char* Name) const {
        return mWindow->findChild<QAction*>(QString::fromLatin1(Name));
    }
    // Presses an entry and lets its queued action run.
    void Press(const char* Name) {
        Entry(Name)->trigger();
        DoEvents();
    }
    // Calls Do with a window once it stands open, and unloads it.
    template <class Window>
    static void WhenOpen(std::function<void(Window&)> Do) {
        QTimer::singleShot(0, qApp, [Do = std::move(Do)] {
            auto* Shown = Find<Window>();
            if (!Shown || !Shown->isVisible()) return WhenOpen<Window>(Do);
            const auto Held = Shown->shared_from_this();
            Do(*Shown);
            Shown->Unload();
        });
    }
    static void WhenPreferencesOpen(std::function<void(frmPreferences&)> Do) {
        WhenOpen<frmPreferences>(std::move(Do));
    }
    template <class Window>
    static Window* Find() {
        for (const auto& Each : LoadedForms())
            if (auto* Found = dynamic_cast<Window*>(Each.get())) return Found;
        return nullptr;
    }
    // As the desktop does it: to the control below the pointer, or what is around it.
    static bool Drop(QWidget* On, const QStringList& Paths) {
        while (!On->acceptDrops() && On->parentWidget()) On = On->parentWidget();
        QMimeData Data;
        QList<QUrl> Urls;
        for (const QString& Path : Paths) Urls << QUrl::fromLocalFile(Path);
        Data.setUrls(Urls);
        QDragEnterEvent Enter({9, 9}, Qt::CopyAction, &Data, Qt::LeftButton, {});
        Enter.ignore();
        QCoreApplication::sendEvent(On, &Enter);
        if (!Enter.isAccepted()) return false;
        QDropEvent Event({9, 9}, Qt::CopyAction, &Data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(On, &Event);
        DoEvents();
        return Event.isAccepted();
    }
    static void SaveAlbum(const QString& Name) { ASSERT_TRUE(Changes(*DBEngine).MakeAlbum(Name)); }

    harness::TempFolder mDocuments;
    harness::TempFolder mProgram;
    harness::TempFolder mOwn;
    harness::ScriptedBoxes mBoxes;
    std::unique_ptr<frmNEBSlideShow> mWindow;
};

}  // namespace neb
