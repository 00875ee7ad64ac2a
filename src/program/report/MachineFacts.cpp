#include "program/report/MachineFacts.h"

#include <pwd.h>
#include <unistd.h>

#include <QApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QScreen>
#include <QStandardPaths>
#include <QStyle>
#include <QSysInfo>
#include <QThread>

#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

QString BuildLine() {
#ifdef NDEBUG
    const auto Kind = QStringLiteral("release");
#else
    const auto Kind = QStringLiteral("with checks");
#endif
    return QStringLiteral("NEB Slide Show %1, %2, %3, %4")
        .arg(QApplication::applicationVersion(), Kind, QStringLiteral("compiler " __VERSION__),
             QSysInfo::buildAbi());
}

QString ToolkitLine() {
    return QStringLiteral("Qt %1 (built with %2), platform %3, style %4, %5")
        .arg(QString::fromLatin1(qVersion()), QStringLiteral(QT_VERSION_STR),
             QGuiApplication::platformName(), QApplication::style()->name(),
             QGuiApplication::palette().color(QPalette::Window).lightness() < 128
                 ? QStringLiteral("dark")
                 : QStringLiteral("light"));
}

QString SystemLine() {
    return QStringLiteral("%1, kernel %2 %3, %4")
        .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion(),
             QSysInfo::currentCpuArchitecture());
}

QString Told(const char* Variable) {
    const QString Value = qEnvironmentVariable(Variable);
    return Value.isEmpty() ? QStringLiteral("not told") : Value;
}

QString DesktopLine() {
    return QStringLiteral("Desktop %1, session %2")
        .arg(Told("XDG_CURRENT_DESKTOP"), Told("XDG_SESSION_TYPE"));
}

QString ScreenLine(const QScreen& Screen) {
    const QRect Place = Screen.geometry();
    return QStringLiteral("Screen %1 x %2 at %3, %4, scale %5, %6 dots an inch, %7 Hz")
        .arg(Place.width())
        .arg(Place.height())
        .arg(Place.left())
        .arg(Place.top())
        .arg(Screen.devicePixelRatio())
        .arg(Screen.logicalDotsPerInch())
        .arg(Screen.refreshRate());
}

// What the system tells as a file, however long it says that this is.
QStringList LinesOf(const QString& Path) try {
    return QString::fromUtf8(ReadFile(Path)).split(u'\n', Qt::SkipEmptyParts);
} catch (const Fault&) {
    return {};
}

// The first line that begins so, without its beginning.
QString Behind(const QStringList& Lines, const QString& Begin) {
    const QString Line = Lines.filter(QRegularExpression(u'^' + Begin)).value(0);
    return Line.mid(Line.indexOf(u':') + 1).simplified();
}

QString ProcessorLine() {
    return QStringLiteral("Processors %1: %2")
        .arg(QThread::idealThreadCount())
        .arg(Behind(LinesOf(QStringLiteral("/proc/cpuinfo")), QStringLiteral("model name")));
}

QString MemoryLine() {
    const QStringList Lines = LinesOf(QStringLiteral("/proc/meminfo"));
    return QStringLiteral("Memory %1, of which %2 are free")
        .arg(Behind(Lines, QStringLiteral("MemTotal")),
             Behind(Lines, QStringLiteral("MemAvailable")));
}

QString LanguageLine() {
    return QStringLiteral("Language %1, wanted %2")
        .arg(QLocale().name(), QLocale::system().uiLanguages().join(u' '));
}

QString ServerOfSounds() {
    const QString Run = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (NameExists(Run + QStringLiteral("/pipewire-0"))) return QStringLiteral("PipeWire");
    if (NameExists(Run + QStringLiteral("/pulse/native"))) return QStringLiteral("PulseAudio");
    return QStringLiteral("none");
}

QString SoundLine() {
    QStringList Cards;
    for (const QString& Each : LinesOf(QStringLiteral("/proc/asound/cards")))
        if (Each.contains(u'[')) Cards << Each.mid(Each.indexOf(u']') + 2).simplified();
    return QStringLiteral("Sound server %1, driver %2, cards %3")
        .arg(ServerOfSounds(), Told("SDL_AUDIODRIVER"),
             Cards.isEmpty() ? QStringLiteral("none") : Cards.join(QStringLiteral("; ")));
}

}  // namespace

QStringList MachineFacts() {
    QStringList All{BuildLine(), ToolkitLine(), SystemLine(), DesktopLine()};
    for (const QScreen* Each : QGuiApplication::screens()) All << ScreenLine(*Each);
    return All << ProcessorLine() << MemoryLine() << LanguageLine() << SoundLine();
}

QStringList UserNames() {
    QStringList All{qEnvironmentVariable("USER"), qEnvironmentVariable("LOGNAME"),
                    QSysInfo::machineHostName(),
                    GetFileName(QStandardPaths::writableLocation(QStandardPaths::HomeLocation))};
    if (const passwd* Mine = ::getpwuid(::getuid()); Mine && Mine->pw_gecos)
        All << QString::fromLocal8Bit(Mine->pw_name)
            << QString::fromLocal8Bit(Mine->pw_gecos).split(u',');
    return All;
}

}  // namespace neb
