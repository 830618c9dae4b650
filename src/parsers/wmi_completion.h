#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

#include "parsers/record_lock.h"
#include "wmi/property_value.h"
#include "wmi/wmi_query.h"

namespace SMBIOS::Parsers {

/// When a property is asked of WMI, and what of the answer is stored.
enum class Completion : std::uint8_t {
    whenMissing,     ///< asked when the record lacks the value; whatever comes back is stored
    always,          ///< always asked; only a text that is not empty is stored
    askedNotStored,  ///< asked when the record lacks the value, and never stored
};

/// One value that WMI may complete: the property and the field of the record.
template <class Record>
struct WmiProperty {
    using Field = std::variant<std::string Record::*,
                               std::optional<bool> Record::*,
                               std::optional<std::uint8_t> Record::*,
                               std::optional<std::uint16_t> Record::*,
                               std::optional<std::uint32_t> Record::*,
                               std::optional<std::uint64_t> Record::*>;

    const char* name;
    Field field;
    Completion completion = Completion::whenMissing;

    [[nodiscard]] bool IsMissing(const Record& record) const {
        if (completion == Completion::always) {
            return true;
        }
        return std::visit(
            [&](auto member) {
                if constexpr (std::is_same_v<decltype(member), std::string Record::*>) {
                    return (record.*member).empty();
                } else {
                    return !(record.*member).has_value();
                }
            },
            field);
    }

    /// Stores `value` as the field's own type. Throws an exception of the standard library when it does not
    /// fit.
    void Store(Record& record, const Wmi::PropertyValue& value) const {
        const std::string* const text = std::get_if<std::string>(&value);
        const bool isText = text != nullptr && !text->empty();
        if (completion == Completion::askedNotStored || (completion == Completion::always && !isText)) {
            return;
        }
        std::visit(
            [&](auto member) {
                if constexpr (std::is_same_v<decltype(member), std::string Record::*>) {
                    record.*member = Wmi::ValueAs<std::string>(value);
                } else {
                    using Value = typename std::remove_cvref_t<decltype(record.*member)>::value_type;
                    record.*member = Wmi::ValueAs<Value>(value);
                }
            },
            field);
    }
};

/// Where the values of one kind of record can be completed from.
template <class Record>
struct WmiSource {
    const char* className;
    const char* keyProperty;        ///< the property that tells the instances apart
    std::string Record::*keyField;  ///< the field that holds it
    std::span<const WmiProperty<Record>> properties;
};

/// The link of records that need none.
struct NoLink {
    template <class Record>
    void operator()(Record&) const noexcept {}
};

/// The rows of an exported class: firmware records filed by their key and completed from WMI. Records are
/// shared with the decoders, so completion writes into theirs and serves every other object; one that only
/// WMI knows is the object's own. The rows are copies: nothing that another object does changes them.
template <class Record>
class CompletedRecords {
public:
    using Records = std::vector<std::shared_ptr<Record>>;

    explicit CompletedRecords(const WmiSource<Record>& source)
        : source_(source), allProperties_(AllProperties(source)) {}

    [[nodiscard]] std::size_t Count() const noexcept { return rows_.size(); }

    /// Row `index`; nullptr when it is out of range.
    [[nodiscard]] Record* Row(std::size_t index) noexcept {
        return index < rows_.size() ? &rows_[index] : nullptr;
    }

    void ClearRows() noexcept { rows_.clear(); }

    /// Links each record to what the table says of it elsewhere, files them, asks WMI once for what is
    /// missing, and makes the rows in ascending key order. What was filed by earlier calls stays. Failures of
    /// the completion are swallowed: it is an extra.
    template <class Link = NoLink>
    void Rebuild(const Records& records, Link link = {}) {
        Request request = FileRecords(records, link);
        Wmi::Instances instancesByKey;
        if (!request.properties.empty()) {
            Quietly([&] { instancesByKey = AskWmi(request); });
        }
        // Stored and copied under one lock, too: no other object's link gets between the two.
        const std::unique_lock lock(recordLock);
        Quietly([&] { Store(instancesByKey, request.properties); });
        rows_ = CopyRows();
    }

private:
    /// What one call asks of WMI.
    struct Request {
        Wmi::PropertySet properties;
        std::vector<std::string> keys;  ///< of the records to complete; empty for no filter
    };

    /// Runs one step of the completion; what it did before it failed stays.
    template <class Step>
    static void Quietly(Step step) noexcept {
        try {
            step();
        } catch (...) {  // NOLINT(bugprone-empty-catch): rows without the completion are complete answers
        }
    }

    /// Linked and filed under one lock: between the two, another object's link would undo a completion.
    template <class Link>
    [[nodiscard]] Request FileRecords(const Records& records, Link link) {
        const std::unique_lock lock(recordLock);
        Request request;
        for (const std::shared_ptr<Record>& record : records) {
            link(*record);
            FileRecord(record, request);
        }
        return request;
    }

    void FileRecord(const std::shared_ptr<Record>& record, Request& request) {
        const std::string& key = (*record).*source_.keyField;
        if (key.empty() || AsksForAll(request)) {
            // Such a record cannot be told apart in an answer, so everything is asked of every instance. The
            // record is not filed, and neither are those behind it: they come back as rows made by WMI.
            request.keys.clear();
            if (!AsksForAll(request)) {
                request.properties = allProperties_;
            }
            return;
        }
        bool anyMissing = false;
        for (const WmiProperty<Record>& property : source_.properties) {
            if (property.IsMissing(*record)) {
                request.properties.emplace(property.name);
                anyMissing = true;
            }
        }
        if (anyMissing) {
            request.keys.push_back(key);
        }
        recordsByKey_.try_emplace(key, record);
    }

    /// Counting tells: whatever is asked for is one of all properties.
    [[nodiscard]] bool AsksForAll(const Request& request) const noexcept {
        return request.properties.size() == allProperties_.size();
    }

    [[nodiscard]] Wmi::Instances AskWmi(Request& request) const {
        request.properties.emplace(source_.keyProperty);

        Wmi::WmiQuery query;
        query.wmiNamespace = "root\\cimv2";
        query.Select(request.properties, source_.className);
        if (!request.keys.empty()) {
            query.Where(source_.keyProperty, request.keys);
        }
        Wmi::Instances instancesByKey;
        query.FetchByKey(instancesByKey, source_.keyProperty, request.properties);
        return instancesByKey;
    }

    void Store(const Wmi::Instances& instancesByKey, const Wmi::PropertySet& requested) {
        for (const auto& [key, instance] : instancesByKey) {
            StoreMembers(RecordOf(key), instance, requested);
        }
    }

    /// The record filed under `key`; a fresh one is filed when there is none.
    [[nodiscard]] Record& RecordOf(const std::string& key) {
        const auto filed = recordsByKey_.find(key);
        if (filed != recordsByKey_.end()) {
            return *filed->second;
        }
        return *recordsByKey_.emplace(key, std::make_shared<Record>()).first->second;
    }

    [[nodiscard]] std::vector<Record> CopyRows() const {
        std::vector<Record> rows;
        rows.reserve(recordsByKey_.size());
        for (const auto& [key, record] : recordsByKey_) {
            rows.push_back(*record);
        }
        return rows;
    }

    void StoreMembers(Record& record,
                      const Wmi::Instance& instance,
                      const Wmi::PropertySet& requested) const {
        for (const std::string& name : requested) {
            const WmiProperty<Record>* const property = FindProperty(name);
            const auto member = instance.find(name);
            if (property != nullptr && member != instance.end()) {
                property->Store(record, member->second);
            }
        }
    }

    [[nodiscard]] const WmiProperty<Record>* FindProperty(const std::string& name) const {
        for (const WmiProperty<Record>& property : source_.properties) {
            if (name == property.name) {
                return &property;
            }
        }
        return nullptr;
    }

    [[nodiscard]] static Wmi::PropertySet AllProperties(const WmiSource<Record>& source) {
        Wmi::PropertySet names;
        for (const WmiProperty<Record>& property : source.properties) {
            names.emplace(property.name);
        }
        return names;
    }

    const WmiSource<Record>& source_;
    const Wmi::PropertySet allProperties_;
    std::vector<Record> rows_;
    std::map<std::string, std::shared_ptr<Record>> recordsByKey_;
};

}  // namespace SMBIOS::Parsers
