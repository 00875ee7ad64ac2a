// The body of the four windows that transfer an album or a slide show: the user names the directory
// of another database, chooses what goes and where it goes to, and starts it. What differs between
// them is a row in TransferKinds. Children of the main window.
#pragma once

#include "albums/transfer/Transfer.h"
#include "controls/forms/Form.h"
#include "windows/frame/modBroadcast.h"
#include "windows/transfer/TransferKinds.h"
#include "windows/transfer/TransferOther.h"
#include "windows/transfer/TransferSide.h"

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace neb {

namespace Ui {
class TransferForm;
}
class frmTransferProgress;

class TransferForm : public Form, public ChangeReceiver {
    Q_OBJECT

  public:
    ~TransferForm() override;

    // Chooses what is to go from the program's own database, once the window is shown; SlideShowID
    // 0: an album.
    void Propose(std::int32_t AlbumID, std::int32_t SlideShowID);
    // Keeps the lists of the program's own database true.
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

  protected:
    explicit TransferForm(TransferWindow Which);

    void Form_Load() override;
    bool Form_Unload() override;
    bool IsBusy() const override { return mWork != Work::None; }
    void CloseRequested() override;
    // There is nothing in it that would be lost by an Esc too many.
    void reject() override { CloseRequested(); }
    void keyPressEvent(QKeyEvent* Event) override;
    void dragEnterEvent(QDragEnterEvent* Event) override;
    void dropEvent(QDropEvent* Event) override;

  private:
    // The controls.
    void SetUpTexts();
    void SetUpNames();
    void SetUpOtherDB();
    void SetUpTabOrder();
    void SetUpLists();
    void SetUpButtons();
    void AlignColumns();
    void UpdateControls();
    QString Hint() const;
    TransferSide& OtherSide() { return mKind.Exports ? mDst : mSrc; }
    TransferSide& OwnSide() { return mKind.Exports ? mSrc : mDst; }

    // The directory of the other database.
    void Browse();
    void ChooseFolder();
    void Refresh() { LoadNamed(); }
    void LoadDirectory(const QString& Dir);
    bool LoadNamed();
    bool IsUnread() const;
    TransferOther::Place LookAt(const QString& Path);
    QStringList OpenBeside() const;
    bool IsWanted(const TransferOther::Place& Found);
    bool Open(const TransferOther::Place& Found);
    void CloseOther();
    void TellNoDirectory();

    // What is chosen, and the names that follow it.
    void cboSrcAlbum_Click();
    void cboDstAlbum_Click();
    void cboSrcSlideShow_Click();
    void cboDstSlideShow_Click();
    struct Names {
        std::optional<QString> Album, SlideShow;  // nothing: what stands there stays
    };
    Names Proposed() const;
    void ProposeAlbumName();
    void ProposeSlideShowName();
    template <class Function>
    void KeepingOwnNames(Function Do);
    void ListOtherAgain();

    // Viewing.
    void ViewSrcAlbum() { ViewAlbum(mSrc); }
    void ViewDstAlbum() { ViewAlbum(mDst); }
    void ViewSrcSlideShow() { ViewSlideShow(mSrc); }
    void ViewDstSlideShow() { ViewSlideShow(mDst); }
    void ViewAlbum(const TransferSide& Of);
    void ViewSlideShow(const TransferSide& Of);
    void Remember(const TransferSide& Of, const std::shared_ptr<ViewerForm>& Viewer);

    // The transfer.
    void Start();
    bool IsReady();
    bool IsSourceMeant();
    bool HasChoices();
    std::optional<QString> RunToTheEnd();
    std::optional<TransferResult> Run();
    TransferResult Transfer(const TransferDesk& Desk);
    TransferDesk DeskOf(frmTransferProgress& Bar);
    void SetTransferring(bool Does);
    void TellFailure(const TransferResult& Result);
    void RereadOther();
    void Finish(TransferResult& Result);
    void FinishUnfinished();
    void ForgetThumbnails() const;
    std::optional<Fault> WriteOther() const;
    void FinishOther(const TransferResult& Result);
    QString DoneText(const TransferResult& Result) const;
    void Close() { Unload(); }

    const TransferKind& mKind;
    std::unique_ptr<Ui::TransferForm> mUi;
    TransferSide mSrc, mDst;
    TransferOther mOther;
    enum class Work { None, Looking, Transferring } mWork = Work::None;
};

}  // namespace neb
