// Waiting for the answer of another program, for a while: windows go on painting, and what the user
// does waits until afterwards.
#pragma once

#include <QElapsedTimer>
#include <QThread>

#include "support/Services.h"

namespace neb {

// Whether HasCome said so within so many milliseconds.
template <class Question>
bool AwaitAnswer(int Milliseconds, const Question& HasCome) {
    QElapsedTimer Clock;
    Clock.start();
    while (!HasCome() && !Clock.hasExpired(Milliseconds)) {
        DoEventsButInput();
        QThread::msleep(2);
    }
    return HasCome();
}

}  // namespace neb
