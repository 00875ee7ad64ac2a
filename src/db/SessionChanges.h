// A change of the database as an entry of the session's journal, and back: the records as they are
// after it, so that it can be carried out on the records of before, in order, and as often as
// wanted.
#pragma once

#include <QByteArray>

#include "db/Change.h"
#include "db/records/SessionJournal.h"

namespace neb {

class clsDBEngine;

// What the engine holds of the thing that has just changed, and its counters.
QByteArray EntryOf(const clsDBEngine& Engine, const Change& What);
// False, and nothing changed, when the entry is none that EntryOf makes.
bool CarryOutEntry(clsDBEngine& Engine, const QByteArray& Entry);

// Carries out what a session left behind.
void BringBack(clsDBEngine& Engine, const LeftSession& Left, LeftBehind& Brought);

// Deletes the files of what a session has deleted before it was cut short: its records have gone.
void FinishDeleting(const clsDBEngine& Engine, const LeftSession& Left);

}  // namespace neb
