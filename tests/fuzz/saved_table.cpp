// A saved table in the forms that the tool's --from takes: a file, a stream and, cut in two, a folder. Each
// is refused with a message, or its structures are bytes of what was given.

#include <stdlib.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "manager/raw_table.h"
#include "platform/raw_table_header.h"
#include "platform/saved_table.h"
#include "smbios-inspect/command_line/table_input.h"
#include "tests/fuzz/entry_point_sums.h"
#include "tests/fuzz/require.h"
#include "tests/support/harmless_text.h"
#include "tests/support/temporary_folder.h"

using namespace SMBIOS;
using Bytes = std::vector<std::uint8_t>;
using BytesView = std::span<const std::uint8_t>;

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t largest);

namespace {

/// The raw table that a form gives, or nothing when it is refused.
template <class Load>
std::optional<Bytes> Loaded(Load load) {
    try {
        return load();
    } catch (const Platform::SavedTableError& error) {
        Fuzz::Require(Tests::IsHarmlessText(error.what()), "a refusal says why, and harmlessly");
        return std::nullopt;
    }
}

std::optional<Bytes> FromPath(const std::filesystem::path& path) {
    return Loaded([&] { return Platform::LoadSavedTable(path); });
}

struct Close {
    void operator()(std::FILE* stream) const noexcept { std::fclose(stream); }
};

std::optional<Bytes> FromStream(const std::filesystem::path& file) {
    const std::unique_ptr<std::FILE, Close> stream(std::fopen(file.c_str(), "rb"));
    return Loaded([&] { return Platform::LoadSavedTable(stream.get(), "stream"); });
}

/// What the library reads while the tool has put the file in the machine's place.
std::optional<Bytes> FromTool(const std::filesystem::path& file) {
    return Loaded([&] {
        const Inspect::TableInput input(file.string());
        return Manager::ReadRawTable();
    });
}

/// What stands in front of the table in a capture, and the table.
std::filesystem::path AsFolder(BytesView capture, const Tests::TemporaryFolder& folder) {
    constexpr std::size_t kTable = 0x20;
    const std::size_t cut = std::min(kTable, capture.size());
    folder.Write("smbios_entry_point", capture.first(cut));
    folder.Write("DMI", capture.subspan(cut));
    return folder.Path();
}

bool IsPlausible(const std::optional<Bytes>& table) {
    return table && Platform::RawTableHeader::Of(*table).HasPlausibleVersion();
}

void RequireStructuresOf(BytesView input, const std::optional<Bytes>& table) {
    if (table) {
        const BytesView structures = Platform::RawTableHeader::StructuresOf(*table);
        Fuzz::Require(!structures.empty(), "a table has structures");
        const auto found = std::search(input.begin(), input.end(), structures.begin(), structures.end());
        Fuzz::Require(found != input.end(), "they are bytes of what was given");
    }
}

}  // namespace

/// Three files an input: they are to stay in memory.
extern "C" int LLVMFuzzerInitialize(int*, char***) {
    ::setenv("TMPDIR", "/dev/shm", 0);
    return 0;
}

/// A change would spoil the sums in an entry point nearly always.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data,
                                               std::size_t size,
                                               std::size_t largest,
                                               unsigned seed) {
    constexpr unsigned kOneInSoManyStaysSpoiled = 4;
    const std::size_t changedSize = LLVMFuzzerMutate(data, size, largest);
    if (seed % kOneInSoManyStaysSpoiled != 0) {
        Fuzz::MendSums({data, changedSize});
    }
    return changedSize;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Tests::TemporaryFolder folder;
    const BytesView input(data, size);
    const std::filesystem::path file = folder.Write("table.bin", input);
    const std::optional<Bytes> table = FromPath(file);
    RequireStructuresOf(input, table);
    RequireStructuresOf(input, FromPath(AsFolder(input, folder)));
    Fuzz::Require(FromStream(file) == table, "a stream gives what the file gives");
    Fuzz::Require(FromTool(file) == (IsPlausible(table) ? table : std::nullopt), "and so does the tool");
    return 0;
}
