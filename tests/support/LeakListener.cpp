// Main function of every test program: after each test the living objects of each class are as before it.

#include "QORPlatform/framework/QORObjectCounts.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

class LeakListener : public testing::EmptyTestEventListener {
public:
    void OnTestStart(const testing::TestInfo&) override { before_ = QORLivingObjects(); }

    void OnTestEnd(const testing::TestInfo&) override {
        const auto after = QORLivingObjects();
        for (const auto& [name, living] : after) {
            const auto earlier = before_.find(name);
            const long left = living - (earlier == before_.end() ? 0 : earlier->second);
            EXPECT_LE(left, 0) << left << " objects of " << name << " are left over";
        }
    }

private:
    std::map<std::string, long> before_;
};

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new LeakListener());
    return RUN_ALL_TESTS();
}
