// A further start of the program calls the one that runs on the same database.
#pragma once

#include <QString>

#include "program/opening/HandOver.h"

namespace neb {

enum class HandedOver {
    Taken,     // it opens it and comes to the front
    NotThere,  // nobody is to be reached: it is starting or ending just now, or is of an older kind
    NotTaken   // it does not answer, or does not understand
};

// PatienceMs: how long it may take to answer.
HandedOver HandOverTo(const QString& Database, const HandOver& What, int PatienceMs = 5000);

// What a start hands over: the paths as seen from its own working directory. Asked before there is
// an application object, which takes the desktop's token out of the environment.
QByteArray TokenOfStart();
QStringList SeenFromHere(const QStringList& Paths);

}  // namespace neb
