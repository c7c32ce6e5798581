// Report: collects the findings of one reading, and no more of them than a person would read. Used inside the library.
#pragma once

#include <algorithm>
#include <sstream>

#include "orlo/propset/inspect/set_image.h"

namespace orlo {

class Report {
public:
    explicit Report(std::vector<Finding>& findings) : findings_(findings), most_(findings.size() + kMost) {}

    // The text is put together from the parts. The offset counts from the head of the stream.
    template <class... Parts>
    void Add(FindingCode code, Severity severity, uint64_t offset, const Parts&... parts) {
        if (findings_.size() < most_) {
            std::ostringstream text;
            (text << ... << parts);
            findings_.push_back({code, severity, offset, text.str()});
        } else if (findings_.size() == most_) {
            findings_.push_back({FindingCode::findingsCut, severity, offset, "there is more, which is not listed"});
        }
    }

    // Puts the findings in the order of the stream.
    void Sort() {
        std::stable_sort(findings_.begin(), findings_.end(),
                         [](const Finding& a, const Finding& b) { return a.offset < b.offset; });
    }

private:
    static constexpr size_t kMost = 1000; // a hostile stream could give ten for every eight of its bytes

    std::vector<Finding>& findings_;
    size_t most_;
};

} // namespace orlo
