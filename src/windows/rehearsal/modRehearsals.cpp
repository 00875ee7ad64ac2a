#include "windows/rehearsal/modRehearsals.h"

#include "windows/rehearsal/frmRehearsal.h"

namespace neb {

void ShowRehearsal(std::int32_t AlbumID, std::int32_t SlideShowID) {
    NewForm<frmRehearsal>()->RehearseShow(AlbumID, SlideShowID);
}

}  // namespace neb
