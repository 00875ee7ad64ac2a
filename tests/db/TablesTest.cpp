// Properties and the times of the transition effects.
#include <gtest/gtest.h>

#include "Fixtures.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

QString Padded(const char* Name) {
    return QString::fromLatin1(Name).leftJustified(20);
}

// 127 rows as the program's folder holds them, with commas and blanks mixed.
QByteArray FactoryText(int Rows) {
    QByteArray Text = "Effect,AvgTime 1 2 3\r\n";
    for (int I = 1; I <= Rows; ++I)
        Text +=
            QByteArray::number(I) + (I % 2 ? "," : "   ") + QByteArray::number(I / 100.0) + "\r\n";
    return Text;
}

QByteArray EffectRecord(char Effect) {
    return QByteArray(1, Effect) + Hex("000000 000000000000e03f 0000");
}

class TablesTest : public ::testing::Test {
  protected:
    TempFolder Dir, Program;
    std::unique_ptr<clsDBEngine> Engine = OpenEngine(Dir.Path());
    // A database on the disk, and the engine that has read it with the program's folder known.
    void Reload() {
        if (!FileExists(Dir / "NextIDs.dat")) WriteFile(Dir / "NextIDs.dat", QByteArray(12, 1));
        Engine->SetProgramPath(Program.Path());
        Engine->InitializeDB();
    }
};

TEST_F(TablesTest, APropertyIsFoundUnderItsPaddedName) {
    Engine->SaveProperty(Padded("Colour"), u"red"_s);
    Engine->SaveProperty(Padded("Colour"), u"blue"_s);
    ASSERT_EQ(Engine->Properties.size(), 1U);
    EXPECT_EQ(Engine->LoadPropertyValue(Padded("Colour")), u"blue"_s.leftJustified(255));
    EXPECT_EQ(Engine->LoadPropertyValue(u"Colour"_s), u"");
    EXPECT_EQ(Engine->LoadPropertyValue(Padded("COLOUR")), u"");
    EXPECT_EQ(Engine->LoadPropertyValue(Padded("other")), u"");
}

TEST_F(TablesTest, AShortNameAppendsARowAtEveryCall) {
    Engine->SaveProperty(u"short"_s, u"1"_s);
    Engine->SaveProperty(u"short"_s, u"2"_s);
    EXPECT_EQ(Engine->Properties.size(), 2U);
    EXPECT_EQ(Engine->LoadPropertyValue(Padded("short")).trimmed(), u"1");
}

TEST_F(TablesTest, NamesAndValuesAreCut) {
    Engine->SaveProperty(u"n"_s.repeated(25), u"v"_s.repeated(300));
    EXPECT_EQ(Engine->LoadPropertyValue(u"n"_s.repeated(20)), u"v"_s.repeated(255));
}

TEST_F(TablesTest, RowsMarkedAsDeletedArePassedOverUntilTheyAreSaved) {
    Engine->SaveProperty(Padded("a"), u"1"_s);
    Engine->SaveProperty(Padded("b"), u"2"_s);
    Engine->SaveEffectStat(1, 0.5);
    Engine->SaveEffectStat(2, 2.5);
    Engine->Properties[0].Deleted = 1;
    Engine->EffectStats[0].Deleted = 1;
    MemoryComboList List;
    Engine->LoadPropertiesCombo(List);
    ASSERT_EQ(List.ListCount(), 1);
    EXPECT_EQ(List.List(0), Padded("b"));
    Engine->LoadEffectStatsCombo(List);
    ASSERT_EQ(List.ListCount(), 1);
    EXPECT_EQ(List.ItemData(0), 2);
    EXPECT_EQ(Engine->LoadPropertyValue(Padded("a")), u"");
    Engine->FinalizeDB();
    EXPECT_EQ(FileSize(Dir / "Properties.dat"), 277);
    EXPECT_EQ(FileSize(Dir / "EffectStats.dat"), 14);
    Engine->SaveProperty(Padded("a"), u"3"_s);
    Engine->SaveEffectStat(1, 0.75);
    EXPECT_EQ(Engine->Properties.size(), 2U);
    EXPECT_EQ(Engine->LoadPropertyValue(Padded("a")).trimmed(), u"3");
    EXPECT_EQ(Engine->EffectStats[0].Deleted, 0);
}

TEST_F(TablesTest, TablesGrowByAHundredRows) {
    for (int I = 0; I < 101; ++I) Engine->SaveProperty(QString::number(I), {});
    EXPECT_EQ(Engine->Properties.size(), 101U);
    EXPECT_EQ(Engine->Properties.capacity(), 200U);
    Engine->FinalizeDB();
    Engine->InitializeDB();
    EXPECT_EQ(Engine->Properties.size(), 101U);
    EXPECT_EQ(Engine->Properties.capacity(), 201U);
}

TEST_F(TablesTest, EffectTimesAreListedInTheOrderOfTheirRows) {
    Engine->SaveEffectStat(12, 0.25);
    Engine->SaveEffectStat(3, 1);
    Engine->SaveEffectStat(12, 1.2345);
    MemoryComboList List;
    Engine->LoadEffectStatsCombo(List);
    ASSERT_EQ(List.ListCount(), 2);
    EXPECT_EQ(List.List(0), u"12 1.2345");
    EXPECT_EQ(List.List(1), u"3 1");
    EXPECT_EQ(List.ItemData(1), 3);
}

TEST_F(TablesTest, EffectsAreClassedByTheirTime) {
    const double Times[] = {0.9899, 0.99, 1.4999, 1.5, 40};
    for (int I = 0; I < 5; ++I) Engine->SaveEffectStat(I + 1, Times[I]);
    Engine->SaveEffectStat(128, 9);
    Engine->SaveEffectStat(-3, 9);
    std::vector<std::uint8_t> Classes(130, 7);
    Engine->ClassifyEffects(Classes, 127);
    EXPECT_EQ(std::vector<std::uint8_t>(Classes.begin(), Classes.begin() + 7),
              (std::vector<std::uint8_t>{7, 1, 2, 2, 3, 3, 7}));
    EXPECT_EQ(Classes[128], 7);
}

TEST_F(TablesTest, ClassesMayBeginAtEffectOne) {
    Engine->SaveEffectStat(1, 2);
    Engine->SaveEffectStat(127, 2);
    Engine->SaveEffectStat(0, 2);
    std::vector<std::uint8_t> Classes(127, 1);
    Engine->ClassifyEffects(Classes, 127, 1);
    EXPECT_EQ(Classes[0], 3);
    EXPECT_EQ(Classes[126], 3);
    EXPECT_EQ(Classes[1], 1);
}

TEST_F(TablesTest, ANewDatabaseTakesTheFactoryTimesOverAtItsSecondStart) {
    WriteFile(Program / "EffectStats.txt", FactoryText(127));
    Reload();
    ASSERT_EQ(Engine->EffectStats.size(), 127U);
    EXPECT_EQ(Engine->EffectStats[1].Effect, 2);
    EXPECT_EQ(Engine->EffectStats[1].AvgTime, 0.02);
    Engine->FinalizeDB();
    EXPECT_EQ(FileSize(Dir / "EffectStats.dat"), 127 * 14);
    EXPECT_FALSE(FileExists(Program / "EffectStats.dat"));
    DeleteFile(Program / "EffectStats.txt");
    Reload();
    EXPECT_EQ(Engine->EffectStats.size(), 127U);
}

// Four decimals: with three of them or with five the classes at the limits would be others.
TEST_F(TablesTest, FactoryTimesAreRoundedToFourDecimals) {
    const struct {
        const char* Text;
        double Time;
        int Class;
    } Rows[] = {{"0.12344", 0.1234, 1}, {"0.12346", 0.1235, 1}, {"0.9899", 0.9899, 1},
                {"0.98994", 0.9899, 1}, {"0.98996", 0.99, 2},   {"1.49994", 1.4999, 2},
                {"1.49996", 1.5, 3},    {"2.00004", 2, 3},      {"12.345678", 12.3457, 3}};
    QByteArray Text = "Effect,AvgTime\r\n";
    for (int I = 0; I < 127; ++I)
        Text += QByteArray::number(I + 1) + ',' + (I < 9 ? Rows[I].Text : "0.5") + "\r\n";
    WriteFile(Program / "EffectStats.txt", Text);
    Reload();
    std::vector<std::uint8_t> Classes(128, 0);
    Engine->ClassifyEffects(Classes, 127);
    for (size_t I = 0; I < std::size(Rows); ++I) {
        EXPECT_EQ(Rows[I].Time, Engine->EffectStats[I].AvgTime) << Rows[I].Text;
        EXPECT_EQ(Rows[I].Class, Classes[I + 1]) << Rows[I].Text;
    }
}

TEST_F(TablesTest, TheProgramsRecordFileComesBeforeItsText) {
    WriteFile(Program / "EffectStats.txt", FactoryText(127));
    WriteFile(Program / "EffectStats.dat", EffectRecord(9));
    WriteFile(Dir / "EffectStats.dat", {});  // length 0 is as good as missing
    Reload();
    ASSERT_EQ(Engine->EffectStats.size(), 1U);
    EXPECT_EQ(Engine->EffectStats[0].Effect, 9);
    WriteFile(Dir / "EffectStats.dat", EffectRecord(4) + EffectRecord(5));
    Reload();
    ASSERT_EQ(Engine->EffectStats.size(), 2U);
    EXPECT_EQ(Engine->EffectStats[0].AvgTime, 0.5);
}

TEST_F(TablesTest, WithoutAnyTimesTheTableIsEmpty) {
    Reload();
    EXPECT_TRUE(Engine->EffectStats.empty());
    std::vector<std::uint8_t> Classes(128, 1);
    Engine->ClassifyEffects(Classes, 127);
    EXPECT_EQ(Classes, std::vector<std::uint8_t>(128, 1));
}

TEST_F(TablesTest, AFactoryTextThatEndsEarlyIsAFault) {
    WriteFile(Program / "EffectStats.txt", FactoryText(126));
    EXPECT_THROW(Reload(), Fault);
}

}  // namespace
}  // namespace neb
