#include "program/desktop/QueueState.h"

#include <cups/cups.h>

#include <QStringList>
#include <memory>

namespace neb {
namespace {

struct FreeQueue {
    void operator()(cups_dest_t* Queue) const { cupsFreeDests(1, Queue); }
};
using Queue = std::unique_ptr<cups_dest_t, FreeQueue>;

// Its printers may be named "name/instance", by what the user has set for each.
Queue Find(const QString& Device) {
    const QByteArray Name = Device.section(u'/', 0, 0).toLocal8Bit();
    const QByteArray Instance = Device.section(u'/', 1).toLocal8Bit();
    return Queue(cupsGetNamedDest(CUPS_HTTP_DEFAULT, Name.constData(),
                                  Instance.isEmpty() ? nullptr : Instance.constData()));
}

QString Told(const cups_dest_t& Of, const char* Word) {
    return QString::fromLocal8Bit(cupsGetOption(Word, Of.num_options, Of.options));
}

// With a degree of urgency behind: "media-empty-warning".
bool SaysPaperOut(const QString& Reasons) {
    const QStringList Words = Reasons.split(u',');
    return std::ranges::any_of(Words, [](const QString& Each) {
        return Each.startsWith(QStringLiteral("media-empty")) ||
               Each.startsWith(QStringLiteral("media-needed"));
    });
}

}  // namespace

QueueState StateOfQueue(const QString& Device) {
    const Queue Found = Find(Device);
    if (!Found) return {};
    const bool Stopped = Told(*Found, "printer-state").toInt() == IPP_PRINTER_STOPPED;
    const bool Refuses = Told(*Found, "printer-is-accepting-jobs") == QStringLiteral("false");
    return {true, !Stopped && !Refuses, SaysPaperOut(Told(*Found, "printer-state-reasons"))};
}

bool JobWasTaken() {
    return cupsLastError() < IPP_STATUS_REDIRECTION_OTHER_SITE;
}

void KeepJobsBack() {
    cupsSetServer("/dev/null/no-service");
}

}  // namespace neb
