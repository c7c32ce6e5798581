// Why a drawing can't be saved; the text is for its user.
#pragma once

#include <stdexcept>

namespace dxf {

class SaveError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace dxf
