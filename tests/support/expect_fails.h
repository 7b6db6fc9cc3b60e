#pragma once

#include "base/failure.h"

#include <gtest/gtest.h>
#include <string>

// The statement throws a Failure of that kind, and nothing else.
#define EXPECT_FAILS(WantedKind, ...)                                                              \
    do {                                                                                           \
        try {                                                                                      \
            __VA_ARGS__;                                                                           \
            ADD_FAILURE() << "no failure, but " #WantedKind " was due: " #__VA_ARGS__;             \
        } catch (const orvane::Failure& Given) {                                                   \
            EXPECT_EQ(Given.Kind(), orvane::FailureKind::WantedKind) << Given.what();              \
        }                                                                                          \
    } while (false)

namespace orvane {

// What the crafter reads when Action fails; empty when it doesn't.
template <class Function>
std::string SentenceOf(Function Action)
{
    try {
        Action();
    } catch (const Failure& Given) {
        return Given.Sentence();
    }
    return {};
}

} // namespace orvane
