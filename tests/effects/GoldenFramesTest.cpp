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
    {1, 0xb4899d9d3df322feu},   {2, 0x206684acb3e446aau},   {4, 0x294455086adeb9acu},
    {6, 0xeff08a1188c5ab43u},   {7, 0x6dcecd968d025783u},   {8, 0xf1532d3a07ee5bbeu},
    {10, 0x2c6f1dce7700ed7au},  {11, 0x52a11513b42869a5u},  {12, 0x3e9b03da7400230fu},
    {13, 0x6a36ce0b42496adcu},  {14, 0x7c07014998dd444fu},  {15, 0x5f2281219d810ccdu},
    {16, 0xb4d9563e7b62eb82u},  {19, 0x667bb2078c8a35a3u},  {20, 0xb793dc1399917759u},
    {26, 0x8d8820f03dcb7370u},  {34, 0x00010764bb9e3afdu},  {42, 0x37385dfd6e98dfeau},
    {44, 0xc990c2c323a16b85u},  {46, 0x7b966cf977c5e8f1u},  {54, 0x91f7ae476629c8bcu},
    {56, 0x87dd93c20b07d667u},  {62, 0xdfd4ea84a2862e34u},  {66, 0xc5603c0572d5b1acu},
    {70, 0x77960ef1134ae933u},  {85, 0x2f4462fb7c6717e6u},  {91, 0xbd78788dd47d8fdbu},
    {100, 0x41991a823be0c729u}, {106, 0x77358617a577d052u}, {112, 0x0b62cb9df3be9730u},
    {118, 0x6783be3ffcfe91d8u}, {121, 0xee96edb64a48df12u}, {124, 0xfd30e46a79d00940u},
    {3, 0x869bb381a4fd549au},   {50, 0x8ef4adc0c868d44au},  {74, 0x4796c5d7e19d5a73u},
    {77, 0xa5562971175f0163u},  {79, 0xa364a2ed5f505ebfu},  {80, 0x1a089c79e6475484u},
    {83, 0x7e07997f61131b0fu},  {84, 0x7ab972cf659021bdu},  {87, 0xb62d1587a293d7acu},
    {89, 0xeae401824cc444a1u},  {90, 0x75f9897943ff7fa1u},  {95, 0x3b64c0dfcb41f652u},
    {98, 0x5e7217d424ffc46cu},
    {6, 0x2f2d2473a8febef7u},   {7, 0x8f49f77101a1a91fu},   {8, 0xf1532d3a07ee5bbeu},
    {10, 0xfc6ec870252773edu},  {11, 0x52a11513b42869a5u},  {12, 0x3e9b03da7400230fu},
    {13, 0x6a36ce0b42496adcu},  {14, 0x572e815415b259cau},  {15, 0x5f2281219d810ccdu},
    {16, 0xb4d9563e7b62eb82u},  {19, 0x667bb2078c8a35a3u},  {20, 0xf482fcf12c7afc72u},
    {26, 0x8d8820f03dcb7370u},  {34, 0x63e5edc90e8e459au},  {42, 0xda167ba3be65f650u},
    {1, 0xfdaf5dfcf2004426u},   {2, 0x206684acb3e446aau},   {4, 0x294455086adeb9acu},
    {6, 0x2f2d2473a8febef7u},   {7, 0x8f49f77101a1a91fu},   {8, 0xbd23b235fb517f8fu},
    {10, 0xfc6ec870252773edu},  {11, 0x52a11513b42869a5u},  {12, 0x3e9b03da7400230fu},
    {13, 0x6a36ce0b42496adcu},  {14, 0x1e9f7ff06771ace3u},  {15, 0x5f2281219d810ccdu},
    {16, 0xf3a3082716601fb0u},  {19, 0x667bb2078c8a35a3u},  {20, 0x885a2d313399b6bau},
    {26, 0x8d8820f03dcb7370u},  {34, 0x63e5edc90e8e459au},  {42, 0x9185e10e8c2e68f2u},
    {44, 0xc990c2c323a16b85u},  {46, 0x7b966cf977c5e8f1u},  {54, 0x3982f93648f18e70u},
    {56, 0x4bcf3adc428ec615u},  {62, 0xdfd4ea84a2862e34u},  {66, 0x3f7c39b9fa7344fdu},
    {70, 0x77960ef1134ae933u},  {85, 0x7018119c49842177u},  {91, 0xbd78788dd47d8fdbu},
    {100, 0x41991a823be0c729u}, {106, 0xbc9cc1e9a805fe66u}, {112, 0xcf156fb59c06100au},
    {118, 0x652c76c95fe17789u}, {121, 0x09fd6c13a2364dc9u}, {124, 0x00fc7281f51f319cu},
    {44, 0xc990c2c323a16b85u},  {46, 0x7b966cf977c5e8f1u},  {54, 0x91f7ae476629c8bcu},
    {56, 0x87dd93c20b07d667u},  {62, 0xdfd4ea84a2862e34u},  {66, 0xc5603c0572d5b1acu},
    {70, 0x77960ef1134ae933u},  {85, 0x7018119c49842177u},  {91, 0xbd78788dd47d8fdbu},
    {100, 0x41991a823be0c729u}, {106, 0xbc9cc1e9a805fe66u}, {112, 0x0b62cb9df3be9730u},
    {118, 0x6783be3ffcfe91d8u}, {121, 0xee96edb64a48df12u}, {124, 0x966ff6f1cf3abbf5u},
    {27, 0xa00abe5d8019418du},
    {33, 0x3298dec13a845d0cu},
    {39, 0xb9aa24107ebb8cc0u},
    {45, 0xe27ce5a80eaa6474u},
    {51, 0x5755ff9270cdf4b1u},
    {57, 0xc356aff17244b87eu},
    {63, 0x31de69f2d9af9be0u},
    {69, 0x6a46650075b2c769u},
    {92, 0x33aece27e32c9ff5u},
    {28, 0x467d3e7c91b4b2f1u},
    {103, 0x1cb115ed102703fau},
    {109, 0x7e420a10258eac8du},
    {75, 0x54898ff66b538b15u},
    {104, 0x185c233177b95b35u},
    {81, 0xd42f4be346f5bedfu},
    {86, 0x669ada02dd3b5c49u},
    {100, 0x9b534cbc52ecf7d0u}, {106, 0x77358617a577d052u}, {112, 0xcf156fb59c06100au},
    {118, 0x6dfeb64402ac07d2u}, {121, 0x46d9760454452cacu}, {124, 0x1b4facf6a17fe993u},
    {68, 0x8d9b72ff7679383cu},  {93, 0x72d6d09a0243d8fau},  {96, 0xfc252aa2dc000f4eu},
    {99, 0x5b0f699da472e928u},  {101, 0x7f76c315f6b6a54au}, {102, 0x1177666e3356ae4eu},
    {105, 0xd459ae6f602c116bu}, {107, 0x9767a6c22556bfbbu}, {115, 0x4f6b0b5c79b6d4c2u},
    {127, 0x13ad866adef7e123u},
    {109, 0x1c5c735cbd9786a9u},
    {75, 0xeaf79834e20ae65bu},
    {104, 0xf38c9ef5e558bd71u},
    {81, 0xed12364b68bc695cu},
    {86, 0x86661344dc6f0bd1u},
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
    {108, 0x7149fdb78c58e047u},
    {110, 0xcbebbdfc5ca1b0d5u},
    {111, 0x4ffaea683abb1064u},
    {113, 0x6461a949a391d2ebu},
    {114, 0x2f91bccb6dc8b0d2u},
    {116, 0xeec5e156a5752004u},
    {117, 0xd6916e0c8b67bb7bu},
    {119, 0x17535cce0c82473cu},
    {120, 0xa1c2bc18cb55eca7u},
    {122, 0x250aa52fdf5a9aecu},
    {123, 0x4037b6c4f283af52u},
    {125, 0xb0a29728be33f580u},
    {126, 0xcb635bb2e7f47f40u},
    {1, 0x8d90452140583cf3u},   {2, 0xe3ba21054f861055u},   {3, 0xbd080a3f61376399u},
    {4, 0x84c41e16ba833899u},   {5, 0x9b136d5d339e1cecu},   {6, 0xb36eb9867ea4287au},
    {7, 0x2437aca5123c657bu},   {8, 0xf6a1b2f69784bf0fu},   {9, 0x6c8fc363dfd5139cu},
    {10, 0x32eebf1fe1f2a67bu},  {11, 0x0e8447bc7694fec2u},  {12, 0x218f2c3240c9d4d4u},
    {13, 0x2a0565b3b7588430u},  {14, 0xce3920ffeab069deu},  {15, 0x81b578f7da093f92u},
    {16, 0xcb78285b5f8c140du},  {17, 0xdb0de9def46150f9u},  {18, 0xc703f148caecb96fu},
    {19, 0xf9158a1e01d93c99u},  {20, 0x9e936eabb53c7d15u},  {21, 0xc0c96d8946accbffu},
    {22, 0x7c739f3529d029d3u},  {23, 0x37ed9226db9fd3ddu},  {24, 0x3e58fd7272f8bc9bu},
    {25, 0x3ca3099e2000f00fu},  {26, 0x6eba11e3f7713b65u},  {27, 0xb98146b39822808au},
    {28, 0xc0992e183e55867eu},  {29, 0x481fb2499adda414u},  {30, 0x568db9d9d23d1c79u},
    {31, 0xffdda1c91c71ed71u},  {32, 0xb2f6d3c62b818e67u},  {33, 0x5d47865c36e7e11eu},
    {34, 0xf19abcb2484cac3bu},  {35, 0xff1645ca2da5ad77u},  {36, 0x666ff94e1ae46862u},
    {37, 0x8bb3ac0a7fcc0808u},  {38, 0x7febcfca85974ea7u},  {39, 0xd65d8181adf31d4au},
    {40, 0x6bde06aca342f949u},  {41, 0xa954ab91b7dac5a2u},  {42, 0x849733c46b23db7cu},
    {43, 0xcf8a48941efa65a3u},  {44, 0x735b2a61c99b80a4u},  {45, 0x61585b4439f33503u},
    {46, 0xe07d830962e4c048u},  {47, 0x2a0933f7c9562e51u},  {48, 0x1b150001f82b3c77u},
    {49, 0x7c4d8590727ab7d9u},  {50, 0xc7ab22cf06d40052u},  {51, 0x32389bc6dfc7e268u},
    {52, 0x41573ffe263192b7u},  {53, 0xfd5dced9800de456u},  {54, 0x7950b07d4a4be785u},
    {55, 0x4143b2747e66dd0cu},  {56, 0x3e6b2c27738cffbcu},  {57, 0xf915bdcbbad702c5u},
    {58, 0x843027313bc000d7u},  {59, 0x2a257faf6ff28034u},  {60, 0x0daa8678559d1fd9u},
    {61, 0x06904d6866e8a687u},  {62, 0x7bf409189d8395c3u},  {63, 0x6dc154fa05875988u},
    {64, 0x5422015cbafc47b1u},  {65, 0x2eaced75cf8beab6u},  {66, 0x4c4db8221df91e31u},
    {67, 0x833efd993fd7068fu},  {68, 0x2c83c236cf2ca4bbu},  {69, 0xee2eb1854e535cb4u},
    {70, 0x81bf59fb9004094fu},  {71, 0x77e3f97dc8e7c833u},  {72, 0xee5d4d474e62d64du},
    {73, 0xa6fe8ee49f9358e0u},  {74, 0x6afef0f42661b19au},  {75, 0x651b8028bbac5a8fu},
    {76, 0xb777de4d410b43d3u},  {77, 0x190e00f682ed0062u},  {78, 0x718e580ea8124d85u},
    {79, 0xa9bae2adcd512c0bu},  {80, 0xe1dd875a389818d5u},  {81, 0xdb5c1a3d45a3d393u},
    {82, 0xd4ad351b362606c4u},  {83, 0xcff5ca2378c6a30cu},  {84, 0x01723c213ff53c73u},
    {85, 0x0be81b35d52d5deeu},  {86, 0x3f42bd43aa246569u},  {87, 0x7d8e7ab02c92e21du},
    {88, 0x16d8bdd50e0a4cc1u},  {89, 0x1919767f17049718u},  {90, 0x13219d747e502b68u},
    {91, 0x44e28c902f9a4295u},  {92, 0x187dc1fea0f1a0f4u},  {93, 0x1f5744e6cd640348u},
    {94, 0x34eff2994354c0ccu},  {95, 0x16f8b13a26749b1du},  {96, 0xe1d60c5c77b4fc28u},
    {97, 0x7aa327c51f25f12du},  {98, 0xa9f711d30750830cu},  {99, 0x6c6b23fe7d521856u},
    {100, 0x6a5d770a0bab5a91u}, {101, 0x949f375950620b36u}, {102, 0x2be7f10e8d9834f8u},
    {103, 0xbf03b6270eee8b3fu}, {104, 0xf26f241d0d3a93a9u}, {105, 0x94f8a6786f85933cu},
    {106, 0x8564661193ebbb7fu}, {107, 0x06117a888fbe1132u}, {108, 0xa2cf74c2e3fa4b47u},
    {109, 0x5125d33a771fc145u}, {110, 0x935ee9bf010006bdu}, {111, 0x8c310b33f76e34f6u},
    {112, 0x589af0b4c554ea58u}, {113, 0xa95c0c2878d0e796u}, {114, 0x321ae4ee05d1bed7u},
    {115, 0x70737fbb1c90c94fu}, {116, 0x5d10619cec3a8aa2u}, {117, 0xc68cf77fd5676afeu},
    {118, 0x338e6b158e1004c9u}, {119, 0x95582c6c2a7ac920u}, {120, 0x3cebd2f0218eb440u},
    {121, 0x393fcaa1116de377u}, {122, 0x9bcb5eee07a5bd06u}, {123, 0xbf8e8a5ad875b639u},
    {124, 0x52a8948d17e1ef4du}, {125, 0x12ec23143aac7443u}, {126, 0xa04225a459315584u},
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
