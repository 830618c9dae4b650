#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "smbios-inspect/picture/fields.h"
#include "smbios-inspect/picture/machine.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect::Picture {

/// Collects processors with the caches they refer to, which may stand before them or behind. The table must
/// live until the end.
class ProcessorCollector {
public:
    explicit ProcessorCollector(Machine& machine) noexcept : machine_(machine) {}

    void AddProcessor(const Standard::Structure& structure);
    void AddCache(Standard::Structure structure);

    /// To be called behind the last structure: gives each processor its caches.
    void Finish();

private:
    static constexpr unsigned kLevels = 3;
    using Levels = std::vector<std::vector<Cache>>;
    using CacheHandles = std::array<std::optional<std::uint64_t>, kLevels>;

    /// Many processors may refer to one cache, which is read once.
    struct KnownCache {
        Standard::Structure structure;
        bool isReferredTo = false;
        std::optional<Fields> fields = std::nullopt;
        std::string tooltip = {};
    };

    static void Read(KnownCache& cache);
    [[nodiscard]] static bool IsInstalled(const KnownCache& cache);
    static Cache Drawn(const KnownCache& cache, unsigned level);
    Levels LevelsOf(const CacheHandles& handles);
    void AddOthersTo(Levels& levels);

    Machine& machine_;
    std::vector<CacheHandles> handles_;  // of the processors that are drawn, the outermost cache first
    std::map<std::uint16_t, KnownCache> caches_;
};

}  // namespace SMBIOS::Inspect::Picture
