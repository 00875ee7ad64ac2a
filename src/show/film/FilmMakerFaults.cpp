#include "show/film/FilmMakerFaults.h"

#include <algorithm>

#include "support/files/modHostFiles.h"

namespace neb {
namespace {

// Whether a file is named for the first time.
bool Take(QSet<QString>& Named, const QString& Path) {
    const qsizetype Before = Named.size();
    Named.insert(Path);
    return Named.size() > Before;
}

QString FileText(const char* What, const QString& Path, const QString& Why, const char* Verb) {
    if (!FileExists(Path))
        return QStringLiteral("%1 is missing: %2").arg(QLatin1String(What), Path);
    const QString Text =
        QStringLiteral("%1 cannot be %2: %3").arg(QLatin1String(What), QLatin1String(Verb), Path);
    return Why.isEmpty() ? Text : Text + QStringLiteral(": ") + Why;
}

}  // namespace

void FilmMakerFaults::PictureFailed(const QString& Path, const QString& Why) {
    mComing.push_back({Path, Why});
}

void FilmMakerFaults::SlideIsUp(std::int32_t SlideSeq) {
    for (const Picture& Each : std::exchange(mComing, {}))
        if (Take(mNamed, Each.Path))
            OfSlide(SlideSeq, FileText("the picture", Each.Path, Each.Why, "read"));
}

void FilmMakerFaults::TakeRun(const RehearsalLog& Log, const QMap<QString, QString>& Sounds,
                              std::int32_t Next) {
    if (Next > 0) SlideIsUp(Next);
    for (const RehearsalCue& Cue : Log.Cues)
        if (Cue.Sound.Kind == CueSoundKind::Unplayed) TakeSound(Cue, Sounds);
    for (const RehearsalBox& Box : Log.Boxes) TakeBox(Box);
    for (auto Each = Sounds.begin(); Each != Sounds.end(); ++Each)
        if (Take(mNamed, Each.key())) Note(0, FileText("the sound", Each.key(), *Each, "played"));
}

void FilmMakerFaults::TakeSound(const RehearsalCue& Cue, const QMap<QString, QString>& Sounds) {
    const QString& Path = Cue.Sound.File;
    mSilent.insert(Cue.SlideSeq);
    if (Take(mNamed, Path))
        OfSlide(Cue.SlideSeq, FileText("the sound", Path, Sounds.value(Path), "played"));
}

// The box about a sound has nothing to add to its file.
void FilmMakerFaults::TakeBox(const RehearsalBox& Box) {
    if (Box.From == RehearsalBoxFrom::Sound && mSilent.contains(Box.SlideSeq)) return;
    OfSlide(Box.SlideSeq, QString(Box.Text).replace(u'\n', u' '));
}

void FilmMakerFaults::OfSlide(std::int32_t SlideSeq, const QString& Text) {
    Note(SlideSeq, QStringLiteral("slide %1: ").arg(SlideSeq) + Text);
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
