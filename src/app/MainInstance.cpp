#include "app/MainInstance.h"

#include <windows.h>

#include "platform/Text.h"

namespace quorin {

MainInstance::MainInstance(std::string_view name)
    : mutex_(CreateMutexW(nullptr, FALSE, Widen(name).c_str())) {
    first_ = mutex_ && GetLastError() != ERROR_ALREADY_EXISTS;
}

}  // namespace quorin
