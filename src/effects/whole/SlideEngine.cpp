#include "effects/whole/SlideEngine.h"

#include "effects/drawing/Fixed.h"
#include "effects/whole/Sheets.h"

namespace neb::effects {
namespace {

// Where the sheets are at a progress, in frames of a size.
using Planner = std::function<Arrangement(QSize Size, int Progress)>;

class SlideEngine : public Engine {
  public:
    explicit SlideEngine(Planner Plan) : mPlan(std::move(Plan)) {}
    void Draw(const Frame& F, int Y0, int Y1) const override {
        DrawSheets(F, mPlan({F.Width, F.Height}, F.Progress), Y0, Y1);
    }

  private:
    Planner mPlan;
};

Recipe Make(const Planner& Plan) {
    return {"Slide", [=](const Pair&) { return std::make_unique<SlideEngine>(Plan); }};
}

struct Step {
    int X, Y;
};
Step StepOf(Heading Way) {
    static constexpr Step kSteps[] = {{-1, 0}, {1, 0}, {0, -1}, {0, 1}, {-1, -1}, {-1, 1}};
    return kSteps[static_cast<int>(Way)];
}

Area WholeOf(QSize Size) {
    return {0, 0, Size.width(), Size.height()};
}

// What is left of a way.
int Missing(int Length, int Progress) {
    return (Length << 8) - Travelled(Length, Progress);
}

// A sheet of the new picture on its way in: it goes one length of the frame.
Sheet Coming(const Area& Part, Step Way, QSize Size, int Progress) {
    return {Side::New,
            Part,
            -Way.X * Missing(Size.width(), Progress),
            -Way.Y * Missing(Size.height(), Progress),
            ShadowDepth(Progress),
            false};
}

// A sheet of the old picture on its way out: it goes as far as told.
Sheet Going(const Area& Part, Step Way, QSize Far, int Progress) {
    return {Side::Old,
            Part,
            Way.X * Travelled(Far.width(), Progress),
            Way.Y * Travelled(Far.height(), Progress),
            ShadowDepth(One - Progress),
            false};
}

void AddPush(Arrangement& A, const Area& Part, Step Way, QSize Size, int Progress) {
    Sheet Old = Going(Part, Way, Size, Progress);
    Old.Filled = true;
    A.Add(Old);
    A.Add(Coming(Part, Way, Size, Progress));
}

// The progress of one of several sheets that start one after the other; each takes Share of the
// whole time, in hundredths.
int ProgressOf(int Index, int Count, int Share, int Progress) {
    const int Long = One * Share / 100;
    const int Start = Count < 2 ? 0 : (One - Long) * Index / (Count - 1);
    return static_cast<int>(std::int64_t{One} * Clamp(Progress - Start, 0, Long) / Long);
}

// The start of one of several parts of equal size.
int StartOf(int Index, int Count, int Length) {
    return static_cast<int>(std::int64_t{Length} * Index / Count);
}

Arrangement PlanStrips(QSize Size, int Progress, int Count) {
    Arrangement A;
    A.Still = Side::Old;
    for (int I = 0; I < Count; ++I) {
        const Area Part{0, StartOf(I, Count, Size.height()), Size.width(),
                        StartOf(I + 1, Count, Size.height())};
        A.Add(Coming(Part, {I % 2 ? -1 : 1, 0}, Size, ProgressOf(I, Count, 60, Progress)));
    }
    return A;
}

Arrangement PlanColumns(QSize Size, int Progress, int Count) {
    Arrangement A;
    A.Still = Side::Old;
    for (int I = 0; I < Count; ++I) {
        const Area Part{StartOf(I, Count, Size.width()), 0, StartOf(I + 1, Count, Size.width()),
                        Size.height()};
        A.Add(Coming(Part, {0, 1}, Size, ProgressOf(I, Count, 45, Progress)));
    }
    return A;
}

Arrangement PlanQuarters(QSize Size, int Progress) {
    Arrangement A;
    A.Still = Side::New;
    const int X = Size.width() / 2, Y = Size.height() / 2;
    const QSize Far(Size.width() - X, Size.height() - Y);
    A.Add(Going({0, 0, X, Y}, {-1, -1}, Far, Progress));
    A.Add(Going({X, 0, Size.width(), Y}, {1, -1}, Far, Progress));
    A.Add(Going({0, Y, X, Size.height()}, {-1, 1}, Far, Progress));
    A.Add(Going({X, Y, Size.width(), Size.height()}, {1, 1}, Far, Progress));
    return A;
}

// The two halves of a picture, and the way each goes when they part.
struct Halves {
    Area First, Second;
    Step Way;
    QSize Far;  // half the frame, rounded up
};
Halves HalvesOf(QSize Size, bool Across) {
    const int W = Size.width(), H = Size.height();
    const QSize Far((W + 1) / 2, (H + 1) / 2);
    if (Across) return {{0, 0, W / 2, H}, {W / 2, 0, W, H}, {1, 0}, Far};
    return {{0, 0, W, H / 2}, {0, H / 2, W, H}, {0, 1}, Far};
}

Arrangement PlanOpen(QSize Size, int Progress, bool Across) {
    Arrangement A;
    A.Still = Side::New;
    const Halves H = HalvesOf(Size, Across);
    A.Add(Going(H.First, {-H.Way.X, -H.Way.Y}, H.Far, Progress));
    A.Add(Going(H.Second, H.Way, H.Far, Progress));
    return A;
}

Arrangement PlanClose(QSize Size, int Progress, bool Across) {
    Arrangement A;
    A.Still = Side::Old;
    const Halves H = HalvesOf(Size, Across);
    A.Add(Coming(H.First, H.Way, H.Far, Progress));
    A.Add(Coming(H.Second, {-H.Way.X, -H.Way.Y}, H.Far, Progress));
    return A;
}

}  // namespace

Recipe Push(Heading Way) {
    return Make([=](QSize Size, int Progress) {
        Arrangement A;
        AddPush(A, WholeOf(Size), StepOf(Way), Size, Progress);
        return A;
    });
}

Recipe Cover(Heading Way) {
    return Make([=](QSize Size, int Progress) {
        Arrangement A;
        A.Still = Side::Old;
        A.Add(Coming(WholeOf(Size), StepOf(Way), Size, Progress));
        return A;
    });
}

Recipe Uncover(Heading Way) {
    return Make([=](QSize Size, int Progress) {
        Arrangement A;
        A.Still = Side::New;
        A.Add(Going(WholeOf(Size), StepOf(Way), Size, Progress));
        return A;
    });
}

Recipe SlidingStrips(int Count) {
    return Make([=](QSize Size, int P) { return PlanStrips(Size, P, Count); });
}
Recipe FallingColumns(int Count) {
    return Make([=](QSize Size, int P) { return PlanColumns(Size, P, Count); });
}
Recipe QuartersPart() {
    return Make(PlanQuarters);
}
Recipe DoorsOpen(bool Across) {
    return Make([=](QSize Size, int P) { return PlanOpen(Size, P, Across); });
}
Recipe DoorsClose(bool Across) {
    return Make([=](QSize Size, int P) { return PlanClose(Size, P, Across); });
}

}  // namespace neb::effects
