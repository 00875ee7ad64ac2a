// What every reader of a picture format has to stand: its files cut at every byte and with bits
// flipped. For small pictures that a test has built itself.
#pragma once

#include <gtest/gtest.h>

#include <random>

#include "pictures/workers/PictureReading.h"
#include "support/Fault.h"

namespace neb::tests {

// The number of the fault, 0 for a picture.
inline quint32 FaultOfBytes(const QByteArray& Bytes) {
    try {
        EXPECT_FALSE(DecodePicture(Bytes).Picture.isNull());
    } catch (const Fault& Reason) {
        EXPECT_GT(Reason.What().size(), 20);
        EXPECT_NE(0U, Reason.Number());
        return Reason.Number();
    }
    return 0;
}

// However much of the end is missing, it is told.
inline void ExpectCutsAreTold(const QByteArray& Good) {
    ASSERT_EQ(0U, FaultOfBytes(Good));
    for (qsizetype Length = 0; Length < Good.size(); ++Length)
        EXPECT_NE(0U, FaultOfBytes(Good.left(Length))) << Length << " bytes of " << Good.size();
}

// Some of these still are pictures; none does harm.
inline void ExpectFlipsDoNoHarm(const QByteArray& Good, int Rounds = 500) {
    std::mt19937 Random(7);
    for (int Round = 0; Round < Rounds; ++Round) {
        QByteArray Bytes = Good;
        for (unsigned I = 0; I <= Random() % 4; ++I) {
            const auto At = static_cast<qsizetype>(Random() % static_cast<size_t>(Bytes.size()));
            Bytes[At] = static_cast<char>(Bytes[At] ^ (1 << Random() % 8));
        }
        FaultOfBytes(Bytes);
    }
}

}  // namespace neb::tests
