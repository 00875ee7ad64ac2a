#include "show/PreferencesState.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

#include "settings/clsSettings.h"
#include "show/ShowSettings.h"
#include "support/Texts.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

constexpr std::int32_t DefaultTimeout = 20;
constexpr double LeastTimeout = 4;
constexpr int LastEffect = EffectPlaces;

bool IsWithin(std::optional<std::int32_t> Entry, std::int32_t Least, std::int32_t Most) {
    return Entry && *Entry >= Least && *Entry <= Most;
}

std::optional<EntryProblem> CheckTimeout(std::optional<double> Entry) {
    const auto Refused = [](const char* Message) {
        return EntryProblem{EntryProblem::Field::Timeout, 0, tr(Message)};
    };
    if (!Entry) return Refused(QT_TR_NOOP("The Slide Timeout must be numeric."));
    if (*Entry < LeastTimeout)
        return Refused(QT_TR_NOOP("The Slide Timeout must be >= 4 seconds."));
    return std::nullopt;
}

}  // namespace

PreferencesState ReadPreferences(const clsSettings& Settings) {
    PreferencesState Read;
    const ActiveShow Active = ReadActiveShow(Settings);
    Read.AlbumID = Active.AlbumID;
    Read.SlideShowID = Active.SlideShowID;
    Read.NextSlideSeq = ReadNumber(Settings, Setting::NextSlideSeq);
    Read.SlideTimeout = ReadDecimal(Settings, Setting::Timeout);
    Read.ShowScreen = ReadText(Settings, Setting::ShowScreen);
    Read.KeepPictures = ReadText(Settings, Setting::KeepPictures);
    Read.KeepPlace = ReadFlag(Settings, Setting::KeepPlace);
    Read.Effects = ReadEffectSettings(Settings, SettingReader::Preferences);
    for (std::int32_t Effect = 0; Effect <= LastEffect; ++Effect)
        Read.EffectSelected[static_cast<size_t>(Effect)] = ReadEffectSelected(Settings, Effect);
    Read.EffectLevels.fill(1);
    return Read;
}

void PutPreferences(clsSettings& Settings, const PreferencesState& State) {
    PutNumber(Settings, Setting::ActiveAlbum, State.AlbumID);
    PutNumber(Settings, Setting::ActiveSlideShow, State.SlideShowID);
    PutNumber(Settings, Setting::NextSlideSeq, State.NextSlideSeq);
    PutDecimal(Settings, Setting::Timeout, State.SlideTimeout);
    PutFlag(Settings, Setting::UseEffectLevel, State.Effects.UseEffectLevel);
    PutNumber(Settings, Setting::MaxEffectLevel, State.Effects.MaxEffectLevel);
    for (std::int32_t Effect = 0; Effect <= LastEffect; ++Effect)
        PutEffectSelected(Settings, Effect, State.EffectSelected[static_cast<size_t>(Effect)]);
    PutSpeeds(Settings, State.Effects);
    if (!State.ShowScreen.isEmpty() || HasSetting(Settings, Setting::ShowScreen))
        PutText(Settings, Setting::ShowScreen, State.ShowScreen);
    if (State.KeepPictures.isEmpty()) return;  // never read
    PutText(Settings, Setting::KeepPictures, State.KeepPictures);
    PutFlag(Settings, Setting::KeepPlace, State.KeepPlace);
}

std::optional<double> DecimalIn(const QString& Text) {
    bool IsNumber = false;
    const double Value =
        Text.trimmed().replace(QLocale().decimalPoint(), QStringLiteral(".")).toDouble(&IsNumber);
    if (!IsNumber || !std::isfinite(Value)) return std::nullopt;
    return Value;
}

std::optional<std::int32_t> WholeNumberIn(const QString& Text) {
    const QString Digits = Text.trimmed();
    QString Message;
    if (Digits.isEmpty() || !IsNumericText(Digits, Message, false)) return std::nullopt;
    return CInt(Val(Digits));
}

std::optional<EntryProblem> CheckSpeed(const SpeedEntry& Entry, int Level) {
    using Field = EntryProblem::Field;
    if (!IsWithin(Entry.Delay, 0, 1000))
        return EntryProblem{Field::Delay, Level,
                            tr("You must enter an integer from 0 to 1000 for the delay.")};
    if (!IsWithin(Entry.Step, 1, 100))
        return EntryProblem{Field::Step, Level,
                            tr("You must enter an integer from 1 to 100 for the step.")};
    return std::nullopt;
}

EffectSpeed SpeedOf(const SpeedEntry& Entry) {
    return {Entry.Step.value_or(0), Entry.Delay.value_or(0)};
}

std::optional<EntryProblem> CheckEntries(const PreferencesEntries& Entries) {
    auto Problem = CheckTimeout(Entries.SlideTimeout);
    for (int Level = 1; !Problem && Level <= std::ssize(Entries.Speeds); ++Level)
        Problem = CheckSpeed(Entries.Speeds[Level - 1], Level);
    return Problem;
}

void TakeEntries(PreferencesState& State, const PreferencesEntries& Entries) {
    for (size_t Row = 0; Row < std::size(EffectLevelRows); ++Row) {
        const EffectSpeed Speed = SpeedOf(Entries.Speeds[Row]);
        State.Effects.*EffectLevelRows[Row].Step = Speed.Step;
        State.Effects.*EffectLevelRows[Row].Delay = Speed.Delay;
    }
    State.AlbumID = Entries.Album ? Entries.Album->ID : 0;
    State.AlbumName = Entries.Album ? Entries.Album->Name : QString();
    if (Entries.Album) State.SlideShowID = Entries.SlideShow ? Entries.SlideShow->ID : 0;
    State.SlideTimeout = Entries.SlideTimeout.value_or(0);
    if (!(State.SlideTimeout > 0)) State.SlideTimeout = DefaultTimeout;
    State.NextSlideSeq = std::max(0, Entries.NextSlide);
    State.ShowScreen = Entries.ShowScreen;
    State.KeepPictures = Entries.KeepPictures;
    State.KeepPlace = Entries.KeepPlace;
    State.Effects.MaxEffectLevel = Entries.MaxEffectLevel;
    State.Effects.UseEffectLevel = Entries.UseEffectLevel;
    for (const PreferencesEntries::Flag& Each : Entries.Effects)
        State.EffectSelected.at(static_cast<size_t>(Each.Effect)) = Each.Selected;
}

std::int32_t NextSlideFor(const PreferencesState& State, std::int32_t SlideShowID) {
    return SlideShowID == State.SlideShowID ? State.NextSlideSeq : 0;
}

void FilterTimeoutKey(const EntryState& Field, std::int16_t& KeyAscii) {
    constexpr std::int16_t Backspace = 8;
    const bool Digit = KeyAscii >= '0' && KeyAscii <= '9';
    const QString Points = u'.' + QLocale().decimalPoint();
    const bool FirstPoint =
        Points.contains(QChar(KeyAscii)) &&
        std::ranges::none_of(Points, [&](QChar Each) { return Field.Text.contains(Each); });
    if (!Digit && !FirstPoint && KeyAscii != Backspace) KeyAscii = 0;
}

QString PreviewPictureAfter(const QString& Last) {
    const QString First = QStringLiteral("SpeedTest1.bmp");
    return Last == First ? QStringLiteral("SpeedTest2.bmp") : First;
}

}  // namespace neb
