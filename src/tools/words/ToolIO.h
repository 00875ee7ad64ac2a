// Where a command of nebctl writes to, and what its exit codes mean. Results go to Out, errors and
// progress to Err; tests pass string streams.
#pragma once

#include <QString>
#include <ostream>

namespace neb {

// What scripts rely on.
inline constexpr int ExitDone = 0;    // done, nothing found
inline constexpr int ExitFound = 1;   // check: something is wrong with the database
inline constexpr int ExitFailed = 2;  // wrong usage, no such directory, or the work failed

struct ToolIO {
    std::ostream& Out;
    std::ostream& Err;
    bool ErrIsTerminal = false;  // progress is shown to people alone
};

// One line in UTF-8.
void PrintLine(std::ostream& Stream, const QString& Text);
// "nebctl: " and the text on Err; returns ExitFailed.
int Fail(ToolIO& IO, const QString& Text);

// A line on the terminal that says how far long work has come; gone when the work is.
class ProgressLine {
  public:
    ProgressLine(ToolIO& IO, const char* What);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    void Show(size_t Done, size_t Total);  // redrawn only when the percentage changes
    void Say(const QString& Text);         // in place of a percentage; redrawn when it changes
    void Clear();                          // before other lines; the next word brings it back

  private:
    ToolIO& mIO;
    const char* mWhat;
    QString mShown;
};

}  // namespace neb
