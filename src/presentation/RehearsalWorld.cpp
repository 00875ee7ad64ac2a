#include "presentation/RehearsalWorld.h"

#include "db/clsDBEngine.h"
#include "presentation/modSlideShows.h"
#include "shell/modNEBSlideShow.h"

namespace neb {

RehearsalWorld::RehearsalWorld(clsDBEngine& Engine, Clock& Time, MessageBoxes& Boxes,
                               SoundWrapper Wrap)
    : mServices(TheServices()),
      mMaker(TheShowSoundMaker()),
      mEngine(DBEngine),
      mReadOnly(ReadOnlyDB),
      mDBPath(DBPathCache),
      mSlideSeq(CurrentSlideSeq),
      mSlideShowID(CurrentSlideShowID),
      mTimeout(SlideTimeout) {
    TheServices().Time = &Time;
    TheServices().Boxes = &Boxes;
    TheShowSoundMaker() = [Maker = mMaker, Wrap = std::move(Wrap)] { return Wrap(Maker()); };
    DBEngine = &Engine;
    ReadOnlyDB = true;
    DBPathCache = Engine.DBPath();
}

RehearsalWorld::~RehearsalWorld() {
    TheServices() = mServices;
    TheShowSoundMaker() = mMaker;
    DBEngine = mEngine;
    ReadOnlyDB = mReadOnly;
    DBPathCache = mDBPath;
    CurrentSlideSeq = mSlideSeq;
    CurrentSlideShowID = mSlideShowID;
    SlideTimeout = mTimeout;
}

}  // namespace neb
