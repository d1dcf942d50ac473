#include "QORPlatform/framework/QORDeepStack.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

/// Goes down that many levels, counts each on its way back, and raises at the bottom when asked to.
struct Descent {
    explicit Descent(bool raises) : raises_(raises) {}

    void down(int levels) {
        struct Guard {
            ~Guard() { ++left_; }
            int& left_;
        };
        const Guard guard{left_};
        if (levels > 1) {
            QORCallDeep([&] { down(levels - 1); });
        } else if (raises_) {
            throw std::runtime_error("bottom");
        }
    }
    bool raises_;
    int left_ = 0;
};

TEST(DeepStack, HoldsAMillionLevelsAgainAndAgainAlsoOfExceptions) {
    for (int round = 0; round < 2; ++round) {
        Descent raising(true);
        EXPECT_THROW(raising.down(1000000), std::runtime_error);
        EXPECT_EQ(raising.left_, 1000000);
        Descent plain(false);
        plain.down(1000000);
        EXPECT_EQ(plain.left_, 1000000);
    }
}

} // namespace
