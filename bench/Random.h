#pragma once

#include <cstdint>

namespace quorin::bench {

// SplitMix64: tiny, fast and the same on every platform, so generated data never changes.
class Random {
  public:
    explicit Random(uint64_t seed) : state_(seed) {}

    uint64_t Next() {
        uint64_t z = (state_ += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }

    // A number in [0, bound).
    uint32_t Below(uint32_t bound) { return static_cast<uint32_t>(Next() % bound); }

    // True with probability 1 / n.
    bool OneIn(uint32_t n) { return Below(n) == 0; }

  private:
    uint64_t state_;
};

}  // namespace quorin::bench
