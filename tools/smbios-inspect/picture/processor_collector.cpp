#include "smbios-inspect/picture/processor_collector.h"

#include <algorithm>
#include <utility>

#include "smbios-inspect/picture/things.h"

namespace SMBIOS::Inspect::Picture {

void ProcessorCollector::AddProcessor(const Standard::Structure& structure) {
    const Fields fields = FieldsOf(structure).own;
    Processor processor = ProcessorOf(fields);
    machine_.socketsFilled += processor.isPopulated ? 1 : 0;
    machine_.cores += processor.cores;
    machine_.threads += processor.threads;
    if (machine_.processors.HasRoom()) {
        processor.tooltip = TooltipOf(structure);
        handles_.push_back(
            {fields.Number("l3CacheHandle"), fields.Number("l2CacheHandle"), fields.Number("l1CacheHandle")});
    }
    machine_.processors.Add(std::move(processor));
}

void ProcessorCollector::AddCache(Standard::Structure structure) {
    const std::uint16_t handle = structure.Handle();
    caches_.try_emplace(handle, KnownCache{std::move(structure)});
}

void ProcessorCollector::Finish() {
    for (std::size_t i = 0; i < machine_.processors.items.size(); ++i) {
        Levels levels = LevelsOf(handles_[i]);
        if (machine_.processors.Count() == 1) {
            AddOthersTo(levels);
        }
        std::erase_if(levels, [](const std::vector<Cache>& caches) { return caches.empty(); });
        for (std::vector<Cache>& caches : levels) {
            std::ranges::sort(caches, {}, &Cache::text);
        }
        machine_.processors.items[i].cacheLevels = std::move(levels);
    }
}

void ProcessorCollector::Read(KnownCache& cache) {
    if (!cache.fields) {
        cache.fields = FieldsOf(cache.structure).own;
        cache.tooltip = TooltipOf(cache.structure);
    }
}

/// A size that the firmware does not tell may be any.
bool ProcessorCollector::IsInstalled(const KnownCache& cache) {
    return cache.fields->Number("installedSize").value_or(1) != 0;
}

Cache ProcessorCollector::Drawn(const KnownCache& cache, unsigned level) {
    Cache drawn = CacheOf(*cache.fields, level);
    drawn.tooltip = cache.tooltip;
    return drawn;
}

ProcessorCollector::Levels ProcessorCollector::LevelsOf(const CacheHandles& handles) {
    Levels levels(kLevels);
    for (unsigned i = 0; i < kLevels; ++i) {
        const auto place = handles[i] ? caches_.find(static_cast<std::uint16_t>(*handles[i])) : caches_.end();
        if (place != caches_.end()) {
            Read(place->second);
            place->second.isReferredTo = true;
            if (IsInstalled(place->second)) {
                levels[i].push_back(Drawn(place->second, kLevels - i));
            }
        }
    }
    return levels;
}

/// A processor refers to one cache a level. When it is the only one, the others are its own, too.
void ProcessorCollector::AddOthersTo(Levels& levels) {
    constexpr std::size_t kMostOfALevel = 2;
    constexpr std::uint64_t kLevel = 0x07;
    for (auto& [handle, cache] : caches_) {
        if (cache.isReferredTo) {
            continue;
        }
        Read(cache);
        const std::uint64_t configuration = cache.fields->Number("cacheConfiguration").value_or(kLevel);
        const std::uint64_t level = (configuration & kLevel) + 1;
        if (IsInstalled(cache) && level <= kLevels && levels[kLevels - level].size() < kMostOfALevel) {
            levels[kLevels - level].push_back(Drawn(cache, static_cast<unsigned>(level)));
        }
    }
}

}  // namespace SMBIOS::Inspect::Picture
