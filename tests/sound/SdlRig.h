// The sound library with one of its drivers that need no machine: one that plays into a file, one
// that only keeps time.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <chrono>
#include <thread>

#include "TestDecoders.h"
#include "harness/TempFolder.h"
#include "sound/decoding/SoundFormat.h"
#include "sound/devices/SdlOutput.h"
#include "sound/devices/SoundPlayers.h"

namespace neb::sounds {

using namespace std::chrono_literals;

class EnvironmentValue {
  public:
    EnvironmentValue(const char* Name, const QByteArray& Value)
        : mName(Name), mWasSet(qEnvironmentVariableIsSet(Name)), mBefore(qgetenv(Name)) {
        qputenv(Name, Value);
    }
    ~EnvironmentValue() {
        if (mWasSet)
            qputenv(mName, mBefore);
        else
            qunsetenv(mName);
    }
    EnvironmentValue(const EnvironmentValue&) = delete;
    EnvironmentValue& operator=(const EnvironmentValue&) = delete;

  private:
    const char* mName;
    bool mWasSet;
    QByteArray mBefore;
};

template <class Condition>
bool WaitUntil(Condition&& Met, std::chrono::milliseconds Most = 5s) {
    const auto End = std::chrono::steady_clock::now() + Most;
    while (!Met()) {
        if (std::chrono::steady_clock::now() > End) return false;
        std::this_thread::sleep_for(1ms);
    }
    return true;
}

// What the driver that plays into a file has written.
inline Samples ReadSamples(const QString& Path) {
    QFile File(Path);
    if (!File.open(QIODevice::ReadOnly)) return {};
    const QByteArray Bytes = File.readAll();
    Samples Read(static_cast<size_t>(Bytes.size()) / sizeof(float) / 2 * 2);
    std::memcpy(Read.data(), Bytes.constData(), Read.size() * sizeof(float));
    return Read;
}

// Of the first frame that is not silent; the number of frames when all are.
inline size_t FirstSound(const Samples& Of) {
    for (size_t I = 0; I < Of.size(); ++I)
        if (Of[I] != 0) return I / 2;
    return Of.size() / 2;
}

}  // namespace neb::sounds
