// A test for every number that has a row in the catalogue, named by number and name. Used by the
// tests of what all transitions promise.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "effects/EffectCatalogue.h"

namespace neb::effectstest {

class EachNumber : public testing::TestWithParam<int> {};

inline std::vector<int> KnownNumbers() {
    std::vector<int> Out;
    for (int N = 1; N <= EffectCount(); ++N)
        if (EffectIsKnown(N)) Out.push_back(N);
    return Out;
}

inline std::string NumberAndName(const testing::TestParamInfo<int>& Info) {
    std::string Out = std::to_string(Info.param);
    for (const QChar C : EffectName(Info.param))
        if (C.isLetterOrNumber()) Out += C.toLatin1();
    return Out;
}

}  // namespace neb::effectstest
