// Owns one reference of a COM object. Header only, for programs too.
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

// Takes the reference that a call stores: OpenStream(..., Receive(stream)).
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
