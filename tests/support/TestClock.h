#pragma once

#include "platform/Clock.h"

namespace quorin::test {

// A clock that shows what the test sets.
class TestClock final : public Clock {
  public:
    double Now() const override { return now; }
    double now = 45000.5;  // 2023-03-15 12:00:00
};

}  // namespace quorin::test
