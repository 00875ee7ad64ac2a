#include "windows/transfer/TransferKinds.h"

#include <algorithm>
#include <iterator>

namespace neb {
namespace {

#define NEB_EXPORT_SIDE \
    "txtDstDB", "cmdDstDBBrowse", "cmdDstDBFolder", "cmdExport", "Expor&t", "Export"
#define NEB_IMPORT_SIDE \
    "txtSrcDB", "cmdSrcDBBrowse", "cmdSrcDBFolder", "cmdImport", "Impor&t", "Import"

constexpr char NoDestination[] = "You must first select an export destination.";
constexpr char NoSource[] = "You must first select an import source.";
constexpr char DestinationName[] = "Directory of the destination database";
constexpr char SourceName[] = "Directory of the source database";
constexpr char DestinationTip[] =
    "Where the other database lies, or is to be made: type it and press Enter, choose it, or drop "
    "the folder on this window";
constexpr char SourceTip[] =
    "Where the other database lies: type it and press Enter, choose it, or drop the folder on this "
    "window";

constexpr TransferKind Kinds[] = {
    {TransferWindow::AlbumExport, true, false, "frmAlbumExport", "Export Album", "export",
     NEB_EXPORT_SIDE, "Copy the album to the other database", DestinationName, DestinationTip,
     NoDestination,
     "Choose where the album is to go: the folder of another database,\nor an empty folder, such "
     "as one on a stick.",
     "Export", "Exporting Album", "Album \"%1\" exported: %2."},
    {TransferWindow::AlbumImport, false, false, "frmAlbumImport", "Import Album", "import",
     NEB_IMPORT_SIDE, "Copy the album into your own database", SourceName, SourceTip, NoSource,
     "Choose the folder of the database that the album comes from.", "Import", "Importing Album",
     "Album \"%1\" imported: %2."},
    {TransferWindow::SlideShowExport, true, true, "frmSlideShowExport", "Export Slide Show",
     "export", NEB_EXPORT_SIDE, "Copy the slide show to the other database", DestinationName,
     DestinationTip, NoDestination,
     "Choose where the slide show is to go: the folder of another database,\nor an empty folder, "
     "such as one on a stick.",
     "Export", "Exporting Slide Show", "Slide show \"%1\" exported: %2."},
    {TransferWindow::SlideShowImport, false, true, "frmSlideShowImport", "Import Slide Show",
     "import", NEB_IMPORT_SIDE, "Copy the slide show into your own database", SourceName, SourceTip,
     NoSource, "Choose the folder of the database that the slide show comes from.", "Export",
     "Importing Slide Show", "Slide show \"%1\" imported: %2."},
};

#undef NEB_EXPORT_SIDE
#undef NEB_IMPORT_SIDE

}  // namespace

const TransferKind& KindOf(TransferWindow Which) {
    return *std::find_if(std::begin(Kinds), std::end(Kinds),
                         [Which](const TransferKind& Each) { return Each.Which == Which; });
}

}  // namespace neb
