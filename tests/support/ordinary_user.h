#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <unistd.h>

namespace orvane {

// Runs Action as an ordinary user also when root, who reads and writes everything, runs the tests.
inline void AsOrdinaryUser(const std::function<void()>& Action)
{
    constexpr uid_t Nobody = 65534;
    const bool Root = ::geteuid() == 0;
    ASSERT_TRUE(!Root || ::seteuid(Nobody) == 0) << "no ordinary user to become";
    Action();
    ASSERT_TRUE(!Root || ::seteuid(0) == 0) << "root is gone";
}

} // namespace orvane
