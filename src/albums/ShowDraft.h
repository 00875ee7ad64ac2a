// A show while it is composed: what it holds now, what it held when it was last shown as it is
// stored, and whether that is the same. The slide show manager has one; no window is needed.
#pragma once

#include "albums/ShowContent.h"

namespace neb {

class ShowDraft {
  public:
    const ShowContent& Content() const { return mContent; }  // as it was last composed
    void Compose(ShowContent Now) { mContent = std::move(Now); }
    // The content is what is stored, as far as its slides are still there.
    void SetAsStored() { mAsStored = mContent; }
    // A caption that comes from the slide may have changed there: that is no change of the show.
    // Nor is it one that its record has gone: what it held was given up by whoever deleted it.
    bool IsChanged() const;
    // Slides that the album has no more leave the content and what it is measured against: a show
    // that lost them so is not changed.
    void DropSlides(const std::vector<std::int32_t>& SlideIDs);

  private:
    ShowContent mContent;
    ShowContent mAsStored;
};

}  // namespace neb
