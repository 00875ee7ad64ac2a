// What the outside world supplies, in one place, so that a test can stand in for it: boxes,
// file dialogs, the clock, the screen's power saving. The program fills it at start.
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <functional>

namespace neb {

enum class BoxIcon { Plain, Information, Question, Critical };
enum class BoxButtons { Ok, YesNo, SaveDiscardCancel };
enum class BoxAnswer { Ok, Yes, No, Save, Discard, Cancel };

struct BoxRequest {
    QString Text;
    QString Title;  // empty: the program's own name
    BoxIcon Icon = BoxIcon::Plain;
    BoxButtons Buttons = BoxButtons::Ok;
    BoxAnswer Default = BoxAnswer::No;  // of a Yes/No box: what Enter answers
    QString Details = {};  // a long list, say: opens at a button of the box, and scrolls
    // What the buttons of a Yes/No box say where that is not enough; empty: Yes and No.
    QString YesWords = {}, NoWords = {};
};

// What closing a box by Esc or by its frame answers: nothing is done then. Enter answers it in a
// box of Save, Discard and Cancel, too: of the three it alone neither writes nor gives up anything.
BoxAnswer AnswerOfClosing(BoxButtons Buttons);

class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    // Shows the box modally and returns the answer.
    virtual BoxAnswer Show(const BoxRequest& Request) = 0;
};

class FileDialogs {
  public:
    virtual ~FileDialogs() = default;
    // Filters as "Name (*.a;*.b)|*.a;*.b|..." pairs. The full path, or empty when cancelled.
    virtual QString OpenFile(const QString& Title, const QString& StartDir,
                             const QString& Filters) = 0;
    // Names a place for a file; whether one that is there may be replaced is for the caller to ask.
    virtual QString SaveFile(const QString& Title, const QString& StartPath,
                             const QString& Filters) = 0;
    virtual QString ChooseFolder(const QString& Title, const QString& StartDir) = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;
    virtual QDateTime Now() const = 0;
    // Milliseconds that never jump, from an arbitrary start, in double precision.
    virtual double Ticks() const = 0;
    // Seconds since midnight of Now, with fraction: 0 up to 86400.
    double Timer() const;
};

class ScreenBlanking {
  public:
    virtual ~ScreenBlanking() = default;
    // Keeps the screen from blanking until Release; calls nest.
    virtual void Inhibit(const QString& Reason) = 0;
    virtual void Release() = 0;
};

class SoundDevices;
class MailTransport;
class PrinterQueues;
class DriveList;
class MediaControls;

struct Services {
    MessageBoxes* Boxes = nullptr;
    FileDialogs* Dialogs = nullptr;
    Clock* Time = nullptr;
    ScreenBlanking* Blanking = nullptr;
    SoundDevices* Sound = nullptr;
    MailTransport* Mail = nullptr;
    PrinterQueues* Printers = nullptr;
    DriveList* Drives = nullptr;
    MediaControls* Media = nullptr;
};

// The services in force. The clock is never null: the system's clock stands in.
Services& TheServices();

// Shows a plain OK box, or one with the given looks.
BoxAnswer MsgBox(const QString& Text, const QString& Title = {}, BoxIcon Icon = BoxIcon::Plain,
                 BoxButtons Buttons = BoxButtons::Ok);
// Asks in a Yes/No box with the question icon; true on Yes. Default: what Enter answers; Yes only
// where that neither discards nor deletes anything.
bool AskYesNo(const QString& Text, const QString& Title, BoxAnswer Default = BoxAnswer::No);
// Asks whether work is to be saved, in a box of Save, Discard and Cancel with the question icon.
BoxAnswer AskSave(const QString& Text, const QString& Title);

// Lets waiting events run: the one way for long work to yield.
void DoEvents();
// The same, but what the user does waits: for work that must not be begun a second time.
void DoEventsButInput();
// A test's own step at each DoEvents; {} for none.
void SetDoEventsHook(std::function<void()> Hook);

}  // namespace neb
