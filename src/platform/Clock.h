#pragma once

#include <string>

namespace quorin {

// Dates are OLE Automation dates: days since 1899-12-30 as a double, 0 meaning never.
class Clock {
  public:
    virtual ~Clock() = default;
    virtual double Now() const = 0;  // local date and time
};

class SystemClock final : public Clock {
  public:
    double Now() const override;
};

// A date and time in the user's short date and time formats, for display.
std::string FormatLocalDateTime(double oleDate);

}  // namespace quorin
