// Walks through the program as a user would, one step after the other: each step waits until the
// program is ready for it, takes a picture of the screen and then presses a key or a button. What
// goes wrong ends the walk and is told under the step's name.
#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <future>
#include <vector>

namespace neb::demo {

class Tour : public QObject {
    Q_OBJECT

  public:
    struct Step {
        QString Name;                 // also of the screenshot
        std::function<bool()> Ready;  // asked again and again; {}: at once
        std::function<void()> Act;    // {}: nothing
        bool Shot = true;
        bool Moving = false;  // what is to be seen does not wait
        QString Box = {};     // what the message box says that is up then; empty: none may be
    };

    // Screenshots go to that folder as 01-name.png, 02-...; behind those that are there already.
    explicit Tour(const QString& ScreenshotDir);

    // Asked at each step; what it answers is printed as a line of its own, unless it is empty.
    void SetTeller(std::function<QString()> Tell) { mTell = std::move(Tell); }
    void Add(Step Next) { mSteps.push_back(std::move(Next)); }
    // Steps without a picture and those that do not wait until the window is painted.
    void Do(const QString& Name, std::function<bool()> Ready, std::function<void()> Act);
    void Look(const QString& Name, std::function<bool()> Ready);
    // Presses Yes in a message box that asks, and the default button of any other.
    void Answer(const QString& Name, const QString& Box, bool Shot = true);
    void Start();
    bool Succeeded() const { return mDone == mSteps.size(); }

  Q_SIGNALS:
    void Ended();

  private:
    void Poll();
    void PollStep(const Step& Now);
    void PollLater();
    void TakeShot(const QString& Name);
    void FinishShots();
    [[noreturn]] void Fail(const QString& Name, const QString& Reason);
    bool WaitsOn(const Step& Now);
    // Runs a part of a step; a fault in it fails the step.
    template <class Part>
    auto Try(const QString& Name, const Part& Do);

    QString mScreenshotDir;
    std::function<QString()> mTell;
    std::vector<Step> mSteps;
    size_t mDone = 0;
    qsizetype mShots = 0;
    std::vector<std::future<void>> mWriting;
    int mSettled = 0;
    int mWaited = 0;  // looks at what the next step waits for
};

// A line of the tour's tale on the standard output.
void Print(const QString& Line);

}  // namespace neb::demo
