// How far a drawing is opened or saved, for the program that waits; it may cancel there.
#pragma once

#include <memory>
#include <stdexcept>

#include "drawcore/include/drawcore/dxf.h"
#include "drawcore/src/dxf/reader.h"

namespace drawcore {

class Cancelled : public std::runtime_error {
public:
    Cancelled() : std::runtime_error("cancelled") {}
};

class ProgressReport {
public:
    // The listener may be null; it has to outlive the report and its parts.
    explicit ProgressReport(const DxfListener* listener) : listener_(listener) {}

    // Throws Cancelled if the listener wants no more.
    void operator()(int permille) const {
        if (permille < *done_) return; // of a step that is done once more
        *done_ = permille;
        if (listener_ && listener_->progress && !listener_->progress(listener_->context, permille)) throw Cancelled();
    }
    // For a step that counts from 0 to 1000 itself, and is this part of the whole.
    dxf::Progress Part(int from, int to) const {
        return [*this, from, to](int permille) { (*this)(from + permille * (to - from) / 1000); };
    }

private:
    const DxfListener* listener_;
    std::shared_ptr<int> done_ = std::make_shared<int>(0);
};

} // namespace drawcore
