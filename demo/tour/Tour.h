// Walks through the program as a user would, one step after the other: each step waits until the
// program is ready for it, takes a picture of the screen and then presses a key or a button.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <functional>
#include <vector>

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

    // Screenshots go to that folder as 01-name.png, 02-...
    explicit Tour(const QString& ScreenshotDir) : mScreenshotDir(ScreenshotDir) {}

    // Asked at each step; what it answers is printed as a line of its own, unless it is empty.
    void SetTeller(std::function<QString()> Tell) { mTell = std::move(Tell); }
    void Add(Step Next) { mSteps.push_back(std::move(Next)); }
    void Start();
    bool Succeeded() const { return mDone == mSteps.size(); }

  Q_SIGNALS:
    void Ended();

  private:
    void Poll();
    void PollLater();
    void Print(const QString& Line);
    void TakeShot(const QString& Name);
    void Fail(const QString& Reason);
    bool WaitsOn(const Step& Now);

    QString mScreenshotDir;
    std::function<QString()> mTell;
    std::vector<Step> mSteps;
    size_t mDone = 0;
    int mShots = 0;
    int mSettled = 0;
    QElapsedTimer mWaiting;
};
