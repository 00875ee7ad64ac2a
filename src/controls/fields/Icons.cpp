#include "controls/fields/Icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QResource>
#include <algorithm>
#include <iterator>

#include "controls/fields/HintColour.h"

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

// Drawn for the surroundings that it is painted in, also when these change.
class OwnIcon : public QIconEngine {
  public:
    explicit OwnIcon(const QString& Name)
        : mLight(PathOf(Name, false)), mDark(PathOf(Name, true)) {}

    void paint(QPainter* Painter, const QRect& Place, QIcon::Mode Mode,
               QIcon::State State) override {
        ForNow().paint(Painter, Place, Qt::AlignCenter, Mode, State);
    }
    QPixmap pixmap(const QSize& Size, QIcon::Mode Mode, QIcon::State State) override {
        return ForNow().pixmap(Size, 1.0, Mode, State);
    }
    QIconEngine* clone() const override { return new OwnIcon(*this); }
    static QString PathOf(const QString& Name, bool Dark) {
        return QStringLiteral(":/neb/icons/%1/%2.svg")
            .arg(Dark ? QStringLiteral("dark") : QStringLiteral("light"), Name);
    }

  private:
    const QIcon& ForNow() const { return IsDark(QGuiApplication::palette()) ? mDark : mLight; }

    QIcon mLight, mDark;
};

}  // namespace

QIcon ThemeIcon(const QString& IconName) {
    return ThemeIcon(IconName, QGuiApplication::palette());
}

QIcon ThemeIcon(const QString& IconName, const QPalette& Palette) {
    const QString Desktop = DesktopName(IconName);
    if (!Desktop.isEmpty() && QIcon::hasThemeIcon(Desktop)) return QIcon::fromTheme(Desktop);
    const QString Path = OwnIcon::PathOf(IconName, IsDark(Palette));
    if (!QResource(Path).isValid()) return {};
    const bool IsAsAll = IsDark(Palette) == IsDark(QGuiApplication::palette());
    return IsAsAll ? QIcon(new OwnIcon(IconName)) : QIcon(Path);
}

}  // namespace neb
