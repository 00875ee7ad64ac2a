// The table of settings against what is documented of the file, and the typed reads.
#include "settings/SettingKeys.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include "settings/clsSettings.h"

namespace neb {
namespace {

const QStringList Levels{"H", "M", "L"};
const QStringList AllWindows{
    "frmNEBSlideShow",    "frmSlideDBM",     "frmPicturePopup",  "frmPrintPreview",
    "frmSlideShowDBM",    "frmImportFilter", "frmQuickShow",     "frmSlideMgrBulk",
    "frmRehearsal",       "frmAlbumView",    "frmSlideShowView", "frmHelp",
    "frmDiscFolder",      "frmAlbumImport",  "frmAlbumExport",   "frmSlideShowImport",
    "frmSlideShowExport", "frmPreferences",  "frmCheckPictures", "frmRestore",
    "frmDirSelect",       "frmNewAlbumWzd1", "frmPrintAlbum",    "frmPrintSlideShow",
    "frmPrintSlide",      "frmPrintSheet",   "frmAlbumRename",   "frmAlbumDelete",
    "frmGetObjectName",   "frmInputBox",     "frmSoundRecorder", "frmFilm"};

QStringList Numbers(int First, int Last, int Digits) {
    QStringList Out;
    for (int Each = First; Each <= Last; ++Each)
        Out << QStringLiteral("%1").arg(Each, Digits, 10, QChar(u'0'));
    return Out;
}

// What is documented: "[section]key", a "*" standing for each of the members.
const struct Documented {
    const char* Name;
    QStringList Members;
    SettingType Type;
    const char *InPreferences, *InShow;  // for a key that is not there
    const char *ForBad, *ForBadInShow;   // for a number out of range, nullptr: it stays
    const char* Unmeasured;
} Keys[] = {
    {"[General]DBPath", {""}, SettingType::Text, "", "", nullptr, nullptr, nullptr},
    {"[]ActiveAlbum", {""}, SettingType::Number, "0", "0", "0", nullptr, nullptr},
    {"[]ActiveSlideShow", {""}, SettingType::Number, "0", "0", "0", nullptr, nullptr},
    {"[]NextSlideSeq", {""}, SettingType::Number, "0", "0", "0", nullptr, nullptr},
    {"[]Timeout", {""}, SettingType::Seconds, "20", "10", "20", "10", "10"},
    {"[]UseEffectLevel", {""}, SettingType::Flag, "True", "True", nullptr, nullptr, nullptr},
    {"[]MaxEffectLevel", {""}, SettingType::Number, "1", "1", "1", "0", "0"},
    {"[]Delay*", Levels, SettingType::Number, "1000", "1000", "1000", "1000", "1000"},
    {"[]Step*", Levels, SettingType::Number, "25", "25", "20", "20", "33"},
    {"[]Timeout*", Levels, SettingType::Seconds, "", "", nullptr, nullptr, "10"},
    {"[]AvgTime*", Levels, SettingType::Seconds, "", "", nullptr, nullptr, "N/A"},
    {"[Effect Selections]Effect.*", Numbers(0, 127, 3), SettingType::Flag, "", "", nullptr, nullptr,
     nullptr},
    {"[]ShowScreen", {""}, SettingType::Text, "", "", nullptr, nullptr, nullptr},
    {"[Pictures]KeepAtMost",
     {""},
     SettingType::Choice,
     "1024x768",
     "1024x768",
     nullptr,
     nullptr,
     nullptr},
    {"[Pictures]KeepPlace", {""}, SettingType::Flag, "True", "True", nullptr, nullptr, nullptr},
    {"[Pictures]ExtraFormats", {""}, SettingType::Flag, "True", "True", nullptr, nullptr, nullptr},
    {"[Pictures]Order", {""}, SettingType::Choice, "Name", "Name", nullptr, nullptr, nullptr},
    {"[Pictures]Captions", {""}, SettingType::Flag, "True", "True", nullptr, nullptr, nullptr},
    {"[Home]Pictures", {""}, SettingType::Number, "160", "160", "160", nullptr, nullptr},
    {"[frmHelp]Zoom", {""}, SettingType::Number, "0", "0", "0", nullptr, nullptr},
    {"[*]Height", AllWindows, SettingType::Twips, "", "", nullptr, nullptr, nullptr},
    {"[*]Width", AllWindows, SettingType::Twips, "", "", nullptr, nullptr, nullptr},
    {"[*]WindowState", AllWindows, SettingType::Number, "", "", nullptr, nullptr, nullptr},
    {"[*]Left", AllWindows, SettingType::Twips, "", "", nullptr, nullptr, nullptr},
    {"[*]Top", AllWindows, SettingType::Twips, "", "", nullptr, nullptr, nullptr},
    {"[Find Graphics Window]WindowState",
     {""},
     SettingType::Number,
     "",
     "",
     nullptr,
     nullptr,
     nullptr},
    {"[Find Graphics Window]WindowWidth",
     {""},
     SettingType::Twips,
     "",
     "",
     nullptr,
     nullptr,
     nullptr},
    {"[Find Graphics Window]WindowHeight",
     {""},
     SettingType::Twips,
     "",
     "",
     nullptr,
     nullptr,
     nullptr},
    {"[Find Graphics Window]WindowLeft",
     {""},
     SettingType::Twips,
     "",
     "",
     nullptr,
     nullptr,
     nullptr},
    {"[Find Graphics Window]WindowTop",
     {""},
     SettingType::Twips,
     "",
     "",
     nullptr,
     nullptr,
     nullptr},
    {"[Find Graphics Window]Col*.Width", Numbers(0, 3, 1), SettingType::Twips, "", "", nullptr,
     nullptr, nullptr},
    {"[Sounds]Folder", {""}, SettingType::Text, "", "", nullptr, nullptr, nullptr},
    {"[Film]Folder", {""}, SettingType::Text, "", "", nullptr, nullptr, nullptr},
    {"[Film]Format", {""}, SettingType::Choice, ".mp4", ".mp4", nullptr, nullptr, nullptr},
    {"[Film]Size", {""}, SettingType::Choice, "1920x1080", "1920x1080", nullptr, nullptr, nullptr},
    {"[Film]Rate", {""}, SettingType::Number, "30", "30", nullptr, nullptr, nullptr},
    {"[Film]Quality", {""}, SettingType::Number, "75", "75", "75", nullptr, nullptr},
    {"[Film]CaptionsInPicture", {""}, SettingType::Flag, "True", "True", nullptr, nullptr, nullptr},
    {"[Film]SubtitleTrack", {""}, SettingType::Flag, "False", "False", nullptr, nullptr, nullptr},
    {"[Film]SubtitleFile", {""}, SettingType::Flag, "False", "False", nullptr, nullptr, nullptr},
    {"[Desktop]RecentAlbums", {""}, SettingType::Flag, "True", "True", nullptr, nullptr, nullptr},
    {"[Transfer]Directory*", Numbers(0, 9, 1), SettingType::Text, "", "", nullptr, nullptr,
     nullptr},
};

QString Shown(const char* Text) {
    return Text ? u'"' + QString::fromLatin1(Text) + u'"' : QStringLiteral("-");
}

void AddLines(QStringList& Lines, const QString& Name, const QStringList& Members,
              const QStringList& Rest) {
    for (const QString& Member : Members)
        Lines << QString(Name).replace(u'*', Member) + u' ' + Rest.join(u' ');
}

QString TypeText(SettingType Type) {
    return QString::number(static_cast<int>(Type));
}

std::string Sorted(QStringList Lines) {
    Lines.sort();
    return Lines.join(u'\n').toStdString();
}

TEST(SettingKeys, AreTheDocumentedOnes) {
    QStringList Wanted, Are;
    for (const Documented& Key : Keys)
        AddLines(Wanted, QString::fromLatin1(Key.Name), Key.Members,
                 {TypeText(Key.Type), Shown(Key.InPreferences), Shown(Key.InShow),
                  Shown(Key.ForBad), Shown(Key.ForBadInShow), Shown(Key.Unmeasured)});
    for (const SettingRow& Row : SettingRows())
        AddLines(
            Are, u'[' + QString::fromLatin1(Row.Section) + u']' + QString::fromLatin1(Row.Key),
            MembersOf(Row),
            {TypeText(Row.Type), Shown(Row.InPreferences.Missing), Shown(Row.InShow.Missing),
             Shown(Row.InPreferences.Refused), Shown(Row.InShow.Refused), Shown(Row.Unmeasured)});
    EXPECT_EQ(Sorted(Wanted), Sorted(Are));
}

TEST(SettingKeys, EachStandsOnceAndSaysWhoReadsIt) {
    QSet<int> Seen;
    for (const SettingRow& Row : SettingRows()) {
        EXPECT_FALSE(Seen.contains(static_cast<int>(Row.Which))) << Row.Key;
        Seen << static_cast<int>(Row.Which);
        EXPECT_EQ(&Row, &RowOf(Row.Which)) << Row.Key;
        EXPECT_STRNE("", Row.Readers) << Row.Key;
    }
    for (int Each = 0; Each <= static_cast<int>(Setting::TransferDirectory); ++Each)
        EXPECT_TRUE(Seen.contains(Each)) << Each;
}

// The places in the sources where a value is read or put by a key of its own.
QStringList OwnKeys(const QString& Path, const QString& Text) {
    static const QRegularExpression Call(QStringLiteral("[.>](?:GetValue|PutValue)\\("));
    QStringList Found;
    for (auto Each = Call.globalMatch(Text); Each.hasNext();)
        Found << Path + u':' +
                     QString::number(Text.left(Each.next().capturedStart()).count(u'\n') + 1);
    return Found;
}

TEST(SettingKeys, AreSpelledInTheTableAlone) {
    const QString Root = QStringLiteral(NEB_SOURCE_DIR "/");
    QStringList Found;
    int Looked = 0;
    for (const char* Folder : {"src", "demo", "bench"}) {
        QDirIterator Files(Root + QLatin1String(Folder), {"*.cpp", "*.h"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (Files.hasNext()) {
            QFile File(Files.next());
            ASSERT_TRUE(File.open(QIODevice::ReadOnly));
            const QString Path = File.fileName().sliced(Root.size());
            ++Looked;
            if (Path != u"src/settings/SettingKeys.cpp" && Path != u"src/settings/clsSettings.cpp")
                Found << OwnKeys(Path, QString::fromUtf8(File.readAll()));
        }
    }
    EXPECT_GT(Looked, 300);
    EXPECT_EQ("", Sorted(Found));
    EXPECT_EQ("x:2", Sorted(OwnKeys("x", "a\nSettings.GetValue({}, Key, {})")));
    EXPECT_EQ("x:1", Sorted(OwnKeys("x", "Its->PutValue(Section, Key, Value);")));
}

clsSettings With(const char* Section, const char* Key, const char* Value) {
    clsSettings Settings;
    Settings.PutValue(Section, Key, Value);
    return Settings;
}

TEST(SettingKeys, TwoReadersOfOneKeyHaveDefaultsOfTheirOwn) {
    const clsSettings Empty;
    EXPECT_EQ(20, ReadDecimal(Empty, Setting::Timeout));
    EXPECT_EQ(10, ReadDecimal(Empty, Setting::Timeout, SettingReader::Show));
    for (const char* Bad : {"0", "-1", "x", ""}) {
        EXPECT_EQ(20, ReadDecimal(With("", "Timeout", Bad), Setting::Timeout)) << Bad;
        EXPECT_EQ(10, ReadDecimal(With("", "Timeout", Bad), Setting::Timeout, SettingReader::Show));
    }
    EXPECT_EQ(0.01, ReadDecimal(With("", "Timeout", "0.01"), Setting::Timeout));
}

TEST(SettingKeys, ANumberOutOfRangeIsReplacedAndWhatHasNoReplacementStays) {
    const auto Level = [](const char* Text, SettingReader Reader) {
        return ReadNumber(With("", "MaxEffectLevel", Text), Setting::MaxEffectLevel, Reader);
    };
    for (const char* Bad : {"-1", "4", "3.6"}) {
        EXPECT_EQ(1, Level(Bad, SettingReader::Preferences)) << Bad;
        EXPECT_EQ(0, Level(Bad, SettingReader::Show)) << Bad;
    }
    EXPECT_EQ(3, Level("3.4", SettingReader::Show)) << "rounded first";
    const clsSettings Below = With("", "ActiveAlbum", "-2");
    EXPECT_EQ(0, ReadNumber(Below, Setting::ActiveAlbum));
    EXPECT_EQ(-2, ReadNumber(Below, Setting::ActiveAlbum, SettingReader::Show));
}

TEST(SettingKeys, AMemberOfAFamilyHasItsOwnPlace) {
    clsSettings Settings;
    PutNumber(Settings, {Setting::Delay, "M"}, 7);
    PutFlag(Settings, {Setting::EffectSelected, "007"}, false);
    PutNumber(Settings, {Setting::WindowHeight, "frmQuickShow"}, 9000);
    PutNumber(Settings, {Setting::FindColumn, "2"}, 450);
    EXPECT_EQ("7", Settings.GetValue("", "DelayM", "none"));
    EXPECT_EQ("False", Settings.GetValue("Effect Selections", "Effect.007", "none"));
    EXPECT_EQ("9000", Settings.GetValue("frmQuickShow", "Height", "none"));
    EXPECT_EQ("450", Settings.GetValue("Find Graphics Window", "Col2.Width", "none"));
    EXPECT_EQ(1000, ReadNumber(Settings, {Setting::Delay, "H"}));
    EXPECT_FALSE(ReadFlag(Settings, {Setting::EffectSelected, "007"}));
    EXPECT_TRUE(ReadFlag(Settings, {Setting::EffectSelected, "008"}));
    EXPECT_EQ(0, ReadNumber(Settings, {Setting::WindowHeight, "frmSlideDBM"}));
}

TEST(SettingKeys, AnEmptyValueIsNoSetting) {
    EXPECT_FALSE(HasSetting(clsSettings(), Setting::Timeout));
    EXPECT_FALSE(HasSetting(With("", "Timeout", ""), Setting::Timeout));
    EXPECT_FALSE(HasSetting(With("", "TimeoutH", "9"), Setting::Timeout));
    EXPECT_TRUE(HasSetting(With("", "Timeout", "N/A"), Setting::Timeout));
}

}  // namespace
}  // namespace neb
