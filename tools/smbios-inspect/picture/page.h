#pragma once

#include <cstddef>
#include <string_view>
#include <utility>

#include "smbios-inspect/picture/drawing.h"
#include "smbios-inspect/picture/grid.h"

namespace SMBIOS::Inspect::Picture {

/// The page while it is filled from its upper edge to its lower one.
class Page {
public:
    explicit Page(std::string_view title);

    /// Where the next box stands.
    [[nodiscard]] int Y() const noexcept { return y_; }

    void Add(Box box) { page_.children.push_back(std::move(box)); }

    /// Leaves so much room behind what has been added.
    void Advance(int height) noexcept { y_ += height; }

    /// Begins a section over the width of the page, with room above: its name on the left, what it comes to
    /// on the right.
    void BeginSection(std::string_view name, std::string_view summary);

    /// Writes the heading of a section at `place`; returns its height.
    int WriteHeading(const Rectangle& place, std::string_view name, std::string_view summary);

    /// Says below a section how many boxes are not drawn, if there are any.
    void NoteLeftOut(std::size_t count);

    /// The page, as high as what has been added; nothing can be added then.
    [[nodiscard]] Box Finish();

private:
    Box page_;
    int y_ = kMargin;
};

}  // namespace SMBIOS::Inspect::Picture
