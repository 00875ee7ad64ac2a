// Asks for the name of something: of a new slide show, or a new one for a show that has one.
#pragma once

#include <QString>
#include <functional>

#include "controls/forms/Form.h"
#include "support/Answer.h"

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
    // Whether the thing may bear the name; what is refused is told, and the window stays.
    using NameCheck = std::function<Answer<>(const QString& Name)>;
    // Shows the window modally with this name to edit: the name entered, or empty after Cancel.
    // With a Check that alone decides which letters a name may have.
    QString GetObjectName(const QString& OldName, NameCheck Check = {});

    const QString& ObjectName() const { return mObjectName; }  // the name entered
    void SetObjectName(const QString& Name) { mObjectName = Name; }

  private:
    void Save();
    bool MayBe(const QString& Name) const;
    void Close() { Unload(); }

    std::unique_ptr<Ui::frmGetObjectName> mUi;
    QString mAdjective;
    QString mObjectName;
    NameCheck mCheck;
};

}  // namespace neb
