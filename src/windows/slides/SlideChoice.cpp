#include "windows/slides/SlideChoice.h"

#include <QMimeData>
#include <QUrl>

#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/MediaTypes.h"
#include "support/Services.h"
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

QString DraggedPicture(const QMimeData& Data) {
    for (const QUrl& Url : Data.urls())
        if (Url.isLocalFile() && IsPictureName(Url.toLocalFile())) return Url.toLocalFile();
    return {};
}

// The recorder may report a recording though nothing was said into it: then there is nothing to
// keep, an earlier recording of another slide least of all.
std::optional<QByteArray> RecordSound() {
    try {
        DeleteFile(TemporarySound());
        const auto Recorder = NewForm<frmSoundRecorder>();
        Recorder->SetSoundSavePath(TemporarySound());
        Recorder->ShowModal();
        if (Recorder->SoundRecorded() && FileExists(TemporarySound()))
            return ReadFile(TemporarySound());
    } catch (const Fault&) {
        // the recorder has said so in its own window
    }
    return {};
}

}  // namespace neb
