#include "program/desktop/DesktopPrinters.h"

#include <QApplication>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "controls/forms/StandOver.h"
#include "printing/PrintReach.h"
#include "program/desktop/QueueState.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/work/WorkAside.h"

namespace neb {
namespace {

QPageLayout::Orientation TurnOf(const PrintDocument& Document) {
    return Document.Orientation() == PageTurn::Landscape ? QPageLayout::Landscape
                                                         : QPageLayout::Portrait;
}

bool GoesToFile(const QPrinter& Printer) {
    return !Printer.outputFileName().isEmpty();
}

// The pages in the order in which they are printed, from 1; those that the printer cannot repeat by
// itself as often as they are wanted.
std::vector<int> PagesOf(const QPrinter& Printer, int PageCount) {
    const QPageRanges Ranges = Printer.pageRanges();
    const bool Some = Printer.printRange() == QPrinter::PageRange && !Ranges.isEmpty();
    const bool Repeats = Printer.supportsMultipleCopies() || GoesToFile(Printer);
    const int Copies = Repeats ? 1 : Printer.copyCount();
    std::vector<int> Pages;
    for (int Copy = 0; Copy < Copies; ++Copy)
        for (int Page = 1; Page <= PageCount; ++Page)
            if (!Some || Ranges.contains(Page)) Pages.push_back(Page);
    if (!Printer.collateCopies()) std::ranges::sort(Pages);
    if (Printer.pageOrder() == QPrinter::LastPageFirst) std::ranges::reverse(Pages);
    return Pages;
}

// What the printer leaves white at the edges. Which way it turns a landscape page is its own
// business: both ways must do.
QMarginsF BlankEdges(const QPrinter& Printer) {
    QPrinter Upright(QPrinterInfo::printerInfo(Printer.printerName()), QPrinter::HighResolution);
    Upright.setPageSize(Printer.pageLayout().pageSize());
    Upright.setPageOrientation(QPageLayout::Portrait);
    const QMarginsF Is = Upright.pageLayout().minimumMargins() / 72;
    if (Printer.pageLayout().orientation() == QPageLayout::Portrait) return Is;
    const double Sides = std::max(Is.top(), Is.bottom());
    const double Ends = std::max(Is.left(), Is.right());
    return {Sides, Ends, Sides, Ends};
}

// The toolkit tells of no write that has failed: then the file's last words are missing.
bool IsWholePdf(const QString& Path) {
    const QByteArray LastWords("%%EOF\n");
    HostReader File(Path);
    if (File.Length() < LastWords.size()) return false;
    QByteArray End(LastWords.size(), '\0');
    File.Seek(File.Length() - End.size());
    return File.Read(End.data(), End.size()) == End.size() && End == LastWords;
}

class DesktopPrinter : public ReadyPrinter {
  public:
    DesktopPrinter(std::shared_ptr<QPrinter> Printer, const QueueState& State)
        : mPrinter(std::move(Printer)), mState(State) {}
    // Printed beside the file, whose place is taken when the new one is whole.
    explicit DesktopPrinter(std::shared_ptr<QPrinter> ToFile)
        : mPrinter(std::move(ToFile)), mFile(mPrinter->outputFileName()) {
        mPrinter->setOutputFileName(ResolvePath(mFile) + QStringLiteral(".new"));
    }

    QStringList Warnings(const PrintDocument& Document) const override;
    PrintError Print(const PrintDocument& Document, const PrintGoOn& GoOn) override;

  private:
    bool Paint(QPainter& Painter, const PrintDocument& Document, const PrintGoOn& GoOn);
    PrintError Finish(QPainter& Painter);
    void Discard(QPainter& Painter);

    const std::shared_ptr<QPrinter> mPrinter;
    const QueueState mState;
    const QString mFile;  // that is printed to; empty: a queue
};

QStringList DesktopPrinter::Warnings(const PrintDocument& Document) const {
    const QPageLayout Layout = mPrinter->pageLayout();
    QStringList Said;
    if (mState.PaperOut) Said << QObject::tr("There is no paper in the printer.");
    const QMarginsF Blank = GoesToFile(*mPrinter) ? QMarginsF() : BlankEdges(*mPrinter);
    return Said + ReachWarnings(Document, PagesOf(*mPrinter, Document.PageCount()),
                                {Layout.fullRect(QPageLayout::Inch).size(), Blank});
}

PrintError DesktopPrinter::Print(const PrintDocument& Document, const PrintGoOn& GoOn) {
    QPainter Painter;
    if (!Painter.begin(mPrinter.get()))
        return GoesToFile(*mPrinter) ? PrintError::NoAccess : PrintError::NotResponding;
    try {
        if (!Paint(Painter, Document, GoOn)) {
            Discard(Painter);
            return PrintError::Cancelled;
        }
        return Finish(Painter);
    } catch (const std::exception&) {
        Discard(Painter);
        return PrintError::NoAccess;
    }
}

// False when it was stopped.
bool DesktopPrinter::Paint(QPainter& Painter, const PrintDocument& Document,
                           const PrintGoOn& GoOn) {
    const std::vector<int> Pages = PagesOf(*mPrinter, Document.PageCount());
    const int Total = static_cast<int>(Pages.size());
    for (int Done = 0; Done < Total; ++Done) {
        if (!GoOn({Done, Total})) return false;
        if (Done > 0 && !mPrinter->newPage()) throw Fault(tr("No page follows."));
        Document.PaintPage(Painter, Pages[static_cast<std::size_t>(Done)], mPrinter->resolution());
    }
    return GoOn({Total, Total});
}

PrintError DesktopPrinter::Finish(QPainter& Painter) {
    const bool Sound = Painter.end();
    if (mFile.isEmpty())
        return Sound && JobWasTaken() ? PrintError::None : PrintError::NotResponding;
    const QString Beside = mPrinter->outputFileName();
    if (!IsWholePdf(Beside)) throw Fault(tr("There is no room for the file."), mFile);
    SyncFile(Beside);
    RenameFile(Beside, mFile);
    return PrintError::None;
}

void DesktopPrinter::Discard(QPainter& Painter) {
    KeepJobsBack();
    if (Painter.isActive()) Painter.end();
    try {
        if (GoesToFile(*mPrinter)) DeleteFile(mPrinter->outputFileName());
    } catch (const Fault&) {
        // what the print ended with is what the user hears of
    }
}

// Places are exact from the paper's corner.
void FitTo(const PrintDocument& Document, QPrinter& Printer) {
    Printer.setPageOrientation(TurnOf(Document));
    Printer.setFullPage(true);
    Printer.setPageMargins({});
}

std::shared_ptr<QPrinter> PrinterFor(const QString& Device, const PrintDocument& Document,
                                     const PrintWish& Wish) {
    const QPrinterInfo Info = QPrinterInfo::printerInfo(Device);
    const auto Made = std::make_shared<QPrinter>(Info, QPrinter::HighResolution);
    if (Info.defaultPageSize().isValid()) Made->setPageSize(Info.defaultPageSize());
    Made->setDocName(Wish.Title);
    Made->setCreator(QApplication::applicationDisplayName());
    FitTo(Document, *Made);
    return Made;
}

// The toolkit's own check of a list of pages refuses every list ("1,3" as well as "1"): the field
// for it would only be a trap. From one page to another works.
void HideListOfPages(const QPrintDialog& Dialog) {
    for (const char* Name : {"pagesRadioButton", "pagesLineEdit"})
        if (auto* Part = Dialog.findChild<QWidget*>(QLatin1String(Name))) Part->hide();
}

// The window below may go while the dialog is up, and takes it along.
bool AskUser(QPrinter& Printer, int PageCount) {
    const QPointer<QPrintDialog> Dialog = new QPrintDialog(&Printer, WindowInUse());
    Dialog->setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                       QAbstractPrintDialog::PrintCollateCopies |
                       QAbstractPrintDialog::PrintShowPageSize);
    Dialog->setMinMax(1, PageCount);
    Dialog->setFromTo(1, PageCount);
    Dialog->setPrintRange(QAbstractPrintDialog::AllPages);
    HideListOfPages(*Dialog);
    const bool Accepted = Dialog->exec() == QDialog::Accepted;
    delete Dialog;
    return Accepted;
}

QueueState AskService(const QString& Device) {
    return FinishAside([Device] { return StateOfQueue(Device); }).get();
}

ChosenPrinter Readied(const std::shared_ptr<QPrinter>& Printer) {
    if (GoesToFile(*Printer)) return {PrintError::None, std::make_shared<DesktopPrinter>(Printer)};
    const QueueState State = AskService(Printer->printerName());
    if (!State.TakesJobs) return {PrintError::NotResponding, nullptr};
    return {PrintError::None, std::make_shared<DesktopPrinter>(Printer, State)};
}

}  // namespace

QStringList DesktopPrinters::Devices() {
    return FinishAside([] {
               QStringList All = QPrinterInfo::availablePrinterNames();
               const QString Default = QPrinterInfo::defaultPrinterName();
               if (All.removeOne(Default)) All.prepend(Default);
               return All;
           })
        .get();
}

// Where no default is set the first printer there is takes its place. A printer that was named was
// there before: it does not respond now.
ChosenPrinter DesktopPrinters::Choose(const PrintDocument& Document, const PrintWish& Wish) {
    const QStringList All = Devices();
    const bool IsNamed = !Wish.Device.isEmpty();
    if (All.isEmpty() && !IsNamed) return {PrintError::NoAccess, nullptr};
    if (IsNamed && !All.contains(Wish.Device)) return {PrintError::NotResponding, nullptr};
    const auto Printer = PrinterFor(IsNamed ? Wish.Device : All.first(), Document, Wish);
    if (!Wish.ShowDialog) return Readied(Printer);
    if (!AskUser(*Printer, Document.PageCount())) return {PrintError::Cancelled, nullptr};
    FitTo(Document, *Printer);
    return Readied(Printer);
}

}  // namespace neb
