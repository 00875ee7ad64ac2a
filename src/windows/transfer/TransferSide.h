// One side of a transfer as its window shows it: the list of a database's albums, and of the shows
// of the chosen one. A destination has an entry for a new one at the head of each list.
#pragma once

#include <QStringList>
#include <cstdint>
#include <optional>

#include "windows/frame/modBroadcast.h"

QT_BEGIN_NAMESPACE
class QComboBox;
QT_END_NAMESPACE

namespace neb {

class clsDBEngine;

class TransferSide {
  public:
    struct Controls {
        QComboBox* cboAlbum;
        QComboBox* cboSlideShow;
        bool TakesNew;    // a destination
        bool ListsShows;  // else the list of shows stays empty
    };
    explicit TransferSide(Controls Given);

    clsDBEngine* Engine() const { return mEngine; }
    // Lists the albums of a database, null: none, with the first entry chosen.
    void List(clsDBEngine* theDB);
    // Lists the shows of the chosen album, with the first entry chosen.
    void ListShows();
    // As the user does it: whoever follows the lists is told. What is not listed is not chosen.
    void Choose(std::int32_t AlbumID, std::int32_t SlideShowID) const;
    // Lists all anew with what was chosen, and tells nobody.
    void ListAgain();
    // Keeps the lists true; nothing without the keys that the event needs.
    void Follow(const QString& ObjectType, const QString& EventType, const EventKeys& Keys);

    std::int32_t AlbumID() const;      // as chosen; 0 for none and for a new one
    std::int32_t SlideShowID() const;  // the same
    bool HasAlbum() const;             // an entry is chosen, be it that for a new one
    bool IsNewAlbum() const;
    bool IsNewSlideShow() const;
    // The names of what is chosen and is there; nothing for a new one.
    std::optional<QString> AlbumName() const;
    std::optional<QString> SlideShowName() const;
    QStringList AlbumEntries() const;
    QStringList SlideShowEntries() const;

  private:
    void FillAlbums();
    void FillShows();
    void RemoveAlbum(std::int32_t AlbumID);
    std::optional<QString> NameIn(const QComboBox& Box) const;

    Controls mControls;
    clsDBEngine* mEngine = nullptr;
};

}  // namespace neb
