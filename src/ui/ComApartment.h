#pragma once

#include <objbase.h>

namespace quorin {

// The calling thread in a single-threaded COM apartment for the object's lifetime: screen
// readers reach the labels' accessible objects through COM.
class ComApartment {
  public:
    ComApartment() : entered_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ~ComApartment() {
        if (entered_) {
            CoUninitialize();
        }
    }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

  private:
    bool entered_;
};

}  // namespace quorin
