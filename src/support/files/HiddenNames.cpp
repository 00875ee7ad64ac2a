#include "support/files/HiddenNames.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

namespace neb {
namespace {

// In small letters: the systems they come from tell no case. None is a word that people would call
// a folder of pictures by; "Trash" and "Recycled" alone might be.
constexpr auto Folders = std::to_array<std::string_view>(
    {"$recycle.bin", "recycler", "system volume information", "lost+found", "#recycle", "#snapshot",
     "@recycle", "@recently-snapshot", "@eadir", "@tmp", "__macosx", "trashbox", "msocache"});
constexpr auto Files =
    std::to_array<std::string_view>({"thumbs.db", "ehthumbs.db", "ehthumbs_vista.db", "desktop.ini",
                                     "picasa.ini", "zbthumbnail.info", "icon\r"});

char Small(char Letter) {
    return Letter >= 'A' && Letter <= 'Z' ? static_cast<char>(Letter - 'A' + 'a') : Letter;
}

bool IsAmong(std::string_view Name, std::span<const std::string_view> Names) {
    return std::any_of(Names.begin(), Names.end(), [&](std::string_view Each) {
        return std::equal(Name.begin(), Name.end(), Each.begin(), Each.end(),
                          [](char A, char B) { return Small(A) == B; });
    });
}

bool IsHidden(std::string_view Name, std::span<const std::string_view> Names) {
    return Name.starts_with('.') || IsAmong(Name, Names);
}

// All names that are looked for are plain letters.
std::string PlainOf(const QString& Name) {
    return Name.toLatin1().toStdString();
}

}  // namespace

bool IsHiddenFile(std::string_view Name) {
    return IsHidden(Name, Files);
}

bool IsHiddenFile(const QString& Name) {
    return IsHiddenFile(PlainOf(Name));
}

bool IsHiddenFolder(std::string_view Name) {
    return IsHidden(Name, Folders);
}

bool IsHiddenFolder(const QString& Name) {
    return IsHiddenFolder(PlainOf(Name));
}

}  // namespace neb
