#pragma once

#include <utility>

namespace quorin {

// Move-only owner of an OS handle. Traits supplies the handle type, its "none" value and Close().
template <typename Traits>
class UniqueHandle {
  public:
    using Handle = typename Traits::Handle;

    UniqueHandle() = default;
    explicit UniqueHandle(Handle handle) : handle_(handle) {}
    UniqueHandle(const UniqueHandle&) = delete;
    UniqueHandle& operator=(const UniqueHandle&) = delete;
    UniqueHandle(UniqueHandle&& other) noexcept : handle_(other.release()) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept {
        reset(other.release());
        return *this;
    }
    ~UniqueHandle() { reset(); }

    Handle get() const { return handle_; }
    explicit operator bool() const { return handle_ != Traits::None(); }

    Handle release() { return std::exchange(handle_, Traits::None()); }

    void reset(Handle handle = Traits::None()) {
        Handle old = std::exchange(handle_, handle);
        if (old != Traits::None()) {
            Traits::Close(old);
        }
    }

  private:
    Handle handle_ = Traits::None();
};

}  // namespace quorin
