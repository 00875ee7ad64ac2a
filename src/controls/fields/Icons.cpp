#include "controls/fields/Icons.h"

#include <QGuiApplication>
#include <QResource>
#include <algorithm>
#include <iterator>

namespace neb {
namespace {

struct NamePair {
    QStringView Ours;
    QStringView Desktop;
};
// Only names whose meaning is the same on every desktop; the others are drawn by us everywhere.
constexpr NamePair DesktopNames[] = {
    {u"album-new", u"folder-new"},
    {u"cancel", u"dialog-cancel"},
    {u"close", u"window-close"},
    {u"delete", u"edit-delete"},
    {u"exit", u"application-exit"},
    {u"find-graphics", u"edit-find"},
    {u"help", u"help-contents"},
    {u"import-directory", u"folder-open"},
    {u"mail", u"mail-send"},
    {u"move-down", u"go-down"},
    {u"move-left-all", u"go-first"},
    {u"move-left-one", u"go-previous"},
    {u"move-right-all", u"go-last"},
    {u"move-right-one", u"go-next"},
    {u"move-up", u"go-up"},
    {u"open", u"document-open"},
    {u"preferences", u"preferences-system"},
    {u"print", u"document-print"},
    {u"record", u"media-record"},
    {u"rotate-left", u"object-rotate-left"},
    {u"rotate-right", u"object-rotate-right"},
    {u"save", u"document-save"},
    {u"save-as", u"document-save-as"},
    {u"slide-new", u"document-new"},
    {u"slide-show-new", u"document-new"},
    {u"slide-show-play", u"media-playback-start"},
    {u"sound-play", u"media-playback-start"},
    {u"sound-stop", u"media-playback-stop"},
};

QString DesktopName(const QString& IconName) {
    const auto Found = std::find_if(std::begin(DesktopNames), std::end(DesktopNames),
                                    [&](const NamePair& Pair) { return IconName == Pair.Ours; });
    return Found == std::end(DesktopNames) ? QString() : Found->Desktop.toString();
}

bool IsDark(const QPalette& Palette) {
    return Palette.color(QPalette::Window).lightness() <
           Palette.color(QPalette::WindowText).lightness();
}

}  // namespace

QIcon ThemeIcon(const QString& IconName) {
    return ThemeIcon(IconName, QGuiApplication::palette());
}

QIcon ThemeIcon(const QString& IconName, const QPalette& Palette) {
    const QString Desktop = DesktopName(IconName);
    if (!Desktop.isEmpty() && QIcon::hasThemeIcon(Desktop)) return QIcon::fromTheme(Desktop);
    const QString Path =
        QStringLiteral(":/neb/icons/%1/%2.svg")
            .arg(IsDark(Palette) ? QStringLiteral("dark") : QStringLiteral("light"), IconName);
    return QResource(Path).isValid() ? QIcon(Path) : QIcon();
}

}  // namespace neb
