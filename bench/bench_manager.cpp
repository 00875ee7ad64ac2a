// The slide show manager on an album of 500 and on one of 5,000 slides: how each cost grows with
// the rows, and what moving them all takes beside filling the grid.
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "BenchAlbum.h"
#include "controls/forms/NebApplication.h"
#include "support/Services.h"
#include "windows/compose/frmSlideShowDBM.h"

using namespace neb;

namespace {

constexpr int Few = 500;
constexpr int Many = 5000;
constexpr int Runs = 5;
constexpr int Moves = 100;

// Answers at once, and notes how long ago the work began.
class QuickBoxes : public MessageBoxes {
  public:
    BoxAnswer Show(const BoxRequest& Request) override {
        if (Request.Buttons == BoxButtons::SaveDiscardCancel) return BoxAnswer::Discard;
        Took = Seconds() - Began;
        if (Request.Text != QStringLiteral("Slide Show Saved Successfully."))
            std::printf("  unexpected: %s\n", qPrintable(Request.Text));
        return BoxAnswer::Ok;
    }
    double Began = 0, Took = 0;
};

struct Figures {
    double Opening = 1e9, MovingAll = 1e9, MovingUp = 1e9, Saving = 1e9, MovingBack = 1e9,
           Loading = 1e9;
};

constexpr struct {
    const char* Name;
    double Figures::*Cost;
} Rows[] = {
    {"opening the album", &Figures::Opening},
    {"moving all to the show", &Figures::MovingAll},
    {"moving one up 100 times", &Figures::MovingUp},
    {"saving the show", &Figures::Saving},
    {"moving all back", &Figures::MovingBack},
    {"choosing the show", &Figures::Loading},
};

class Manager {
  public:
    Manager(std::int32_t AlbumID, int Slides, QuickBoxes& Boxes, double& LongestYield)
        : mSlides(Slides), mBoxes(Boxes), mLongestYield(LongestYield) {
        mWindow->LoadSlideShowMgr(0, 0);
        mAlbumIndex = In<QComboBox>("cboAlbum").findData(AlbumID);
    }
    ~Manager() { mWindow->Unload(); }

    void Measure(Figures& Best, int Run) {
        Time(Best.Opening, [this] { OpenAlbum(); });
        Check("flxNonSelected");
        Time(Best.MovingAll, [this] { Click("cmdMoveRightAll"); });
        Check("flxSelected");
        In<FlexGrid>("flxSelected").SetRow(mSlides - 1);
        Time(Best.MovingUp, [this] {
            for (int I = 0; I < Moves; ++I) Click("cmdMoveUp");
        });
        if (In<FlexGrid>("flxSelected").Row() != mSlides - 1 - Moves) std::puts("  it stayed");
        In<QLineEdit>("txtName").setText(QStringLiteral("Show %1").arg(Run));
        mBoxes.Began = Seconds();
        Click("cmdSave");
        Best.Saving = std::min(Best.Saving, mBoxes.Took);
        const int Saved = In<QComboBox>("cboSlideShows").currentIndex();
        Time(Best.MovingBack, [this] { Click("cmdMoveLeftAll"); });
        Check("flxNonSelected");
        In<QComboBox>("cboSlideShows").setCurrentIndex(0);
        Time(Best.Loading, [&] { In<QComboBox>("cboSlideShows").setCurrentIndex(Saved); });
        Check("flxSelected");
    }

  private:
    template <class Control>
    Control& In(const char* Name) {
        return *mWindow->findChild<Control*>(QString::fromLatin1(Name));
    }
    void Click(const char* Button) { In<QPushButton>(Button).click(); }
    void Check(const char* Grid) {
        if (In<FlexGrid>(Grid).Rows() != mSlides) std::printf("  %s has lost rows\n", Grid);
    }
    static void Time(double& Best, const std::function<void()>& Do) {
        const double Start = Seconds();
        Do();
        Best = std::min(Best, Seconds() - Start);
    }
    void OpenAlbum() {
        double Last = Seconds();
        SetDoEventsHook([&] {
            mLongestYield = std::max(mLongestYield, Seconds() - std::exchange(Last, Seconds()));
        });
        In<QComboBox>("cboAlbum").setCurrentIndex(mAlbumIndex);
        SetDoEventsHook({});
    }

    std::shared_ptr<frmSlideShowDBM> mWindow = NewForm<frmSlideShowDBM>();
    int mSlides;
    QuickBoxes& mBoxes;
    double& mLongestYield;
    int mAlbumIndex = -1;
};

Figures MeasureAlbum(clsDBEngine& Engine, int Slides, QuickBoxes& Boxes, double& LongestYield) {
    const std::int32_t AlbumID = MakeBenchAlbum(Engine, Slides);
    Figures Best;
    for (int Run = 0; Run < Runs; ++Run)
        Manager(AlbumID, Slides, Boxes, LongestYield).Measure(Best, Run);
    return Best;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    NebApplication App(argc, argv);
    BenchDatabase Database;
    const BenchBuffer Thumbnails;
    QuickBoxes Boxes;
    TheServices().Boxes = &Boxes;

    double LongestYield = 0;
    const Figures Small = MeasureAlbum(Database.Engine, Few, Boxes, LongestYield);
    const Figures Large = MeasureAlbum(Database.Engine, Many, Boxes, LongestYield);
    std::printf("Slide show manager, %d and %d slides (best of %d)\n", Few, Many, Runs);
    for (const auto& Row : Rows)
        std::printf("  %-24s %8.2f ms %8.2f ms   %5.1f x (limit 12)\n", Row.Name,
                    Small.*Row.Cost * 1000, Large.*Row.Cost * 1000,
                    Large.*Row.Cost / (Small.*Row.Cost));
    std::printf("  moving all %d took %.2f x what opening the album took (limit 5)\n", Many,
                Large.MovingAll / Large.Opening);
    std::printf("  longest yield while loading %.1f ms (limit 100)\n", LongestYield * 1000);
    return 0;
}
