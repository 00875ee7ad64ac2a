#include "show/ScreenChoice.h"

#include <algorithm>

namespace neb {
namespace {

constexpr QChar Between = u'|';

template <class Condition>
int PlaceOf(const std::vector<DesktopScreen>& There, const Condition& Fits) {
    const auto Found = std::find_if(There.begin(), There.end(), Fits);
    return Found == There.end() ? -1 : static_cast<int>(Found - There.begin());
}

qint64 Area(const DesktopScreen& Screen) {
    return qint64{Screen.Pixels.width()} * Screen.Pixels.height();
}

int Largest(const std::vector<DesktopScreen>& There, int Own) {
    int Found = Own;
    for (int Each = 0; Each < static_cast<int>(There.size()); ++Each)
        if (Found < 0 ||
            Area(There[static_cast<size_t>(Each)]) > Area(There[static_cast<size_t>(Found)]))
            Found = Each;
    return Found;
}

int Named(const QString& Key, const std::vector<DesktopScreen>& There) {
    const QString Name = Key.section(Between, 0, 0), Model = Key.section(Between, 1);
    const int Same = PlaceOf(There, [&](const auto& Each) { return ScreenKey(Each) == Key; });
    if (Same >= 0) return Same;
    const int Device = Model.isEmpty()
                           ? -1
                           : PlaceOf(There, [&](const auto& Each) { return Each.Model == Model; });
    return Device >= 0 ? Device
                       : PlaceOf(There, [&](const auto& Each) { return Each.Name == Name; });
}

}  // namespace

QString ScreenKey(const DesktopScreen& Screen) {
    return QString(Screen.Name).remove(Between) + Between + Screen.Model;
}

QString TitleOfKey(const QString& Key) {
    const QString Model = Key.section(Between, 1);
    return Key.section(Between, 0, 0) +
           (Model.isEmpty() ? QString() : QStringLiteral(", ") + Model);
}

QString ScreenTitle(const DesktopScreen& Screen) {
    return QStringLiteral("%1 (%2 x %3)")
        .arg(TitleOfKey(ScreenKey(Screen)))
        .arg(Screen.Pixels.width())
        .arg(Screen.Pixels.height());
}

int ChosenScreen(const QString& Choice, const std::vector<DesktopScreen>& There, int Own) {
    if (Choice.isEmpty()) return Own;
    if (Choice == LargestScreen) return Largest(There, Own);
    const int Found = Named(Choice, There);
    return Found >= 0 ? Found : Own;
}

}  // namespace neb
