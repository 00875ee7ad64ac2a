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
#include "support/Texts.h"
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

bool IsSetOff(const QString& Html, const QString& Text) {
    return Unescaped(Html).contains("<b>" + Text + "</b>");
}

class HelpNames : public InEachLanguage<HelpRig> {
  protected:
    HelpNames() { Start(); }

    // "Album, New Album" and its first key, as they are read.
    std::map<QString, QString> Entries() const {
        std::map<QString, QString> All;
        for (const QMenu* Menu : mWindow->menuBar()->findChildren<QMenu*>())
            for (const QAction* Each : Menu->actions())
                if (!Each->isSeparator() && Each->objectName().startsWith("mnu"))
                    All[Words(Menu->title()) + ", " + Words(Each->text())] =
                        Each->shortcut().toString(QKeySequence::NativeText);
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
INSTANTIATE_TEST_SUITE_P(Languages, HelpNames, ::testing::ValuesIn(HelpLanguages()),
                         &NameOfLanguage);

// README and the documents are English, and so are the names of keys in the code.
class EnglishNames : public HelpNames {};
INSTANTIATE_TEST_SUITE_P(Languages, EnglishNames, ::testing::Values(QStringLiteral("en")),
                         &NameOfLanguage);

TEST_P(HelpNames, EachEntryOfTheMenuIsInTheHelpByItsPath) {
    QString All;
    for (const QString& Page : Pages()) All += Unescaped(Source(Page));
    EXPECT_GT(Entries().size(), 30U);
    for (const auto& [Path, Key] : Entries())
        EXPECT_TRUE(All.contains("<b class=\"menu\">" + Path + "</b>")) << Path.toStdString();
}

TEST_P(HelpNames, EachPathThatTheHelpNamesIsInTheMenuAndHasTheKeyThatStandsBehindIt) {
    static const QRegularExpression Named(
        "<b class=\"menu\">([^<]*)</b>(?: \\((?:<kbd>([^<]*)</kbd>))?");
    int Count = 0;
    for (const QString& Page : Pages())
        for (auto At = Named.globalMatch(Source(Page)); At.hasNext(); ++Count) {
            const auto Path = At.next();
            ExpectEntry(Unescaped(Path.captured(1)), Path.captured(2), Page.toStdString());
        }
    EXPECT_GT(Count, 60);
}

TEST_P(EnglishNames, EachPathThatReadmeAndTheDocumentsNameIsInTheMenu) {
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

TEST_P(HelpNames, TheMenusOfAlbumsAndShowsOnTheHomeAreTold) {
    const QString Home = Source("start/home");
    for (const CardDeed& Each : CardDeeds())
        EXPECT_TRUE(IsSetOff(Home, Words(tr(Each.Text)))) << Each.Text;
}

TEST_P(HelpNames, TheMenuOfARunningShowIsTold) {
    const QString Told = Source("shows/show-menu");
    const auto Popup = NewForm<frmPopup>();
    for (const QAction* Each : Popup->mnuPopup.actions())
        EXPECT_TRUE(Each->isSeparator() || IsSetOff(Told, Words(Each->text())))
            << Each->text().toStdString();
}

// The keys of a running show, by what a keyboard says.
TEST_P(EnglishNames, EachKeyThatARunningShowKnowsIsTold) {
    const QString Told = Source("shows/show-keys");
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

TEST_P(HelpNames, TheCardOfKeysSaysNothingThatTheHelpDoesNot) {
    static const QRegularExpression Marks("<[^>]*>");
    const QString Told = Source("shows/show-keys").remove(Marks).simplified();
    const QStringList OfItself{tr("this card and back; the show waits meanwhile"),
                               tr("close this card; then end the show")};
    KeyCard Card(*mWindow);
    for (const bool Manual : {false, true}) {
        Card.OpenFor(Manual);
        const auto Labels = Card.findChildren<QLabel*>();
        EXPECT_GT(Labels.size(), 20);
        for (const QLabel* Each : Labels) {
            const QString Line = QString(Each->text()).remove(Marks);
            EXPECT_TRUE(OfItself.contains(Line) || Told.contains(Line)) << Line.toStdString();
        }
    }
}

TEST_P(HelpNames, EachSettingIsTold) {
    const QString Told = Source("safety/settings");
    for (const SettingRow& Row : SettingRows()) {
        QString Key = QString::fromLatin1(Row.Key);
        const QString First = QString::fromLatin1(Row.Members).section(' ', 0, 0);
        Key.replace('*', Row.Which == Setting::EffectSelected ? "001" : First.section('-', 0, 0));
        EXPECT_TRUE(Told.contains("<i>" + Key + "</i>")) << Key.toStdString();
    }
}

}  // namespace
}  // namespace neb
