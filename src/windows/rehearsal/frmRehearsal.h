// The rehearsal of a slide show: what comes up when, as a table and along its time, and what is
// wrong, before an audience sees it. The show is run beside the window, without a screen and
// without waiting. A child of the main window; it follows what is done to its show.
#pragma once

#include "controls/forms/Form.h"
#include "show/rehearsal/RehearsalSheet.h"
#include "support/work/Job.h"
#include "windows/frame/AlbumInHand.h"
#include "windows/frame/modBroadcast.h"

namespace neb {

namespace Ui {
class frmRehearsal;
}

class frmRehearsal : public Form, public ChangeReceiver, public AlbumHolder {
    Q_OBJECT

  public:
    frmRehearsal();
    ~frmRehearsal() override;

    // Shows the window and rehearses the show as it is stored.
    void RehearseShow(std::int32_t AlbumID, std::int32_t SlideShowID);
    // Anew, or closes where the show is gone.
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;
    std::int32_t HeldAlbum() const override { return mOf.AlbumID; }
    std::int32_t HeldShow() const override { return mOf.SlideShowID; }

  protected:
    void Form_Load() override;
    bool Form_Unload() override;
    void reject() override { CloseRequested(); }
    void CloseRequested() override;
    void changeEvent(QEvent* Event) override;

  private:
    void SetUpGrids();
    void LoadIcons();
    bool IsThere() const;
    void Rehearse();
    void Look();
    void Stop();
    void ShowRunning(bool Runs);
    void ShowSheet();
    void FillCues();
    void FillFindings();
    void StandOn(int Row);
    void GoTo(int Row);
    void FindingChosen(int Row);
    void Print();
    void Close() { Unload(); }

    // The show, by its keys.
    struct Of {
        std::int32_t AlbumID = 0, SlideShowID = 0;
    };

    std::unique_ptr<Ui::frmRehearsal> mUi;
    Of mOf;
    std::unique_ptr<Job<RehearsalSheet>> mJob;     // while it runs
    std::shared_ptr<const RehearsalSheet> mSheet;  // null until it has ended
};

}  // namespace neb
