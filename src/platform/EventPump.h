#pragma once

namespace quorin {

// Long work on the UI thread calls DoEvents() to let pending window messages run.
class EventPump {
  public:
    virtual ~EventPump() = default;
    virtual void DoEvents() = 0;
};

}  // namespace quorin
