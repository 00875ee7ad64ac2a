#include "windows/show/frmPopup.h"

#include "controls/forms/StandOver.h"
#include "support/Texts.h"

namespace neb {
namespace {

// The commands of a show, as it calls them itself.
constexpr const char* Words[] = {QT_TR_NOOP("Play"), QT_TR_NOOP("Pause"), QT_TR_NOOP("Resume"),
                                 QT_TR_NOOP("Stop")};

QString WordOf(const QString& Command) {
    for (const char* Each : Words)
        if (Command == QLatin1String(Each)) return frmPopup::tr(Each);
    return Command;
}

}  // namespace

frmPopup::frmPopup() {
    setObjectName(QStringLiteral("frmPopup"));
    mnuPopup.setObjectName(QStringLiteral("mnuPopup"));
    mnuPopup.setAccessibleName(tr("Slide show commands"));
    mnuGotoStart = Add("mnuGotoStart", tr("Goto Start"), "GotoStart");
    mnuPrevious = Add("mnuPrevious", tr("Previous"), "Previous");
    mnuPlay = Add("mnuPlay", tr("Play"), "Play");
    mnuStop = Add("mnuStop", tr("Stop"), "Stop");
    mnuNext = Add("mnuNext", tr("Next"), "Next");
    mnuGotoEnd = Add("mnuGotoEnd", tr("Goto End"), "GotoEnd");
    mnuPopup.addSeparator();
    mnuPreferences = Add("mnuPreferences", tr("Preferences"), "Preferences");
    mnuPopup.addSeparator();
    mnuExit = Add("mnuExit", tr("Exit"), "Exit");
}

QAction* frmPopup::Add(const char* Name, const QString& Caption, const char* Word) {
    QAction* Entry = mnuPopup.addAction(Caption);
    Entry->setObjectName(QString::fromLatin1(Name));
    connect(Entry, &QAction::triggered, this, [this, Chosen = QString::fromLatin1(Word)] {
        mSelectedCommand = Chosen;
        Unload();
    });
    return Entry;
}

void frmPopup::SetEntries(const ShowState& Show, bool Manual, bool HasSlide) {
    const bool Running = Show.PlayCommand == u"Pause";
    const bool Stopped = Show.PlayCommand == u"Play";
    if (!Running && !Stopped && Show.PlayCommand != u"Resume") return;
    for (QAction* Step : {mnuGotoStart, mnuPrevious, mnuNext, mnuGotoEnd})
        Step->setEnabled(Running);
    mnuPlay->setText(WordOf(Show.PlayCommand));
    mnuPlay->setEnabled(!Manual);
    mnuStop->setEnabled(!Stopped || HasSlide);
    if (mnuStop->isEnabled()) mnuStop->setText(Stopped ? WordOf(Show.StopCommand) : tr("Stop"));
}

QString frmPopup::SelectedCommand() {
    Unload();
    return mSelectedCommand;
}

void frmPopup::PopupMenu(const QPoint& GlobalPlace) {
    Load();
    StandOver(mnuPopup, WindowInUse());
    mnuPopup.exec(GlobalPlace);
}

}  // namespace neb
