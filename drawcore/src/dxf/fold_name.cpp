// Folding names.
#include "drawcore/src/dxf/fold_name.h"

namespace dxf {

std::string FoldName(std::string_view name) {
    std::string folded(name);
    for (char& c : folded)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return folded;
}

} // namespace dxf
