#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace SMBIOS::Tests {

/// Numbers that are the same in every run. What makes structures of them says which bytes come often.
class Random {
public:
    explicit Random(unsigned seed) : engine_(seed) {}

    [[nodiscard]] unsigned Next() { return static_cast<unsigned>(engine_()); }
    [[nodiscard]] std::size_t Below(std::size_t limit) { return engine_() % limit; }

private:
    std::mt19937 engine_;
};

}  // namespace SMBIOS::Tests
