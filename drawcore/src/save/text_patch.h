// Changes of a text, stored as pieces to replace. All other bytes remain unchanged.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace dxf {

class TextPatch {
public:
    // The text must outlive the patch.
    explicit TextPatch(std::string_view text) : text_(text) {}

    // Pieces must not overlap. Changes at the same offset are applied in the order of calls.
    void Replace(size_t at, size_t length, std::string with) { edits_.push_back({at, length, std::move(with)}); }
    void Replace(std::string_view part, std::string with) { Replace(OffsetOf(part), part.size(), std::move(with)); }
    void Insert(size_t at, std::string piece) { Replace(at, 0, std::move(piece)); }

    bool IsEmpty() const { return edits_.empty(); }
    std::string_view Text() const { return text_; }
    // Returns the offset of a part of the text.
    size_t OffsetOf(std::string_view part) const { return static_cast<size_t>(part.data() - text_.data()); }
    std::string Result();
    // Returns the new offset of the text that was at `at`, after any text inserted there. Valid after Result.
    size_t Moved(size_t at) const;

private:
    struct Edit {
        size_t at, length;
        std::string with;
    };
    std::string_view text_;
    std::vector<Edit> edits_;
    std::vector<ptrdiff_t> shifts_; // shift of the text after each edit, once they are sorted
};

} // namespace dxf
