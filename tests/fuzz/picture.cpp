// A raw table, its header included, drawn: the picture is harmless text without anything that XML forbids,
// and has as many ends as beginnings.

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <span>
#include <string>
#include <string_view>

#include "smbios-inspect/picture/picture.h"
#include "tests/fuzz/report.h"
#include "tests/fuzz/require.h"

using namespace SMBIOS;

namespace {

std::size_t Count(std::string_view text, std::string_view what) {
    std::size_t count = 0;
    for (std::size_t at = text.find(what); at != std::string_view::npos;
         at = text.find(what, at + what.size())) {
        ++count;
    }
    return count;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string picture = Fuzz::PrintedBy(
        [&](std::ostream& output) { Inspect::Picture::DrawMachine(std::span(data, size), output); });
    Fuzz::Require(Tests::IsHarmlessText(picture), "a picture is UTF-8 without control characters");
    Fuzz::Require(picture.find("<script") == std::string::npos, "a picture runs nothing");
    Fuzz::Require(Count(picture, "<") == Count(picture, ">"), "every tag of a picture ends");
    for (const std::string_view element : {"g", "text", "title", "svg", "style"}) {
        const std::string name(element);
        Fuzz::Require(Count(picture, "<" + name + ">") + Count(picture, "<" + name + " ") ==
                          Count(picture, "</" + name + ">"),
                      "every element of a picture ends");
    }
    return 0;
}
