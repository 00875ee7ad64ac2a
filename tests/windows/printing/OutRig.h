// A user at the print preview of a document of three pages, with printers, mail, dialogs and boxes
// that answer as a test says.
#pragma once

#include <QAction>
#include <QThread>

#include "harness/AwaitActive.h"
#include "harness/Heartbeat.h"
#include "harness/ScriptedBoxes.h"
#include "harness/ScriptedMail.h"
#include "harness/ScriptedPrinters.h"
#include "printing/PrintRig.h"
#include "settings/modNEBSlideShow.h"
#include "windows/WindowSteps.h"
#include "windows/frame/Openers.h"
#include "windows/printing/PrintView.h"
#include "windows/printing/frmPrintPreview.h"
#include "windows/transfer/frmTransferProgress.h"

namespace neb::harness {

class ScriptedFiles : public FileDialogs {
  public:
    ScriptedFiles() : mBefore(TheServices().Dialogs) { TheServices().Dialogs = this; }
    ~ScriptedFiles() override { TheServices().Dialogs = mBefore; }
    QString OpenFile(const QString&, const QString& Start, const QString& Filters) override {
        Asked << Filters;
        Begun << Start;
        return Answer;
    }
    QString SaveFile(const QString& Title, const QString& Start, const QString& Filters) override {
        return OpenFile(Title, Start, Filters);
    }
    QString ChooseFolder(const QString&, const QString&) override { return {}; }
    QString Answer;  // empty: cancelled
    QStringList Asked, Begun;

  private:
    FileDialogs* mBefore;
};

class StoppedClock : public Clock {
  public:
    StoppedClock() : mBefore(TheServices().Time) { TheServices().Time = this; }
    ~StoppedClock() override { TheServices().Time = mBefore; }
    QDateTime Now() const override { return At; }
    double Ticks() const override { return mBefore->Ticks(); }
    QDateTime At{QDate(2004, 3, 9), QTime(8, 5, 7)};

  private:
    Clock* mBefore;
};

// Notes the boxes instead of comparing them, for as long as it is there; answers yes.
class AgreeingBoxes : public MessageBoxes {
  public:
    AgreeingBoxes() : mBefore(TheServices().Boxes) { TheServices().Boxes = this; }
    ~AgreeingBoxes() override { TheServices().Boxes = mBefore; }
    BoxAnswer Show(const BoxRequest& Request) override {
        Shown.push_back(Request);
        return Request.Buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Yes;
    }
    // The one that told of a fault, as it must look.
    std::string FaultTold() const {
        if (Shown.empty() || Shown.back().Icon != BoxIcon::Critical ||
            Shown.back().Title != u"Operation Failed")
            return "none of " + std::to_string(Shown.size());
        return Shown.back().Text.toStdString();
    }
    std::vector<BoxRequest> Shown;

  private:
    MessageBoxes* mBefore;
};

inline const QString OperationFailed = u"Operation Failed"_s;

class OutRig : public ::testing::Test {
  protected:
    OutRig() {
        AppPathCache = App.Path();
        SetDocumentsPath(Docs.Path());
        TheOpeners().Notice = [this](const QString& Text) { Notice = Text; };
        tests::SaveJpeg(Folder / u"NoSlide.jpg"_s, tests::Plain(Qt::magenta, {80, 60}));
        tests::SaveJpeg(Folder / u"rose.jpg"_s, tests::Plain(Qt::red, {80, 60}));
        QObject::connect(&mWatchdog, &QTimer::timeout, &mWatchdog, [] { CloseAll("too long"); });
        mWatchdog.start(120'000);
        W->ShowDocument(Pages(3));
        W->ShowModeless();
        W->activateWindow();
        EXPECT_TRUE(neb::harness::AwaitActive(*W));
    }
    ~OutRig() override {
        SetHostWatcher({});
        SetDoEventsHook({});
        for (QTimer* Left : qApp->findChildren<QTimer*>(u"neb-step"_s)) delete Left;
        W->Settings().AutoSaveName.clear();
        W->Unload();
        QCoreApplication::sendPostedEvents();
        if (!LoadedForms().empty()) CloseAll("left open");
        TheOpeners().Notice = {};
        AppPathCache.clear();
        DocumentsPath.clear();
        DBPathCache.clear();
    }
    static void CloseAll(const char* Why) {
        for (const auto& Each : LoadedForms()) {
            ADD_FAILURE() << Why << ": " << Each->windowTitle().toStdString();
            Each->Unload();
            Each->done(0);
        }
    }

    std::shared_ptr<PrintDocument> Pages(int Count) const {
        const auto Made =
            std::make_shared<PrintDocument>(PrintPicture{Folder / u"NoSlide.jpg"_s, {}});
        Made->StartDoc();
        for (int Page = 1; Page <= Count; ++Page) {
            tests::Place(*Made, {Folder / u"rose.jpg"_s, {}}, {1, 1, 2, 2});
            if (Page < Count) Made->NewPage();
        }
        Made->EndDoc();
        return Made;
    }
    void Click(const char* Button) { Press(*W, Button); }
    void Choose(const char* Entry) { In<QAction>(*W, Entry).trigger(); }
    // As In, for what is no control.
    template <class Thing>
    static Thing& In(const QObject& Window, const char* Name) {
        auto* Found = Window.findChild<Thing*>(QString::fromLatin1(Name));
        if (!Found) throw Fault(u"no "_s + QString::fromLatin1(Name));
        return *Found;
    }
    static frmTransferProgress* Bar() { return harness::Open<frmTransferProgress>(); }
    static std::string BarText() {
        return Bar() ? In<QLabel>(*Bar(), "lblProgress").text().toStdString() : std::string();
    }
    // Stops the work as soon as the bar begins to say this.
    void StopAt(const std::string& Line) {
        Boxes.Expect(u"Are you sure you want to Abort the current process?"_s,
                     u"Abort Confirmation"_s, BoxAnswer::Yes);
        WhenOpen<frmTransferProgress>([](frmTransferProgress& Shown) { Press(Shown, "cmdStop"); },
                                      [Line] { return BarText().starts_with(Line); });
    }
    static void SlowDisk() {
        SetHostWatcher([](HostStep, const QString&, qint64&) { QThread::msleep(50); });
    }
    static void DiskFull() {
        SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Write) throw Fault(u"The disk is full."_s, Path);
        });
    }
    static std::string Listed(const QString& Dir) {
        QStringList Names;
        for (const DirEntry& Each : ListDir(Dir)) Names << Each.Name;
        return Names.join(u' ').toStdString();
    }

    TempFolder Folder, App, Docs, Out;
    ScriptedBoxes Boxes;
    ScriptedFiles Files;
    ScriptedPrinters Printers;
    ScriptedMail Carrier;
    StoppedClock Time;
    QString Notice;
    const std::shared_ptr<frmPrintPreview> W = NewForm<frmPrintPreview>();

  private:
    QTimer mWatchdog;
};

}  // namespace neb::harness
