#include "IconArt.h"

#include <algorithm>
#include <cmath>

#include "Magnifier.h"

namespace quorin::assets {

namespace {

constexpr Color kTileTop = Rgb(0x4A90F7);
constexpr Color kTileBottom = Rgb(0x1D5BD6);
constexpr Color kTileEdge = Rgb(0x1646A8, 0.55);
constexpr Color kShadow = Rgb(0x0B1E45, 0.30);
constexpr Color kWhite = Rgb(0xFFFFFF);
constexpr Color kGlass = Rgb(0xFFFFFF, 0.20);
constexpr Color kBadgeTop = Rgb(0xFBBF24);
constexpr Color kBadgeBottom = Rgb(0xF08A0C);

constexpr int kSamples = 8;

struct IconLayout {
    double size = 0;
    Point tileTopLeft;
    Point tileBottomRight;
    double cornerRadius = 0;
    bool shadow = false;
    Magnifier mark;
    Point badgeCentre;
    double badgeRadius = 0;
    double badgeBorder = 0;
    bool badgeDots = false;
};

IconLayout LayOut(int pixels) {
    const double size = pixels;
    // Small sizes use the whole square; large ones leave room for a soft shadow.
    const double margin = pixels >= 32 ? std::round(size * 0.0625) : (pixels > 16 ? 1.0 : 0.0);
    const double tile = size - 2 * margin;
    IconLayout layout;
    layout.size = size;
    layout.tileTopLeft = {margin, margin};
    layout.tileBottomRight = {size - margin, size - margin - (pixels >= 48 ? size * 0.025 : 0)};
    layout.cornerRadius = tile * 0.22;
    layout.shadow = pixels >= 48;

    const auto at = [&](double fraction) { return margin + tile * fraction; };
    layout.mark.centre = {at(0.43), at(0.43)};
    layout.mark.radius = tile * 0.27;
    layout.mark.rimWidth = std::max(tile * 0.095, 1.7);
    layout.mark.handleLength = tile * 0.24;
    layout.mark.handleWidth = std::max(tile * 0.14, 2.4);

    layout.badgeCentre = {at(0.79), at(0.21)};
    layout.badgeRadius = std::max(tile * 0.2, 3.3);
    layout.badgeBorder = std::max(tile * 0.04, 1.0);
    layout.badgeDots = pixels >= 32;
    return layout;
}

Color TileColor(const IconLayout& layout, Point p) {
    const double d =
        RoundedRectDistance(p, layout.tileTopLeft, layout.tileBottomRight, layout.cornerRadius);
    Color color;
    if (layout.shadow) {
        const double drop = layout.size * 0.03;
        const double blur = layout.size * 0.025;
        const Point shadowTopLeft{layout.tileTopLeft.x + blur, layout.tileTopLeft.y + drop};
        const Point shadowBottomRight{layout.tileBottomRight.x - blur,
                                      layout.tileBottomRight.y + drop};
        const double s =
            RoundedRectDistance(p, shadowTopLeft, shadowBottomRight, layout.cornerRadius);
        color = Fade(kShadow, 1.0 - Smoothstep(-blur, blur, s));
    }
    if (d > 0) {
        return color;
    }
    const double t =
        (p.y - layout.tileTopLeft.y) / (layout.tileBottomRight.y - layout.tileTopLeft.y);
    color = Over(Mix(kTileTop, kTileBottom, t), color);
    // A hairline darker edge keeps the tile's outline on white backgrounds.
    const double edge = std::max(layout.size / 128.0, 0.6);
    if (d > -edge) {
        color = Over(kTileEdge, color);
    }
    return color;
}

Color MarkColor(const IconLayout& layout, Point p, Color under) {
    const Magnifier& mark = layout.mark;
    if (mark.InGlass(p)) {
        under = Over(kGlass, under);
        if (layout.size >= 32 && mark.InGlint(p)) {
            under = Over(Fade(kWhite, 0.7), under);
        }
    }
    if (mark.InRim(p) || mark.InHandle(p)) {
        under = Over(kWhite, under);
    }
    return under;
}

Color BadgeColor(const IconLayout& layout, Point p, Color under) {
    const double d = CircleDistance(p, layout.badgeCentre, layout.badgeRadius);
    if (d > layout.badgeBorder) {
        return under;
    }
    if (d > 0) {
        return Over(kWhite, under);
    }
    const double top = layout.badgeCentre.y - layout.badgeRadius;
    Color color = Mix(kBadgeTop, kBadgeBottom, (p.y - top) / (2 * layout.badgeRadius));
    if (layout.badgeDots) {
        const double spacing = layout.badgeRadius * 0.5;
        const double dot = layout.badgeRadius * 0.15;
        for (int i = -1; i <= 1; ++i) {
            const Point centre{layout.badgeCentre.x + i * spacing, layout.badgeCentre.y};
            if (CircleDistance(p, centre, dot) <= 0) {
                color = kWhite;
            }
        }
    }
    return color;
}

Image DrawIcon(int size, bool indexing) {
    const IconLayout layout = LayOut(size);
    Image image(size, size);
    image.Render(kSamples, [&](double x, double y) {
        const Point p{x, y};
        Color color = MarkColor(layout, p, TileColor(layout, p));
        if (indexing) {
            color = BadgeColor(layout, p, color);
        }
        return color;
    });
    return image;
}

}  // namespace

Image DrawProgramIcon(int size) {
    return DrawIcon(size, false);
}

Image DrawIndexingIcon(int size) {
    return DrawIcon(size, true);
}

}  // namespace quorin::assets
