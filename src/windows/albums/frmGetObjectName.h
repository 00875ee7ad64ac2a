// Asks for the name of something: a new slide show, an album that comes from another database. The
// transfer windows and the new album wizard use it.
#pragma once

#include <QString>

#include "controls/forms/Form.h"

namespace neb {

namespace Ui {
class frmGetObjectName;
}

class frmGetObjectName : public Form {
    Q_OBJECT

  public:
    frmGetObjectName();
    ~frmGetObjectName() override;

    // The noun of the name that is asked for, such as "Slide Show": sets the texts of the window.
    void SetAdjective(const QString& Noun);
    // Shows the window modally with this name to edit: the name entered, or empty after Cancel.
    QString GetObjectName(const QString& OldName);

    const QString& ObjectName() const { return mObjectName; }  // the name entered
    void SetObjectName(const QString& Name) { mObjectName = Name; }

  private:
    void Save();
    void Close() { Unload(); }

    std::unique_ptr<Ui::frmGetObjectName> mUi;
    QString mAdjective;
    QString mObjectName;
};

}  // namespace neb
