// Folds the case of names.
#include "drawcore/src/dxf/fold_name.h"

#include <algorithm>

#include "drawcore/include/drawcore/dxf_document.h"

namespace dxf {

namespace {

char Folded(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

std::string FoldName(std::string_view name) {
    std::string folded(name);
    std::transform(folded.begin(), folded.end(), folded.begin(), Folded);
    return folded;
}

bool IsSameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char one, char other) { return Folded(one) == Folded(other); });
}

} // namespace dxf
