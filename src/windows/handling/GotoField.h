// A field over a show for the slide that it is to go to: a number, or words of a caption. Used by
// ShowHands.
#pragma once

#include <functional>

#include "show/captions/ShowCaptions.h"
#include "windows/handling/ShowPanel.h"

class QLabel;
class QLineEdit;

namespace neb {

class GotoField : public ShowPanel {
    Q_OBJECT

  public:
    // Captions: of the show as it is when the field is asked.
    GotoField(QWidget& Window, std::function<ShowCaptions()> Captions);

    // Puts the field up, empty. Present: where the search begins.
    void OpenAt(std::int32_t Present);
    // Gives the keys back to the show.
    void Close();

  Q_SIGNALS:
    void Chosen(std::int32_t SlideSeq);

  protected:
    void keyPressEvent(QKeyEvent* Event) override;

  private:
    void Look();
    void Say(const QString& Text);

    const std::function<ShowCaptions()> mCaptions;
    QLabel* mAsks;
    QLineEdit* mWanted;
    QLabel* mSays;
    std::int32_t mPresent = 0;
};

}  // namespace neb
