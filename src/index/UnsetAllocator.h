#pragma once

#include <cstddef>
#include <memory>
#include <new>

namespace quorin {

// Growing a vector with this allocator leaves the new elements unset, for a buffer whose every
// new byte is written right after; elements given a value are made as by std::allocator. (Not
// derived from std::allocator, whose library shortcut would zero them.)
template <typename T>
struct UnsetAllocator {
    using value_type = T;
    UnsetAllocator() = default;
    template <typename U>
    explicit UnsetAllocator(const UnsetAllocator<U>& /*other*/) {}
    T* allocate(size_t count) { return std::allocator<T>().allocate(count); }
    void deallocate(T* at, size_t count) { std::allocator<T>().deallocate(at, count); }
    template <typename U>
    void construct(U* at) noexcept {
        ::new (static_cast<void*>(at)) U;
    }
    bool operator==(const UnsetAllocator& /*other*/) const { return true; }
};

}  // namespace quorin
