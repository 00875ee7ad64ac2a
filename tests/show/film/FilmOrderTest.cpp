// What may be asked of a film, and what is said of the rest.
#include "show/film/FilmOrder.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

using namespace Qt::StringLiterals;

std::string Said(QSize Size, const QString& Name = u"a.mp4"_s,
                 FilmFormat Format = FilmFormat::Mp4) {
    FilmOrder Order;
    Order.Size = Size;
    Order.Path = Name;
    Order.Format = Format;
    const Answer<> Is = CheckFilmOrder(Order);
    return Is ? "" : Is.Refusal().Text.toStdString();
}

constexpr char WrongSize[] =
    "A film is 2 by 2 to 7680 by 4320 pixels large, upright too, and both are even numbers.";
constexpr char WrongName[] = "The name of a film ends in .mp4, .webm or .mkv.";

TEST(FilmOrderCheck, LetsTheLargestFilmBeUpright) {
    for (const QSize Size : {QSize(7680, 4320), QSize(4320, 7680), QSize(2, 2), QSize(2, 7680)}) {
        EXPECT_EQ("", Said(Size)) << Size.width();
    }
    for (const QSize Size : {QSize(7682, 4320), QSize(4320, 7682), QSize(4322, 7680),
                             QSize(7680, 4322), QSize(0, 2), QSize(3, 2), QSize(2, 3)})
        EXPECT_EQ(WrongSize, Said(Size)) << Size.width();
}

TEST(FilmOrderCheck, WantsTheEndingOfTheFormat) {
    EXPECT_EQ("", Said({640, 360}, u"A.WebM"_s, FilmFormat::WebM));
    EXPECT_EQ(WrongName, Said({640, 360}, u"a.webm"_s));
    EXPECT_EQ(WrongName, Said({640, 360}, u"a.avi"_s));
}

}  // namespace
}  // namespace neb
