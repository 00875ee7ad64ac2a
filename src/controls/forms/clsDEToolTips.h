// Gives the controls of a form balloons in place of their plain tool tips. A form that wants them
// has one of these, names itself by ParentSet and calls ImportFromForm; the end of this object
// takes the balloons away. No window has to use it: the program's own tips are plain.
//
// A control is any widget that can hear the pointer; labels and pictures made of them (QLabel)
// cannot take a tip. Its property "Tag" belongs to its tip (modDEToolTips).
#pragma once

#include <QPointer>
#include <QString>
#include <cstdint>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace neb {

class clsDEToolTips {
  public:
    clsDEToolTips() = default;
    ~clsDEToolTips();
    clsDEToolTips(const clsDEToolTips&) = delete;
    clsDEToolTips& operator=(const clsDEToolTips&) = delete;

    // The name of the font of the tips that are added from now on. It is held with one character 0
    // after it and read without; reading a field that lacks it adds it.
    void SetFontType(const QString& Name);
    QString FontType();
    // Its height in pixels: that of a line, or below 0 that of the letters (BalloonFont).
    void SetFontSize(std::int32_t Height);
    std::int32_t FontSize() const;

    // The form that the tips are for; what an earlier one has stays.
    void ParentSet(QWidget& Owner);
    // Takes away all tips of the form, from wherever they came, and forgets it.
    void ParentClear();

    // Gives one control a balloon with a text, in place of the one it has. False, and nothing done,
    // when there is no form or the control cannot take a tip.
    bool AddCustomToolTip(QWidget* Control, const QString& Text);
    // Makes a balloon of every plain tool tip on the form. All plain ones are emptied, even those
    // of controls that cannot take a balloon.
    void ImportFromForm();

  protected:
    QString mFontType = QStringLiteral("Tahoma\0");

  private:
    std::int32_t mFontSize = 13;
    QPointer<QWidget> mParent;
};

}  // namespace neb
