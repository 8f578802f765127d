#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/dialogs/DriveChoice.h"
#include "ui/dialogs/IndexOptions.h"
#include "ui/dialogs/OptionsPage.h"

namespace quorin {

class clsIndex;

// Where the General page finds the system's drives ("c: [DATA]") and their types.
struct DriveSource {
    std::function<std::vector<std::string>()> entries;
    DriveTypeOf typeOf;
};

// "General": the folder options, the drives to index and the update interval.
class GeneralPage final : public OptionsPage {
  public:
    // Fills the page from the engine's settings.
    void Load(const clsIndex& index, const DriveSource& drives);
    // What the page says, for OK to store.
    void Collect(IndexOptions& options) const;

    HWND Interval() const;
    // The interval box's text put right, as it is when the box loses the focus.
    void txtInterval_LostFocus();

    void OnCommand(int id, int code, HWND control) override;

  private:
    std::vector<std::string> entries_;  // lstDrives, in list order
};

}  // namespace quorin
