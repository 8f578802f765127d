#pragma once

#include <windows.h>

namespace quorin {

// Puts `follower` where the text of the word-wrapped static `label` ends, one blank on, so that
// a link reads as the end of the label's sentence; on the next line when the rest of the last
// line is too short for it. Both are children of the same window.
void PlaceAfterText(HWND label, HWND follower);

// Where a control right of the one-line static `label` may begin, in the label's parent: one
// blank after the label's text.
int ClearOfText(HWND label);

}  // namespace quorin
