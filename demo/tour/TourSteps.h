// The steps of the demonstration, chapter by chapter: from a folder of pictures to a show with
// music, an album printed and brought into a second database, that show once more after a new start
// of the program, and the second database opened.
#pragma once

#include <QString>

namespace neb {

class frmNEBSlideShow;

namespace demo {

class Tour;

// What the tour is given, and the names under which it keeps what it makes.
struct Story {
    QString Folder;  // of the pictures
    QString Music;   // the folder of the sample music; empty: the short road, to Quick Show alone
    // Where a second database is made, beside Music; the printed album is a PDF of that name.
    QString Second;
};

constexpr const char* QuickShowName = "At First Sight";
constexpr const char* FirstAlbumName = "Pictures";
constexpr const char* AlbumName = "A Year in Pictures";
constexpr const char* SlideShowName = "Four Seasons";

// The whole road; the short one without music.
void AddRoad(Tour& Guide, frmNEBSlideShow& Window, const Story& Told);
// The program has been started once more: the active show goes on where it was left.
void AddReturn(Tour& Guide, frmNEBSlideShow& Window);

// The program has been started on the second database.
void AddVisit(Tour& Guide, frmNEBSlideShow& Window);

// The chapters of the road.
void AddSpeedTest(Tour& Guide);
void AddQuickShow(Tour& Guide, frmNEBSlideShow& Window, const Story& Told);
void AddNewAlbum(Tour& Guide, frmNEBSlideShow& Window, const Story& Told);
void AddSlideManager(Tour& Guide, frmNEBSlideShow& Window);
void AddBulkManager(Tour& Guide, frmNEBSlideShow& Window);
void AddRename(Tour& Guide, frmNEBSlideShow& Window);
// The wizard has opened the show manager; a show is composed in it when the album is ready.
void AddShowManagerOpened(Tour& Guide);
void AddShowManager(Tour& Guide, const Story& Told);
void AddPreferences(Tour& Guide, frmNEBSlideShow& Window);
void AddTheShow(Tour& Guide, frmNEBSlideShow& Window);
void AddPrinting(Tour& Guide, frmNEBSlideShow& Window, const QString& Pdf);
void AddTransfer(Tour& Guide, frmNEBSlideShow& Window, const QString& Second);
void EndProgram(Tour& Guide, frmNEBSlideShow& Window);

}  // namespace demo
}  // namespace neb
