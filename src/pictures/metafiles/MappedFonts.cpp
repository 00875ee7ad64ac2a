#include "pictures/metafiles/MappedFonts.h"

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H

#include <span>
#include <string>
#include <unordered_map>

#include "support/locked/MappedFile.h"

namespace neb {
namespace {

using FontFiles = std::unordered_map<std::string, std::span<const std::byte>>;

// By the path that fontconfig names. Null: files can still be opened. Never ended: letters are
// drawn until the process is gone.
const FontFiles* Mapped = nullptr;

void MapAllOf(const FcFontSet* Fonts, FontFiles& Into) {
    for (int I = 0; Fonts && I < Fonts->nfont; ++I) {
        FcChar8* Path = nullptr;
        if (FcPatternGetString(Fonts->fonts[I], FC_FILE, 0, &Path) != FcResultMatch) continue;
        const auto* const Name = reinterpret_cast<const char*>(Path);
        // of several fonts in one file, and of the variants of one
        if (const auto [At, IsNew] = Into.try_emplace(Name); IsNew) At->second = MappedFile(Name);
    }
}

// What fontconfig looks up at its first question: the name of the program and the language.
void AskOnce() {
    FcPattern* const Asked = FcNameParse(reinterpret_cast<const FcChar8*>("Sans"));
    FcConfigSubstitute(nullptr, Asked, FcMatchPattern);
    FcDefaultSubstitute(Asked);
    FcResult Result = FcResultNoMatch;
    if (FcPattern* const Found = FcFontMatch(nullptr, Asked, &Result)) FcPatternDestroy(Found);
    FcPatternDestroy(Asked);
}

}  // namespace

void MapFonts() {
    FcInit();
    // It would look every half minute whether fonts have come.
    FcConfigSetRescanInterval(nullptr, 0);
    auto* const Files = new FontFiles;
    for (const FcSetName Set : {FcSetSystem, FcSetApplication})
        MapAllOf(FcConfigGetFonts(nullptr, Set), *Files);
    AskOnce();
    Mapped = Files;
}

}  // namespace neb

// In place of FreeType's own, for all libraries of the process: the name that a program defines
// goes before theirs.
FT_Error FT_New_Face(FT_Library Library, const char* Path, FT_Long Index, FT_Face* Face) {
    if (!neb::Mapped) {
        FT_Open_Args Args = {};
        Args.flags = FT_OPEN_PATHNAME;
        Args.pathname = const_cast<char*>(Path);
        return FT_Open_Face(Library, &Args, Index, Face);
    }
    const auto Found = neb::Mapped->find(Path ? Path : "");
    if (Found == neb::Mapped->end() || Found->second.empty()) return FT_Err_Cannot_Open_Resource;
    return FT_New_Memory_Face(Library, reinterpret_cast<const FT_Byte*>(Found->second.data()),
                              static_cast<FT_Long>(Found->second.size()), Index, Face);
}
