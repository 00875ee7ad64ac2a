#include "windows/slides/ClipPlayer.h"

#include <QPushButton>

#include "controls/fields/Icons.h"
#include "controls/forms/StandOver.h"
#include "sound/clsDirectSound.h"
#include "sound/workers/SoundReading.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr int WatchMs = 100;

}  // namespace

ClipPlayer::ClipPlayer(QPushButton& Button) : QObject(&Button), mButton(Button) {
    mWatch.setInterval(WatchMs);
    connect(&mWatch, &QTimer::timeout, this, &ClipPlayer::Tick);
}

ClipPlayer::~ClipPlayer() = default;

Answer<ClipPlayer::Sound> ClipPlayer::Open(const QString& Path) {
    if (!FileExists(Path))
        return Refuse(tr("The sound of this slide cannot be found.") + u'\n' + Path,
                      tr("Sound Missing"));
    const auto Opened = std::make_shared<clsDirectSound>();
    if (Opened->LoadFile(Path)) return Opened;
    OpenSound(Path);  // says what is wrong with it
    return Refuse(tr("Unable to use the sound system."));
}

void ClipPlayer::Play(Sound Opened) {
    mPlaying = std::move(Opened);
    mPlaying->Play(false);
    mWatch.start();
    ShowButton();
}

void ClipPlayer::Stop() {
    mWatch.stop();
    mPlaying.reset();
    ShowButton();
}

// A sound that has come to its end stands there. One goes silent when a show begins: its button
// cannot be pressed then.
void ClipPlayer::Tick() {
    const bool IsOver = mPlaying->CurrentPosition() >= mPlaying->Duration();
    if (IsOver || IsOutOfReach(mButton)) Stop();
}

// The menu of the main window and the other buttons leave no letter of these words.
void ClipPlayer::ShowButton() {
    mButton.setText(IsPlaying() ? tr("Stop") : tr("Play"));
    mButton.setShortcut(QKeySequence(Qt::ALT | Qt::Key_K));
    mButton.setAccessibleName(mButton.text());
    mButton.setToolTip(IsPlaying() ? tr("Stop the sound of this slide (Alt+K)")
                                   : tr("Play the sound of this slide (Alt+K)"));
    mButton.setIcon(ThemeIcon(IsPlaying() ? QStringLiteral("stop") : QStringLiteral("sound"),
                              mButton.palette()));
}

}  // namespace neb
