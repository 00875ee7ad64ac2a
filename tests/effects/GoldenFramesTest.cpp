// What a frame looks like is kept for ever: one sum over the frames at a quarter, half and three
// quarters of the way, for each number. It is the same with every compiler and width of vectors; a
// change of an effect's looks changes its line here, after looking at it.
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
    {1, 0xd8919de058d258efu},   {2, 0xe3ba21054f861055u},   {3, 0xbd080a3f61376399u},
    {4, 0x84c41e16ba833899u},   {5, 0x9b136d5d339e1cecu},   {6, 0xb36eb9867ea4287au},
    {7, 0x2437aca5123c657bu},   {8, 0xf6a1b2f69784bf0fu},   {9, 0x6c8fc363dfd5139cu},
    {10, 0x32eebf1fe1f2a67bu},  {11, 0x0e8447bc7694fec2u},  {12, 0x218f2c3240c9d4d4u},
    {13, 0x2a0565b3b7588430u},  {14, 0xce3920ffeab069deu},  {15, 0x81b578f7da093f92u},
    {16, 0xcb78285b5f8c140du},  {17, 0xdb0de9def46150f9u},  {18, 0xc703f148caecb96fu},
    {19, 0xf9158a1e01d93c99u},  {20, 0x3768b06cf428de6au},  {21, 0xc0c96d8946accbffu},
    {22, 0x7c739f3529d029d3u},  {23, 0x37ed9226db9fd3ddu},  {24, 0x3e58fd7272f8bc9bu},
    {25, 0x3ca3099e2000f00fu},  {26, 0x6eba11e3f7713b65u},  {27, 0xb98146b39822808au},
    {28, 0xc0992e183e55867eu},  {29, 0x481fb2499adda414u},  {30, 0x568db9d9d23d1c79u},
    {31, 0xffdda1c91c71ed71u},  {32, 0xb2f6d3c62b818e67u},  {33, 0x5d47865c36e7e11eu},
    {34, 0xf19abcb2484cac3bu},  {35, 0xff1645ca2da5ad77u},  {36, 0x666ff94e1ae46862u},
    {37, 0x8bb3ac0a7fcc0808u},  {38, 0x7febcfca85974ea7u},  {39, 0x53982e29049fb5e1u},
    {40, 0x6bde06aca342f949u},  {41, 0xa954ab91b7dac5a2u},  {42, 0x849733c46b23db7cu},
    {43, 0xcf8a48941efa65a3u},  {44, 0x735b2a61c99b80a4u},  {45, 0x3f75089798694f25u},
    {46, 0xe07d830962e4c048u},  {47, 0x2a0933f7c9562e51u},  {48, 0x1b150001f82b3c77u},
    {49, 0x7c4d8590727ab7d9u},  {50, 0xc7ab22cf06d40052u},  {51, 0xb57d242fbb8ab3cau},
    {52, 0x41573ffe263192b7u},  {53, 0xfd5dced9800de456u},  {54, 0x45850e00504fc16eu},
    {55, 0x4143b2747e66dd0cu},  {56, 0xa4d478e236f43508u},  {57, 0xf915bdcbbad702c5u},
    {58, 0x843027313bc000d7u},  {59, 0x2a257faf6ff28034u},  {60, 0x0daa8678559d1fd9u},
    {61, 0x06904d6866e8a687u},  {62, 0x7bf409189d8395c3u},  {63, 0xa215fbe1c3639218u},
    {64, 0x5422015cbafc47b1u},  {65, 0xac9923555c2b754cu},  {66, 0x4c4db8221df91e31u},
    {67, 0x833efd993fd7068fu},  {68, 0x2c83c236cf2ca4bbu},  {69, 0xee2eb1854e535cb4u},
    {70, 0x81bf59fb9004094fu},  {71, 0x77e3f97dc8e7c833u},  {72, 0xee5d4d474e62d64du},
    {73, 0xfe365976c1d28a19u},  {74, 0x6afef0f42661b19au},  {75, 0x7aba04e3b7f73586u},
    {76, 0xb777de4d410b43d3u},  {77, 0xa5d739e9d58e5c33u},  {78, 0x718e580ea8124d85u},
    {79, 0xa9bae2adcd512c0bu},  {80, 0xe1dd875a389818d5u},  {81, 0xb3aba39a52a06f64u},
    {82, 0xd4ad351b362606c4u},  {83, 0xcff5ca2378c6a30cu},  {84, 0x01723c213ff53c73u},
    {85, 0x0be81b35d52d5deeu},  {86, 0x35ef58c25d917bc6u},  {87, 0x7d8e7ab02c92e21du},
    {88, 0x16d8bdd50e0a4cc1u},  {89, 0x1919767f17049718u},  {90, 0x13219d747e502b68u},
    {91, 0x44e28c902f9a4295u},  {92, 0xadc337cfdd013a95u},  {93, 0x1f5744e6cd640348u},
    {94, 0x34eff2994354c0ccu},  {95, 0x16f8b13a26749b1du},  {96, 0xabbadadd95b64530u},
    {97, 0x7aa327c51f25f12du},  {98, 0xa9f711d30750830cu},  {99, 0xf644a48e32916b39u},
    {100, 0x6a5d770a0bab5a91u}, {101, 0xa2dd93a73b251be5u}, {102, 0x2be7f10e8d9834f8u},
    {103, 0xbf03b6270eee8b3fu}, {104, 0xef3b3a173d2bd3bau}, {105, 0x765adc7d60615f1bu},
    {106, 0x8564661193ebbb7fu}, {107, 0x06117a888fbe1132u}, {108, 0x9ec9061d8e36a3bbu},
    {109, 0x528247c0079c256bu}, {110, 0xe6efaf56c2d74712u}, {111, 0xaf1eb29a51acc421u},
    {112, 0x2d131791c8683485u}, {113, 0x62d1a93a19fadd02u}, {114, 0xae41617914e040fcu},
    {115, 0xdaf761b318072475u}, {116, 0x91dc8d00ef8ffbe9u}, {117, 0xed2444372e2e4852u},
    {118, 0x64c56a8d36205116u}, {119, 0x48c2d5ccfdfcb7b0u}, {120, 0x359846cb2c253765u},
    {121, 0xfbcaf8d9ac1033a5u}, {122, 0x31fae631012cd158u}, {123, 0xbdfa2b5483c12438u},
    {124, 0x7d6d9fa2effb14c5u}, {125, 0x27c743bff71e1643u}, {126, 0x519b21bc9671e09bu},
    {127, 0x4206019e67c645e3u},
};

std::uint64_t SumOf(int Number) {
    const QSize Size(161, 101);
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
