#include "albums/KeepingChoice.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <algorithm>

#include "settings/SettingKeys.h"

namespace neb {
namespace {

constexpr char ScreenKey[] = "Screen", OwnKey[] = "Own";

constexpr KeepingRow Rows[] = {
    {"1024x768", QT_TRANSLATE_NOOP("neb::KeepingChoice", "1024 x 768")},
    {"1920x1080", QT_TRANSLATE_NOOP("neb::KeepingChoice", "1920 x 1080")},
    {"3840x2160", QT_TRANSLATE_NOOP("neb::KeepingChoice", "3840 x 2160")},
    {ScreenKey, QT_TRANSLATE_NOOP("neb::KeepingChoice", "The largest screen (%1)")},
    {OwnKey, QT_TRANSLATE_NOOP("neb::KeepingChoice", "Their own size")},
};

bool Is(const QString& Key, const char* Row) {
    return Key.compare(QLatin1String(Row), Qt::CaseInsensitive) == 0;
}

QString InWords(QSize Size) {
    return QStringLiteral("%1 x %2").arg(Size.width()).arg(Size.height());
}

}  // namespace

std::span<const KeepingRow> KeepingRows() {
    return Rows;
}

QString KeepingTitle(const QString& Key, QSize LargestScreen) {
    for (const KeepingRow& Row : Rows)
        if (Is(Key, Row.Key))
            return QCoreApplication::translate("neb::KeepingChoice", Row.Title)
                .replace(QStringLiteral("%1"), InWords(LimitOf(Key, LargestScreen)));
    return InWords(LimitOf(Key, LargestScreen));
}

std::optional<QSize> LimitIn(const QString& Text) {
    static const QRegularExpression Form(
        QStringLiteral("^\\s*(\\d{1,6})\\s*[xX]\\s*(\\d{1,6})\\s*$"));
    const auto Found = Form.match(Text);
    const QSize Size(Found.captured(1).toInt(), Found.captured(2).toInt());
    if (!Found.hasMatch() || Size.isEmpty()) return std::nullopt;
    return Size.expandedTo(SlideLimit).boundedTo(OwnSize);
}

QSize LimitOf(const QString& Key, QSize LargestScreen) {
    if (Is(Key, OwnKey)) return OwnSize;
    if (Is(Key, ScreenKey)) return LargestScreen.expandedTo(SlideLimit).boundedTo(OwnSize);
    return LimitIn(Key).value_or(SlideLimit);
}

PictureKeeping ReadKeeping(const clsSettings& Settings, QSize LargestScreen) {
    return {LimitOf(ReadText(Settings, Setting::KeepPictures), LargestScreen),
            ReadFlag(Settings, Setting::KeepPlace)};
}

}  // namespace neb
