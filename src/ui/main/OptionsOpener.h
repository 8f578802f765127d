#pragma once

namespace quorin {

inline constexpr int kOptionsGeneral = 0;
inline constexpr int kOptionsFileTypes = 1;
inline constexpr int kOptionsWords = 2;

// Opens the Options dialog at one of its pages, modeless, owned by the main window.
class OptionsOpener {
  public:
    virtual ~OptionsOpener() = default;
    virtual void ShowOptions(int panel) = 0;
};

}  // namespace quorin
