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
    {1, 0xb4899d9d3df322feu},   {2, 0x3ba953dbea45f4c3u},   {4, 0x04c49516d73e11e1u},
    {6, 0x2f2d2473a8febef7u},   {7, 0x8f49f77101a1a91fu},   {8, 0xf1532d3a07ee5bbeu},
    {10, 0xfc6ec870252773edu},  {11, 0x5bc430ff9427c5a4u},  {12, 0x97680b9f40d5fbd9u},
    {13, 0x6a36ce0b42496adcu},  {14, 0x1e9f7ff06771ace3u},  {15, 0xf50900629612a532u},
    {16, 0xb4d9563e7b62eb82u},  {19, 0x2ed4a3dfcbcc0d5eu},  {20, 0x885a2d313399b6bau},
    {26, 0x8d8820f03dcb7370u},  {34, 0x63e5edc90e8e459au},  {42, 0x9185e10e8c2e68f2u},
    {44, 0xc990c2c323a16b85u},  {46, 0xc6ff8e8f3c40fc7fu},  {54, 0x3982f93648f18e70u},
    {56, 0x87dd93c20b07d667u},  {62, 0xf74294992f7f5cc9u},  {66, 0xc5603c0572d5b1acu},
    {70, 0x40f69dff6d322902u},  {85, 0x7018119c49842177u},  {91, 0x6bd9cdfea762fdf2u},
    {100, 0xc0ee1407fa302e98u}, {106, 0x77358617a577d052u}, {112, 0xcf156fb59c06100au},
    {118, 0x6dfeb64402ac07d2u}, {121, 0x46d9760454452cacu}, {124, 0x1b4facf6a17fe993u},
    {29, 0xca8c095d6b093450u},
    {31, 0x85eee4df834200ccu},
    {35, 0xe13005e185fe76c6u},
    {37, 0xa9a8a058b80bbf4eu},
    {41, 0x3c3c52f4da909192u},
    {43, 0x38cc2a415e18bf5fu},
    {47, 0xad35cf6e0e8dc1fbu},
    {49, 0x87ae8aad997d60f1u},
    {53, 0x99be74982a7a611fu},
    {55, 0x7466b75a1a8fb60bu},
    {59, 0x849453894a74def4u},
    {61, 0x0b09066234f41726u},
    {65, 0xcd2a5a4b5440897cu},
    {67, 0xde221629ab659b7cu},
    {71, 0xe0bf0509f0fb7490u},
    {73, 0xb83da762cb1125c3u},
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
