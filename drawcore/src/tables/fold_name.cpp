// Folding names.
#include "drawcore/src/tables/fold_name.h"

namespace drawcore {

std::string FoldName(std::string_view name) {
    std::string folded(name);
    for (char& c : folded)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return folded;
}

} // namespace drawcore
