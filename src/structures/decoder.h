#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <memory_resource>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "manager/smbios_version.h"
#include "manager/structure_types.h"
#include "structures/base_structure.h"
#include "structures/parse_rules.h"
#include "structures/structure_reader.h"

namespace SMBIOS::Structures {

using Manager::Types::StructureTypes;

/// The frame that every decoder shares; it owns the order of things: fresh record, checks, gates, handle,
/// fields, string set, raw bytes, with every failure caught into the record. A decoder `Type` derives from
/// `Decoder<Type, Record>` and supplies only what is its own:
///
///     static constexpr StructureTypes kKey;                                    what it is filed under
///     static const ParseRules kRules;                                          what it accepts
///     static void DecodeFieldsInOrder(StructureReader& in, Record& record);    its fields, and their order
///
/// The order is part of it: what was decoded before a failure stays in the record.
template <class Type, class Record>
class Decoder : public BaseStructure {
public:
    /// A decoder for structures of a table of this version. `memory` is where its records are made; it stays
    /// for as long as the decoder does.
    explicit Decoder(Manager::SmbiosVersionIndex version,
                     std::pmr::memory_resource& memory = *std::pmr::new_delete_resource()) noexcept
        : version_(version), memory_(memory) {}

    void Process(const std::vector<std::uint8_t>& formattedBytes,
                 const std::vector<std::string>& strings) final {
        if (Decode(formattedBytes, strings)) {
            Attempt([&] { record_->strings = strings; });
        }
        record_->rawBytes = formattedBytes;
    }

    void ProcessAndKeep(std::vector<std::uint8_t>&& formattedBytes,
                        std::vector<std::string>&& strings) final {
        if (Decode(formattedBytes, strings)) {
            record_->strings = std::move(strings);
        }
        record_->rawBytes = std::move(formattedBytes);
    }

    [[nodiscard]] std::uint16_t GetHandle() const final { return record_ ? record_->handle : kNoHandle; }

    void Parse(const std::vector<std::uint8_t>& formattedBytes) override {
        Record& record = MakeRecord();
        CheckStructure(Type::kRules, version_, formattedBytes);
        record.handle = FormattedArea(formattedBytes).Handle();
    }

    /// The smallest length byte that this type accepts.
    [[nodiscard]] static std::uint8_t LeastLength() noexcept { return Type::kRules.lengths.first; }

    /// The record, shared with the decoder; null before `Process`.
    [[nodiscard]] const std::shared_ptr<Record>& GetRecord() const noexcept { return record_; }

protected:
    /// Makes a fresh record, releasing any earlier one.
    Record& MakeRecord() {
        record_ = std::allocate_shared<Record>(std::pmr::polymorphic_allocator<Record>(&memory_));
        return *record_;
    }

private:
    /// Returns whether the string set is to be kept.
    [[nodiscard]] bool Decode(const std::vector<std::uint8_t>& formattedBytes,
                              const std::vector<std::string>& strings) {
        StructureReader in(formattedBytes, strings, version_);
        const bool decoded = Attempt([&] {
            this->Parse(formattedBytes);
            Type::DecodeFieldsInOrder(in, *record_);
        });
        if (in.HasLostText()) {
            NoteOutOfMemory();
        }
        return KeepsStrings(Type::kRules.strings, decoded, strings.empty());
    }

    /// Runs one step and tells whether it succeeded; a failure's text becomes the record's error.
    template <class Step>
    bool Attempt(Step step) {
        try {
            step();
            return true;
        } catch (const std::bad_alloc& failure) {
            NoteOutOfMemory();
            RecordFailure(failure.what());
        } catch (const std::exception& failure) {
            RecordFailure(failure.what());
        } catch (...) {
            RecordFailure("Unknown error occurred while processing type structure");
        }
        return false;
    }

    void RecordFailure(const char* text) {
        if (!record_) {
            throw;  // no memory for the record: there is nowhere to write
        }
        record_->error = text;
    }

    const Manager::SmbiosVersionIndex version_;
    std::pmr::memory_resource& memory_;
    std::shared_ptr<Record> record_;
};

}  // namespace SMBIOS::Structures
