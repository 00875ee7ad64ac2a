// The card with the keys of a show, over its picture. Used by ShowHands.
#pragma once

#include "windows/handling/ShowPanel.h"

class QGridLayout;

namespace neb {

class KeyCard : public ShowPanel {
    Q_OBJECT

  public:
    explicit KeyCard(QWidget& Window);

    // Puts the card up. Manual: the user alone moves the show on, and some keys do other things.
    void OpenFor(bool Manual);

  private:
    QGridLayout* mRows;
};

}  // namespace neb
