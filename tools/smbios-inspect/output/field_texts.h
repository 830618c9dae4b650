#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "smbios-inspect/output/text_page.h"

namespace SMBIOS::Inspect {

/// The fields of one thing as people read them, each with the lines of its value. Texts of the firmware are
/// as they are, not yet safe for a terminal. Keeps its memory when it is cleared.
class FieldTexts {
public:
    struct Line {
        std::string_view label;  ///< of its field, of ASCII
        std::size_t start = 0;   ///< of its words
        bool isFirst = true;     ///< of its field's lines
        bool isFailure = false;
        bool isMarked = false;  ///< with a star behind it
    };

    void Clear() noexcept {
        lines_.clear();
        words_.Clear();
    }

    /// What follows is in lines of this field; without one, it has nothing to read. The label stays as long
    /// as the texts do.
    void BeginField(std::string_view label, bool isFailure = false) noexcept {
        next_ = {.label = label, .isFailure = isFailure};
    }

    /// What is appended to these words is in another line of the field.
    TextPage& BeginLine() {
        next_.start = words_.Size();
        lines_.push_back(next_);
        next_.isFirst = false;
        return words_;
    }

    void AddLine(std::string_view words) { BeginLine().Append(words); }

    /// Takes the line back when it has no words.
    void EndLine() noexcept {
        if (lines_.back().start == words_.Size()) {
            next_.isFirst = lines_.back().isFirst;
            lines_.pop_back();
        }
    }

    /// Whether the field that was begun last has a line; its words can be added to then.
    [[nodiscard]] bool HasLine() const noexcept { return !next_.isFirst; }
    [[nodiscard]] TextPage& LastLine() noexcept { return words_; }

    /// Marks the first line of the field that has this label. Tells whether there is one, and it was not
    /// marked before.
    bool Mark(std::string_view label) noexcept;

    [[nodiscard]] const std::vector<Line>& Lines() const noexcept { return lines_; }

    /// Of the line of this index.
    [[nodiscard]] std::string_view Words(std::size_t index) const noexcept {
        const std::size_t start = lines_[index].start;
        const std::size_t end = index + 1 < lines_.size() ? lines_[index + 1].start : words_.Size();
        return {words_.Text().data() + start, end - start};
    }

private:
    Line next_;
    std::vector<Line> lines_;
    TextPage words_;
};

}  // namespace SMBIOS::Inspect
