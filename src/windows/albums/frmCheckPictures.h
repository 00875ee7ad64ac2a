// Reads all stored pictures and sounds and names what has changed, is empty, is missing or belongs
// to no slide: how far it is, Stop, then a list that can be copied. It begins with its first
// activation; the files are read beside it.
#pragma once

#include <memory>
#include <optional>

#include "albums/PictureCheck.h"
#include "controls/forms/Form.h"
#include "controls/forms/PaintRate.h"

namespace neb {

namespace Ui {
class frmCheckPictures;
}

class frmCheckPictures : public Form {
    Q_OBJECT

  public:
    frmCheckPictures();
    ~frmCheckPictures() override;

  protected:
    void Form_Activate() override;
    // The end of the program takes the windows with it: the reading is to end first.
    bool Form_Unload() override;
    void CloseRequested() override;

  private:
    void Check();
    bool Show(const SumsProgress& Now);
    void ShowResult(const PicturesChecked& Checked);
    void ShowFault(const QString& Text);
    void Stop();
    void Copy();
    void Close() { Unload(); }
    bool IsRunning() const { return mAt && !mAt->Over; }

    // Of a check, from its beginning on.
    struct Going {
        std::optional<double> FirstByte = {};  // ticks
        bool Stopped = false;
        bool Over = false;
        PaintRate Rate = {};
    };

    std::unique_ptr<Ui::frmCheckPictures> mUi;
    std::optional<Going> mAt;
};

}  // namespace neb
