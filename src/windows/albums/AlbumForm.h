// The body that the windows share which do something to one album: they list the albums, hold the
// one that the caller or the user has chosen, and follow changes made elsewhere.
#pragma once

#include <optional>

#include "controls/forms/Form.h"
#include "windows/frame/modBroadcast.h"

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
QT_END_NAMESPACE

namespace neb {

class AlbumForm : public Form, public ChangeReceiver {
    Q_OBJECT

  public:
    // Keeps the list of albums and the choice in it true.
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

  protected:
    struct Controls {
        QComboBox* cboAlbum;
        QLabel* lblHint;               // says why nothing can be done
        QList<QWidget*> OffWhenNone;   // off while there are no albums
        QList<QWidget*> OffWhenFixed;  // off in a read-only database
    };
    void SetControls(Controls Given);
    // Shows the window modally, with this album chosen (0: none); true when something was done.
    bool ShowFor(std::int32_t AlbumID);
    // Nothing after a box when no album is chosen.
    std::optional<std::int32_t> ChosenAlbum() const;
    void NoteDone() { mDone = true; }

    void Form_Load() override;

  private:
    void LoadAlbums(std::int32_t AlbumID);
    void UpdateControls();

    Controls mControls{};
    std::int32_t mAlbumID = 0;
    bool mDone = false;
};

}  // namespace neb
