// The notice of changes between windows: who has changed an album or a show says so, and every
// other open window that cares brings its lists up to date.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace neb {

class clsDBEngine;

// The keys of an event: AlbumID, then SlideID or SlideShowID.
using EventKeys = std::vector<std::int32_t>;

// Offered by the windows that follow changes. ObjectType is "Album" or "Slide Show"; EventType
// is "Insert", "Update", "Delete", "Add Slides" or "Delete Slides", compared to the letter.
class ChangeReceiver {
  public:
    virtual ~ChangeReceiver() = default;
    virtual void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                              const EventKeys& EventData) = 0;
};

// What follows changes for as long as it lives, without being a form: the page behind the windows.
// It hears of every change, those of its own parts as well (no window of it is the sender).
class StandingReceiver : public ChangeReceiver {
  public:
    StandingReceiver();
    ~StandingReceiver() override;
    StandingReceiver(const StandingReceiver&) = delete;
    StandingReceiver& operator=(const StandingReceiver&) = delete;
};

// Calls ReceiveEvent on every loaded form but the sender (nullptr: a module, reaches all), after
// the engine has been changed. An error in a receiver is ignored and the walk goes on; a form that
// an earlier receiver has unloaded is passed over. The standing receivers come after the forms.
void BroadcastEvent(const QString& ObjectType, const QString& EventType, const QWidget* Sender,
                    const EventKeys& EventData);

// Lets the windows follow what is changed in a database through db/Changes: each change is told by
// BroadcastEvent. For the program's own database; a test sets it up where it stands in for it.
void BroadcastChangesOf(clsDBEngine& theDB);

}  // namespace neb
