#include <cstdlib>

#include "platform/once.h"
#include "platform/windows_api.h"

namespace SMBIOS::Platform {

namespace {

static_assert(sizeof(INIT_ONCE) == sizeof(void*) && alignof(INIT_ONCE) <= alignof(void*),
              "an INIT_ONCE lives in the place of a pointer");

void AbortUnless(BOOL succeeded) noexcept {
    if (!succeeded) {
        std::abort();
    }
}

/// Ends a pending initialisation: as failed, unless it was told otherwise.
class PendingInitialisation {
public:
    explicit PendingInitialisation(PINIT_ONCE once) noexcept : once_(once) {}
    PendingInitialisation(const PendingInitialisation&) = delete;
    PendingInitialisation& operator=(const PendingInitialisation&) = delete;
    ~PendingInitialisation() { AbortUnless(::InitOnceComplete(once_, flags_, nullptr)); }

    void Succeeded() noexcept { flags_ = 0; }

private:
    PINIT_ONCE once_;
    DWORD flags_ = INIT_ONCE_INIT_FAILED;
};

}  // namespace

void Once::Call(const std::function<void()>& create) {
    const auto once = reinterpret_cast<PINIT_ONCE>(&native_);
    BOOL isPending = FALSE;
    AbortUnless(::InitOnceBeginInitialize(once, 0, &isPending, nullptr));
    if (!isPending) {
        return;
    }
    PendingInitialisation initialisation(once);
    create();
    initialisation.Succeeded();
}

}  // namespace SMBIOS::Platform
