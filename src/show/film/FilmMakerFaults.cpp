#include "show/film/FilmMakerFaults.h"

#include <algorithm>

#include "support/Texts.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

// Whether a file is named for the first time.
bool Take(QSet<QString>& Named, const QString& Path) {
    const qsizetype Before = Named.size();
    Named.insert(Path);
    return Named.size() > Before;
}

QString FileText(const char* Missing, const char* Unusable, const QString& Path,
                 const QString& Why) {
    if (!FileExists(Path)) return tr(Missing).arg(Path);
    const QString Text = tr(Unusable).arg(Path);
    return Why.isEmpty() ? Text : Text + QStringLiteral(": ") + Why;
}

QString PictureText(const QString& Path, const QString& Why) {
    return FileText(QT_TR_NOOP("the picture is missing: %1"),
                    QT_TR_NOOP("the picture cannot be read: %1"), Path, Why);
}

QString SoundText(const QString& Path, const QString& Why) {
    return FileText(QT_TR_NOOP("the sound is missing: %1"),
                    QT_TR_NOOP("the sound cannot be played: %1"), Path, Why);
}

}  // namespace

void FilmMakerFaults::PictureFailed(const QString& Path, const QString& Why) {
    mComing.push_back({Path, Why});
}

void FilmMakerFaults::SlideIsUp(std::int32_t SlideSeq) {
    for (const Picture& Each : std::exchange(mComing, {}))
        if (Take(mNamed, Each.Path)) OfSlide(SlideSeq, PictureText(Each.Path, Each.Why));
}

void FilmMakerFaults::TakeRun(const RehearsalLog& Log, const QMap<QString, QString>& Sounds,
                              std::int32_t Next) {
    if (Next > 0) SlideIsUp(Next);
    for (const RehearsalCue& Cue : Log.Cues)
        if (Cue.Sound.Kind == CueSoundKind::Unplayed) TakeSound(Cue, Sounds);
    for (const RehearsalBox& Box : Log.Boxes) TakeBox(Box);
    for (auto Each = Sounds.begin(); Each != Sounds.end(); ++Each)
        if (Take(mNamed, Each.key())) Note(0, SoundText(Each.key(), *Each));
}

void FilmMakerFaults::TakeSound(const RehearsalCue& Cue, const QMap<QString, QString>& Sounds) {
    const QString& Path = Cue.Sound.File;
    mSilent.insert(Cue.SlideSeq);
    if (Take(mNamed, Path)) OfSlide(Cue.SlideSeq, SoundText(Path, Sounds.value(Path)));
}

// The box about a sound has nothing to add to its file.
void FilmMakerFaults::TakeBox(const RehearsalBox& Box) {
    if (Box.From == RehearsalBoxFrom::Sound && mSilent.contains(Box.SlideSeq)) return;
    OfSlide(Box.SlideSeq, QString(Box.Text).replace(u'\n', u' '));
}

void FilmMakerFaults::OfSlide(std::int32_t SlideSeq, const QString& Text) {
    Note(SlideSeq, tr("slide %1: ").arg(SlideSeq) + Text);
}

void FilmMakerFaults::Note(std::int32_t SlideSeq, const QString& Text) {
    const RehearsalFinding Found{SlideSeq, Text};
    if (std::find(mFound.begin(), mFound.end(), Found) == mFound.end()) mFound.push_back(Found);
}

std::vector<RehearsalFinding> FilmMakerFaults::Taken() {
    std::stable_sort(mFound.begin(), mFound.end(),
                     [](const auto& A, const auto& B) { return A.SlideSeq < B.SlideSeq; });
    return std::move(mFound);
}

}  // namespace neb
