// Where the running program of a database is reached by further starts: a socket in the user's own
// folder of the session. Used by InstanceServer and InstanceCall.
#pragma once

#include <QString>

namespace neb {

// The same for all paths of one database, links included; empty where the session has no folder.
QString InstanceSocketPath(const QString& Database);
// Whether the process at the other end of a connected socket is one of this user.
bool IsOfThisUser(qintptr Socket);

}  // namespace neb
