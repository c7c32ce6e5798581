// Putting a patched text together.
#include "drawcore/src/save/text_patch.h"

#include <algorithm>
#include <utility>

namespace dxf {

std::string TextPatch::Result() {
    // What is put in at a place comes before what is taken away from there.
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
    }
    return result.append(text_, at);
}

} // namespace dxf
