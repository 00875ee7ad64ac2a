#include "tools/shows/ToolShow.h"

#include <QStandardPaths>

#include "settings/modNEBSlideShow.h"
#include "tools/words/Named.h"
#include "tools/words/modWords.h"

namespace neb {

QString TakeShowWords(QStringList& Words, ShowWords& Of) {
    const std::pair<const char*, QString*> Texts[] = {
        {"--album", &Of.Album}, {"--show", &Of.Show}, {"--documents", &Of.Documents}};
    for (const auto& [Name, Into] : Texts) {
        const auto Value = TakeOption(Words, QLatin1String(Name));
        if (Value && Value->isEmpty()) return QLatin1String(Name);
        *Into = Value.value_or(QString());
    }
    return {};
}

UserSettings::UserSettings(const QString& Documents)
    : mDocuments(DocumentsPath), mDBPath(DBPathCache) {
    if (!Documents.isEmpty())
        SetDocumentsPath(Documents);
    else if (DocumentsPath.isEmpty())
        SetDocumentsPath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

UserSettings::~UserSettings() {
    DocumentsPath = mDocuments;
    DBPathCache = mDBPath;
}

ToolShow::ToolShow(const ShowWords& Of) : mSettings(Of.Documents) {
    Engine.SetDBPath(Of.Dir);
    Engine.SetProgramPath(AppPath());
    Engine.InitializeDB(Recovery::InMemory);
}

std::unique_ptr<ToolShow> ToolShow::Open(const ShowWords& Of, ToolIO& IO) {
    std::unique_ptr<ToolShow> Its(new ToolShow(Of));
    const auto& Albums = Its->Engine.Albums;
    Its->Album = Named(Albums, &clsNEBAlbum::AlbumName, Of.Album);
    if (!Its->Album) {
        Unknown(IO, QStringLiteral("album"), Of.Album, NamesOf(Albums, &clsNEBAlbum::AlbumName));
        return nullptr;
    }
    const auto& Shows = Its->Album->SlideShows;
    Its->Show = Named(Shows, &clsNEBSlideShow::SlideShowName, Of.Show);
    if (Its->Show) return Its;
    Unknown(IO, QStringLiteral("show"), Of.Show, NamesOf(Shows, &clsNEBSlideShow::SlideShowName));
    return nullptr;
}

}  // namespace neb
