// The main window with the help that comes with the program beside it, and a way into its pages.
#pragma once

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>

#include "program/MainWindowRig.h"
#include "program/help/HelpBook.h"
#include "program/help/frmHelp.h"
#include "program/language/SpeakLanguage.h"

namespace neb {

inline const QString kHelpFile = QStringLiteral("SlideShowHelp.hlp");
inline const QString kHelpSource = QStringLiteral(NEB_SOURCE_DIR "/assets/help/");

// As the build lays it down: the cover beside the program, the languages in a folder "help".
inline void LayHelpInto(const QString& ProgramFolder) {
    if (QFile::exists(ProgramFolder + kHelpFile)) return;
    WriteFile(ProgramFolder + kHelpFile, ReadFile(kHelpSource + kHelpFile));
    EXPECT_TRUE(QFile::link(kHelpSource, ProgramFolder + QStringLiteral("help")));
}

// The languages that have a folder of pages.
inline QStringList HelpLanguages() {
    return QDir(kHelpSource).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

// A page's source, by its name.
inline QString HelpSource(const QString& Page, const QString& Language = "en") {
    return QString::fromUtf8(ReadFile(kHelpSource + Language + '/' + Page + ".html"));
}

// All pages, contents and index included, as names such as "albums/slide-manager".
inline QStringList HelpPages(const QString& Language = "en") {
    QStringList Pages;
    const QDir Folder(kHelpSource + Language);
    for (QDirIterator At(Folder.path(), {"*.html"}, QDir::Files, QDirIterator::Subdirectories);
         At.hasNext();)
        Pages << Folder.relativeFilePath(At.next()).chopped(5);
    Pages.sort();
    return Pages;
}

class HelpRig : public MainWindow {
  protected:
    HelpRig() { LayHelpInto(mProgram.Path()); }
    ~HelpRig() override { QFile::remove(mProgram.Path() + "help"); }

    frmHelp& Help() const { return *Find<frmHelp>(); }
    template <class Control>
    Control& In(const char* Name) const {
        return *Help().findChild<Control*>(QString::fromLatin1(Name));
    }
    std::string Page() const {
        return Find<frmHelp>() ? Help().Page().toStdString() : "no help is open";
    }
};

// For tests that are the same in each language: the program speaks the one that is given.
template <class Rig>
class InEachLanguage : public Rig, public ::testing::WithParamInterface<QString> {
  protected:
    InEachLanguage() { SpeakLanguage({Language()}); }
    ~InEachLanguage() override { SpeakLanguage({}); }

    static QString Language() { return ::testing::WithParamInterface<QString>::GetParam(); }
    static QString Source(const QString& Page) { return HelpSource(Page, Language()); }
    static QStringList Pages() { return HelpPages(Language()); }
};

inline std::string NameOfLanguage(const ::testing::TestParamInfo<QString>& Row) {
    return Row.param.toStdString();
}

}  // namespace neb
