// Chapter: the show manager, which the wizard has opened and which has followed what was done to
// the album since. A show is composed, with a caption of its own and two pieces of music.
#include "Tour.h"
#include "TourControls.h"
#include "TourSteps.h"
#include "controls/forms/frmLoading.h"
#include "windows/compose/TrackList.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/lists/SlideGrids.h"
#include "windows/lists/clsImageBuffer.h"

namespace neb::demo {
namespace {

using Manager = frmSlideShowDBM;
constexpr int ColPicture = clsImageBuffer::ColPicture;
constexpr int ColCaption = clsImageBuffer::ColText;

constexpr const char* LeftOut = "Morning in the Mountains";
constexpr const char* Farewell = "Home again, above the clouds";
constexpr const char* MovedUp = "Harbour at Night";
constexpr int Slides = 9, Some = 4;

FlexGrid& Grid(const char* Name) {
    return In<FlexGrid, Manager>(Name);
}

std::function<void()> Press(const char* Name) {
    return demo::Press<Manager>(Name);
}

std::function<bool()> HasRows(const char* Name, int Rows) {
    return [Name, Rows] { return Grid(Name).Rows() == Rows; };
}

int RowOf(const char* Name, const QString& Caption) {
    return RowWith(Grid(Name), ColCaption, Caption);
}

std::function<bool()> StandsAt(const char* Caption, int Place) {
    return [=] { return RowOf("flxSelected", Caption) == Place - 1; };
}

void PickSlide(const QString& Caption) {
    ClickCell(Grid("flxSelected"), RowOf("flxSelected", Caption), ColPicture);
}

// It stood open while other windows changed captions and the name of the album.
void ExpectItFollowed() {
    const QString Title = Opened<Manager>().windowTitle();
    if (!Title.endsWith(QLatin1String(AlbumName)))
        throw Fault(QStringLiteral("the show manager is still \"%1\"").arg(Title));
    for (const char* Caption :
         {"Every drop holds a garden", "Home again, above the clouds", "The wood behind the house"})
        RowOf("flxNonSelected", QString::fromLatin1(Caption));
}

void MoveSlides(Tour& Guide) {
    Guide.Do("pick-some-slides", {}, [] {
        ExpectItFollowed();
        ClickCell(Grid("flxNonSelected"), 0, ColCaption);
        ClickCell(Grid("flxNonSelected"), Some - 1, ColCaption, Qt::ShiftModifier);
    });
    Guide.Do("move-some-slides", {}, Press("cmdMoveRightOne"));
    Guide.Do("move-all-slides", HasRows("flxSelected", Some), Press("cmdMoveRightAll"));
    Guide.Do("pick-the-slide-to-leave-out", HasRows("flxSelected", Slides),
             [] { PickSlide(LeftOut); });
    Guide.Do("leave-a-slide-out", {}, Press("cmdMoveLeftOne"));
}

// By a typed place, and by a button.
void OrderSlides(Tour& Guide) {
    constexpr int Last = Slides - 1;
    Guide.Do("type-a-place", HasRows("flxSelected", Last), [] {
        TypeInCell(Grid("flxSelected"), RowOf("flxSelected", Farewell), ColPlace,
                   QString::number(Last));
    });
    Guide.Do("pick-the-slide-to-move-up", StandsAt(Farewell, Last), [] { PickSlide(MovedUp); });
    Guide.Do("move-a-slide-up", StandsAt(MovedUp, 5), Press("cmdMoveUp"));
    Guide.Do("type-a-caption-of-the-show", StandsAt(MovedUp, 4), [] {
        TypeInCell(Grid("flxSelected"), RowOf("flxSelected", "Desert Dunes"), ColCaption,
                   QStringLiteral("Sand, as far as the eye can see"));
    });
}

FlexGrid& Tracks() {
    return Grid("flxSoundTracks");
}

void ChooseTrackFile(Tour& Guide, int Row, const QString& File) {
    const QString Number = QString::number(Row + 1);
    Guide.Do("press-the-dots-" + Number, {},
             [Row] { PressCellButton(Tracks(), Row, TrackList::ColFile); });
    Guide.Add({"choose-music-" + Number, &FileDialogIsInFront, [File] { TypeFileName(File); }});
    Guide.Do("music-chosen-" + Number,
             [File, Row] {
                 return !FileDialogIsOpen() && Tracks().TextMatrix(Row, TrackList::ColFile) == File;
             },
             {});
}

void AddTrack(Tour& Guide, int Row, int First, int Last, TrackList::TrackColumn Flag,
              const QString& File) {
    Guide.Do(QStringLiteral("track-%1").arg(Row + 1), {}, [=] {
        ChooseInCell(Tracks(), Row, TrackList::ColStart, QString::number(First));
        ChooseInCell(Tracks(), Row, TrackList::ColEnd, QString::number(Last));
        ClickCell(Tracks(), Row, Flag);
        if (!Tracks().Checked(Row, Flag)) throw Fault(QStringLiteral("the box stays empty"));
    });
    ChooseTrackFile(Guide, Row, File);
}

void SaveShow(Tour& Guide) {
    Guide.Do("name-the-show", {}, [] { Type(In<QLineEdit, Manager>("txtName"), SlideShowName); });
    Guide.Add({"slide-show-manager", {}, Press("cmdSave")});
    Guide.Answer("show-saved", "Slide Show Saved Successfully.");
}

}  // namespace

void AddShowManagerOpened(Tour& Guide) {
    Guide.Add({"slide-show-manager-new",
               [] {
                   return Open<Manager>() && !Open<frmLoading>() &&
                          Grid("flxNonSelected").Rows() == Slides;
               },
               {}});
}

void AddShowManager(Tour& Guide, const Story& Told) {
    MoveSlides(Guide);
    OrderSlides(Guide);
    AddTrack(Guide, 0, 1, 4, TrackList::ColFitToSong,
             Told.Music + QStringLiteral("/Morning Light.wav"));
    AddTrack(Guide, 1, 5, 6, TrackList::ColFade, Told.Music + QStringLiteral("/Evening Waltz.wav"));
    SaveShow(Guide);
    Guide.Do("close-the-show-manager", {}, Press("cmdClose"));
    Guide.Do("after-the-show-manager", IsClosed<Manager>(), {});
}

}  // namespace neb::demo
