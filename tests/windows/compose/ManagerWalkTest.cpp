// A long row of steps in no order of sense: the lists of the slide show manager are after each what
// a plain list of slides would be, and what is saved is what was seen.
#include <random>

#include "ManagerRig.h"
#include "controls/grid/GridDragRig.h"

namespace neb {
namespace {

using namespace harness;

struct Line {
    std::int32_t SlideID;
    QString Caption;
};
using Lines = std::vector<Line>;

class ManagerWalk : public ManagerRig, public ::testing::WithParamInterface<unsigned> {
  protected:
    int Below(size_t Count) { return static_cast<int>(mDice() % std::max<size_t>(Count, 1)); }
    static std::string Shown(const FlexGrid& Grid) {
        std::string All;
        for (int Row = 0; Row < Grid.Rows(); ++Row)
            All += std::to_string(SlideIn(Grid, Row)) +
                   Grid.TextMatrix(Row, clsImageBuffer::ColText).toStdString() + '|';
        return All;
    }
    static std::string Meant(const Lines& From) {
        std::string All;
        for (const Line& Each : From)
            All += std::to_string(Each.SlideID) + Each.Caption.toStdString() + '|';
        return All;
    }
    // Some rows of a list, at least one.
    std::vector<int> Some(size_t Count) {
        std::vector<int> Rows;
        for (size_t Row = 0; Row < Count; ++Row)
            if (Below(3) == 0) Rows.push_back(static_cast<int>(Row));
        if (Rows.empty()) Rows.push_back(Below(Count));
        return Rows;
    }
    static Lines Take(Lines& From, const std::vector<int>& Rows) {
        Lines Taken;
        for (int Row : Rows) Taken.push_back(From[static_cast<size_t>(Row)]);
        for (auto Row = Rows.rbegin(); Row != Rows.rend(); ++Row) From.erase(From.begin() + *Row);
        return Taken;
    }
    void MoveSome(FlexGrid& Grid, Lines& From, Lines& To, const char* Button) {
        if (From.empty()) return;
        const std::vector<int> Rows = Some(From.size());
        Pick(Grid, Rows);
        Push(Button);
        for (const Line& Each : Take(From, Rows)) To.push_back(Each);
    }
    void MoveAll(Lines& From, Lines& To, const char* Button) {
        Push(Button);
        To.insert(To.end(), From.begin(), From.end());
        From.clear();
    }
    void Nudge(int Step, const char* Button) {
        if (mShow.empty()) return;
        const int Row = Below(mShow.size()), To = Row + Step;
        Right().SetRow(Row);
        Push(Button);
        if (To >= 0 && To < static_cast<int>(mShow.size()))
            std::swap(mShow[static_cast<size_t>(Row)], mShow[static_cast<size_t>(To)]);
    }
    void TypePlace() {
        if (mShow.empty()) return;
        const int From = Below(mShow.size()), To = Below(mShow.size());
        Put(Right(), From, ColPlace, QString::number(To + 1));
        const Lines Moved = Take(mShow, {From});
        mShow.insert(mShow.begin() + To, Moved.front());
    }
    void TypeCaption() {
        if (mShow.empty()) return;
        const int Row = Below(mShow.size());
        const QString Text = Below(4) == 0 ? QString() : u"own %1"_s.arg(mDice() % 1000);
        PutCaption(Row, Text);
        mShow[static_cast<size_t>(Row)].Caption = Text;
    }
    void Drag(FlexGrid& Grid, Lines& From) {
        if (From.empty() || mShow.empty()) return;
        const std::vector<int> Rows = Some(From.size());
        const int Onto = Below(mShow.size());
        Right().EnsureRowVisible(Onto);
        Pick(Grid, Rows);
        EnterAndDrop(Grid, Right(), Upper(Right(), Onto));
        QCoreApplication::processEvents();
        const auto Above =
            std::count_if(Rows.begin(), Rows.end(), [&](int Row) { return Row < Onto; });
        const Lines Moved = Take(From, Rows);
        const auto At = Onto - (&From == &mShow ? Above : 0);
        mShow.insert(mShow.begin() + At, Moved.begin(), Moved.end());
    }
    void DeleteSlide() {
        if (mAlbum.size() < 4) return;
        const std::int32_t SlideID = mAlbum[static_cast<size_t>(Below(mAlbum.size()))].SlideID;
        Album().DeleteSlide(SlideID, Engine);
        Tell(u"Album"_s, u"Delete Slides"_s, {AlbumID, SlideID});
        for (Lines* Each : {&mAlbum, &mRest, &mShow})
            std::erase_if(*Each, [&](const Line& Row) { return Row.SlideID == SlideID; });
    }
    void NewSlide() {
        std::int32_t SlideID = 0;
        const QString Text = u"slide %1"_s.arg(++mMade);
        Album().SaveSlide2(SlideID, Text, {}, {}, false, false, Engine);
        Tell(u"Album"_s, u"Add Slides"_s, {AlbumID, Below(2) == 0 ? SlideID : 0});
        mAlbum.push_back({SlideID, Text});
        mRest.push_back({SlideID, Text});
    }
    // A caption of the show's own stays.
    void ChangeSlide() {
        Line& Slide = mAlbum[static_cast<size_t>(Below(mAlbum.size()))];
        const QString Before = Slide.Caption;
        Slide.Caption = u"slide %1"_s.arg(++mMade);
        Album().GetSlide(Slide.SlideID)->SlideText = Slide.Caption;
        Tell(u"Album"_s, u"Add Slides"_s, {AlbumID, Slide.SlideID});
        for (Lines* Each : {&mRest, &mShow})
            for (Line& Row : *Each)
                if (Row.SlideID == Slide.SlideID && Row.Caption == Before)
                    Row.Caption = Slide.Caption;
    }
    // The slides that stay in the album stand in its order again, with their own captions.
    void SaveAll() {
        if (mShow.empty()) return;
        SaveWell();
        QString Kept = u"Walk 0"_s;
        int Place = 0;
        mRest = mAlbum;
        for (Line& Each : mShow) {
            const auto Slide = std::find_if(mRest.begin(), mRest.end(), [&](const Line& Row) {
                return Row.SlideID == Each.SlideID;
            });
            const bool Own = Each.Caption != Slide->Caption;
            if (Each.Caption.isEmpty()) Each.Caption = u" "_s;
            Kept +=
                u" %1:%2[%3]"_s.arg(++Place).arg(Each.SlideID).arg(Own ? Each.Caption : QString());
            mRest.erase(Slide);
        }
        EXPECT_EQ(Kept.toStdString(), Stored(1));
        EXPECT_EQ(Meant(mRest), Shown(NonSelected(*mBeside))) << "the other window follows";
        EXPECT_EQ(Meant(mShow), Shown(Selected(*mBeside))) << "the other window follows";
    }
    void Step() {
        const std::function<void()> Steps[] = {
            [this] { MoveSome(Left(), mRest, mShow, "cmdMoveRightOne"); },
            [this] { MoveSome(Right(), mShow, mRest, "cmdMoveLeftOne"); },
            [this] { Below(4) == 0 ? MoveAll(mRest, mShow, "cmdMoveRightAll") : NewSlide(); },
            [this] { Below(4) == 0 ? MoveAll(mShow, mRest, "cmdMoveLeftAll") : DeleteSlide(); },
            [this] { Nudge(-1, "cmdMoveUp"); },
            [this] { Nudge(1, "cmdMoveDown"); },
            [this] { TypePlace(); },
            [this] { TypeCaption(); },
            [this] { Drag(Right(), mShow); },
            [this] { Drag(Left(), mRest); },
            [this] { ChangeSlide(); },
            [this] { Below(3) == 0 ? SaveAll() : TypeCaption(); },
        };
        mLast = Below(std::size(Steps));
        Steps[mLast]();
    }

    std::mt19937 mDice{GetParam()};
    Lines mAlbum, mRest, mShow;
    int mMade = 0, mLast = 0;
    Mgr* mBeside = nullptr;  // in which nothing is composed
};

TEST_P(ManagerWalk, LeavesTheListsAsAPlainListWouldBe) {
    const std::int32_t Walk = AddShow(u"Walk"_s, {});
    mBeside = &OpenMgr(AlbumID, Walk);
    OpenMgr(AlbumID, Walk);
    W->resize(900, 900);
    for (int I = 0; I < 12; ++I) NewSlide();
    for (int I = 0; I < 250 && !HasFailure(); ++I) {
        Step();
        EXPECT_EQ(Meant(mRest), Shown(Left())) << "step " << I << " of kind " << mLast;
        EXPECT_EQ(Meant(mShow), Shown(Right())) << "step " << I << " of kind " << mLast;
        EXPECT_EQ(QString::number(mRest.size()) + u'/' + QString::number(mShow.size()),
                  QString::fromStdString(Counts()));
        for (int Row = 0; Row < Right().Rows(); ++Row)
            EXPECT_EQ(Row + 1, Right().TextMatrix(Row, ColPlace).toInt());
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ManagerWalk, ::testing::Values(1U, 2U, 3U));

}  // namespace
}  // namespace neb
