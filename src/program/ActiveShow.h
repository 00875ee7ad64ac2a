// The active slide show, as the menu plays, rehearses and films it.
#pragma once

namespace neb {

class frmNEBSlideShow;

// Where none has been chosen, the user is asked to choose one in preferences, or to make the first.
void PlayActiveShow(frmNEBSlideShow& Main);
void RehearseActiveShow(frmNEBSlideShow& Main);
void FilmActiveShow(frmNEBSlideShow& Main);

}  // namespace neb
