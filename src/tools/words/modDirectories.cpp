#include "tools/words/modDirectories.h"

#include "settings/modNEBSlideShow.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {

std::optional<QString> OneDirectory(const QStringList& Arguments, ToolIO& IO) {
    if (Arguments.size() != 1 || Arguments[0].isEmpty() || Arguments[0].startsWith(u'-')) {
        Fail(IO, QStringLiteral("One database directory is wanted; see --help."));
        return std::nullopt;
    }
    const std::optional<QString> Named = FolderNamed(Arguments[0], IO);
    if (!Named) return std::nullopt;
    const QString Dir = DatabaseIn(*Named);
    if (FolderExists(Dir)) return Dir;
    Fail(IO, QStringLiteral("There is no directory %1, where the settings in %2 say that the "
                            "database is.")
                 .arg(Dir, *Named));
    return std::nullopt;
}

std::optional<QString> FolderNamed(const QString& Argument, ToolIO& IO) {
    if (FolderExists(Argument)) return WithSeparator(Argument);
    Fail(IO, QStringLiteral("There is no directory %1.").arg(Argument));
    return std::nullopt;
}

}  // namespace neb
