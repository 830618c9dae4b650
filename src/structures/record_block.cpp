#include "structures/record_block.h"

#include <functional>

namespace SMBIOS::Structures {

namespace {

constexpr std::size_t kAlignment = alignof(std::max_align_t);

constexpr std::size_t RoundedUp(std::size_t size) noexcept {
    return (size + kAlignment - 1) / kAlignment * kAlignment;
}

}  // namespace

void* RecordBlock::do_allocate(std::size_t size, std::size_t alignment) {
    isFull_ = isFull_ || size > bytes_.size() - used_ || alignment > kAlignment;
    void* place = nullptr;
    if (isFull_) {
        place = std::pmr::new_delete_resource()->allocate(size, alignment);
    } else {
        place = bytes_.data() + used_;
        used_ += RoundedUp(size);
    }
    shares_.fetch_add(1, std::memory_order_relaxed);
    return place;
}

void RecordBlock::do_deallocate(void* place, std::size_t size, std::size_t alignment) {
    const auto* const byte = static_cast<const std::byte*>(place);
    const bool isOwn =
        std::less_equal<>()(bytes_.data(), byte) && std::less<>()(byte, bytes_.data() + bytes_.size());
    if (!isOwn) {
        std::pmr::new_delete_resource()->deallocate(place, size, alignment);
    }
    Release();
}

bool RecordBlock::do_is_equal(const std::pmr::memory_resource& other) const noexcept {
    return this == &other;
}

void RecordBlock::Release() noexcept {
    if (shares_.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        delete this;
    }
}

}  // namespace SMBIOS::Structures
