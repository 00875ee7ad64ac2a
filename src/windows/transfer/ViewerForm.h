// The body of the two windows that look into an album or a show of any database: a list with
// thumbnails in which nothing can be changed. What differs is the title, which slides are listed,
// and where their captions come from. What is listed of the program's own database follows the
// other windows.
#pragma once

#include <optional>
#include <vector>

#include "albums/BulkSlides.h"
#include "controls/forms/Form.h"
#include "db/clsDBEngine.h"
#include "windows/frame/modBroadcast.h"
#include "windows/frame/modWindowState.h"
#include "windows/lists/SlideReading.h"

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace neb {

class FlexGrid;

class ViewerForm : public Form, public ChangeReceiver {
    Q_OBJECT

  public:
    ~ViewerForm() override;

    std::int32_t AlbumID() const { return mSubject.AlbumID; }
    // Fills the list anew from a database that nobody else tells of: the one it was shown from.
    void Refill(clsDBEngine& objDB);
    void ReceiveEvent(const QString& ObjectType, const QString& EventType,
                      const EventKeys& EventData) override;

  protected:
    struct Texts {
        QString Kind;   // how the title begins
        QString Empty;  // what the list says when there is nothing in it
        QString Gone;   // and when the album or the show is not there
    };
    ViewerForm(WindowMemory Memory, Texts Says);
    void SetControls(FlexGrid& Grid, QPushButton& cmdClose);
    // Fills the list and shows the window: above a modal window that is open, else beside the
    // others. Names are those in the title. An engine that is not the program's own is asked during
    // this call alone.
    void View(clsDBEngine& objDB, std::int32_t AlbumID, const QString& Names);

    struct ViewedSlide {
        const clsNEBSlide* Slide;
        QString Caption;
    };
    // One key a row, in the order of the list; nothing when what is listed is not there.
    virtual std::optional<std::vector<std::int32_t>> SortedKeys(clsNEBAlbum& Album) = 0;
    // What is listed may go while the list is being filled.
    virtual bool IsThere(clsNEBAlbum&) const { return true; }
    // The slide of a row (Number from 1). Refused, it is left out; the text, where there is one, is
    // for who has opened the window.
    virtual Answer<ViewedSlide> SlideOf(clsNEBAlbum& Album, std::int32_t Key, int Number) = 0;
    // Those of the rows of a slide as they are now, in the order of the list.
    virtual QStringList CaptionsOf(clsNEBAlbum& Album, const clsNEBSlide& Slide) const = 0;
    // The names in the title as they are now; asked only where what is listed is there.
    virtual QString NamesIn(const clsNEBAlbum& Album) const = 0;
    virtual std::int32_t SlideShowID() const { return 0; }  // 0: the whole album is listed
    clsNEBSlide* FindSlide(clsNEBAlbum& Album, std::int32_t SlideID) {
        return mFinder.Find(Album, SlideID);
    }

    void Form_Load() override;
    bool Form_Unload() override;
    // There is no work in this window that Esc could lose.
    void reject() override { CloseRequested(); }

  private:
    clsNEBAlbum* Album() const;
    SlideReading::Order Reading();
    void Clear();
    std::optional<SlideReading::KeyList> Keys();
    bool IsStillThere() const;
    Answer<ViewedSlide> AddSlideRow(std::int32_t Key, int Number);
    void AddSlideRowOrTell(std::int32_t Key, int Number);
    void ShowSlide(int Row, const ViewedSlide& Viewed);
    void ShowForeignSlide(int Row, const ViewedSlide& Viewed);
    void ShowWindow();
    void ShowPicture(int Row);
    void Close() { Unload(); }

    bool Concerns(const SlideReading::HeardChange& Heard) const;
    void FollowWaiting();
    void Follow(const SlideReading::HeardChange& Heard);
    void Reload();
    void SlideSaved(std::int32_t SlideID);
    std::vector<int> RowsOf(std::int32_t SlideID) const;
    void SlideDeleted(std::int32_t SlideID);
    void ShowTitle(const QString& Names);
    void KeepingTheRow(const std::function<void()>& Change);

    // What is looked into.
    struct Subject {
        clsDBEngine* DB = nullptr;  // null outside a reading
        QString DBPath;
        std::int32_t AlbumID = 0;
    };

    const WindowMemory mMemory;
    const Texts mSays;
    FlexGrid* mGrid = nullptr;
    Subject mSubject;
    SlideFinder mFinder;
    SlideReading mReading{*this};
};

}  // namespace neb
