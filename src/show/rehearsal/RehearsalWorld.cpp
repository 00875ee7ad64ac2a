#include "show/rehearsal/RehearsalWorld.h"

#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "show/ShowMemory.h"

namespace neb {

RehearsalWorld::RehearsalWorld(Parts Instead)
    : mServices(TheServices()),
      mMaker(TheShowSoundMaker()),
      mEngine(DBEngine),
      mReadOnly(ReadOnlyDB),
      mDBPath(DBPathCache),
      mSlideSeq(CurrentSlideSeq),
      mSlideShowID(CurrentSlideShowID),
      mTimeout(SlideTimeout) {
    TheServices().Time = &Instead.Time;
    TheServices().Boxes = &Instead.Boxes;
    TheServices().Sound = &Instead.Sound;
    TheShowSoundMaker() = std::move(Instead.Maker);
    DBEngine = &Instead.Engine;
    ReadOnlyDB = true;
    DBPathCache = Instead.Engine.DBPath();
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
