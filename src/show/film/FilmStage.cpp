#include "show/film/FilmStage.h"

#include <algorithm>

#include "effects/EffectSteps.h"
#include "effects/Transition.h"
#include "show/film/FilmFrames.h"
#include "show/film/FilmLayout.h"

namespace neb {
namespace {

constexpr int MostDelay = 1000;  // tenths of a millisecond
// Milliseconds. A step may be due at the very moment of a frame, and counts then in spite of
// rounding, which is below a thousandth of this in a film of a week. Steps are due at whole tenths
// of a millisecond and frames at whole parts of a second, so that those which do not fall together
// are at least thirty times as far apart.
constexpr double Hair = 1e-3;

XShowLayout LayoutIn(QSize View) {
    return {View, true, true, true};
}

}  // namespace

struct FilmStage::Scene {
    Scene(QSize Size, bool Captions) : Film(Size), WithCaptions(Captions), Frames(Size) {
        Now = FitToView({}, LayoutIn(Film));
    }
    void Show(const FilmSlide& Slide);
    void TakePictures(const FilmSlide& Slide, QSize View);
    int StepAt(double Seconds) const;
    QImage Drawn(int Step);

    const QSize Film;
    const bool WithCaptions;
    FilmFrames Frames;

    double At = 0;     // seconds
    double Delay = 0;  // milliseconds
    int Effect = 0, Percent = 100, Steps = 0;
    QImage Source;                    // of Now, for a view of another size
    QImage Old, Now;                  // fitted to one view
    std::unique_ptr<Transition> Way;  // between them; made when it is first needed
    QImage Shown;
    int ShownStep = -1;
};

// What was on its way before is there.
void FilmStage::Scene::TakePictures(const FilmSlide& Slide, QSize View) {
    Old = Now.size() == View ? Now : FitToView(Source, LayoutIn(View));
    Source = Slide.Picture;
    Now = Slide.Fitted.size() == View ? Slide.Fitted : FitToView(Source, LayoutIn(View));
}

void FilmStage::Scene::Show(const FilmSlide& Slide) {
    const FilmLayout Layout = LayOutFrame(Film, WithCaptions, Slide.Caption);
    Frames.SetCaption(PaintFilmCaption(Film.width(), Slide.Caption, Layout.Caption));
    TakePictures(Slide, Layout.Picture);
    At = Slide.At;
    Delay = std::clamp(Slide.EffectDelay, 0, MostDelay) / 10.0;
    Effect = Slide.EffectNumber;
    Percent = std::clamp(Slide.EffectStep, 1, 100);
    Steps = EffectStepCount(Percent);
    Way.reset();
    ShownStep = -1;
}

int FilmStage::Scene::StepAt(double Seconds) const {
    const double Since = (Seconds - At) * 1000 + Hair;
    if (Since < 0) return 0;
    return Since >= Steps * Delay ? Steps : static_cast<int>(Since / Delay);
}

QImage FilmStage::Scene::Drawn(int Step) {
    if (Step >= Steps) Way.reset();
    if (Step == 0 || Step >= Steps) return Frames.Still(Step >= Steps ? Now : Old);
    if (!Way) Way = std::make_unique<Transition>(Effect, Old, Now);
    return Frames.Moving(*Way, EffectProgress(Step, Percent));
}

FilmStage::FilmStage(QSize Film, bool WithCaptions)
    : mScene(std::make_unique<Scene>(Film, WithCaptions)) {}

FilmStage::~FilmStage() = default;

QImage FilmStage::FitFor(QSize Film, bool WithCaptions, const QString& Caption,
                         const QImage& Picture) {
    return FitToView(Picture, LayoutIn(LayOutFrame(Film, WithCaptions, Caption).Picture));
}

void FilmStage::ShowSlide(const FilmSlide& Slide) {
    mScene->Show(Slide);
}

const QImage& FilmStage::FrameAt(double Seconds) {
    Scene& S = *mScene;
    const int Step = S.StepAt(Seconds);
    if (Step == S.ShownStep) return S.Shown;
    S.Shown = {};  // its sheet is free when nobody else has it
    S.Shown = S.Drawn(Step);
    S.ShownStep = Step;
    return S.Shown;
}

double FilmStage::StillFrom() const {
    return mScene->At + mScene->Steps * mScene->Delay / 1000;
}

}  // namespace neb
