// "Keep pictures at most": the size at which pictures are kept, shown and changed in each window
// that takes pictures. There is one choice for all of them, in the settings, so what is chosen here
// stands everywhere from then on.
#pragma once

#include <QWidget>

#include "pictures/PictureKeeping.h"

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
QT_END_NAMESPACE

namespace neb {

// Of the screen with most pixels, on which a show may run; empty on a desktop without any screen.
QSize LargestScreenSize();
// The rows of the choice, as item data their keys; Chosen, a key, is the current one and gets a row
// of its own where it is none of them.
void ListKeepings(QComboBox& Box, const QString& Chosen);

class KeepPicturesField : public QWidget {
    Q_OBJECT

  public:
    explicit KeepPicturesField(QWidget* Parent = nullptr);
    // Comes there by this key instead of the letter of its label, for a window where that is taken.
    void SetKey(const QKeySequence& Key);
    // What is to be done with pictures that come in now.
    PictureKeeping Keeping() const;

  protected:
    // Another window may have changed the choice meanwhile.
    bool event(QEvent* Event) override;
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    void ShowChoice();
    void Keep();

    QLabel* mLabel;
    QComboBox* mBox;
    bool mIsKept = true;  // what is chosen stands in the settings
};

}  // namespace neb
