// Gives the program the colours that the desktop wants, and at once others when it does: dark or
// light, with high contrast or the usual one. The desktop says so over its portal, else in the
// settings of its toolkit. Where the toolkit of the program has such colours already, they stay.
#pragma once

#include <QObject>
#include <QTimer>
#include <optional>

#include "program/desktop/StylePalettes.h"

namespace neb {

class DesktopSettings;

struct WantedColours {
    std::optional<Shade> Is;  // nothing: as it is
    bool HighContrast = false;
    bool operator==(const WantedColours&) const = default;
};

// What the desktop's toolkit is set to: the name of its theme, such as "Adwaita-dark", and whether
// dark is preferred, "1" or "true".
WantedColours WantedByToolkit(const QString& Theme, const QString& PrefersDark);

class DesktopColours : public QObject {
    Q_OBJECT

  public:
    // Sets them before it returns.
    explicit DesktopColours(DesktopSettings& Desktop);

  protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    void Hear(const QString& Group, const QString& Key, const QVariant& Value);
    WantedColours Wanted() const;
    void Apply();

    QTimer mSoon;
    std::optional<uint> mScheme, mContrast;  // as the portal says; nothing: it does not
    bool mIsOurs = false, mIsSetting = false;
};

}  // namespace neb
