#include "tests/windows/portable_executable.h"

#include <cstring>
#include <span>
#include <stdexcept>

#include "tests/windows/file_contents.h"

namespace SMBIOS::Tests {

namespace {

/// The part of `bytes` that a header announces. Throws std::runtime_error when the file is too short for it.
std::span<const std::byte> Piece(std::span<const std::byte> bytes, std::size_t offset, std::size_t size) {
    if (offset > bytes.size() || size > bytes.size() - offset) {
        throw std::runtime_error("the file ends early");
    }
    return bytes.subspan(offset, size);
}

template <class Record>
Record Read(std::span<const std::byte> bytes, std::size_t offset) {
    Record record;
    std::memcpy(&record, Piece(bytes, offset, sizeof(Record)).data(), sizeof(Record));
    return record;
}

void CopyPiece(std::span<const std::byte> file,
               std::size_t offset,
               std::size_t size,
               std::vector<std::byte>& image,
               std::size_t place) {
    const std::span<const std::byte> piece = Piece(file, offset, size);
    if (place > image.size() || piece.size() > image.size() - place) {
        throw std::runtime_error("a section lies outside the image");
    }
    std::memcpy(image.data() + place, piece.data(), piece.size());
}

}  // namespace

const IMAGE_NT_HEADERS64& ImageView::Headers() const noexcept {
    return *At<IMAGE_NT_HEADERS64>(static_cast<DWORD>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
}

DWORD ImageView::DirectoryOffset(unsigned directory) const noexcept {
    return Headers().OptionalHeader.DataDirectory[directory].VirtualAddress;
}

std::vector<std::string> ImageView::ImportedLibraries() const {
    std::vector<std::string> names;
    const auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(DirectoryOffset(IMAGE_DIRECTORY_ENTRY_IMPORT));
    for (; library->Name != 0; ++library) {
        names.emplace_back(At<char>(library->Name));
    }
    return names;
}

std::vector<std::string> ImageView::ExportedNames() const {
    const auto& exports = *At<IMAGE_EXPORT_DIRECTORY>(DirectoryOffset(IMAGE_DIRECTORY_ENTRY_EXPORT));
    std::vector<std::string> names;
    for (const DWORD name : std::span(At<DWORD>(exports.AddressOfNames), exports.NumberOfNames)) {
        names.emplace_back(At<char>(name));
    }
    return names;
}

const ULONGLONG* ImageView::ImportSlot(std::string_view function) const noexcept {
    const auto* library = At<IMAGE_IMPORT_DESCRIPTOR>(DirectoryOffset(IMAGE_DIRECTORY_ENTRY_IMPORT));
    for (; library->Name != 0; ++library) {
        if (const ULONGLONG* const slot = ImportSlot(*library, function)) {
            return slot;
        }
    }
    return nullptr;
}

const ULONGLONG* ImageView::ImportSlot(const IMAGE_IMPORT_DESCRIPTOR& library,
                                       std::string_view function) const noexcept {
    const auto* name = At<IMAGE_THUNK_DATA64>(library.OriginalFirstThunk);
    const auto* slot = At<IMAGE_THUNK_DATA64>(library.FirstThunk);
    for (; name->u1.AddressOfData != 0; ++name, ++slot) {
        if (IMAGE_SNAP_BY_ORDINAL64(name->u1.Ordinal)) {
            continue;
        }
        const auto* imported = At<IMAGE_IMPORT_BY_NAME>(static_cast<DWORD>(name->u1.AddressOfData));
        if (function == static_cast<const char*>(imported->Name)) {
            return &slot->u1.Function;
        }
    }
    return nullptr;
}

std::vector<std::byte> LayOutImage(const std::filesystem::path& path) {
    const std::vector<std::uint8_t> contents = FileContents(path);
    const std::span<const std::byte> file = std::as_bytes(std::span(contents));
    const auto start = static_cast<std::size_t>(Read<IMAGE_DOS_HEADER>(file, 0).e_lfanew);
    const auto headers = Read<IMAGE_NT_HEADERS64>(file, start);
    if (headers.Signature != IMAGE_NT_SIGNATURE ||
        headers.OptionalHeader.Magic != IMAGE_NT_OPTIONAL_HDR64_MAGIC) {
        throw std::runtime_error("not a 64-bit program or library");
    }
    std::vector<std::byte> image(headers.OptionalHeader.SizeOfImage);
    CopyPiece(file, 0, headers.OptionalHeader.SizeOfHeaders, image, 0);
    const std::size_t sections =
        start + offsetof(IMAGE_NT_HEADERS64, OptionalHeader) + headers.FileHeader.SizeOfOptionalHeader;
    for (std::size_t i = 0; i < headers.FileHeader.NumberOfSections; ++i) {
        const auto section = Read<IMAGE_SECTION_HEADER>(file, sections + i * sizeof(IMAGE_SECTION_HEADER));
        CopyPiece(file, section.PointerToRawData, section.SizeOfRawData, image, section.VirtualAddress);
    }
    return image;
}

}  // namespace SMBIOS::Tests
