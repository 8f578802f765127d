#include "SplashArt.h"

#include "Magnifier.h"

namespace quorin::assets {

namespace {

constexpr Color kFieldFrom = Rgb(0x163A9C);
constexpr Color kFieldTo = Rgb(0x3F8CF4);
constexpr Color kWhite = Rgb(0xFFFFFF);
constexpr int kSamples = 4;

Magnifier BrandMark() {
    Magnifier mark;
    mark.centre = {54, 74};
    mark.radius = 21;
    mark.rimWidth = 6.5;
    mark.handleLength = 18;
    mark.handleWidth = 10;
    return mark;
}

Magnifier BackdropMark() {
    Magnifier mark;
    mark.centre = {322, 64};
    mark.radius = 78;
    mark.rimWidth = 16;
    mark.handleLength = 70;
    mark.handleWidth = 24;
    return mark;
}

Color MarkColor(const Magnifier& mark, Point p, double opacity, Color under) {
    if (mark.InGlass(p)) {
        under = Over(Fade(kWhite, 0.12 * opacity), under);
        if (mark.InGlint(p)) {
            under = Over(Fade(kWhite, 0.6 * opacity), under);
        }
    }
    if (mark.InRim(p) || mark.InHandle(p)) {
        under = Over(Fade(kWhite, opacity), under);
    }
    return under;
}

}  // namespace

Image DrawSplashPicture() {
    const Magnifier brand = BrandMark();
    const Magnifier backdrop = BackdropMark();
    Image image(kSplashWidth, kSplashHeight);
    image.Render(kSamples, [&](double x, double y) {
        const Point p{x, y};
        const double t = 0.65 * x / kSplashWidth + 0.35 * y / kSplashHeight;
        Color color = Mix(kFieldFrom, kFieldTo, t);
        color = MarkColor(backdrop, p, 0.09, color);
        return MarkColor(brand, p, 1.0, color);
    });
    return image;
}

}  // namespace quorin::assets
