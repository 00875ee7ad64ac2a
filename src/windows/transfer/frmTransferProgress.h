// The window over a transfer: a bar, how far it is in words, and Stop, which asks first and leaves
// everything as it was. It carries the transfer from its first activation; the files are copied
// beside it, and go on while it asks.
#pragma once

#include <functional>
#include <optional>

#include "albums/transfer/TransferProgress.h"
#include "controls/forms/Form.h"
#include "controls/forms/PaintRate.h"

namespace neb {

namespace Ui {
class frmTransferProgress;
}

class frmTransferProgress : public Form {
    Q_OBJECT

  public:
    frmTransferProgress();
    ~frmTransferProgress() override;

    // Shows the window over the work and returns when both are over; what the work throws passes
    // out.
    void ShowOver(std::function<void()> Work);
    // From the work, many times a second: brings the window up to date and lets events run. False
    // when the user has stopped it.
    bool Show(const TransferProgress& Now);
    // The same for other long work: a line and a part of the whole.
    bool Show(const QString& Line, int Percent);

  protected:
    void Form_Activate() override;
    bool Form_Unload() override;
    void CloseRequested() override { AskStop(); }

  private:
    void AskStop();
    void Stop();
    bool IsRunning() const { return mAt.has_value(); }
    double SecondsSinceFirstByte(const TransferProgress& Now);
    void Paint(const TransferProgress& Now);

    // Of a transfer under way.
    struct Going {
        TransferProgress::Stage Stage = TransferProgress::Stage::Looking;
        std::optional<double> FirstByte = {};  // ticks
        bool Stopped = false;
        PaintRate Rate = {};
    };

    std::unique_ptr<Ui::frmTransferProgress> mUi;
    std::function<void()> mWork;  // empty once it has begun
    std::optional<Going> mAt;
};

}  // namespace neb
