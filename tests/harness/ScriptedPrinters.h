// Stands in for the desktop's printers: those that a test names, which answer and fail as it says,
// and note what was printed.
#pragma once

#include <atomic>
#include <chrono>
#include <thread>

#include "printing/PrinterQueues.h"
#include "support/Services.h"

namespace neb::harness {

class ScriptedPrinters : public PrinterQueues {
  public:
    ScriptedPrinters() : mBefore(TheServices().Printers) { TheServices().Printers = this; }
    ~ScriptedPrinters() override { TheServices().Printers = mBefore; }

    QStringList Names{QStringLiteral("Laser"), QStringLiteral("Ink")};
    PrintError OnChoose = PrintError::None;
    PrintError OnPrint = PrintError::None;  // after the last page
    QStringList Warned;
    std::atomic<int> PageTime = 0;  // ms

    std::vector<PrintWish> Wishes;
    std::atomic<int> Pages = 0;

    QStringList Devices() override { return Names; }
    ChosenPrinter Choose(const PrintDocument&, const PrintWish& Wish) override {
        Wishes.push_back(Wish);
        if (OnChoose != PrintError::None) return {OnChoose, nullptr};
        return {PrintError::None, std::make_shared<Printer>(*this)};
    }

  private:
    class Printer : public ReadyPrinter {
      public:
        explicit Printer(ScriptedPrinters& Of) : mOf(Of) {}
        QStringList Warnings(const PrintDocument&) const override { return mOf.Warned; }
        PrintError Print(const PrintDocument& Document, const PrintGoOn& GoOn) override {
            for (int Done = 0; Done < Document.PageCount(); ++Done) {
                if (!GoOn({Done, Document.PageCount()})) return PrintError::Cancelled;
                std::this_thread::sleep_for(std::chrono::milliseconds(mOf.PageTime));
                ++mOf.Pages;
            }
            return mOf.OnPrint;
        }

      private:
        ScriptedPrinters& mOf;
    };

    PrinterQueues* mBefore;
};

}  // namespace neb::harness
