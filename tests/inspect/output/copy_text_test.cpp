#include "smbios-inspect/output/copy_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace SMBIOS::Tests {
namespace {

TEST(CopyText, CopiesTextsOfEveryLengthAndNothingBehindThem) {
    for (std::size_t size = 0; size < 100; ++size) {
        std::string text(size, ' ');
        for (std::size_t i = 0; i < size; ++i) {
            text[i] = static_cast<char>('!' + i % 90);
        }
        std::vector<char> place(size + 1, '\0');
        const std::vector<char> source(text.begin(),
                                       text.end());  // a read past its end is one past its memory
        char* const end = Inspect::CopyText({source.data(), source.size()}, place.data());
        EXPECT_EQ(end, place.data() + size);
        EXPECT_EQ(std::string(place.data(), size), text);
        EXPECT_EQ(place.back(), '\0') << size;
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
