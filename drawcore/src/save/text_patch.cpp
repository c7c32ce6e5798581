// Applies the changes to a text.
#include "drawcore/src/save/text_patch.h"

#include <algorithm>
#include <utility>

namespace dxf {

std::string TextPatch::Result() {
    // Insertions precede removals at the same offset.
    std::stable_sort(edits_.begin(), edits_.end(), [](const Edit& a, const Edit& b) {
        return std::make_pair(a.at, a.length != 0) < std::make_pair(b.at, b.length != 0);
    });
    size_t size = text_.size();
    for (const Edit& edit : edits_)
        size += edit.with.size();
    std::string result;
    result.reserve(size);
    size_t at = 0;
    for (const Edit& edit : edits_) {
        result.append(text_, at, edit.at - at);
        result += edit.with;
        at = edit.at + edit.length;
        shifts_.push_back(static_cast<ptrdiff_t>(result.size()) - static_cast<ptrdiff_t>(at));
    }
    result.append(text_, at);
    return result; // the value of append would be copied
}

size_t TextPatch::Moved(size_t at) const {
    const auto next = std::partition_point(edits_.begin(), edits_.end(),
                                           [at](const Edit& edit) { return edit.at + edit.length <= at; });
    if (next == edits_.begin()) return at;
    return at + static_cast<size_t>(shifts_[static_cast<size_t>(next - edits_.begin()) - 1]);
}

} // namespace dxf
