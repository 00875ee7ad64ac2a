// The reading of rows under the loading window: what the bar shows, what ends it, how it begins
// once more, and what waits until it is over.
#include "windows/lists/SlideReading.h"

#include <QLabel>

#include "controls/forms/ScreenPointer.h"
#include "controls/forms/TestForm.h"
#include "controls/grid/GridHarness.h"
#include "harness/ScriptedBoxes.h"
#include "support/Fault.h"
#include "windows/frame/Openers.h"
#include "windows/import/IntakeHarness.h"

namespace neb {
namespace {

using namespace harness;
using End = SlideReading::End;

class Reading : public Intake {
  protected:
    Reading() {
        Window->ShowModeless();
        Grid.SetCols(1);
    }
    ~Reading() override { Window->Unload(); }

    // Fills the grid with the keys, one a row.
    SlideReading::Order OrderOf(const SlideReading::KeyList& Keys) {
        return {.Begin =
                    [this] {
                        Grid.SetRows(0);
                        return true;
                    },
                .Keys = [Keys] { return std::optional(Keys); },
                .MakeRow =
                    [this](std::int32_t Key, int Number) {
                        EXPECT_EQ(Grid.Rows() + 1, Number);
                        EXPECT_FALSE(Grid.Redraw());
                        Grid.SetTextMatrix(Grid.AddItem(), 0, QString::number(Key));
                    },
                .Grids = {&Grid}};
    }
    std::string Rows() const { return Column(Grid, 0).join(u' ').toStdString(); }
    // Once, at the yield at which the bar has come to Value.
    static void AtValue(int Value, std::function<void()> Do) {
        SetDoEventsHook([Value, Do, Done = false]() mutable {
            const auto* Loading = Open<frmLoading>();
            if (Done || !Loading || Loading->pgbLoadingProgress()->value() < Value) return;
            Done = true;
            Do();
        });
    }
    void ExpectOver() {
        EXPECT_FALSE(Read.IsReading());
        EXPECT_EQ(nullptr, Read.Window());
        EXPECT_EQ(nullptr, Open<frmLoading>());
        EXPECT_TRUE(Grid.Redraw());
        EXPECT_EQ(Pointer::Default, ScreenPointer());
    }

    std::shared_ptr<TestForm> Window = NewForm<TestForm>();
    FlexGrid Grid;
    SlideReading Read{*Window};
};

TEST_F(Reading, MakesARowOfEachKeyAndMovesTheBarInPercent) {
    std::vector<int> Values;
    SetDoEventsHook([&] {
        const auto* Loading = Open<frmLoading>();
        if (!Loading) return;
        EXPECT_TRUE(Read.IsReading());
        EXPECT_EQ(Pointer::Hourglass, ScreenPointer());
        Values.push_back(Loading->pgbLoadingProgress()->value());
    });
    EXPECT_EQ(End::Done, Read.Read(OrderOf({7, 5, 9})));
    EXPECT_EQ("7 5 9", Rows());
    ASSERT_GE(Values.size(), 4u);
    EXPECT_EQ((std::vector<int>{0, 33, 66, 100}), std::vector<int>(Values.end() - 4, Values.end()));
    ExpectOver();
}

TEST_F(Reading, CountsWithATextWhenItIsAskedTo) {
    QStringList Seen;
    SetDoEventsHook([&] {
        const auto* Loading = Open<frmLoading>();
        if (!Loading) return;
        const QProgressBar& Bar = *Loading->pgbLoadingProgress();
        Seen << u"%1 %2 %3 %4"_s.arg(Loading->windowTitle())
                    .arg(Bar.value())
                    .arg(Bar.maximum())
                    .arg(Bar.toolTip());
    });
    SlideReading::Order Order = OrderOf({1, 2});
    Order.Shows = SlideReading::Bar::CountAndText;
    Order.KeysTitle = u"Reading Slides ..."_s;
    EXPECT_EQ(End::Done, Read.Read(Order));
    EXPECT_TRUE(Seen.first().startsWith(u"Reading Slides ... ")) << Seen.first().toStdString();
    EXPECT_EQ("Loading Slides ... 1 2 50% Complete|Loading Slides ... 2 2 100% Complete",
              Seen.mid(Seen.size() - 2).join(u'|').toStdString());
}

TEST_F(Reading, TellsWhichPictureItIsAtAndThatItWasStopped) {
    QStringList Counts, Told;
    TheOpeners().Notice = [&](const QString& Text) { Told << Text; };
    SetDoEventsHook([&] {
        if (const auto* Loading = Open<frmLoading>())
            Counts << In<QLabel>(*Loading, "lblCount").text();
    });
    EXPECT_EQ(End::Done, Read.Read(OrderOf({1, 2})));
    EXPECT_EQ("Picture 1 of 2|Picture 2 of 2",
              Counts.mid(Counts.size() - 2).join(u'|').toStdString());
    EXPECT_EQ("", Told.join(u'|').toStdString());
    SlideReading::Order Order = OrderOf(SlideReading::KeyList(1001, 7));
    Order.MayStop = true;
    Boxes.Expect(AbortQuestion, u"Abort Confirmation"_s, BoxAnswer::Yes);
    AtValue(1, [] { Press(*Open<frmLoading>(), "cmdStop"); });
    EXPECT_EQ(End::Stopped, Read.Read(Order));
    TheOpeners().Notice = {};
    EXPECT_EQ("Stopped; 11 of 1,001 pictures are listed.", Told.join(u'|').toStdString());
}

TEST_F(Reading, ShowsNoWindowWhereThereIsNothingToRead) {
    SlideReading::Order Order = OrderOf({1});
    Order.Begin = [] { return false; };
    SetDoEventsHook([] { ADD_FAILURE() << "nothing is to be waited for"; });
    EXPECT_EQ(End::Done, Read.Read(Order));
    EXPECT_EQ(0, Grid.Rows());
    ExpectOver();
}

TEST_F(Reading, EndsWithWhatIsListed) {
    SlideReading::Order Order = OrderOf({1, 2, 3});
    bool There = true;
    Order.IsThere = [&] { return There; };
    AtValue(66, [&] { There = false; });
    EXPECT_EQ(End::Gone, Read.Read(Order));
    EXPECT_EQ("1 2", Rows());
    Order.Keys = [] { return std::nullopt; };
    EXPECT_EQ(End::Gone, Read.Read(Order));
    EXPECT_EQ("", Rows());
    ExpectOver();
}

TEST_F(Reading, EndsWithTheWindow) {
    AtValue(33, [&] { Window->Unload(); });
    EXPECT_EQ(End::Closed, Read.Read(OrderOf({1, 2, 3})));
    EXPECT_EQ("1", Rows());
    ExpectOver();
}

TEST_F(Reading, ClosedBeforeTheKeysAreKnownItAsksForNone) {
    SlideReading::Order Order = OrderOf({1});
    Order.Keys = []() -> std::optional<SlideReading::KeyList> {
        ADD_FAILURE() << "the window has gone";
        return std::nullopt;
    };
    SetDoEventsHook([&] { Window->Unload(); });
    EXPECT_EQ(End::Closed, Read.Read(Order));
    ExpectOver();
}

TEST_F(Reading, IsStoppedByEscOnlyWhereThatIsOfferedAndKeepsItsRows) {
    SlideReading::Order Order = OrderOf({1, 2, 3});
    const auto Esc = [] { QTest::keyClick(Open<frmLoading>(), Qt::Key_Escape); };
    AtValue(33, Esc);
    EXPECT_EQ(End::Done, Read.Read(Order)) << "no box was expected";
    Order.MayStop = true;
    Boxes.Expect(AbortQuestion, u"Abort Confirmation"_s, BoxAnswer::No);
    AtValue(33, Esc);
    EXPECT_EQ(End::Done, Read.Read(Order));
    Boxes.Expect(AbortQuestion, u"Abort Confirmation"_s, BoxAnswer::Yes);
    AtValue(33, Esc);
    EXPECT_EQ(End::Stopped, Read.Read(Order));
    EXPECT_EQ("1", Rows());
    ExpectOver();
}

TEST_F(Reading, AskedForAnewItBeginsOnceMoreWithTheLastOrder) {
    AtValue(33, [&] {
        EXPECT_EQ(End::Again, Read.Read(OrderOf({4})));
        EXPECT_EQ(End::Again, Read.Read(OrderOf({5, 6})));
        EXPECT_EQ("1", Rows()) << "the rows go when the next reading begins";
    });
    EXPECT_EQ(End::Done, Read.Read(OrderOf({1, 2, 3})));
    EXPECT_EQ("5 6", Rows());
    ExpectOver();
}

TEST_F(Reading, AskedForAnewAndClosedItReadsNothingMore) {
    AtValue(33, [&] {
        Read.Read(OrderOf({4}));
        Window->Unload();
    });
    EXPECT_EQ(End::Closed, Read.Read(OrderOf({1, 2, 3})));
    EXPECT_EQ("1", Rows());
    EXPECT_FALSE(Read.IsReading());
}

TEST_F(Reading, AFaultPassesOutAndTheNextReadingIsAsAny) {
    SlideReading::Order Order = OrderOf({1, 2});
    Order.MakeRow = [](std::int32_t, int) { throw Fault(u"no picture"_s); };
    EXPECT_THROW(Read.Read(Order), Fault);
    ExpectOver();
    EXPECT_EQ(End::Done, Read.Read(OrderOf({8})));
    EXPECT_EQ("8", Rows());
}

TEST_F(Reading, LongWorkForTheKeysOrARowMayYieldAndSeesTheEnd) {
    SlideReading::Order Order = OrderOf({1, 2});
    int Yields = 0;
    const auto Wait = [&] {
        while (Read.Yield()) ++Yields;
    };
    SetDoEventsHook([&] {
        if (Yields == 3) Window->Unload();
    });
    Order.Keys = [&] {
        Wait();
        return std::optional(SlideReading::KeyList{1});
    };
    EXPECT_EQ(End::Closed, Read.Read(Order));
    EXPECT_EQ(3, Yields);
    EXPECT_EQ(0, Grid.Rows());
}

TEST_F(Reading, KeepsChangesInTheirOrderUntilTheyAreAskedFor) {
    Read.KeepForLater({u"Album"_s, u"Update"_s, {1}});
    Read.KeepForLater({u"Slide Show"_s, u"Delete"_s, {1, 2}});
    EXPECT_EQ("Update", Read.NextWaiting()->EventType.toStdString());
    const auto Last = Read.NextWaiting();
    ASSERT_TRUE(Last);
    EXPECT_EQ("Slide Show", Last->ObjectType.toStdString());
    EXPECT_EQ((std::vector<std::int32_t>{1, 2}), Last->Keys);
    EXPECT_FALSE(Read.NextWaiting());
}

}  // namespace
}  // namespace neb
