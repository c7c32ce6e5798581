// What the Windows program does: it changes documents by the system's storage, and plays metafiles by the system. This
// one ends before it has touched anything, and run.d/suminfo.sh starts the other.

#include <cstdlib>

#include "commands.h"
#include "exit_codes.h"
#include "metafile_drawing.h"

namespace suminfo {
namespace {

[[noreturn]] void LeaveToWindows() {
    std::exit(kLeftToWindows);
}

} // namespace

void SetFields(const std::string&, const std::vector<Assignment>&, const std::vector<CustomValue>&) {
    LeaveToWindows();
}

void RemoveFields(const std::string&, const std::vector<std::string>&, const std::vector<std::string>&) {
    LeaveToWindows();
}

void CopySummary(const std::string&, const std::string&) {
    LeaveToWindows();
}

std::optional<std::vector<uint8_t>> DrawMetafile(const orlo::Bytes&, Extent) {
    LeaveToWindows();
}

} // namespace suminfo
