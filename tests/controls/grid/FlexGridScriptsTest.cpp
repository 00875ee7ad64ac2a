// Words of every script in the cells of a list: each begins where its reader begins.
#include <gtest/gtest.h>

#include "GridHarness.h"

namespace neb {
namespace {

using namespace harness;
using namespace Qt::StringLiterals;

class FlexGridScripts : public ::testing::Test {
  protected:
    FlexGridScripts() {
        SetAlbumColumns(Grid);
        FillAlbum(Grid, 2);
        ShowGrid(Window, 500, 400);
        Grid.setGeometry(Window.rect());
        Grid.show();
        QApplication::processEvents();
    }
    // Where the letters of the second row's caption are, in pixels from the left of its cell.
    std::pair<int, int> Letters(const QString& Words) {
        Grid.SetTextMatrix(1, Caption, Words);
        const QRect Cell = Grid.visualRect(Grid.model()->index(1, Caption)).adjusted(2, 2, -2, -2);
        const QImage Image = Grid.viewport()->grab(Cell).toImage();
        int First = Image.width(), Last = -1;
        for (int X = 0; X < Image.width(); ++X)
            for (int Y = 0; Y < Image.height(); ++Y)
                if (qGray(Image.pixel(X, Y)) < 128) First = std::min(First, X), Last = X;
        return {First, Image.width() - 1 - Last};
    }

    QWidget Window;
    FlexGrid Grid{&Window};
};

TEST_F(FlexGridScripts, WordsBeginAtTheSideFromWhichTheyAreRead) {
    for (const QString& Words : {u"Rose"_s, u"Лето"_s, u"水曜日"_s, u"hello שלום"_s}) {
        const auto [Left, Right] = Letters(Words);
        EXPECT_LT(Left, 12) << Words.toStdString();
        EXPECT_GT(Right, 40) << Words.toStdString();
    }
    for (const QString& Words : {u"שלום"_s, u"مرحبا 12"_s, u"שלום hello"_s}) {
        const auto [Left, Right] = Letters(Words);
        EXPECT_LT(Right, 12) << Words.toStdString();
        EXPECT_GT(Left, 40) << Words.toStdString();
    }
}

}  // namespace
}  // namespace neb
