// Removes references to removed records from the rest of a drawing: members of groups, boundaries of hatches, entries
// of dictionaries, positions in a drawing order. Objects owned by removed records are removed too.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "drawcore/src/save/record_patch.h"

namespace dxf {

class ReferenceRemoval {
public:
    ReferenceRemoval(TextPatch& patch) : patch_(patch) {}

    // Adds records that the caller removes, from begin to end. objectOffset identifies them in blocking
    // references.
    void Add(size_t begin, size_t end, size_t objectOffset);

    // Removes all references, or none if one of them cannot be removed.
    void Run();
    struct BlockingReference {
        size_t objectOffset; // of the record that cannot be removed
        std::string reason;  // for example "GROUP 2F (line 1024) refers to it"
    };
    const std::vector<BlockingReference>& BlockingReferences() const { return blocking_; }

private:
    struct Range {
        size_t end, objectOffset;
    };
    struct Edit {
        size_t at, length;
        std::string with;
    };
    class Scan;

    void RecordHandles(size_t begin, const Range& range);

    TextPatch& patch_;
    std::map<size_t, Range> ranges_;        // by begin
    std::map<std::string, size_t> handles_; // removed handles, and the offsets that identify them
    std::map<std::string, size_t> owned_;   // likewise, for objects removed with their owners
    std::vector<Edit> edits_;
    std::vector<BlockingReference> blocking_;
};

} // namespace dxf
