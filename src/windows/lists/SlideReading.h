// The reading of slides or pictures into the rows of a list, under frmLoading: the window over the
// work, its bar, what ended it, and the changes that wait until it is over. Each window that fills
// a list holds one. While it reads the window may be closed, what is listed may go, and another
// album may be chosen: it looks at all that after every row.
#pragma once

#include <QString>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "controls/forms/Progress.h"

namespace neb {

class FlexGrid;
class Form;
class frmLoading;

class SlideReading : private ProgressParent {
  public:
    enum class End {
        Done,
        Stopped,  // by the user; what was read until then stays
        Gone,     // what is listed is not there, or not any more
        Again,    // another reading has begun instead, or is about to
        Closed    // the window has been closed
    };
    // What the bar shows after I of N rows, I from 1.
    enum class Bar {
        Percent,      // I * 100 / N of 100
        Count,        // I of N
        CountAndText  // and "50% Complete" as its tool tip
    };
    using KeyList = std::vector<std::int32_t>;

    struct Order {
        // Called before the window is shown, to empty the list; false: there is nothing to read.
        // May be left out.
        std::function<bool()> Begin = {};
        // One key a row, in the order of the list; nothing, after a box where one is due, when what
        // is listed is not there. May take its time when it asks Yield().
        std::function<std::optional<KeyList>()> Keys;
        // Makes the row of a key, or none. Number counts from 1.
        std::function<void(std::int32_t Key, int Number)> MakeRow;
        // Whether what is listed is there still, asked before every row. May be left out.
        std::function<bool()> IsThere = {};
        std::vector<FlexGrid*> Grids = {};  // not painted while rows are made
        Bar Shows = Bar::Percent;
        bool MayStop = false;    // Esc asks whether to stop
        QString KeysTitle = {};  // of the window until the keys are known; empty: as for the rows
    };

    explicit SlideReading(Form& Window) : mWindow(Window) {}
    ~SlideReading() override;
    SlideReading(const SlideReading&) = delete;
    SlideReading& operator=(const SlideReading&) = delete;

    // Reads under frmLoading and returns when that has closed. Asked for anew meanwhile (Again is
    // then the answer at once) it begins once more from the start, with the order that came last;
    // who asked first gets the end of all. What MakeRow or Keys throws passes out.
    End Read(const Order& What);
    bool IsReading() const { return mReading; }

    // For Keys and MakeRow. The window over the work, into which thumbnails can be loaded.
    const std::shared_ptr<frmLoading>& Window() const { return mLoading; }
    // Lets waiting events run; false when the reading is to end.
    bool Yield();
    // From the Form_Unload of the window: nobody is there any more whom Esc could stop.
    void WindowClosed();

    // What other windows did meanwhile, to be followed when the reading is over, in that order.
    struct HeardChange {
        QString ObjectType, EventType;
        std::vector<std::int32_t> Keys;
    };
    void KeepForLater(HeardChange Change) { mWaiting.push_back(std::move(Change)); }
    std::optional<HeardChange> NextWaiting();

  private:
    void DoActivity() override;
    void DoAbort() override { mEnd = End::Stopped; }
    void ReadOnce();
    void MakeRows(const KeyList& Keys);
    void MoveBar(int Value, int Count);
    bool GoesOn();
    bool IsStillThere();

    Form& mWindow;
    std::optional<Order> mAsked;  // what is to be read next
    Order mOrder;                 // what is being read
    End mEnd = End::Done;
    bool mReading = false;
    std::shared_ptr<frmLoading> mLoading;
    std::deque<HeardChange> mWaiting;
};

}  // namespace neb
