// Viewing either side of a transfer, and the transfer itself.
#include <QGroupBox>
#include <QPointer>
#include <QScopeGuard>

#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/ReasonOf.h"
#include "support/Texts.h"
#include "support/modDEValidation.h"
#include "support/work/WorkAside.h"
#include "ui_TransferForm.h"
#include "windows/frame/modNotice.h"
#include "windows/lists/clsImageBuffer.h"
#include "windows/transfer/TransferForm.h"
#include "windows/transfer/frmAlbumView.h"
#include "windows/transfer/frmSlideShowView.h"
#include "windows/transfer/frmTransferProgress.h"
#include "windows/transfer/modTransferAsks.h"

namespace neb {
namespace {

BoxRequest Failed(const QString& Text) {
    return {Text, tr("Operation Failed"), BoxIcon::Critical};
}

BoxRequest NotYetCompleted(const QString& Text) {
    return Refuse(Text, QObject::tr("Operation Not Yet Completed"));
}

// All is written; who relies on going back to the albums of before must know.
void TellNotKept(const std::optional<Fault>& Reason) {
    if (!Reason) return;
    MsgBox(QObject::tr("The transfer is completed. The albums of before in that database could not "
                       "be kept among the earlier ones.\n\n%1")
               .arg(Reason->Text()),
           QObject::tr("Earlier Albums"), BoxIcon::Information);
}

QString Count(int Number, const QString& One, const QString& Many) {
    return QString::number(Number) + u' ' + (Number == 1 ? One : Many);
}

}  // namespace

void TransferForm::ViewAlbum(const TransferSide& Of) {
    const auto Name = Of.AlbumName();
    if (!Name) {
        MsgBox(tr("You must select an album in order to view it."));
        return;
    }
    const auto Viewer = NewForm<frmAlbumView>();
    Remember(Of, Viewer);
    Viewer->ViewAlbum(*Of.Engine(), Of.AlbumID(), *Name);
}

void TransferForm::ViewSlideShow(const TransferSide& Of) {
    const auto Album = Of.AlbumName(), Name = Of.SlideShowName();
    if (!Album || !Name) {
        MsgBox(tr("You must select a slide show in order to view it."));
        return;
    }
    const auto Viewer = NewForm<frmSlideShowView>();
    Remember(Of, Viewer);
    Viewer->ViewSlideShow(*Of.Engine(), Of.AlbumID(), *Album, Of.SlideShowID(), *Name);
}

void TransferForm::Remember(const TransferSide& Of, const std::shared_ptr<ViewerForm>& Viewer) {
    if (mOther.Foreign() && Of.Engine() == mOther.Engine()) mOther.Remember(Viewer);
}

void TransferForm::Start() {
    if (!IsReady()) return;
    const auto Notice = RunToTheEnd();
    if (!Notice) return;
    Unload();
    if (!Notice->isEmpty()) ShowNotice(*Notice);
}

// What there is to be said when it is over and the window can go. Until then nothing else begins,
// and the other database stays open.
std::optional<QString> TransferForm::RunToTheEnd() {
    const QPointer<QWidget> Focus = focusWidget();
    setFocus();  // else the first control behind this window would get the keys, and keep them
    SetTransferring(true);
    const auto Over = qScopeGuard([this, Focus] {
        SetTransferring(false);
        if (Focus) Focus->setFocus();
    });
    auto Result = Run();
    if (!Result) return QString();
    if (*Result) {
        Finish(*Result);
        return DoneText(*Result);
    }
    TellFailure(*Result);
    return std::nullopt;
}

bool TransferForm::IsReady() {
    if (IsUnread() && !(LoadNamed() && IsSourceMeant())) return false;
    return HasChoices();
}

// Whoever has named a source and not yet seen what is in it has chosen only where there is nothing
// to choose.
bool TransferForm::IsSourceMeant() {
    const bool OneAlbum = mSrc.AlbumEntries().size() <= 1;
    const bool OneShow = !mKind.OfShows || mSrc.SlideShowEntries().size() <= 1;
    if (mKind.Exports || (OneAlbum && OneShow)) return true;
    (OneAlbum ? mUi->cboSrcSlideShow : mUi->cboSrcAlbum)->setFocus();
    mUi->lblHint->setText(OneAlbum ? tr("Choose the slide show.") : tr("Choose the album."));
    return false;
}

bool TransferForm::HasChoices() {
    if (mKind.OfShows) {
        if (!mOther.Engine()) TellNoDirectory();
        return mOther.Engine() != nullptr;
    }
    if (!mSrc.HasAlbum())
        MsgBox(tr("You must first select a Source Album."), tr("No Source Selected"),
               BoxIcon::Information);
    else if (!mDst.HasAlbum())
        MsgBox(tr("You must first select a Destination Album."), tr("No Destination Selected"),
               BoxIcon::Information);
    return mSrc.HasAlbum() && mDst.HasAlbum();
}

// Nothing after a box: it is done, and waits for the next opening of its destination.
std::optional<TransferResult> TransferForm::Run() {
    const PointerScope Working(Pointer::Hourglass);
    TransferResult Result;
    const auto Bar = NewForm<frmTransferProgress>();
    Bar->setWindowTitle(tr(mKind.Running));
    try {
        Bar->ShowOver([&] { Result = Transfer(DeskOf(*Bar)); });
    } catch (const Fault& Problem) {
        Result.Boxes = {Failed(Problem.Text())};
        if (Problem.Number() == TransferUnfinished) {
            FinishUnfinished();
            ShowBox(NotYetCompleted(Problem.Text()));
            return std::nullopt;
        }
    } catch (const std::exception& Problem) {
        Result = {};
        Result.Boxes = {Failed(ReasonOf(Problem))};
    }
    return Result;
}

void TransferForm::SetTransferring(bool Does) {
    mWork = Does ? Work::Transferring : Work::None;
    for (QWidget* Each : QList<QWidget*>{mUi->grpFrom, mUi->grpTo, mUi->cmdStart, mUi->cmdCancel})
        Each->setEnabled(!Does);
    if (!Does) UpdateControls();
}

TransferDesk TransferForm::DeskOf(frmTransferProgress& Bar) {
    return {.Progress =
                [this, &Bar](const TransferProgress& Now) {
                    if (Now.At == TransferProgress::Stage::Writing) ForgetThumbnails();
                    return Bar.Show(Now);
                },
            .GoOnWithout =
                [this](const QStringList& Missing) {
                    return AskGoOnWithout(Missing, mSrc.Engine()->DBPath());
                }};
}

TransferResult TransferForm::Transfer(const TransferDesk& Desk) {
    const bool Replace = mUi->chkReplace->isChecked();
    const bool Updates = mKind.OfShows ? mDst.SlideShowID() != 0 : Replace;
    const QString Adjective = tr(Updates ? QT_TR_NOOP("Update") : mKind.Adjective);
    if (mKind.OfShows)
        return TransferSlideShow(
            {*mSrc.Engine(), mSrc.AlbumID(), mSrc.SlideShowID(), *mDst.Engine(), mDst.AlbumID(),
             mDst.SlideShowID(), mUi->txtAlbumName->text(), mUi->txtSlideShowName->text(),
             Adjective},
            Desk, this);
    return TransferAlbum({*mSrc.Engine(), mSrc.AlbumID(), *mDst.Engine(), mDst.AlbumID(), Replace,
                          mUi->txtAlbumName->text(), Adjective},
                         Desk, this);
}

void TransferForm::TellFailure(const TransferResult& Result) {
    for (const BoxRequest& Each : Result.Boxes) ShowBox(Each);
    if (mKind.Exports && mOther.Foreign()) RereadOther();
    if (Result.Is == TransferResult::End::Stopped) ShowNotice(tr("Stopped; nothing was changed."));
}

void TransferForm::RereadOther() {
    try {
        const PointerScope Working(Pointer::Hourglass);
        const auto Held = mOther.Foreign();
        Held->Reread();
        ListOtherAgain();
    } catch (const std::exception& Problem) {
        ShowBox(Failed(ReasonOf(Problem)));
        CloseOther();
    }
}

void TransferForm::Finish(TransferResult& Result) {
    mOther.KeepFolders();
    ForgetThumbnails();
    if (mKind.Exports && mOther.Foreign()) FinishOther(Result);
    for (Announcement& Each : Result.Changes) Each.Now();
}

// It is done all the same; the other windows have been told.
void TransferForm::FinishUnfinished() {
    mOther.KeepFolders();
    ForgetThumbnails();
    if (mKind.Exports) mOther.RefillViewers(mDst.AlbumID());
}

// The thumbnails of an album that was there are of slides that may be gone: whoever is told of the
// change shall not find them.
void TransferForm::ForgetThumbnails() const {
    const bool IsForeign = mKind.Exports && mOther.Foreign();
    if (!IsForeign && !mKind.OfShows && !mDst.IsNewAlbum() && ImageBuffer)
        ImageBuffer->ClearAlbum(mDst.AlbumID());
}

// The answer: why the state of before could not be kept there.
std::optional<Fault> TransferForm::WriteOther() const {
    const PointerScope Working(Pointer::Hourglass);
    return FinishAside([Other = mOther.Foreign()] { return Other->Engine().FinalizeDB(); }).get();
}

// What cannot be written to its end now is in the journal, and comes to its end by itself.
void TransferForm::FinishOther(const TransferResult& Result) {
    try {
        TellNotKept(WriteOther());
    } catch (const std::exception& Problem) {
        ShowBox(NotYetCompleted(
            tr("The transfer is safe, and is completed when that database is opened next.") +
            u'\n' + ReasonOf(Problem)));
    }
    mOther.RefillViewers(Result.DstAlbumID);
}

QString TransferForm::DoneText(const TransferResult& Result) const {
    QString What = Count(mKind.OfShows ? Result.Places : Result.Slides, tr("slide"), tr("slides"));
    if (!mKind.OfShows)
        What += QStringLiteral(", ") + Count(Result.Shows, tr("slide show"), tr("slide shows"));
    What += TextOfLeftOut(Result.LeftOut);
    const QLineEdit& Name = mKind.OfShows ? *mUi->txtSlideShowName : *mUi->txtAlbumName;
    return tr(mKind.Done).arg(ConvertQuotes(Name.text()), What);
}

}  // namespace neb
