#pragma once

#include "platform/EventPump.h"

namespace quorin {

// The console has no window messages to let through during a build.
class IdleEventPump final : public EventPump {
  public:
    void DoEvents() override {}
};

}  // namespace quorin
