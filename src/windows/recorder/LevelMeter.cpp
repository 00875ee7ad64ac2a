#include "windows/recorder/LevelMeter.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace neb {
namespace {

constexpr double QuietestDecibels = -42;  // the last bit of eight
constexpr double FallPerStep = 0.06;
constexpr int Segments = 32;
constexpr double LoudFrom = 0.86;  // about -6 decibels: the sound may soon be cut
const QColor Good(0x2e, 0x9d, 0x5b);
const QColor Loud(0xd9, 0x8e, 0x1f);

double ShareOf(double Level) {
    if (!(Level > 0)) return 0;
    return std::clamp(1 - 20 * std::log10(Level) / QuietestDecibels, 0.0, 1.0);
}

// It moves all the time: whoever cannot see it asks for it.
class SpokenLevel : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit SpokenLevel(LevelMeter* Meter)
        : QAccessibleWidget(Meter, QAccessible::ProgressBar), mMeter(*Meter) {}

    QString text(QAccessible::Text Of) const override {
        return Of == QAccessible::Value ? LevelMeter::tr("%1 percent").arg(Percent())
                                        : QAccessibleWidget::text(Of);
    }
    void* interface_cast(QAccessible::InterfaceType Type) override {
        if (Type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(Type);
    }
    QVariant currentValue() const override { return Percent(); }
    void setCurrentValue(const QVariant&) override {}
    QVariant maximumValue() const override { return 100; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

  private:
    int Percent() const { return static_cast<int>(std::lround(mMeter.Shown() * 100)); }

    LevelMeter& mMeter;
};

QAccessibleInterface* Spoken(const QString&, QObject* Object) {
    auto* Meter = qobject_cast<LevelMeter*>(Object);
    return Meter ? new SpokenLevel(Meter) : nullptr;
}

}  // namespace

LevelMeter::LevelMeter(QWidget* Parent) : QWidget(Parent) {
    static const bool IsTold = (QAccessible::installFactory(&Spoken), true);
    Q_UNUSED(IsTold)
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LevelMeter::SetLevel(double Level) {
    Show(std::max(ShareOf(Level), mShown - FallPerStep));
}

void LevelMeter::Clear() {
    Show(0);
}

void LevelMeter::Show(double Share) {
    const double Now = std::max(0.0, Share);
    if (std::exchange(mShown, Now) != Now) update();
}

QSize LevelMeter::sizeHint() const {
    const int Height = fontMetrics().height();
    return {Height * 12, Height};
}

void LevelMeter::paintEvent(QPaintEvent*) {
    QPainter Painter(this);
    Painter.setRenderHint(QPainter::Antialiasing);
    QColor Empty = palette().color(QPalette::WindowText);
    Empty.setAlphaF(0.14F);
    const double Step = static_cast<double>(width()) / Segments;
    const int Lit = static_cast<int>(std::lround(mShown * Segments));
    Painter.setPen(Qt::NoPen);
    for (int I = 0; I < Segments; ++I) {
        const QColor Full = I >= LoudFrom * Segments ? Loud : Good;
        Painter.setBrush(I < Lit ? Full : Empty);
        const int Place = isRightToLeft() ? Segments - 1 - I : I;
        Painter.drawRoundedRect(QRectF(Place * Step, 0, Step - 2, height()), 1.5, 1.5);
    }
}

}  // namespace neb
