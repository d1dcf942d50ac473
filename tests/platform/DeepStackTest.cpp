#include "framework/QORDeepStack.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

constexpr int kDepth = 1000000;

/// Goes down to iLevels levels, counts each on the way, and raises at the bottom when asked to.
class Descent {
public:
    explicit Descent(bool raises) : raises_(raises) {}

    void down(int levels) {
        const Guard guard(*this);
        ++entered_;
        if (levels > 1) {
            QORCallDeep([&] { down(levels - 1); });
        } else if (raises_) {
            throw std::runtime_error("bottom");
        }
    }
    int entered_ = 0;
    int left_ = 0;

private:
    /// Says that each level was unwound.
    struct Guard {
        explicit Guard(Descent& descent) : descent_(descent) {}
        ~Guard() { ++descent_.left_; }
        Descent& descent_;
    };
    bool raises_;
};

TEST(DeepStack, HoldsAMillionLevels) {
    Descent descent(false);
    descent.down(kDepth);
    EXPECT_EQ(descent.entered_, kDepth);
    EXPECT_EQ(descent.left_, kDepth);
}

TEST(DeepStack, PassesAnExceptionThroughAMillionLevels) {
    Descent descent(true);
    try {
        descent.down(kDepth);
        ADD_FAILURE() << "nothing was raised";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "bottom");
    }
    EXPECT_EQ(descent.left_, kDepth);
}

TEST(DeepStack, IsAsGoodAsNewAfterAnException) {
    for (int round = 0; round < 3; ++round) {
        Descent raising(true);
        EXPECT_THROW(raising.down(50000), std::runtime_error);
        Descent plain(false);
        plain.down(50000);
        EXPECT_EQ(plain.left_, 50000);
    }
}

/// Catches at every level and raises anew: each exception crosses one call only.
void relay(int levels) {
    if (levels == 0) {
        throw std::runtime_error("0");
    }
    try {
        QORCallDeep([&] { relay(levels - 1); });
    } catch (const std::runtime_error& error) {
        throw std::runtime_error(std::to_string(std::stoi(error.what()) + 1));
    }
}

TEST(DeepStack, LetsEachLevelCatch) {
    try {
        relay(20000);
        ADD_FAILURE() << "nothing was raised";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "20000");
    }
}

} // namespace
