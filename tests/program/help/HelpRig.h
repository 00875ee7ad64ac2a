// The main window with the help that comes with the program beside it, and a way into its pages.
#pragma once

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>

#include "program/MainWindowRig.h"
#include "program/help/HelpBook.h"
#include "program/help/frmHelp.h"

namespace neb {

inline const QString kHelpFile = QStringLiteral("SlideShowHelp.hlp");
inline const QString kHelpSource = QStringLiteral(NEB_SOURCE_DIR "/assets/help/");

// As the build lays it down: the cover beside the program, the languages in a folder "help".
inline void LayHelpInto(const QString& ProgramFolder) {
    if (QFile::exists(ProgramFolder + kHelpFile)) return;
    WriteFile(ProgramFolder + kHelpFile, ReadFile(kHelpSource + kHelpFile));
    EXPECT_TRUE(QFile::link(kHelpSource, ProgramFolder + QStringLiteral("help")));
}

// A page's source, by its name.
inline QString HelpSource(const QString& Page) {
    return QString::fromUtf8(ReadFile(kHelpSource + "en/" + Page + ".html"));
}

// All pages, contents and index included, as names such as "albums/slide-manager".
inline QStringList HelpPages() {
    QStringList Pages;
    const QDir Folder(kHelpSource + "en");
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

}  // namespace neb
