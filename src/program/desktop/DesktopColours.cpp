#include "program/desktop/DesktopColours.h"

#include <QApplication>
#include <QToolTip>

#include "controls/fields/HintColour.h"
#include "program/desktop/DesktopSettings.h"
#include "program/desktop/ToolkitSettings.h"

namespace neb {
namespace {

const QString Appearance = QStringLiteral("org.freedesktop.appearance");
const QString Scheme = QStringLiteral("color-scheme"), ContrastKey = QStringLiteral("contrast");

// The toolkit hears of another style by ways of its own: its colours come before or behind the
// portal's word.
constexpr int TogetherMs = 150;

std::optional<Shade> ShadeOf(uint Told) {
    if (Told == 1) return Shade::Dark;
    if (Told == 2) return Shade::Light;
    return std::nullopt;
}

}  // namespace

WantedColours WantedByToolkit(const QString& Theme, const QString& PrefersDark) {
    const bool IsDarkTheme = Theme.endsWith(u"dark", Qt::CaseInsensitive) ||
                             Theme.endsWith(u"inverse", Qt::CaseInsensitive);
    WantedColours Wanted;
    Wanted.HighContrast = Theme.startsWith(u"HighContrast", Qt::CaseInsensitive);
    if (IsDarkTheme || PrefersDark == u"1" || PrefersDark == u"true") Wanted.Is = Shade::Dark;
    return Wanted;
}

DesktopColours::DesktopColours(DesktopSettings& Desktop) {
    mSoon.setSingleShot(true);
    mSoon.setInterval(TogetherMs);
    connect(&mSoon, &QTimer::timeout, this, &DesktopColours::Apply);
    connect(&Desktop, &DesktopSettings::Changed, this, &DesktopColours::Hear);
    for (const QString& Key : {Scheme, ContrastKey})
        if (const auto Told = Desktop.Read(Appearance, Key)) Hear(Appearance, Key, *Told);
    mSoon.stop();
    qApp->installEventFilter(this);
    Apply();
}

void DesktopColours::Hear(const QString& Group, const QString& Key, const QVariant& Value) {
    if (Group != Appearance || (Key != Scheme && Key != ContrastKey)) return;
    (Key == Scheme ? mScheme : mContrast) = Value.toUInt();
    mSoon.start();
}

WantedColours DesktopColours::Wanted() const {
    const QString Theme = qEnvironmentVariable("GTK_THEME", ToolkitSetting("gtk-theme-name"));
    WantedColours Is = WantedByToolkit(Theme, ToolkitSetting("gtk-application-prefer-dark-theme"));
    if (mScheme && ShadeOf(*mScheme)) Is.Is = ShadeOf(*mScheme);
    if (mContrast) Is.HighContrast = *mContrast == 1;
    return Is;
}

// The desktop's own colours show only while there are none of ours over them.
void DesktopColours::Apply() {
    const WantedColours Wants = Wanted();
    mIsSetting = true;
    const bool WereOurs = mIsOurs;
    if (mIsOurs) QApplication::setPalette(QPalette());
    const QPalette Theirs = QApplication::palette();
    const Shade Is = Wants.Is.value_or(IsDark(Theirs) ? Shade::Dark : Shade::Light);
    mIsOurs = !Suits(Theirs, Is, Wants.HighContrast);
    if (mIsOurs) QApplication::setPalette(PaletteOf(Is, Wants.HighContrast));
    if (mIsOurs || WereOurs) QToolTip::setPalette(QApplication::palette());
    mIsSetting = false;
}

// Colours that are not ours have come from the desktop.
bool DesktopColours::eventFilter(QObject* Watched, QEvent* Event) {
    if (Watched == qApp && Event->type() == QEvent::ApplicationPaletteChange && !mIsSetting &&
        !mIsOurs)
        mSoon.start();
    return false;
}

}  // namespace neb
