// What a frame looks like is kept for ever: one sum over the frames at a quarter, half and three
// quarters of the way, for a few effects of each engine. It is the same with every compiler and
// vector width; a change of an effect's looks changes its line here, after looking at it.
#include <gtest/gtest.h>

#include "effects/EffectCatalogue.h"
#include "effects/Pictures.h"
#include "effects/Transition.h"

using namespace neb;
using namespace neb::effectstest;

namespace {

struct Golden {
    int Number;
    std::uint64_t Sum;
};

const Golden kGolden[] = {
    {1, 0xfdaf5dfcf2004426u},   {2, 0x206684acb3e446aau},   {4, 0x294455086adeb9acu},
    {6, 0x2f2d2473a8febef7u},   {7, 0x8f49f77101a1a91fu},   {8, 0xbd23b235fb517f8fu},
    {10, 0xfc6ec870252773edu},  {11, 0x52a11513b42869a5u},  {12, 0x3e9b03da7400230fu},
    {13, 0x6a36ce0b42496adcu},  {14, 0x1e9f7ff06771ace3u},  {15, 0x5f2281219d810ccdu},
    {16, 0xf3a3082716601fb0u},  {19, 0x667bb2078c8a35a3u},  {20, 0x885a2d313399b6bau},
    {26, 0x8d8820f03dcb7370u},  {34, 0x63e5edc90e8e459au},  {42, 0x9185e10e8c2e68f2u},
    {44, 0xc990c2c323a16b85u},  {46, 0x7b966cf977c5e8f1u},  {54, 0x3982f93648f18e70u},
    {56, 0x4bcf3adc428ec615u},  {62, 0xdfd4ea84a2862e34u},  {66, 0x3f7c39b9fa7344fdu},
    {70, 0x77960ef1134ae933u},  {85, 0x7018119c49842177u},  {91, 0xbd78788dd47d8fdbu},
    {100, 0x9b534cbc52ecf7d0u}, {106, 0x77358617a577d052u}, {112, 0xcf156fb59c06100au},
    {118, 0x6dfeb64402ac07d2u}, {121, 0x46d9760454452cacu}, {124, 0x1b4facf6a17fe993u},
    {68, 0x8d9b72ff7679383cu},  {93, 0x72d6d09a0243d8fau},  {96, 0xfc252aa2dc000f4eu},
    {99, 0x5b0f699da472e928u},  {101, 0x7f76c315f6b6a54au}, {102, 0x1177666e3356ae4eu},
    {105, 0xd459ae6f602c116bu}, {107, 0x9767a6c22556bfbbu}, {115, 0x4f6b0b5c79b6d4c2u},
    {127, 0x13ad866adef7e123u},
};

std::uint64_t SumOf(int Number) {
    const QSize Size(64, 40);
    const QImage Old = Scene(Size, 1), New = Scene(Size, 2);
    const Transition T(Number, Old, New);
    std::uint64_t Sum = 14695981039346656037u;
    for (const double P : {0.25, 0.5, 0.75}) {
        QImage Out;
        T.Draw(P, Out);
        Sum = HashOf(Out, Sum);
    }
    return Sum;
}

}  // namespace

TEST(GoldenFrames, AreWhatTheyHaveAlwaysBeen) {
    for (const Golden& G : kGolden)
        EXPECT_EQ(SumOf(G.Number), G.Sum) << G.Number << " " << EffectName(G.Number).toStdString();
}
