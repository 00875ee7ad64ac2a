// The printers within reach: the desktop's own in the program, scripted ones in tests. Used by the
// print preview.
#pragma once

#include <QStringList>
#include <memory>

#include "printing/PrintDocument.h"

namespace neb {

// What printing ended with, by the numbers of the preview's table of messages.
enum class PrintError {
    Unhandled = -1,
    None = 0,
    NoAccess = 3,       // there is no such printer, or it cannot be begun on
    NotResponding = 4,  // it is stopped, takes no jobs, or cannot be reached
    Cancelled = 5       // by the user, in the dialog or on the way
};

// A printer with the settings for one print: paper, tray, copies, sides, colour, pages.
class ReadyPrinter {
  public:
    virtual ~ReadyPrinter() = default;
    // What the user should know before paper is spent, a sentence each: pictures that lie where the
    // printer cannot reach, paper that is out. Empty for nothing.
    virtual QStringList Warnings(const PrintDocument& Document) const = 0;
    // Prints the chosen pages. GoOn hears of every page. May run on a worker thread. Throws
    // nothing.
    virtual PrintError Print(const PrintDocument& Document, const PrintGoOn& GoOn) = 0;
};

struct PrintWish {
    QString Device;           // empty: the default printer
    bool ShowDialog = false;  // the system's own dialog
    QString Title;            // as the printer's queue lists it
};

struct ChosenPrinter {
    PrintError Error = PrintError::None;
    std::shared_ptr<ReadyPrinter> Printer;  // where there is no error
};

class PrinterQueues {
  public:
    virtual ~PrinterQueues() = default;
    // Every printer's device name, the default one first. May take a moment.
    virtual QStringList Devices() = 0;
    // The printer that a print goes to, with its settings for this document. With a dialog it
    // returns when the user has answered it.
    virtual ChosenPrinter Choose(const PrintDocument& Document, const PrintWish& Wish) = 0;
};

}  // namespace neb
