#include "smbios-inspect/comparison/match_rules.h"

#include <algorithm>

namespace SMBIOS::Inspect::Comparing {

namespace {

using enum MatchedBy;

constexpr MatchRule kRules[] = {
    {2, content, "product"},
    {4, name, "socketDesignation"},
    {6, content, "socketDesignation"},
    {7, processor, "socketDesignation"},
    {8, name, "internalReferenceDesignator", "externalReferenceDesignator"},
    {9, name, "slotDesignation"},
    {14, content, "groupName"},
    {17, name, "deviceLocator", "bankLocator"},
    {22, content, "location", "deviceName"},
    {26, content, "description"},
    {27, content, "description"},
    {28, content, "description"},
    {29, content, "description"},
    {34, content, "description"},
    {35, content, "description"},
    {39, content, "location", "deviceName"},
    {41, content, "referenceDesignation"},
    {43, content, "description"},
    {45, content, "firmwareComponentName"},
};

}  // namespace

std::span<const MatchRule> AllRules() noexcept {
    return kRules;
}

MatchRule RuleFor(std::uint8_t type) noexcept {
    const auto* const rule = std::ranges::find(kRules, type, &MatchRule::type);
    return rule == std::end(kRules) ? MatchRule{.type = type, .matchedBy = content} : *rule;
}

}  // namespace SMBIOS::Inspect::Comparing
