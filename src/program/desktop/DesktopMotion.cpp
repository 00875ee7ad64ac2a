#include "program/desktop/DesktopMotion.h"

#include <algorithm>

#include "program/desktop/ToolkitSettings.h"

namespace neb {
namespace {

// How the desktops call it, and what they say when nothing is to move.
const struct {
    const char16_t* Group;
    const char16_t* Key;
    bool (*IsStill)(const QVariant& Value);
} Names[] = {
    {u"org.freedesktop.appearance", u"reduced-motion",
     [](const QVariant& Value) { return Value.toUInt() == 1; }},
    {u"org.gnome.desktop.interface", u"enable-animations",
     [](const QVariant& Value) { return !Value.toBool(); }},
    {u"org.kde.kdeglobals.KDE", u"AnimationDurationFactor",
     [](const QVariant& Value) { return Value.isValid() && Value.toDouble() == 0; }},
};

bool IsStillByFile(const QString& ConfigFolder) {
    const QString Animations = ToolkitSettingIn(ConfigFolder, "gtk-enable-animations");
    return Animations == u"0" || Animations.compare(u"false", Qt::CaseInsensitive) == 0;
}

}  // namespace

DesktopMotion::DesktopMotion(DesktopSettings& Settings, const QString& ConfigFolder)
    : mIsStillByFile(IsStillByFile(ConfigFolder)) {
    connect(&Settings, &DesktopSettings::Changed, this, &DesktopMotion::Told);
    for (const auto& Each : Names)
        Settings.Ask(QString::fromUtf16(Each.Group), QString::fromUtf16(Each.Key));
}

bool DesktopMotion::IsStill() const {
    if (mTold.isEmpty()) return mIsStillByFile;
    return std::any_of(mTold.begin(), mTold.end(), [](bool Each) { return Each; });
}

void DesktopMotion::Told(const QString& Group, const QString& Key, const QVariant& Value) {
    for (const auto& Each : Names)
        if (Group == Each.Group && Key == Each.Key) mTold[Key] = Each.IsStill(Value);
}

}  // namespace neb
