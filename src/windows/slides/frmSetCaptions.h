// Asks for one text that many slides get as their captions, with a number that counts on where one
// is wanted, and shows beforehand what each of them will be. The bulk slide manager opens it.
#pragma once

#include <QStringList>
#include <optional>

#include "controls/forms/Form.h"

namespace neb {

namespace Ui {
class frmSetCaptions;
}
struct CaptionPattern;

class frmSetCaptions : public Form {
    Q_OBJECT

  public:
    frmSetCaptions();
    ~frmSetCaptions() override;

    // Shows the window modally; Present: the captions of now, of which there is at least one.
    // Nothing when the user leaves it be.
    std::optional<QStringList> CaptionsFor(const QStringList& Present);

  private:
    CaptionPattern Pattern() const;
    void ShowPreview();
    void SayWhatIsDone();
    void Insert(const QString& Text);
    void Take();
    void Close() { Unload(); }

    std::unique_ptr<Ui::frmSetCaptions> mUi;
    QStringList mPresent;
    std::optional<QStringList> mTaken;
};

}  // namespace neb
