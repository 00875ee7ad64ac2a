#include "windows/frame/modBroadcast.h"

#include "controls/forms/Form.h"

namespace neb {

void BroadcastEvent(const QString& ObjectType, const QString& EventType, const QWidget* Sender,
                    const EventKeys& EventData) {
    for (const auto& Window : LoadedForms()) {
        auto* Receiver = dynamic_cast<ChangeReceiver*>(Window.get());
        if (!Receiver || Window.get() == Sender || !Window->IsLoaded()) continue;
        try {
            Receiver->ReceiveEvent(ObjectType, EventType, EventData);
        } catch (const std::exception&) {
            // that window stays as it was until the next event
        }
    }
}

}  // namespace neb
