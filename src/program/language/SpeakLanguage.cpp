#include "program/language/SpeakLanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <memory>
#include <vector>

#include "InitAssets.h"

namespace neb {
namespace {

const QString Source = QStringLiteral("en");

// A text is translated once for all windows that show it.
class OwnTranslator : public QTranslator {
  public:
    QString translate(const char*, const char* Text, const char* Note, int Number) const override {
        return QTranslator::translate("neb", Text, Note, Number);
    }
};

struct Spoken {
    QString Language = Source;
    std::vector<std::unique_ptr<QTranslator>> Installed;  // goes out of use as it is deleted
};

Spoken& Now() {
    static Spoken Is;
    return Is;
}

bool Add(std::unique_ptr<QTranslator> Words, const QString& Path) {
    if (!Words->load(Path)) return false;
    QCoreApplication::installTranslator(Words.get());
    Now().Installed.push_back(std::move(Words));
    return true;
}

bool Take(const QString& Language) {
    if (Language != Source && !Add(std::make_unique<OwnTranslator>(),
                                   QStringLiteral(":/neb/translations/neb_%1.qm").arg(Language)))
        return false;
    Now().Language = Language;
    Add(std::make_unique<QTranslator>(),
        QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_") + Language);
    return true;
}

}  // namespace

void SpeakLanguage(const QStringList& Wanted) {
    InitAssets();
    Now() = {};
    for (const QString& Each : Wanted)
        if (Take(Each.section(u'-', 0, 0))) return;
}

QString SpokenLanguage() {
    return Now().Language;
}

}  // namespace neb
