// Reports the progress of opening or saving to the host program, which may cancel.
#pragma once

#include <memory>
#include <stdexcept>

#include "drawcore/include/drawcore/dxf.h"
#include "drawcore/src/dxf/reader.h"

namespace drawcore {

class Canceled : public std::runtime_error {
public:
    Canceled() : std::runtime_error("canceled") {}
};

class ProgressReport {
public:
    // The listener may be null; it must outlive the report and its parts.
    explicit ProgressReport(const DxfListener* listener) : listener_(listener) {}

    // Throws Canceled if the listener cancels.
    void operator()(int permille) const {
        if (permille < *done_) return; // progress of a step that is repeated
        *done_ = permille;
        if (listener_ && listener_->progress && !listener_->progress(listener_->context, permille)) throw Canceled();
    }
    // Returns the progress function for a step that counts from 0 to 1000 and is this part of the whole.
    dxf::Progress Part(int from, int to) const {
        return [*this, from, to](int permille) { (*this)(from + permille * (to - from) / 1000); };
    }

private:
    const DxfListener* listener_;
    std::shared_ptr<int> done_ = std::make_shared<int>(0);
};

} // namespace drawcore
