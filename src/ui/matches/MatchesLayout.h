#pragma once

#include <optional>

namespace quorin {

// Positions and sizes of the Matches window in twips; control rectangles are in its client area.
struct TwipsRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

struct TwipsSize {
    int width = 0;
    int height = 0;
};

inline constexpr int kMatchesMinimumTwips = 3000;

// The size the window is made when no place was saved.
inline constexpr TwipsSize kMatchesDesignedSize{7200, 4800};

// The outer frame the offsets below were drawn for. The window measures itself as its client
// area plus this frame, so the controls keep their margins under any system's frame.
inline constexpr TwipsSize kMatchesDesignedFrame{120, 390};

struct MatchesLayout {
    TwipsRect Label1;
    TwipsRect lvwItems;
    TwipsRect cmdOpen;
    TwipsRect chkAssociate;
};

// The size a window of `window` twips must first be given: the width is put right before the
// height, one change at a time, since each change brings its own resize. Nothing once the window
// is at least 3000 x 3000.
std::optional<TwipsSize> MatchesMinimumFix(TwipsSize window);

// The controls of a window of `window` twips: the list takes the room the window gives, the check
// box and the Open button stay on its bottom edge, Open on the right. `associate` is the check
// box's size with its caption on one line: where that is wider than its place beside Open, the
// check box takes a row of its own above Open across the window, two lines tall where one line
// is still too short, and the list gives it the room.
MatchesLayout ArrangeMatches(TwipsSize window, TwipsSize associate = {});

}  // namespace quorin
