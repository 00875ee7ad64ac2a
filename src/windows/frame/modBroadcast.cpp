#include "windows/frame/modBroadcast.h"

#include "controls/forms/Form.h"
#include "db/clsDBEngine.h"
#include "windows/frame/AlbumInHand.h"

namespace neb {
namespace {

// A change in the words of the receivers. One slide of the album has its key behind the album's; 0
// there stands for many.
struct EventRow {
    Change::Kind What;
    const char* ObjectType;
    const char* EventType;
    EventKeys (*Keys)(const Change& What);
};

EventKeys OfAlbum(const Change& What) {
    return {What.AlbumID};
}

EventKeys OfSlide(const Change& What) {
    return {What.AlbumID, What.SlideID};
}

EventKeys OfShow(const Change& What) {
    return {What.AlbumID, What.SlideShowID};
}

const EventRow EventRows[] = {
    {Change::Kind::AlbumMade, "Album", "Insert", OfAlbum},
    {Change::Kind::AlbumRenamed, "Album", "Update", OfAlbum},
    {Change::Kind::AlbumReplaced, "Album", "Update", OfAlbum},
    {Change::Kind::AlbumDeleted, "Album", "Delete", OfAlbum},
    {Change::Kind::SlideSaved, "Album", "Add Slides", OfSlide},
    {Change::Kind::SlidesImported, "Album", "Add Slides", OfSlide},
    {Change::Kind::CaptionsSaved, "Album", "Add Slides", OfSlide},
    {Change::Kind::SlideDeleted, "Album", "Delete Slides", OfSlide},
    {Change::Kind::ShowMade, "Slide Show", "Insert", OfShow},
    {Change::Kind::ShowReplaced, "Slide Show", "Update", OfShow},
    {Change::Kind::ShowDeleted, "Slide Show", "Delete", OfShow},
};

void Broadcast(const Change& What, const QObject* Asker) {
    for (const EventRow& Row : EventRows)
        if (Row.What == What.What)
            BroadcastEvent(QString::fromLatin1(Row.ObjectType), QString::fromLatin1(Row.EventType),
                           qobject_cast<const QWidget*>(Asker), Row.Keys(What));
}

std::vector<StandingReceiver*>& StandingReceivers() {
    static std::vector<StandingReceiver*> All;
    return All;
}

void Tell(ChangeReceiver& Receiver, const QString& ObjectType, const QString& EventType,
          const EventKeys& EventData) {
    try {
        Receiver.ReceiveEvent(ObjectType, EventType, EventData);
    } catch (const std::exception&) {
        // that one stays as it was until the next event
    }
}

}  // namespace

StandingReceiver::StandingReceiver() {
    StandingReceivers().push_back(this);
}

StandingReceiver::~StandingReceiver() {
    std::erase(StandingReceivers(), this);
}

void BroadcastEvent(const QString& ObjectType, const QString& EventType, const QWidget* Sender,
                    const EventKeys& EventData) {
    for (const auto& Window : LoadedForms()) {
        auto* Receiver = dynamic_cast<ChangeReceiver*>(Window.get());
        if (!Receiver || Window.get() == Sender || !Window->IsLoaded()) continue;
        Tell(*Receiver, ObjectType, EventType, EventData);
    }
    for (StandingReceiver* Receiver : std::vector(StandingReceivers()))
        Tell(*Receiver, ObjectType, EventType, EventData);
}

void BroadcastChangesOf(clsDBEngine& theDB) {
    theDB.Listeners.Told = &Broadcast;
    ForgetAlbumInHand();
}

}  // namespace neb
