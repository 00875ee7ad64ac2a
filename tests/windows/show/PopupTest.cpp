#include <gtest/gtest.h>

#include "windows/show/frmPopup.h"

namespace neb {
namespace {

std::shared_ptr<frmPopup> PopupFor(const char* Play, const char* Stop, bool Manual, bool HasSlide) {
    auto Popup = NewForm<frmPopup>();
    Popup->SetEntries({QString::fromLatin1(Play), QString::fromLatin1(Stop)}, Manual, HasSlide);
    return Popup;
}

// "text" when the entry is enabled, "(text)" when it is not.
std::string Look(const QAction* Entry) {
    const std::string Text = Entry->text().toStdString();
    return Entry->isEnabled() ? Text : "(" + Text + ")";
}

TEST(frmPopup, CarriesTheEntriesInTheirOrder) {
    const auto Popup = NewForm<frmPopup>();
    QStringList Texts, Names;
    for (const QAction* Entry : Popup->mnuPopup.actions()) {
        Texts << (Entry->isSeparator() ? QStringLiteral("-") : Entry->text());
        if (!Entry->isSeparator()) Names << Entry->objectName();
        EXPECT_TRUE(Entry->isEnabled());
    }
    EXPECT_EQ("Goto Start,Previous,Play,Stop,Next,Goto End,-,Preferences,-,Exit",
              Texts.join(u',').toStdString());
    EXPECT_EQ("mnuGotoStart,mnuPrevious,mnuPlay,mnuStop,mnuNext,mnuGotoEnd,mnuPreferences,mnuExit",
              Names.join(u',').toStdString());
}

TEST(frmPopup, GivesTheWordOfTheChosenEntryEvenAfterItsUnload) {
    for (const char* Word :
         {"GotoStart", "Previous", "Play", "Stop", "Next", "GotoEnd", "Preferences", "Exit"}) {
        const auto Popup = NewForm<frmPopup>();
        Popup->Load();
        EXPECT_TRUE(Popup->IsLoaded());
        auto* Entry =
            Popup->mnuPopup.findChild<QAction*>(QStringLiteral("mnu") + QLatin1String(Word));
        ASSERT_NE(nullptr, Entry) << Word;
        Entry->trigger();
        EXPECT_FALSE(Popup->IsLoaded());
        EXPECT_EQ(Word, Popup->SelectedCommand().toStdString());
        EXPECT_EQ(Word, Popup->SelectedCommand().toStdString());
    }
}

TEST(frmPopup, HasNoWordWhenNothingWasChosen) {
    const auto Popup = NewForm<frmPopup>();
    Popup->Load();
    EXPECT_EQ("", Popup->SelectedCommand().toStdString());
    EXPECT_FALSE(Popup->IsLoaded());
}

TEST(frmPopup, EnablesItsEntriesByTheStateOfTheShow) {
    const struct {
        const char *Play, *Stop;
        bool Manual, HasSlide, Steps;
        const char *PlayLook, *StopLook;
    } Rows[] = {
        {"Pause", "Stop", false, true, true, "Pause", "Stop"},
        {"Pause", "Stop", true, true, true, "(Pause)", "Stop"},
        {"Pause", "Stop", false, false, true, "Pause", "Stop"},
        {"Resume", "Stop", false, true, false, "Resume", "Stop"},
        {"Resume", "Stop", true, true, false, "(Resume)", "Stop"},
        {"Play", "Resume", false, true, false, "Play", "Resume"},
        {"Play", "Resume", true, true, false, "(Play)", "Resume"},
        {"Play", "Resume", false, false, false, "Play", "(Stop)"},
        {"", "", true, false, true, "Play", "Stop"},
    };
    for (const auto& Row : Rows) {
        const auto Popup = PopupFor(Row.Play, Row.Stop, Row.Manual, Row.HasSlide);
        for (const QAction* Step :
             {Popup->mnuGotoStart, Popup->mnuPrevious, Popup->mnuNext, Popup->mnuGotoEnd})
            EXPECT_EQ(Row.Steps, Step->isEnabled()) << Row.Play;
        EXPECT_EQ(Row.PlayLook, Look(Popup->mnuPlay));
        EXPECT_EQ(Row.StopLook, Look(Popup->mnuStop));
        EXPECT_TRUE(Popup->mnuPreferences->isEnabled());
        EXPECT_TRUE(Popup->mnuExit->isEnabled());
    }
}

}  // namespace
}  // namespace neb
