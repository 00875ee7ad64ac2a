// The row of choices of an import window: in which order pictures are listed, what they are called,
// and at which size they are kept. Each is remembered for the next import.
#pragma once

#include <QWidget>

#include "albums/PictureOrder.h"
#include "pictures/PictureKeeping.h"

QT_BEGIN_NAMESPACE
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLayout;
QT_END_NAMESPACE

namespace neb {

class KeepPicturesField;

class ImportOptions : public QWidget {
    Q_OBJECT

  public:
    explicit ImportOptions(QWidget* Parent = nullptr);

    PictureOrder Order() const;
    // Whether captions come from the pictures' own words; else from the files' names.
    bool OwnWords() const;
    PictureKeeping Keeping() const;

  Q_SIGNALS:
    void OrderChosen(PictureOrder Order);
    void OwnWordsChosen(bool OwnWords);

  protected:
    void changeEvent(QEvent* Event) override;

  private:
    QLayout* AddOrder();
    QWidget* AddCaptions();
    void Arrange();

    QBoxLayout* mRow;
    QBoxLayout* mListed;  // order and captions
    QComboBox* mOrder;
    QCheckBox* mCaptions;
    KeepPicturesField* mKeeping;
};

}  // namespace neb
