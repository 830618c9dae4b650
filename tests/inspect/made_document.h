#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "tests/inspect/run_tool.h"

namespace SMBIOS::Tests {

/// A document of docs/ that is made by a test, wholly or in part.
inline std::filesystem::path DocumentNamed(const char* name) {
    return std::filesystem::path(SMBIOS_SOURCE_DIR) / "docs" / name;
}

/// Expects that a document is what it would be if it were made now; with SMBIOS_UPDATE_DOCS in the
/// environment it is written instead, and the test skipped.
inline void ExpectUpToDate(const std::filesystem::path& document, const std::string& text) {
    if (std::getenv("SMBIOS_UPDATE_DOCS") != nullptr) {
        std::ofstream(document, std::ios::binary) << text;
        GTEST_SKIP() << "wrote " << document;
    }
    EXPECT_EQ(ContentsOf(document), text) << "run this test with SMBIOS_UPDATE_DOCS=1 to write " << document;
}

}  // namespace SMBIOS::Tests
