#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace SMBIOS::Structures {

/// Handle of a decoder that has no record yet.
inline constexpr std::uint16_t kNoHandle = 0xFFFF;

/// The abstract decoder of one structure. Created empty, given exactly one structure with `Process`,
/// read-only afterwards. The order of the virtual operations is fixed.
class BaseStructure {
public:
    BaseStructure() = default;
    BaseStructure(const BaseStructure&) = delete;
    BaseStructure& operator=(const BaseStructure&) = delete;

    /// Releases the decoder's share of its record.
    virtual ~BaseStructure() = default;

    /// Decodes one structure into the record: `formattedBytes` is its formatted area, `strings` its string
    /// set, string number 1 first. A decoding failure does not leave it: the record's `error` holds its text.
    /// Throws only when there is no memory for the record.
    virtual void Process(const std::vector<std::uint8_t>& formattedBytes,
                         const std::vector<std::string>& strings) = 0;

    /// The record's handle; `kNoHandle` while there is no record.
    [[nodiscard]] virtual std::uint16_t GetHandle() const = 0;

    /// Makes a fresh record, checks the formatted area against the table's version and stores the handle.
    /// Called by `Process`; throws what `Process` records.
    virtual void Parse(const std::vector<std::uint8_t>& formattedBytes) = 0;

    /// `Process` for a caller that needs neither bytes nor strings any more: the record takes them.
    virtual void ProcessAndKeep(std::vector<std::uint8_t>&& formattedBytes,
                                std::vector<std::string>&& strings) = 0;

    /// Whether an allocation failed in `Process`, so that the record lacks what the table has.
    [[nodiscard]] bool RanOutOfMemory() const noexcept { return ranOutOfMemory_; }

protected:
    void NoteOutOfMemory() noexcept { ranOutOfMemory_ = true; }

private:
    bool ranOutOfMemory_ = false;
};

}  // namespace SMBIOS::Structures
