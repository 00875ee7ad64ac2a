// Precompiled for the layers that know no windows.
#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>
