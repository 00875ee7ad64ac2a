#include "windows/slides/SlideChoice.h"

#include <QMimeData>
#include <QUrl>

#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/MediaTypes.h"
#include "support/Services.h"
#include "support/files/HostNames.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "windows/recorder/frmSoundRecorder.h"
#include "windows/slides/frmSlideDBM.h"

namespace neb {
namespace {

QString TemporarySound() {
    return DBEngine->DBPath() + QStringLiteral("Temp/tmp.wav");
}

}  // namespace

QString AskForPicture(const QString& Before) {
    return TheServices().Dialogs->OpenFile(frmSlideDBM::tr("Choose a Picture"),
                                           HoldsSeparator(Before) ? GetFilePath(Before) : QString(),
                                           PictureFilters());
}

QString AskForSound() {
    return TheServices().Dialogs->OpenFile(frmSlideDBM::tr("Choose a Sound"), {}, SoundFilters());
}

QString SoundEnding(const QString& Path) {
    return IsSoundName(Path) ? GetFileExt(Path).toLower() : QStringLiteral(".wav");
}

QString HeardSound() {
    return DBEngine->DBPath() + QStringLiteral("Temp/heard.wav");
}

QString DraggedFile(const QMimeData& Data) {
    for (const QUrl& Url : Data.urls())
        if (const QString Path = FileOfUrl(Url); IsPictureName(Path) || IsSoundName(Path))
            return Path;
    return {};
}

std::optional<QByteArray> RecordSound() {
    DeleteFile(TemporarySound());
    const auto Recorder = NewForm<frmSoundRecorder>();
    Recorder->SetSoundSavePath(TemporarySound());
    Recorder->ShowModal();
    if (!Recorder->SoundRecorded()) return {};
    return ReadFile(TemporarySound());
}

}  // namespace neb
