#include "QORPlatform/framework/QORDeepStack.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <stdexcept>

#include <pthread.h>

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

/// Uses all the stack that is promised, page by page.
__attribute__((noinline)) void useReserve() {
    volatile char room[QORDeepStack::kReserve - 1024];
    for (std::size_t at = 0; at < sizeof room; at += 1024) {
        room[sizeof room - 1 - at] = 1;
    }
}

void useReserveAtEachLevel(int levels) {
    QORCallDeep([levels] {
        [[maybe_unused]] volatile char frame[1000]; // so that the levels reach the end of any segment
        frame[0] = 1;
        if (levels > 1) {
            useReserveAtEachLevel(levels - 1);
        }
        useReserve();
    });
}

TEST(DeepStack, LeavesItsReserveAtEachLevelOnThreadsOfAnySize) {
    for (const std::size_t size : {std::size_t{64} << 10, std::size_t{512} << 10}) {
        pthread_attr_t attributes;
        pthread_t thread{};
        pthread_attr_init(&attributes);
        ASSERT_EQ(pthread_attr_setstacksize(&attributes, size), 0);
        const auto run = [](void*) -> void* {
            useReserveAtEachLevel(20000);
            return nullptr;
        };
        ASSERT_EQ(pthread_create(&thread, &attributes, run, nullptr), 0);
        EXPECT_EQ(pthread_join(thread, nullptr), 0);
        pthread_attr_destroy(&attributes);
    }
    useReserveAtEachLevel(20000);
}

} // namespace
