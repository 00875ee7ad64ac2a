// Albums and shows by the names that people type at nebctl, and what to say when there is none.
#pragma once

#include <QStringList>
#include <memory>
#include <vector>

#include "support/modDEValidation.h"
#include "tools/words/ToolIO.h"

namespace neb {

// The one of that name, case ignored; also as the program would have taken the typed quotes.
template <class Object>
Object* Named(const std::vector<std::unique_ptr<Object>>& Objects, QString Object::*Name,
              const QString& Wanted) {
    for (const QString& Text : {Wanted, ConvertQuotes(Wanted)})
        for (const auto& Each : Objects)
            if ((Each.get()->*Name).compare(Text, Qt::CaseInsensitive) == 0) return Each.get();
    return nullptr;
}

template <class Object>
QString NamesOf(const std::vector<std::unique_ptr<Object>>& Objects, QString Object::*Name) {
    QStringList Names;
    for (const auto& Each : Objects) Names << u'"' + Each.get()->*Name + u'"';
    return Names.isEmpty() ? QStringLiteral("none") : Names.join(QStringLiteral(", "));
}

// A line on Err with the names that there are; What is "album" or "show". Returns ExitFailed.
inline int Unknown(ToolIO& IO, const QString& What, const QString& Wanted, const QString& Names) {
    if (Wanted.isEmpty())
        return Fail(IO, QStringLiteral("--%1 NAME is wanted; there are: %2.").arg(What, Names));
    return Fail(IO,
                QStringLiteral("There is no %1 \"%2\"; there are: %3.").arg(What, Wanted, Names));
}

}  // namespace neb
