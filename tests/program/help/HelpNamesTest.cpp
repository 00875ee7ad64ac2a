// What the help and README call things, against the program itself: menus, keys, windows, settings.
// A path in a menu stands in the help as <b class="menu">Album, New Album</b>, its key behind it
// as (<kbd>Ctrl+N</kbd>; in README as "Album, New Album (Ctrl+N)".
#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <map>

#include "HelpRig.h"
#include "program/help/modHelp.h"
#include "settings/SettingKeys.h"
#include "windows/handling/KeyCard.h"
#include "windows/handling/ShowKeys.h"
#include "windows/home/CardDeeds.h"
#include "windows/show/frmPopup.h"

namespace neb {
namespace {

// As it is read: without the letter to press with Alt, and without the dots of what asks first.
QString Words(QString Text) {
    Text.replace("&&", "\n").remove('&').replace('\n', '&');
    return Text.remove("...").section('\t', 0, 0).trimmed();
}

QString Unescaped(QString Text) {
    return Text.replace("&lt;", "<").replace("&gt;", ">").replace("&amp;", "&");
}

// The text of a page with its marks.
QString AllPages() {
    QString All;
    for (const QString& Page : HelpPages()) All += HelpSource(Page);
    return All;
}

bool IsSetOff(const QString& Html, const QString& Text) {
    return Unescaped(Html).contains("<b>" + Text + "</b>");
}

class HelpNames : public HelpRig {
  protected:
    HelpNames() { Start(); }

    // "Album, New Album" and its first key.
    std::map<QString, QString> Entries() const {
        std::map<QString, QString> All;
        for (const QMenu* Menu : mWindow->menuBar()->findChildren<QMenu*>())
            for (const QAction* Each : Menu->actions())
                if (!Each->isSeparator() && Each->objectName().startsWith("mnu"))
                    All[Words(Menu->title()) + ", " + Words(Each->text())] =
                        Each->shortcut().toString();
        return All;
    }
    void ExpectEntry(const QString& Path, const QString& Key, const std::string& Where) const {
        const auto All = Entries();
        const auto Found = All.find(Path);
        EXPECT_TRUE(Found != All.end()) << Where << ": " << Path.toStdString();
        if (Found == All.end() || Key.isEmpty()) return;
        EXPECT_EQ(Found->second.toStdString(), Key.toStdString()) << Where;
    }
};

TEST_F(HelpNames, EachEntryOfTheMenuIsInTheHelpByItsPath) {
    const QString All = Unescaped(AllPages());
    EXPECT_GT(Entries().size(), 30U);
    for (const auto& [Path, Key] : Entries())
        EXPECT_TRUE(All.contains("<b class=\"menu\">" + Path + "</b>")) << Path.toStdString();
}

TEST_F(HelpNames, EachPathThatTheHelpNamesIsInTheMenuAndHasTheKeyThatStandsBehindIt) {
    static const QRegularExpression Named(
        "<b class=\"menu\">([^<]*)</b>(?: \\((?:<kbd>([^<]*)</kbd>))?");
    int Count = 0;
    for (const QString& Page : HelpPages())
        for (auto At = Named.globalMatch(HelpSource(Page)); At.hasNext(); ++Count) {
            const auto Path = At.next();
            ExpectEntry(Unescaped(Path.captured(1)), Path.captured(2), Page.toStdString());
        }
    EXPECT_GT(Count, 60);
}

TEST_F(HelpNames, EachPathThatReadmeAndTheDocumentsNameIsInTheMenu) {
    static const QRegularExpression Named(
        "\\b(File|Edit|Album|Slide Show|Import/Export|Print|Window|Help), "
        "((?:[A-Z][a-z]+|to|a|for|This)(?: (?:[A-Z][A-Za-z]+|to|a|for))*)(?: \\(([A-Z][^)]*)\\))?");
    int Count = 0;
    for (const char* File : {"README.md", "docs/SAFETY.md", "docs/MOVING.md", "docs/BACKUPS.md"}) {
        const QString Text =
            QString::fromUtf8(ReadFile(NEB_SOURCE_DIR "/" + QString(File))).simplified();
        for (auto At = Named.globalMatch(Text); At.hasNext(); ++Count) {
            const auto Path = At.next();
            ExpectEntry(Path.captured(1) + ", " + Path.captured(2), Path.captured(3), File);
        }
    }
    EXPECT_GT(Count, 8);
}

TEST_F(HelpNames, TheMenusOfAlbumsAndShowsOnTheHomeAreTold) {
    const QString Home = HelpSource("start/home");
    for (const CardDeed& Each : CardDeeds())
        EXPECT_TRUE(IsSetOff(Home, Words(Each.Text))) << Each.Text;
}

TEST_F(HelpNames, TheMenuOfARunningShowIsTold) {
    const QString Told = HelpSource("shows/show-menu");
    const auto Popup = NewForm<frmPopup>();
    for (const QAction* Each : Popup->mnuPopup.actions())
        EXPECT_TRUE(Each->isSeparator() || IsSetOff(Told, Words(Each->text())))
            << Each->text().toStdString();
}

// The keys of a running show, by what a keyboard says.
TEST_F(HelpNames, EachKeyThatARunningShowKnowsIsTold) {
    const QString Told = HelpSource("shows/show-keys");
    std::map<QString, QString> Called{{"PgDown", "Page Down"},
                                      {"PgUp", "Page Up"},
                                      {"Return", "Enter"},
                                      {".", "full stop"},
                                      {"Media Previous", "Media Previous"},
                                      {"Toggle Media Play/Pause", "Media Play"}};
    int Keys = 0;
    const auto Check = [&](int Key) {
        const QKeyEvent Press(QEvent::KeyPress, Key, Qt::NoModifier);
        if (CommandOf(Press) == ShowCommand::None) return;
        ++Keys;
        const QString Name = QKeySequence(Key).toString();
        const QString Its = Called.contains(Name) ? Called[Name] : Name;
        EXPECT_TRUE(Told.contains("<kbd>" + Its + "</kbd>")) << Its.toStdString();
    };
    for (int Key = Qt::Key_Space; Key <= Qt::Key_AsciiTilde; ++Key) Check(Key);
    for (int Key = Qt::Key_Escape; Key <= Qt::Key_MediaLast; ++Key) Check(Key);
    EXPECT_GE(Keys, 30);
    EXPECT_TRUE(Told.contains("<kbd>Shift+F10</kbd>"));
}

TEST_F(HelpNames, TheCardOfKeysSaysNothingThatTheHelpDoesNot) {
    static const QRegularExpression Marks("<[^>]*>");
    const QString Told = HelpSource("shows/show-keys").remove(Marks).simplified();
    KeyCard Card(*mWindow);
    for (const bool Manual : {false, true}) {
        Card.OpenFor(Manual);
        const auto Labels = Card.findChildren<QLabel*>();
        EXPECT_GT(Labels.size(), 20);
        for (const QLabel* Each : Labels) {
            const QString Line = QString(Each->text()).remove(Marks);
            const bool IsOfItself = Line.contains("this card");
            EXPECT_TRUE(IsOfItself || Told.contains(Line)) << Line.toStdString();
        }
    }
}

TEST_F(HelpNames, EachSettingIsTold) {
    const QString Told = HelpSource("safety/settings");
    for (const SettingRow& Row : SettingRows()) {
        QString Key = QString::fromLatin1(Row.Key);
        const QString First = QString::fromLatin1(Row.Members).section(' ', 0, 0);
        Key.replace('*', Row.Which == Setting::EffectSelected ? "001" : First.section('-', 0, 0));
        EXPECT_TRUE(Told.contains("<i>" + Key + "</i>")) << Key.toStdString();
    }
}

}  // namespace
}  // namespace neb
