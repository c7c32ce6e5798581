// Changes of a text, kept as pieces to be replaced: whatever none of them covers stays byte for byte.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace dxf {

class TextPatch {
public:
    // The text has to outlive the patch.
    explicit TextPatch(std::string_view text) : text_(text) {}

    // Pieces don't overlap; of several at one place the order of the calls counts.
    void Replace(size_t at, size_t length, std::string with) { edits_.push_back({at, length, std::move(with)}); }
    void Insert(size_t at, std::string piece) { Replace(at, 0, std::move(piece)); }

    bool IsEmpty() const { return edits_.empty(); }
    std::string_view Text() const { return text_; }
    std::string Result();
    // After Result: where what was there is in it, behind all that was inserted there.
    size_t Moved(size_t at) const;

private:
    struct Edit {
        size_t at, length;
        std::string with;
    };
    std::string_view text_;
    std::vector<Edit> edits_;
    std::vector<ptrdiff_t> shifts_; // of what comes behind each edit, once they are in order
};

} // namespace dxf
