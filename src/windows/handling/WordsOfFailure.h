// What a show that has nothing to show says in the middle of its black screen. Used by ShowHands.
#pragma once

#include "windows/handling/ShowPanel.h"

class QLabel;

namespace neb {

class WordsOfFailure : public ShowPanel {
    Q_OBJECT

  public:
    explicit WordsOfFailure(QWidget& Window);

    // What is wrong; how the show is left stands below it.
    void Say(const QString& Words);

  private:
    QLabel* mWords;
};

}  // namespace neb
