// What of a document a sheet of paper cannot show.
#include "printing/PrintReach.h"

#include "printing/PrintRig.h"

namespace neb {
namespace {

using namespace tests;

class PrintReach : public ::testing::Test {
  protected:
    // A page for each place.
    static PrintDocument At(const std::vector<QRectF>& Places) {
        PrintDocument Document({u"none"_s, {}});
        Document.StartDoc();
        for (std::size_t I = 0; I < Places.size(); ++I) {
            if (I > 0) Document.NewPage();
            if (!Places[I].isEmpty()) Place(Document, {u"p"_s, {}}, Places[I]);
        }
        Document.EndDoc();
        return Document;
    }
    static std::string Said(const PrintDocument& Document, const std::vector<int>& Pages,
                            QSizeF Paper, QMarginsF Blank = {}) {
        return ReachWarnings(Document, Pages, {Paper, Blank}).join(u'|').toStdString();
    }
    static std::string Margin(const char* Pages) {
        return std::string(
                   "The printer cannot reach so near to the edge of the paper as pictures "
                   "lie on ") +
               Pages + ": they will be cut off there.";
    }
    const QMarginsF Quarter{.25, .25, .25, .25};
};

TEST_F(PrintReach, NothingIsSaidOfWhatFits) {
    const PrintDocument Document = At({{1, 1, 6.5, 9}, {}, {0.25, 0.25, 8, 10.5}});
    EXPECT_EQ("", Said(Document, {1, 2, 3}, LetterPaper, Quarter));
    EXPECT_EQ("", Said(At({{0, 0, 8.5, 11}}), {1}, LetterPaper));
    EXPECT_EQ("", Said(At({{0.245, 1, 1, 1}}), {1}, LetterPaper, Quarter));  // a printer's rounding
}

TEST_F(PrintReach, EachEdgeCounts) {
    for (const QRectF& Each :
         {QRectF(0.2, 1, 1, 1), QRectF(1, 0.2, 1, 1), QRectF(7.3, 1, 1, 1), QRectF(1, 9.8, 1, 1)})
        EXPECT_EQ(Margin("page 1"), Said(At({Each}), {1}, LetterPaper, Quarter));
}

TEST_F(PrintReach, OnlyThePagesThatArePrintedCountAndEachOnce) {
    const QRectF Good(1, 1, 1, 1), Bad(0.1, 1, 1, 1);
    const PrintDocument Document = At({Bad, Good, Bad, Bad});
    EXPECT_EQ("", Said(Document, {2}, LetterPaper, Quarter));
    EXPECT_EQ(Margin("page 3"), Said(Document, {2, 3, 3}, LetterPaper, Quarter));
    EXPECT_EQ(Margin("3 pages, first on page 1"),
              Said(Document, {4, 3, 2, 1}, LetterPaper, Quarter));
}

TEST_F(PrintReach, PaperThatIsTooSmallIsNamedWithItsSize) {
    const PrintDocument Document = At({{1, 1, 6.5, 9}});
    EXPECT_EQ("The paper, 4.13 by 5.85 inches, is too small for what is on page 1.",
              Said(Document, {1}, A4Paper / 2, Quarter));
    EXPECT_EQ("", Said(Document, {1}, A4Paper, Quarter));
}

}  // namespace
}  // namespace neb
