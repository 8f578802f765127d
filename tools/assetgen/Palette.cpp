#include "Palette.h"

#include <algorithm>
#include <array>
#include <map>

namespace quorin::assets {

namespace {

constexpr size_t kPaletteSize = 256;

struct Entry {
    std::array<int, 3> rgb;
    long count;
};

using Box = std::vector<Entry>;

Rgb8 ToRgb8(const Rgba8& p) {
    return {p.r, p.g, p.b};
}

uint32_t Pack(Rgb8 c) {
    return (uint32_t{c.r} << 16) | (uint32_t{c.g} << 8) | c.b;
}

int WidestChannel(const Box& box, int& range) {
    int best = 0;
    range = -1;
    for (int channel = 0; channel < 3; ++channel) {
        const auto [lo, hi] = std::minmax_element(
            box.begin(), box.end(),
            [channel](const Entry& a, const Entry& b) { return a.rgb[channel] < b.rgb[channel]; });
        if (hi->rgb[channel] - lo->rgb[channel] > range) {
            range = hi->rgb[channel] - lo->rgb[channel];
            best = channel;
        }
    }
    return best;
}

// Splits the box with the widest colour range at its pixel-weighted median.
bool SplitWidest(std::vector<Box>& boxes) {
    size_t widest = boxes.size();
    int widestRange = 0;
    int widestChannel = 0;
    for (size_t i = 0; i < boxes.size(); ++i) {
        int range = 0;
        const int channel = WidestChannel(boxes[i], range);
        if (boxes[i].size() > 1 && range > widestRange) {
            widest = i;
            widestRange = range;
            widestChannel = channel;
        }
    }
    if (widest == boxes.size()) {
        return false;
    }
    Box& box = boxes[widest];
    std::stable_sort(box.begin(), box.end(), [widestChannel](const Entry& a, const Entry& b) {
        return a.rgb[widestChannel] < b.rgb[widestChannel];
    });
    long total = 0;
    for (const Entry& e : box) {
        total += e.count;
    }
    long running = 0;
    size_t cut = 1;
    for (; cut < box.size() - 1; ++cut) {
        running += box[cut - 1].count;
        if (running * 2 >= total) {
            break;
        }
    }
    Box upper(box.begin() + static_cast<long>(cut), box.end());
    box.resize(cut);
    boxes.push_back(std::move(upper));
    return true;
}

Rgb8 Average(const Box& box) {
    std::array<double, 3> sum{};
    long count = 0;
    for (const Entry& e : box) {
        for (int c = 0; c < 3; ++c) {
            sum[c] += static_cast<double>(e.rgb[c]) * e.count;
        }
        count += e.count;
    }
    const auto channel = [&](int c) { return static_cast<uint8_t>(sum[c] / count + 0.5); };
    return {channel(0), channel(1), channel(2)};
}

uint8_t Nearest(const std::vector<Rgb8>& palette, Rgb8 c) {
    size_t best = 0;
    int bestDistance = 1 << 30;
    for (size_t i = 0; i < palette.size(); ++i) {
        const int dr = c.r - palette[i].r;
        const int dg = c.g - palette[i].g;
        const int db = c.b - palette[i].b;
        const int distance = dr * dr + dg * dg + db * db;
        if (distance < bestDistance) {
            best = i;
            bestDistance = distance;
        }
    }
    return static_cast<uint8_t>(best);
}

}  // namespace

IndexedFrames Quantize(const std::vector<Image>& frames, Rgb8 background) {
    IndexedFrames result;
    result.width = frames.empty() ? 0 : frames.front().Width();
    result.height = frames.empty() ? 0 : frames.front().Height();

    std::map<uint32_t, Entry> histogram;
    for (const Image& frame : frames) {
        for (int y = 0; y < frame.Height(); ++y) {
            for (int x = 0; x < frame.Width(); ++x) {
                const Rgb8 c = ToRgb8(frame.Pixel8(x, y));
                if (c == background) {
                    continue;
                }
                auto [it, added] = histogram.try_emplace(Pack(c), Entry{{c.r, c.g, c.b}, 0});
                ++it->second.count;
            }
        }
    }

    std::vector<Box> boxes;
    if (!histogram.empty()) {
        Box all;
        for (const auto& [key, entry] : histogram) {
            all.push_back(entry);
        }
        boxes.push_back(std::move(all));
    }
    while (boxes.size() < kPaletteSize - 1 && SplitWidest(boxes)) {
    }

    result.palette.push_back(background);
    for (const Box& box : boxes) {
        result.palette.push_back(Average(box));
    }

    std::map<uint32_t, uint8_t> lookup;
    for (const Image& frame : frames) {
        std::vector<uint8_t> indices;
        indices.reserve(static_cast<size_t>(frame.Width()) * frame.Height());
        for (int y = 0; y < frame.Height(); ++y) {
            for (int x = 0; x < frame.Width(); ++x) {
                const Rgb8 c = ToRgb8(frame.Pixel8(x, y));
                auto [it, added] = lookup.try_emplace(Pack(c), 0);
                if (added) {
                    it->second = Nearest(result.palette, c);
                }
                indices.push_back(it->second);
            }
        }
        result.frames.push_back(std::move(indices));
    }
    return result;
}

}  // namespace quorin::assets
