#pragma once

namespace quorin {

// The wait pointer for one busy stretch of the UI thread. While any Hourglass lives, every
// window of the program answers WM_SETCURSOR with the wait pointer, so the arrow does not come
// back at the next mouse move; the last one to go puts the arrow back. Nests.
class Hourglass {
  public:
    Hourglass();
    ~Hourglass();
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

    static bool Shown();
};

}  // namespace quorin
