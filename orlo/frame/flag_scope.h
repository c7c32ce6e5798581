// Sets a flag during the lifetime of an object.
#pragma once

#include <utility>

class FlagScope {
public:
    explicit FlagScope(bool& flag) : m_flag(flag), m_before(std::exchange(flag, true)) {}
    ~FlagScope() { m_flag = m_before; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

private:
    bool& m_flag;
    bool m_before;
};
