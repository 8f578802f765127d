#pragma once

#include "platform/UniqueHandle.h"

#include <unistd.h>

namespace quorin {

struct FdTraits {
    using Handle = int;
    static constexpr int None() { return -1; }
    static void Close(int fd) { ::close(fd); }
};
using UniqueFd = UniqueHandle<FdTraits>;

}  // namespace quorin
