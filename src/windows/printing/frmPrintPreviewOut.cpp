// The document leaves the window, or comes into it: printed, saved, loaded, mailed.
#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "printing/PpdFile.h"
#include "printing/PrintBeside.h"
#include "printing/SlidesToPrint.h"
#include "support/Fault.h"
#include "support/Grouped.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "ui_frmPrintPreview.h"
#include "windows/frame/frmInputBox.h"
#include "windows/frame/modNotice.h"
#include "windows/printing/MailSession.h"
#include "windows/printing/PrintFiles.h"
#include "windows/printing/PrintView.h"
#include "windows/printing/frmPrintPreview.h"
#include "windows/transfer/frmTransferProgress.h"

namespace neb {
namespace {

using Document = std::shared_ptr<const PrintDocument>;

constexpr char Failed[] = QT_TR_NOOP("Operation Failed");

// How a printer's failures are told.
struct PrintMessage {
    PrintError Error;
    const char* Text;
    const char* Title;
    BoxIcon Icon;
    bool ClearsPrinted;
};
const PrintMessage PrintMessages[] = {
    {PrintError::Unhandled, QT_TR_NOOP("KIP you are supposed to have handled this error!"), nullptr,
     BoxIcon::Plain, false},
    {PrintError::NoAccess, QT_TR_NOOP("Could not access printer."), Failed, BoxIcon::Critical,
     true},
    {PrintError::NotResponding, QT_TR_NOOP("The Printer is not responding."), Failed,
     BoxIcon::Critical, true},
    {PrintError::Cancelled, QT_TR_NOOP("The User Canceled the print job."), Failed,
     BoxIcon::Critical, true},
};

// What the bar over long work says.
struct WorkWords {
    QString Title;
    QString Piece;  // "%1" and "%2" stand for its number and theirs
};

QString LineFor(const WorkWords& Words, const PrintProgress& Now) {
    if (Now.Total <= 0) return Words.Title;
    return Words.Piece.arg(Grouped(std::min(Now.Done + 1, Now.Total)), Grouped(Now.Total));
}

// The result of work beside the window, under a bar with Stop; what the work throws passes out.
template <class Result>
Result UnderBar(const WorkWords& Words, std::function<Result(const PrintGoOn&)> Work) {
    const PointerScope Working(Pointer::Hourglass);
    const auto Bar = NewForm<frmTransferProgress>();
    Bar->setWindowTitle(Words.Title);
    const auto Show = [&](const PrintProgress& Now) {
        return Bar->Show(LineFor(Words, Now), Now.Total > 0 ? Now.Done * 100 / Now.Total : 0);
    };
    std::optional<Result> Made;
    Bar->ShowOver([&] {
        Show({});
        Made = RunBeside<Result>(std::move(Work), Show);
    });
    return *Made;
}

bool SaveUnderBar(const Document& What, const QString& Path, PrintFileKind Kind) {
    const WorkWords Words{QObject::tr("Saving ..."), QObject::tr("Picture %1 of %2")};
    return UnderBar<bool>(Words, [What, Path, Kind](const PrintGoOn& GoOn) {
        return WritePrintFile(*What, Path, Kind, GoOn);
    });
}

Document LoadUnderBar(const QString& Path) {
    const WorkWords Words{QObject::tr("Loading ..."), QObject::tr("Picture %1 of %2")};
    const PrintPicture StandIn{NoSlideFile(), {}};
    return UnderBar<Document>(Words, [Path, StandIn](const PrintGoOn& GoOn) -> Document {
        return ReadPpd(Path, StandIn, GoOn);
    });
}

PrintError PrintUnderBar(const std::shared_ptr<ReadyPrinter>& Printer, const Document& What) {
    const WorkWords Words{QObject::tr("Printing ..."), QObject::tr("Page %1 of %2")};
    return UnderBar<PrintError>(
        Words, [Printer, What](const PrintGoOn& GoOn) { return Printer->Print(*What, GoOn); });
}

// Nothing where the user would rather not print so.
std::optional<PrintError> PrintDoc(const Document& What, const PrintWish& Wish) {
    if (!TheServices().Printers) return PrintError::NoAccess;
    const ChosenPrinter Chosen = TheServices().Printers->Choose(*What, Wish);
    if (Chosen.Error != PrintError::None) return Chosen.Error;
    const QStringList Warnings = Chosen.Printer->Warnings(*What);
    if (!Warnings.isEmpty() &&
        !AskYesNo(Warnings.join(u'\n') + QObject::tr("\n\nPrint all the same?"),
                  QObject::tr("Print Document"), BoxAnswer::No))
        return std::nullopt;
    return PrintUnderBar(Chosen.Printer, What);
}

bool MayReplace(const QString& Path) {
    return !FileExists(Path) || AskYesNo(QObject::tr("%1\nis there already. Replace it?").arg(Path),
                                         QObject::tr("Save Document"), BoxAnswer::No);
}

void TellFault(const Fault& Problem) {
    MsgBox(Problem.Text(), tr(Failed), BoxIcon::Critical);
}

void TellNotSent(const QString& Path) {
    MsgBox(QObject::tr("There is no mail program that takes the message.\nThe document is in\n%1\n"
                       "and can be attached to a message from there.")
               .arg(Path),
           QObject::tr("Email Document"), BoxIcon::Information);
}

QString AskAddress() {
    return NewForm<frmInputBox>()
        ->InputBox(tr("Enter the Email Address to Send To:"), tr("Destination Email Address Entry"))
        .trimmed();
}

// What there is to say of it, unless a box has said it.
QString MailTo(const QString& Address, const Document& What, const PreviewSettings& Settings) {
    MailSession Session(TheServices().Mail, Settings);
    const QString Path = AutoSaveDir(Settings.AutoSavePath) +
                         AttachmentNameFor(Settings.AutoSaveName, TheServices().Time->Now());
    if (!SaveUnderBar(What, Path, PrintFileKind::Pdf))
        return QObject::tr("Stopped; nothing was sent.");
    if (Session.Send(ComposeMail(Settings, Address, Path)))
        return QObject::tr("The message was handed to the mail program.");
    TellNotSent(Path);
    return {};
}

}  // namespace

void frmPrintPreview::SetDefaultPrinter(const QString& Device) {
    if (TheServices().Printers && TheServices().Printers->Devices().contains(Device))
        mDefaultPrinter = Device;
}

bool frmPrintPreview::TryClearReadOnly(const QString& FileName) {
    return neb::TryClearReadOnly(FileName);
}

// The bar stands over every piece of long work.
bool frmPrintPreview::IsBusy() const {
    return std::ranges::any_of(LoadedForms(), [](const std::shared_ptr<Form>& Each) {
        return qobject_cast<frmTransferProgress*>(Each.get()) != nullptr;
    });
}

bool frmPrintPreview::Form_Unload() {
    if (IsBusy()) return false;
    AutoSave();
    return true;
}

void frmPrintPreview::Print(bool ShowDialog) {
    const Document What = mUi->VSPrinter1->Document();
    if (!What || What->PageCount() == 0) return;
    mSettings.UnloadAfterPrint = true;
    Notify({});
    bool Cancel = false;
    Q_EMIT BeforePrint(Cancel);
    if (Cancel) return;
    const QString Name = What->Title().isEmpty() ? windowTitle() : What->Title();
    const auto Error = PrintDoc(What, {mDefaultPrinter, ShowDialog, Name});
    if (Error != PrintError::None) return PrintFailed(Error.value_or(PrintError::None));
    mPrinted = true;
    Notify(tr("The document was handed over for printing."));
    if (mSettings.UnloadAfterPrint) Unload();
    Q_EMIT AfterPrint();
}

// The user's own No to a warning needs no words. Without a printer a PDF is one key away.
void frmPrintPreview::PrintFailed(PrintError Error) {
    if (!IsLoaded()) return;
    const auto* Message = std::ranges::find(PrintMessages, Error, &PrintMessage::Error);
    if (Error == PrintError::None) mPrinted = false;
    if (Message == std::end(PrintMessages)) return;
    if (Message->ClearsPrinted) mPrinted = false;
    ShowBox({.Text = tr(Message->Text),
             .Title = Message->Title ? tr(Message->Title) : QString(),
             .Icon = Message->Icon});
    if (Error != PrintError::NoAccess) return;
    mUi->cmdSave->setFocus();
    Notify(tr("Save writes the pages to a PDF instead."));
}

void frmPrintPreview::Notify(const QString& Text) {
    mUi->lblNotice->setText(Text);
    mUi->lblNotice->setToolTip(Text);
    if (!Text.isEmpty()) ShowNotice(Text);
}

void frmPrintPreview::Save() {
    const Document What = mUi->VSPrinter1->Document();
    if (!What) return;
    Notify({});
    const QString Chosen = TheServices().Dialogs->SaveFile(
        tr("Save Document"), ProposedFile(What->Title()), tr(SaveFilter));
    if (Chosen.isEmpty()) return;
    auto Path = PrintFilePath(Chosen);
    if (!Tell(Path) || !MayReplace(*Path)) return;
    try {
        const bool Saved = SaveUnderBar(What, *Path, PrintFileKindOf(*Path));
        Notify(Saved ? tr("Saved: %1").arg(*Path) : tr("Stopped; nothing was saved."));
    } catch (const Fault& Problem) {
        TellFault(Problem);
    }
}

void frmPrintPreview::LoadDocument() {
    Notify({});
    const QString Path =
        TheServices().Dialogs->OpenFile(tr("Load Document"), UsersDocuments(), tr(OpenFilter));
    if (!Path.isEmpty()) Open(Path);
}

bool frmPrintPreview::Open(const QString& Path) try {
    const Document Loaded = LoadUnderBar(Path);
    if (Loaded) ShowDocument(Loaded);
    return Loaded != nullptr;
} catch (const Fault& Problem) {
    TellFault(Problem);
    return false;
}

void frmPrintPreview::Mail() {
    const Document What = mUi->VSPrinter1->Document();
    if (!What) return;
    Notify({});
    const QString Address =
        mSettings.EmailAddress.isEmpty() ? AskAddress() : mSettings.EmailAddress;
    if (Address.isEmpty()) return;
    try {
        Notify(MailTo(Address, What, mSettings));
    } catch (const Fault& Problem) {
        TellFault(Problem);
    }
}

void frmPrintPreview::AutoSave() {
    const Document What = mUi->VSPrinter1->Document();
    if (mSettings.AutoSaveName.isEmpty() || !What) return;
    mSettings.AutoSavePath = AutoSaveDir(mSettings.AutoSavePath);
    try {
        SaveUnderBar(What, mSettings.AutoSavePath + mSettings.AutoSaveName, PrintFileKind::Pdf);
    } catch (const Fault&) {
        // a window that closes has nobody left to tell
    }
}

}  // namespace neb
