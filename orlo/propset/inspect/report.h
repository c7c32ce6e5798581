// Report: collects the findings of one read operation, up to a limit. Internal to the library.
#pragma once

#include <algorithm>
#include <sstream>

#include "orlo/propset/inspect/set_image.h"

namespace orlo {

class Report {
public:
    explicit Report(std::vector<Finding>& findings) : findings_(findings), most_(findings.size() + kMax) {}

    // Adds a finding whose text is the concatenation of the parts. The offset is relative to the start of the stream.
    template <class... Parts>
    void Add(FindingCode code, Severity severity, uint64_t offset, const Parts&... parts) {
        if (findings_.size() < most_) {
            std::ostringstream text;
            (text << ... << parts);
            findings_.push_back({code, severity, offset, text.str()});
        } else if (findings_.size() == most_) {
            findings_.push_back({FindingCode::findingsCut, severity, offset, "further findings are not listed"});
        }
    }

    // Sorts the findings by offset.
    void Sort() {
        std::stable_sort(findings_.begin(), findings_.end(),
                         [](const Finding& a, const Finding& b) { return a.offset < b.offset; });
    }

private:
    static constexpr size_t kMax = 1000; // a malicious stream could cause ten findings per eight bytes

    std::vector<Finding>& findings_;
    size_t most_;
};

} // namespace orlo
