#include "AnimationArt.h"

#include <array>
#include <cmath>
#include <numbers>

#include "Magnifier.h"

namespace quorin::assets {

namespace {

constexpr Color kBackground = Rgb(kAnimationBackground);
constexpr Color kFolderBack = Rgb(0xE3A12F);
constexpr Color kFolderFrontTop = Rgb(0xFFD870);
constexpr Color kFolderFrontBottom = Rgb(0xF5B43A);
constexpr Color kFolderEdge = Rgb(0xC98A1E);
constexpr Color kPaper = Rgb(0xFFFFFF);
constexpr Color kPaperBehind = Rgb(0xEEF1F5);
constexpr Color kPaperEdge = Rgb(0xC5CCD6);
constexpr Color kTextLine = Rgb(0x9AA8BA);
constexpr Color kShadow = Rgb(0x303846, 0.22);
constexpr Color kRimTop = Rgb(0x66768C);
constexpr Color kRimBottom = Rgb(0x2E3948);
constexpr Color kHandle = Rgb(0x2A3340);
constexpr Color kGlassTint = Rgb(0xBFDFFF, 0.18);
constexpr Color kGlint = Rgb(0xFFFFFF, 0.65);

constexpr std::array<double, 1> kFolderCentres = {48};
constexpr double kFolderBottom = 50;
constexpr double kZoom = 1.5;
constexpr double kSweep = 24;
constexpr int kSamples = 4;

Color Paint(bool inside, Color paint, Color under) {
    return inside ? Over(paint, under) : under;
}

bool InRect(Point p, double left, double top, double right, double bottom, double radius) {
    return RoundedRectDistance(p, {left, top}, {right, bottom}, radius) <= 0;
}

Color PaperColor(Point p, double left, double top, double right, double bottom, Color paper,
                 Color under) {
    const double d = RoundedRectDistance(p, {left, top}, {right, bottom}, 1);
    if (d > 0) {
        return under;
    }
    if (d > -0.8) {
        return kPaperEdge;
    }
    for (int line = 0; line < 4; ++line) {
        const double y = top + 3.5 + 3.5 * line;
        const double end = right - 4 - (line == 3 ? 9 : 0);
        if (SegmentDistance(p, {left + 4, y}, {end, y}) <= 0.6) {
            return kTextLine;
        }
    }
    return paper;
}

Color FolderColor(Point p, double cx, Color under) {
    const double bottom = kFolderBottom;
    // A soft oval shadow on the "floor" beneath the folder.
    const double ox = (p.x - cx) / 27;
    const double oy = (p.y - bottom - 1) / 3.5;
    const double oval = std::hypot(ox, oy);
    under = Over(Fade(kShadow, 1.0 - Smoothstep(0.55, 1.0, oval)), under);

    under = Paint(InRect(p, cx - 22, 18, cx + 22, bottom, 3), kFolderBack, under);
    under = Paint(InRect(p, cx - 22, 14, cx - 5, 22, 3), kFolderBack, under);
    under = PaperColor(p, cx - 13, 15, cx + 18, 42, kPaperBehind, under);
    under = PaperColor(p, cx - 18, 18, cx + 13, 45, kPaper, under);

    const double front = RoundedRectDistance(p, {cx - 22, 27}, {cx + 22, bottom}, 3);
    if (front <= 0) {
        const double t = (p.y - 27) / (bottom - 27);
        under = front > -1 ? kFolderEdge : Mix(kFolderFrontTop, kFolderFrontBottom, t);
    }
    return under;
}

Color SceneColor(Point p) {
    Color color = kBackground;
    for (double cx : kFolderCentres) {
        if (std::abs(p.x - cx) < 32) {
            color = FolderColor(p, cx, color);
        }
    }
    return color;
}

Color FrameColor(Point p, const Magnifier& lens) {
    Color color;
    if (lens.InGlass(p)) {
        const Point seen{lens.centre.x + (p.x - lens.centre.x) / kZoom,
                         lens.centre.y + (p.y - lens.centre.y) / kZoom};
        color = Over(kGlassTint, SceneColor(seen));
        color = Paint(lens.InGlint(p), kGlint, color);
    } else {
        color = SceneColor(p);
        const Point shadowCentre{lens.centre.x + 3, lens.centre.y + 5};
        const double d = CircleDistance(p, shadowCentre, lens.radius);
        color = Over(Fade(kShadow, 0.8 * (1.0 - Smoothstep(-3, 4, d))), color);
    }
    if (lens.InRim(p)) {
        const double t = (p.y - (lens.centre.y - lens.radius)) / (2 * lens.radius);
        color = Mix(kRimTop, kRimBottom, t);
    }
    return Paint(lens.InHandle(p), kHandle, color);
}

}  // namespace

std::vector<Image> DrawSearchAnimation() {
    std::vector<Image> frames;
    for (int f = 0; f < kAnimationFrames; ++f) {
        const double phase = 2 * std::numbers::pi * f / kAnimationFrames;
        Magnifier lens;
        lens.centre = {kFolderCentres[0] + kSweep * std::sin(phase), 27 + 3 * std::sin(2 * phase)};
        lens.radius = 16;
        lens.rimWidth = 3.5;
        lens.handleLength = 13;
        lens.handleWidth = 5.5;
        Image frame(kAnimationWidth, kAnimationHeight);
        frame.Render(kSamples, [&](double x, double y) { return FrameColor({x, y}, lens); });
        frames.push_back(std::move(frame));
    }
    return frames;
}

}  // namespace quorin::assets
