#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

namespace tarnwell::test {

/// Nothing is forbidden to the system's administrator: while this lives the test is an ordinary user.
class OrdinaryUser {
public:
    OrdinaryUser() {
        constexpr uid_t kNobody = 65534;
        if (before_ == 0) {
            EXPECT_EQ(seteuid(kNobody), 0);
        }
    }
    ~OrdinaryUser() { EXPECT_EQ(seteuid(before_), 0); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    const uid_t before_ = geteuid();
};

} // namespace tarnwell::test
