#pragma once

#include <cstdint>
#include <vector>

#include "tests/windows/windows_headers.h"

namespace SMBIOS::Tests {

/// While it lives, the library's calls of GetSystemFirmwareTable are answered with a table of ours: its
/// import table leads here. The library's file and code stay as they are. One at a time, made before the
/// library's first read.
class ServedTable {
public:
    /// Serves `table`, an empty one as "no such table", to the library that the program is linked with.
    explicit ServedTable(std::vector<std::uint8_t> table);
    /// Serves to the library loaded as `library`, which must outlive this object.
    ServedTable(HMODULE library, std::vector<std::uint8_t> table);
    ServedTable(const ServedTable&) = delete;
    ServedTable& operator=(const ServedTable&) = delete;
    ~ServedTable();

    /// Serves `table` from now on.
    void Serve(std::vector<std::uint8_t> table);

    /// Serves `table` after the next question for the size.
    void ServeAfterSizeQuery(std::vector<std::uint8_t> table);

    /// Calls so far that asked for the size, and that brought a buffer.
    [[nodiscard]] int SizeQueries() const noexcept;
    [[nodiscard]] int Reads() const noexcept;

private:
    const ULONGLONG* const slot_;
    const ULONGLONG formerFunction_;
};

}  // namespace SMBIOS::Tests
