#include "show/captions/ShowLayout.h"

namespace neb {
namespace {

constexpr int CaptionShare = 3;
constexpr double LeastPicture = 200 / 15.0;  // 200 twips

}  // namespace

CaptionSpace CaptionSpaceIn(QSize Window) {
    return {Window.width(), Window.height(), Window.height() / CaptionShare};
}

std::optional<int> PictureHeightIn(int WindowHeight, int CaptionHeight) {
    const int Left = WindowHeight - CaptionHeight;
    if (Left > LeastPicture) return Left;
    return std::nullopt;
}

}  // namespace neb
