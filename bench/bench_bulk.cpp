// The bulk slide manager on an album of 10,000 slides: filling its grid, against a plain reading
// of the same thumbnail files, and saving all captions, against a plain loop that writes the same
// texts.
#include <QPushButton>
#include <cstdio>

#include "BenchAlbum.h"
#include "controls/forms/NebApplication.h"
#include "support/Services.h"
#include "windows/slides/frmSlideMgrBulk.h"

using namespace neb;

namespace {

constexpr int Slides = 10000;
constexpr int Runs = 3;
constexpr int Saves = 10;  // in each run: a save is over in a few milliseconds

// Answers at once, and notes how long ago the work began.
class QuickBoxes : public MessageBoxes {
  public:
    BoxAnswer Show(const BoxRequest& Request) override {
        Took = Seconds() - Began;
        if (Request.Text != QStringLiteral("%1 slides successfully saved.").arg(Slides))
            std::printf("  unexpected: %s\n", qPrintable(Request.Text));
        return BoxAnswer::Ok;
    }
    double Began = 0, Took = 0;
};

// The same texts written to the same slides in the same order, each a text of its own.
double PlainRewriting(clsNEBAlbum& Album, const FlexGrid& Grid) {
    QStringList Captions;
    std::vector<clsNEBSlide*> InOrder;
    for (int Row = 0; Row < Grid.Rows(); ++Row) {
        const QString& Caption = Grid.TextMatrix(Row, clsImageBuffer::ColText);
        Captions << QString(Caption.constData(), Caption.size());
        const int SlideID = Grid.TextMatrix(Row, clsImageBuffer::ColSlideID).toInt();
        InOrder.push_back(Album.Slides[static_cast<size_t>(SlideID) - 1].get());
    }
    const double Start = Seconds();
    for (size_t I = 0; I < InOrder.size(); ++I) {
        const QString& Caption = Captions[static_cast<qsizetype>(I)];
        InOrder[I]->SlideText = QString(Caption.constData(), Caption.size());
    }
    return Seconds() - Start;
}

// Types a new caption into every row; the window knows them as a user's.
void EditAll(FlexGrid& Grid, const QString& Form) {
    for (int Row = 0; Row < Grid.Rows(); ++Row) {
        Grid.SetTextMatrix(Row, clsImageBuffer::ColText, Form.arg(Row));
        Q_EMIT Grid.AfterEdit(Row, clsImageBuffer::ColText);
    }
}

struct Figures {
    double Reading = 1e9, Filling = 1e9, Refilling = 1e9;
    double Rewriting = 1e9, Saving = 1e9, SavingQuotes = 1e9, LongestYield = 0;
};

void Measure(clsDBEngine& Engine, QuickBoxes& Boxes, Figures& Best) {
    const BenchBuffer Thumbnails;
    Best.Reading = std::min(Best.Reading, PlainReading(Engine, 1, Slides));
    const auto Window = NewForm<frmSlideMgrBulk>();
    double Start = Seconds(), Last = Start;
    SetDoEventsHook([&] {
        Best.LongestYield = std::max(Best.LongestYield, Seconds() - std::exchange(Last, Seconds()));
    });
    Window->LoadAlbumMgr(1);
    SetDoEventsHook({});
    Best.Filling = std::min(Best.Filling, Seconds() - Start);
    Start = Seconds();
    Window->findChild<QPushButton*>(QStringLiteral("cmdCancel"))->click();
    Best.Refilling = std::min(Best.Refilling, Seconds() - Start);
    FlexGrid& Grid = *Window->findChild<FlexGrid*>();
    if (Grid.Rows() != Slides) std::puts("  the grid was not filled");
    const auto Save = [&](const char* Form, double& Took) {
        EditAll(Grid, QString::fromLatin1(Form));
        Boxes.Began = Seconds();
        Window->findChild<QPushButton*>(QStringLiteral("cmdSave"))->click();
        Took = std::min(Took, Boxes.Took);
    };
    clsNEBAlbum& Album = *Engine.GetAlbum(1);
    for (int I = 0; I < Saves; ++I) {
        Save("Mary's \"holiday\" %1", Best.SavingQuotes);
        Save("Holiday picture %1", Best.Saving);
        Best.Rewriting = std::min(Best.Rewriting, PlainRewriting(Album, Grid));
    }
    Window->Unload();
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    NebApplication App(argc, argv);
    BenchDatabase Database;
    MakeBenchAlbum(Database.Engine, Slides);
    QuickBoxes Boxes;
    TheServices().Boxes = &Boxes;

    Figures Best;
    for (int I = 0; I < Runs; ++I) Measure(Database.Engine, Boxes, Best);
    std::printf("Bulk slide manager on an album of %d slides (best of %d)\n", Slides, Runs);
    std::printf("  filling, first time   %7.0f rows/s   %.2f x the plain reading (limit 3)\n",
                Slides / Best.Filling, Best.Filling / Best.Reading);
    std::printf("  filling, second time  %7.0f rows/s   %.2f x the plain reading\n",
                Slides / Best.Refilling, Best.Refilling / Best.Reading);
    std::printf("  longest yield         %7.1f ms (limit 100)\n", Best.LongestYield * 1000);
    std::printf("  saving all captions   %7.2f ms (limit 200)  %.1f x a plain loop (limit 10)\n",
                Best.Saving * 1000, Best.Saving / Best.Rewriting);
    std::printf("  with quotes in each   %7.2f ms              %.1f x a plain loop\n",
                Best.SavingQuotes * 1000, Best.SavingQuotes / Best.Rewriting);
    return 0;
}
