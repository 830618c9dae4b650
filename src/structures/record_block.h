#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <memory>
#include <memory_resource>

namespace SMBIOS::Structures {

/// Memory for decoders and their records, which fill it one behind the other and have memory of their own
/// once it is full. It lives as long as its owner or anything made in it: a record that a reader keeps holds
/// its block, no more. Things are made in it on one thread, and may be released on any.
class RecordBlock final : public std::pmr::memory_resource {
    struct LetGo {
        void operator()(RecordBlock* block) const noexcept { block->Release(); }
    };

public:
    using Owner = std::unique_ptr<RecordBlock, LetGo>;

    /// Throws std::bad_alloc.
    [[nodiscard]] static Owner Make() { return Owner(new RecordBlock); }

    /// Whether it had no room for something.
    [[nodiscard]] bool IsFull() const noexcept { return isFull_; }

private:
    RecordBlock() = default;

    void* do_allocate(std::size_t size, std::size_t alignment) override;
    void do_deallocate(void* place, std::size_t size, std::size_t alignment) override;
    [[nodiscard]] bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override;

    void Release() noexcept;

    std::atomic<std::size_t> shares_ = 1;  // the owner's, and one for each thing made in it
    std::size_t used_ = 0;
    bool isFull_ = false;
    alignas(std::max_align_t) std::array<std::byte, 16'000> bytes_;
};

}  // namespace SMBIOS::Structures
