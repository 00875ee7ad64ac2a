#include "windows/frame/WindowSize.h"

#include <algorithm>

#include "windows/frame/VisiblePlace.h"

namespace neb {
namespace {

constexpr int LongestLine = 64;     // of its heights: wider lists are no easier to read
constexpr double WidestView = 1.6;  // of its height: beside a picture that fills it all is blank
constexpr int StepsLeftFree = 2;    // of the cascade, for the windows that open next

const struct {
    QStringView Section;
    WindowAsks Asks;
    bool KeptFromOutside;
} Windows[] = {
    {u"frmSlideDBM", WindowAsks::Picture, false},
    {u"frmPicturePopup", WindowAsks::Picture, false},
    {u"frmSlideShowDBM", WindowAsks::Lines, false},
    {u"frmImportFilter", WindowAsks::Lines, false},
    {u"frmQuickShow", WindowAsks::Lines, false},
    {u"frmSlideMgrBulk", WindowAsks::Lines, false},
    {u"frmRehearsal", WindowAsks::Lines, false},
    {u"frmFilm", WindowAsks::Picture, false},
    {u"frmAlbumView", WindowAsks::Lines, false},
    {u"frmSlideShowView", WindowAsks::Lines, false},
    {u"frmHelp", WindowAsks::Lines, true},
    {u"frmDiscFolder", WindowAsks::Designed, true},
    {u"frmAlbumImport", WindowAsks::Designed, true},
    {u"frmAlbumExport", WindowAsks::Designed, true},
    {u"frmSlideShowImport", WindowAsks::Designed, true},
    {u"frmSlideShowExport", WindowAsks::Designed, true},
    {u"frmPreferences", WindowAsks::Designed, true},
    {u"frmCheckPictures", WindowAsks::Lines, true},
    {u"frmRestore", WindowAsks::Lines, true},
    {u"frmDirSelect", WindowAsks::Lines, true},
    {u"frmNewAlbumWzd1", WindowAsks::Lines, true},
    {u"frmPrintAlbum", WindowAsks::Designed, true},
    {u"frmPrintSlideShow", WindowAsks::Designed, true},
    {u"frmPrintSlide", WindowAsks::Designed, true},
    {u"frmPrintSheet", WindowAsks::Designed, true},
    {u"frmAlbumRename", WindowAsks::Designed, true},
    {u"frmAlbumDelete", WindowAsks::Designed, true},
    {u"frmGetObjectName", WindowAsks::Designed, true},
    {u"frmInputBox", WindowAsks::Designed, true},
    {u"frmSoundRecorder", WindowAsks::Designed, true},
};

auto RowOf(QStringView Section) {
    return std::find_if(std::begin(Windows), std::end(Windows),
                        [&](const auto& Each) { return Each.Section == Section; });
}

}  // namespace

WindowAsks AskedBy(QStringView Section) {
    const auto Row = RowOf(Section);
    return Row == std::end(Windows) ? WindowAsks::Designed : Row->Asks;
}

bool IsKeptFromOutside(QStringView Section) {
    const auto Row = RowOf(Section);
    return Row != std::end(Windows) && Row->KeptFromOutside;
}

QSize OpeningSize(WindowAsks Asks, const QSize& Designed, int LineHeight, const QSize& Room) {
    if (Asks == WindowAsks::Designed) return Designed.boundedTo(Room);
    const int Free = StepsLeftFree * CascadeStep(LineHeight);
    QSize Most = Room - QSize(Free, Free);
    const int Widest =
        Asks == WindowAsks::Picture ? qRound(Most.height() * WidestView) : LongestLine * LineHeight;
    Most.setWidth(std::min(Most.width(), Widest));
    return Most.expandedTo(Designed).boundedTo(Room);
}

}  // namespace neb
