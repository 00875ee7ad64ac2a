// Slides go from one list of the slide show manager to the other and change places.
#include "ManagerRig.h"
#include "windows/lists/frmPicturePopup.h"

namespace neb {
namespace {

using namespace harness;

class ManagerMove : public ManagerRig {
  protected:
    // The picture that a popup shows on what Do does.
    int PopupsOn(const std::function<void()>& Do) {
        int Count = 0;
        WhenOpen<frmPicturePopup>([&](frmPicturePopup& Popup) {
            ++Count;
            QTest::keyClick(&Popup, Qt::Key_Escape);
        });
        Do();
        return Count;
    }
};

TEST_F(ManagerMove, SelectedAndAllRowsGoToTheEndInTheirOrder) {
    OpenGarden({});
    EXPECT_EQ("a|b|c|d|e / ", Lists());
    Pick(Left(), {3, 0});
    Push("cmdMoveRightOne");
    EXPECT_EQ("b|c|e / a|d", Lists());
    EXPECT_EQ("1|2", Places());
    EXPECT_EQ("3/2", Counts());
    Push("cmdMoveRightAll");
    EXPECT_EQ(" / a|d|b|c|e", Lists());
    Pick(Right(), {1, 4});
    Push("cmdMoveLeftOne");
    EXPECT_EQ("d|e / a|b|c", Lists());
    EXPECT_EQ("1|2|3", Places());
    Push("cmdMoveLeftAll");
    EXPECT_EQ("d|e|a|b|c / ", Lists());
    EXPECT_EQ("5/0", Counts());
}

TEST_F(ManagerMove, NothingSelectedMovesNothing) {
    OpenGarden({1});
    Left().ClearSelection();
    Right().ClearSelection();
    Push("cmdMoveRightOne");
    Push("cmdMoveLeftOne");
    EXPECT_EQ("b|c|d|e / a", Lists());
}

TEST_F(ManagerMove, SlideAfterSlideGoesWithOneKey) {
    OpenGarden({});
    Pick(Left(), {1});
    for (int I = 0; I < 3; ++I) Push("cmdMoveRightOne");
    EXPECT_EQ("a|e / b|c|d", Lists());
    Push("cmdMoveRightOne");
    Push("cmdMoveRightOne");
    Push("cmdMoveRightOne");
    EXPECT_EQ(" / b|c|d|e|a", Lists());
}

TEST_F(ManagerMove, AChangedCaptionTravelsWithItsRowAndComesBack) {
    OpenGarden({1, 2});
    PutCaption(1, u"Rose"_s);
    Pick(Right(), {1});
    Push("cmdMoveLeftOne");
    EXPECT_EQ("c|d|e|Rose / a", Lists());
    EXPECT_EQ("b", Left().TextMatrix(3, ColOwnText).toStdString());
    EXPECT_EQ("", Left().TextMatrix(3, ColPlace).toStdString());
    Pick(Left(), {3});
    Push("cmdMoveRightOne");
    EXPECT_EQ("c|d|e / a|Rose", Lists());
    EXPECT_EQ(2, SlideIn(Right(), 1));
    EXPECT_FALSE(Right().CellPicture(1, clsImageBuffer::ColPicture).isNull());
}

TEST_F(ManagerMove, TheCurrentRowGoesUpAndDownAndStaysSelectedAlone) {
    OpenGarden({1, 2, 3});
    Pick(Right(), {1, 2});
    Right().selectionModel()->setCurrentIndex(Right().model()->index(2, 2),
                                              QItemSelectionModel::NoUpdate);
    Push("cmdMoveUp");
    EXPECT_EQ("a|c|b", Captions(Right()));
    EXPECT_EQ("1|2|3", Places());
    EXPECT_EQ(std::vector<int>{1}, SelectedRowsOf(Right()));
    EXPECT_EQ(1, Right().Row());
    Push("cmdMoveUp");
    Push("cmdMoveUp");
    EXPECT_EQ("c|a|b", Captions(Right())) << "the first goes no further";
    Push("cmdMoveDown");
    EXPECT_EQ("a|c|b", Captions(Right()));
    Push("cmdMoveDown");
    Push("cmdMoveDown");
    EXPECT_EQ("a|b|c", Captions(Right()));
    EXPECT_EQ("1|2|3", Places());
}

TEST_F(ManagerMove, WithoutARowThereIsNothingToOrder) {
    OpenGarden({});
    Push("cmdMoveUp");
    Push("cmdMoveDown");
    EXPECT_EQ("a|b|c|d|e / ", Lists());
}

TEST(TypedPlace, IsANumberInsideTheListAndRounded) {
    const struct {
        const char* Typed;
        int Row;  // -1: refused
    } Cases[] = {
        {"1", 0},    {"5", 4},   {" 3 ", 2},   {"2.4", 1}, {"2.5", 1},  {"3.5", 3},
        {"0.6", 0},  {"5.4", 4}, {"5.5", -1},  {"0", -1},  {"0.5", -1}, {"-1", -1},
        {"6", -1},   {"", -1},   {"  ", -1},   {"x", -1},  {"3x", -1},  {"nan", -1},
        {"inf", -1}, {"1e0", 0}, {"1e99", -1}, {"+2", 1},  {"-0", -1},  {"3,5", -1},
    };
    for (const auto& Each : Cases)
        EXPECT_EQ(Each.Row, TypedPlace(QString::fromLatin1(Each.Typed), 5).value_or(-1))
            << Each.Typed;
    EXPECT_FALSE(TypedPlace(u"1"_s, 0));
}

TEST_F(ManagerMove, ATypedPlaceTakesTheSlideThere) {
    OpenGarden({1, 2, 3, 4, 5});
    Put(Right(), 4, ColPlace, u"2"_s);
    EXPECT_EQ("a|e|b|c|d", Captions(Right()));
    EXPECT_EQ("1|2|3|4|5", Places());
    EXPECT_EQ(std::vector<int>{1}, SelectedRowsOf(Right()));
    EXPECT_EQ(1, Right().Row());
    EXPECT_EQ(ColPlace, Right().Col());
    Put(Right(), 0, ColPlace, u"3.5"_s);
    EXPECT_EQ("e|b|c|a|d", Captions(Right()));
    for (const char* Refused : {"0", "6", "x", "", "3x"}) {
        Put(Right(), 2, ColPlace, QString::fromLatin1(Refused));
        EXPECT_EQ("e|b|c|a|d", Captions(Right())) << Refused;
        EXPECT_EQ("1|2|3|4|5", Places()) << Refused;
    }
    Put(Right(), 2, ColPlace, u"3"_s);
    EXPECT_EQ("1|2|3|4|5", Places());
}

TEST_F(ManagerMove, ATypedPlaceWithAFractionOfItsOwnIsWrittenAsItsNumber) {
    OpenGarden({1, 2, 3});
    Put(Right(), 1, ColPlace, u"2.2"_s);
    EXPECT_EQ("1|2|3", Places());
    EXPECT_EQ("a|b|c", Captions(Right()));
}

// Nothing that is being typed is lost when another control is used.
TEST_F(ManagerMove, AnOpenEditCountsWhenACommandIsGiven) {
    OpenGarden({1, 2, 3});
    Begin(Right(), 1, clsImageBuffer::ColText, u"Rose"_s);
    Push("cmdMoveUp");
    EXPECT_EQ("Rose|a|c", Captions(Right()));
    Begin(Right(), 2, ColPlace, u"1"_s);
    Push("cmdMoveDown");
    EXPECT_EQ("Rose|c|a", Captions(Right())) << "the row that was placed goes on";
    Begin(Right(), 0, clsImageBuffer::ColText, u"Tulip"_s);
    ClickCell(Left(), 0, clsImageBuffer::ColText);
    EXPECT_EQ("d|e / Tulip|c|a", Lists());
    Begin(Right(), 1, clsImageBuffer::ColText, u"Lily"_s);
    Name().setFocus();
    EXPECT_EQ("Tulip|Lily|a", Captions(Right()));
    Begin(Right(), 2, clsImageBuffer::ColText, u"Fern"_s);
    Others->ShowModeless();
    Activate(*Others);
    EXPECT_EQ("Tulip|Lily|Fern", Captions(Right())) << "another window was chosen";
}

TEST_F(ManagerMove, QuotesTurnTypographicWhileACaptionIsTyped) {
    OpenGarden({1});
    Begin(Right(), 0, clsImageBuffer::ColText, u"\"hi\""_s);
    QTest::keyClick(&Editor(Right()), Qt::Key_Return);
    EXPECT_EQ(ConvertQuotes(u"\"hi\""_s).toStdString(), Captions(Right()));
}

TEST_F(ManagerMove, TheOtherListTakesNoCaptions) {
    OpenGarden({1});
    EXPECT_FALSE(Left().EditCell(0, clsImageBuffer::ColText));
    EXPECT_FALSE(Left().EditCell(0, ColPlace));
    EXPECT_FALSE(Right().EditCell(0, clsImageBuffer::ColPicture));
}

TEST_F(ManagerMove, ADoubleClickShowsThePictureOfTheRowInBothLists) {
    OpenGarden({1});
    EXPECT_EQ(1, PopupsOn([&] { DoubleClickCell(Left(), 1, clsImageBuffer::ColPicture); }));
    Activate(*W);
    EXPECT_EQ(1, PopupsOn([&] { DoubleClickCell(Left(), 0, clsImageBuffer::ColText); }));
    Activate(*W);
    EXPECT_EQ(1, PopupsOn([&] { DoubleClickCell(Right(), 0, clsImageBuffer::ColText); }));
    EXPECT_FALSE(Right().IsEditing());
}

}  // namespace
}  // namespace neb
