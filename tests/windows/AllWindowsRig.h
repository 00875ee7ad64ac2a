// A database in use: albums with pictures and a sound, the store of thumbnails in place, and a
// slide manager, a bulk slide manager and an import window on any album.
#pragma once

#include "windows/lists/clsImageBuffer.h"
#include "windows/slides/SlideRig.h"
#include "windows/slides/frmSlideMgrBulk.h"

namespace neb::harness {

class AllWindowsRig : public SlideRig {
  protected:
    AllWindowsRig() {
        Buffer.BufferGrid = &Store;
        Buffer.UseSmallFiles = true;
        ImageBuffer = &Buffer;
    }
    ~AllWindowsRig() override {
        const LettingGo Answers;
        for (const auto& Each : LoadedForms()) Each->Unload();
        ImageBuffer = nullptr;
        Buffer.BufferGrid = nullptr;
    }

    void ExpectDone(const QString& Text) {
        Boxes.Expect(Text, u"Operation Completed"_s, BoxIcon::Information, BoxAnswer::Ok);
    }
    void ExpectSlideDeletion() {
        Boxes.Expect(
            u"Are you sure you want to delete the selected slide defintion?\n"
            "WARNING: If you procede the slide will be deleted from all\n"
            "Slide Shows that use it?"_s,
            u"Delete Confirmation"_s, BoxIcon::Question, BoxAnswer::Yes);
        Boxes.Expect(u"Slide Deleted Successfully."_s, u"Delete Successful"_s, BoxIcon::Information,
                     BoxAnswer::Ok);
    }
    void ExpectAlbumDeletion() {
        Boxes.Expect(
            u"Are you sure you want to delete the selected Album?\n"
            "If you proceed all the slides and slide shows within\nwill be lost."_s,
            u"Delete Confirmation"_s, BoxIcon::Question, BoxAnswer::Yes);
    }

    clsImageBuffer Buffer;
    FlexGrid Store;
};

}  // namespace neb::harness
