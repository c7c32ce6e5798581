// Smart pointer for COM objects. Header only, also for programs.
#pragma once

#include <memory>

namespace orlo {

struct ReleaseReference {
    template <class Interface>
    void operator()(Interface* object) const {
        object->Release();
    }
};
template <class Interface>
using Owned = std::unique_ptr<Interface, ReleaseReference>;

// Passes an owner to a function with an output parameter: OpenStream(..., Receive(stream)). The owner is set at the end
// of the full expression.
template <class Interface>
class Receive {
public:
    explicit Receive(Owned<Interface>& owner) : owner_(owner) {}
    ~Receive() { owner_.reset(received_); }
    Receive(const Receive&) = delete;
    Receive& operator=(const Receive&) = delete;
    operator Interface**() { return &received_; }

private:
    Owned<Interface>& owner_;
    Interface* received_ = nullptr;
};

} // namespace orlo
