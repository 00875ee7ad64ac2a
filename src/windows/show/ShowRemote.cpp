#include "windows/show/ShowRemote.h"

#include <algorithm>

#include "show/ShowRun.h"
#include "windows/show/CaptionLabel.h"
#include "windows/show/frmSlideShowProjector.h"

namespace neb {
namespace {

using State = MediaStatus::State;

State StateOf(const ShowState& Show) {
    if (Show.PlayCommand == u"Pause") return State::Playing;
    return Show.PlayCommand == u"Resume" ? State::Paused : State::Stopped;
}

// What a window over the show holds, preferences say, is not for the media keys to set going. A box
// is no such window: a show that nobody attends to must obey although one is up.
bool IsHeldByWindow(const frmSlideShowProjector& Show) {
    const auto Loaded = LoadedForms();
    const auto Own = std::ranges::find(Loaded, &Show, &std::shared_ptr<Form>::get);
    const auto Holds = [](const auto& Each) { return Each->isModal() && Each->isVisible(); };
    return !Show.isEnabled() || (Own != Loaded.end() && std::any_of(Own + 1, Loaded.end(), Holds));
}

// As the keys do it: a black screen or a card over the show goes where it would be in the way.
void PlayPause(frmSlideShowProjector& Show, const ShowRun& Run) {
    const bool Stands = StateOf(Run.State()) == State::Stopped;
    Show.Do(Stands ? ShowCommand::StopRestart : ShowCommand::PlayPause);
}

void Raise(frmSlideShowProjector& Show) {
    Show.raise();
    Show.activateWindow();
}

QString TitleOf(const frmSlideShowProjector& Show, const ShowRun& Run) {
    const auto* Caption = Show.findChild<CaptionLabel*>(QStringLiteral("lblCaption"));
    const QString Text = Caption ? Caption->ShownText() : QString();
    return !Text.isEmpty() ? Text
                           : QObject::tr("Slide %1 of %2")
                                 .arg(Run.Memory().CurrentSlideSeq)
                                 .arg(Run.SlideCount());
}

}  // namespace

double ShowRemote::Played::Now() const {
    return Goes ? Before + TheServices().Time->Ticks() - Since : Before;
}

void ShowRemote::Played::Go(bool On) {
    Before = Now();
    Since = TheServices().Time->Ticks();
    Goes = On;
}

ShowRemote::ShowRemote(frmSlideShowProjector& Show, const ShowRun& Run) : mShow(Show), mRun(Run) {
    if (TheServices().Media) TheServices().Media->Offer(*this);
}

ShowRemote::~ShowRemote() {
    if (TheServices().Media) TheServices().Media->Withdraw(*this);
}

MediaStatus ShowRemote::Status() const {
    MediaStatus Is;
    Is.Is = StateOf(mRun.State());
    Is.Title = TitleOf(mShow, mRun);
    Is.Album = mRun.SlideShowName();
    Is.PictureFile = mRun.CurrentFile();
    Is.TrackNumber = mRun.Memory().CurrentSlideSeq;
    Is.Length = mRun.IsManual() ? 0 : mRun.SoundFields().SlideInterval;
    Is.CanPause = !mRun.IsManual() && Is.Is != State::Stopped;
    Is.CanGo = mRun.SlideCount() > 0;
    return Is;
}

double ShowRemote::Position() const {
    return mPlayed.Now() / 1000;
}

void ShowRemote::Follow() {
    const MediaStatus Is = Status();
    const bool IsOther = Is.TrackNumber != mTold.TrackNumber || Is.PictureFile != mTold.PictureFile;
    if (IsOther) mPlayed = {};
    mPlayed.Go(Is.Is == State::Playing);
    if (Is == mTold) return;
    mTold = Is;
    if (TheServices().Media) TheServices().Media->Changed();
}

void ShowRemote::Obey(MediaCommand Command) {
    QMetaObject::invokeMethod(
        this, [this, Command] { CarryOut(Command); }, Qt::QueuedConnection);
}

void ShowRemote::CarryOut(MediaCommand Command) {
    const auto Held = mShow.shared_from_this();
    const bool HasBegun = !mRun.State().PlayCommand.isEmpty();
    if (!mShow.IsLoaded() || !HasBegun || IsHeldByWindow(mShow)) return;
    const bool Plays = StateOf(mRun.State()) == State::Playing;
    switch (Command) {
        case MediaCommand::Play:
            return Plays ? void() : PlayPause(mShow, mRun);
        case MediaCommand::Pause:
            return mShow.Do(ShowCommand::Pause);
        case MediaCommand::PlayPause:
            return PlayPause(mShow, mRun);
        case MediaCommand::Stop:
            return mShow.Do(ShowCommand::Stop);
        case MediaCommand::Next:
            return mShow.Do(ShowCommand::Next);
        case MediaCommand::Previous:
            return mShow.Do(ShowCommand::Previous);
        case MediaCommand::Raise:
            return Raise(mShow);
        case MediaCommand::Quit:
            mShow.Unload();
    }
}

}  // namespace neb
