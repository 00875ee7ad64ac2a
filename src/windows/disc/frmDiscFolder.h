// Writes chosen albums, or shows of them, into a folder that can go on a disc or a stick: the tree
// of what there is, the folder, and how much it will be. A child of the main window.
#pragma once

#include "albums/transfer/DiscFolder.h"
#include "controls/forms/Form.h"
#include "windows/frame/modBroadcast.h"

QT_BEGIN_NAMESPACE
class QTreeWidgetItem;
QT_END_NAMESPACE

namespace neb {

namespace Ui {
class frmDiscFolder;
}
class frmTransferProgress;

class frmDiscFolder : public Form, public ChangeReceiver {
    Q_OBJECT

  public:
    frmDiscFolder();
    ~frmDiscFolder() override;

    // The tree follows; what is chosen stays, as far as it is there.
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

  protected:
    void Form_Load() override;
    bool Form_Unload() override { return !mWriting; }
    bool IsBusy() const override { return mWriting; }
    // There is no work in this window that Esc could lose.
    void reject() override { CloseRequested(); }
    void dragEnterEvent(QDragEnterEvent* Event) override;
    void dropEvent(QDropEvent* Event) override;

  private:
    void SetUpTree();
    void ListAlbums(const DiscContents& Chosen);
    void AddAlbum(std::int32_t AlbumID, const DiscContents& Chosen);
    void ItemChanged(QTreeWidgetItem* Item);
    DiscContents Chosen() const;
    void ShowTally();
    void Browse();
    void Write();
    bool IsReady(const DiscContents& What);
    struct Written {
        DiscResult Result;
        int LeftOut = 0;  // files that were missing
    };
    Written Run(const DiscContents& What);
    DiscDesk DeskOf(frmTransferProgress& Bar, int& LeftOut) const;
    void TellDone(const Written& Folder, const QString& What);
    void TellFailure(const DiscResult& Result);
    void Close() { Unload(); }

    std::unique_ptr<Ui::frmDiscFolder> mUi;
    bool mWriting = false;
};

}  // namespace neb
