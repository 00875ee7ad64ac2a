#include "windows/transfer/TransferKinds.h"

#include <algorithm>
#include <iterator>

#include "support/Texts.h"

namespace neb {
namespace {

#define NEB_EXPORT_SIDE \
    "txtDstDB", "cmdDstDBBrowse", "cmdDstDBFolder", "cmdExport", ExportText, ExportName
#define NEB_IMPORT_SIDE \
    "txtSrcDB", "cmdSrcDBBrowse", "cmdSrcDBFolder", "cmdImport", ImportText, ImportName

constexpr char ExportText[] = QT_TR_NOOP("Expor&t");
constexpr char ExportName[] = QT_TR_NOOP("Export");
constexpr char ImportText[] = QT_TR_NOOP("Impor&t");
constexpr char ImportName[] = QT_TR_NOOP("Import");
constexpr char NoDestination[] = QT_TR_NOOP("You must first select an export destination.");
constexpr char NoSource[] = QT_TR_NOOP("You must first select an import source.");
constexpr char DestinationName[] = QT_TR_NOOP("Directory of the destination database");
constexpr char SourceName[] = QT_TR_NOOP("Directory of the source database");
constexpr char DestinationTip[] = QT_TR_NOOP(
    "Where the other database lies, or is to be made: type it and press Enter, choose it, or drop "
    "the folder on this window");
constexpr char SourceTip[] = QT_TR_NOOP(
    "Where the other database lies: type it and press Enter, choose it, or drop the folder on this "
    "window");

constexpr TransferKind Kinds[] = {
    {TransferWindow::AlbumExport, true, false, "frmAlbumExport", QT_TR_NOOP("Export Album"),
     "export", NEB_EXPORT_SIDE, QT_TR_NOOP("Copy the album to the other database"), DestinationName,
     DestinationTip, NoDestination,
     QT_TR_NOOP("Choose where the album is to go: the folder of another database,\nor an empty "
                "folder, such "
                "as one on a stick."),
     QT_TR_NOOP("Export"), QT_TR_NOOP("Exporting Album"), QT_TR_NOOP("Album \"%1\" exported: %2.")},
    {TransferWindow::AlbumImport, false, false, "frmAlbumImport", QT_TR_NOOP("Import Album"),
     "import", NEB_IMPORT_SIDE, QT_TR_NOOP("Copy the album into your own database"), SourceName,
     SourceTip, NoSource,
     QT_TR_NOOP("Choose the folder of the database that the album comes from."),
     QT_TR_NOOP("Import"), QT_TR_NOOP("Importing Album"), QT_TR_NOOP("Album \"%1\" imported: %2.")},
    {TransferWindow::SlideShowExport, true, true, "frmSlideShowExport",
     QT_TR_NOOP("Export Slide Show"), "export", NEB_EXPORT_SIDE,
     QT_TR_NOOP("Copy the slide show to the other database"), DestinationName, DestinationTip,
     NoDestination,
     QT_TR_NOOP("Choose where the slide show is to go: the folder of another database,\nor an "
                "empty folder, "
                "such as one on a stick."),
     QT_TR_NOOP("Export"), QT_TR_NOOP("Exporting Slide Show"),
     QT_TR_NOOP("Slide show \"%1\" exported: %2.")},
    {TransferWindow::SlideShowImport, false, true, "frmSlideShowImport",
     QT_TR_NOOP("Import Slide Show"), "import", NEB_IMPORT_SIDE,
     QT_TR_NOOP("Copy the slide show into your own database"), SourceName, SourceTip, NoSource,
     QT_TR_NOOP("Choose the folder of the database that the slide show comes from."),
     QT_TR_NOOP("Export"), QT_TR_NOOP("Importing Slide Show"),
     QT_TR_NOOP("Slide show \"%1\" imported: %2.")},
};

#undef NEB_EXPORT_SIDE
#undef NEB_IMPORT_SIDE

}  // namespace

const TransferKind& KindOf(TransferWindow Which) {
    return *std::find_if(std::begin(Kinds), std::end(Kinds),
                         [Which](const TransferKind& Each) { return Each.Which == Which; });
}

}  // namespace neb
