// A stage of a small film and slides for it: what its tests run on.
#pragma once

#include <gtest/gtest.h>

#include "effects/Pictures.h"
#include "effects/Transition.h"
#include "show/captions/ShowLayout.h"
#include "show/film/FilmStage.h"

namespace neb::test {

constexpr double FilmHair = 1e-9;  // seconds, far below a step

inline QImage FittedIn(const QImage& Picture, QSize View) {
    return FitToView(Picture, {View, true, true, true});
}

inline QImage PartOf(const QImage& Frame, int Top, int Height) {
    return Frame.copy(0, Top, Frame.width(), Height);
}

// How many pixels are not black.
inline int Inked(const QImage& Image) {
    int Count = 0;
    for (int Y = 0; Y < Image.height(); ++Y)
        for (int X = 0; X < Image.width(); ++X) Count += (Image.pixel(X, Y) & 0xFFFFFF) != 0;
    return Count;
}

class FilmStageRig : public testing::Test {
  protected:
    // Pictures that are wider than the film, and one that is higher.
    static QImage Picture(int Seed) {
        return effectstest::Scene(Seed % 3 == 2 ? QSize(90, 160) : QSize(200, 100 + Seed),
                                  static_cast<std::uint32_t>(Seed));
    }
    static FilmSlide Slide(double At, int Seed, int Number, int Delay, int Step,
                           const QString& Caption = QStringLiteral("A day at the lake")) {
        return {At, Picture(Seed), Caption, Number, Delay, Step};
    }

    // The room of the picture above a caption in this film.
    QSize ViewOver(const QString& Caption) const {
        const int Height = FitCaption(Caption, CaptionSpaceIn(Film)).Height;
        return {Film.width(), *PictureHeightIn(Film.height(), Height)};
    }
    QImage PictureOf(const QImage& Frame, QSize View) const {
        return PartOf(Frame, 0, View.height());
    }
    QImage CaptionOf(const QImage& Frame, QSize View) const {
        return PartOf(Frame, View.height(), Film.height() - View.height());
    }

    const QSize Film{192, 108};
    const QString Lake = QStringLiteral("A day at the lake");
};

}  // namespace neb::test
