// The body of the two windows that look into an album or a show of any database: a list with
// thumbnails in which nothing can be changed. What differs is the title, which slides are listed,
// and where their captions come from.
#pragma once

#include <optional>
#include <vector>

#include "albums/BulkSlides.h"
#include "controls/forms/Form.h"
#include "db/clsDBEngine.h"
#include "windows/frame/modWindowState.h"
#include "windows/lists/SlideReading.h"

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace neb {

class FlexGrid;

class ViewerForm : public Form {
    Q_OBJECT

  public:
    ~ViewerForm() override;

    std::int32_t AlbumID() const { return mSubject.AlbumID; }
    // Fills the list anew from a database that nobody else tells of: the one it was shown from.
    void Refill(clsDBEngine& objDB);

  protected:
    struct Texts {
        QString Empty;  // what the list says when there is nothing in it
        QString Gone;   // and when the album or the show is not there
    };
    ViewerForm(WindowMemory Memory, Texts Says);
    void SetControls(FlexGrid& Grid, QPushButton& cmdClose);
    // Fills the list and shows the window: above a modal window that is open, else beside the
    // others. The engine is asked during this call alone.
    void View(clsDBEngine& objDB, std::int32_t AlbumID, const QString& Title);

    struct ViewedSlide {
        const clsNEBSlide* Slide;
        QString Caption;
    };
    // One key a row, in the order of the list; nothing when what is listed is not there.
    virtual std::optional<std::vector<std::int32_t>> SortedKeys(clsNEBAlbum& Album) = 0;
    // What is listed may go while the list is being filled.
    virtual bool IsThere(clsNEBAlbum&) const { return true; }
    // The slide of a row (Number from 1); nothing, after a box where one is due, leaves it out.
    virtual std::optional<ViewedSlide> SlideOf(clsNEBAlbum& Album, std::int32_t Key,
                                               int Number) = 0;
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
    void AddSlideRow(std::int32_t Key, int Number);
    void ShowSlide(int Row, const ViewedSlide& Viewed);
    void ShowForeignSlide(int Row, const ViewedSlide& Viewed);
    void ShowWindow();
    void ShowPicture(int Row);
    void Close() { Unload(); }

    // What is looked into.
    struct Subject {
        clsDBEngine* DB = nullptr;  // null outside View
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
