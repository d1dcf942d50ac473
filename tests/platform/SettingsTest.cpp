#include "settings/QORSettingStore.h"

#include <gtest/gtest.h>

namespace {

class Settings : public testing::Test {
protected:
    ~Settings() override { store_.ResetAll(); }

    QORSettingStore& store_ = QORSettingStore::Of("TestSettings");
};

TEST_F(Settings, LeaveTheReadersDefaultWhereNothingWasSet) {
    int value = 42;
    EXPECT_LT(store_.Get("Welds", value), 0);
    EXPECT_EQ(value, 42);
    store_.Set("Welds", 0);
    EXPECT_EQ(store_.Get("Welds", value), QOR_OK);
    EXPECT_EQ(value, 0);
}

TEST_F(Settings, AreSharedByNameAndForgottenOneByOne) {
    store_.Set("Welds", 1);
    store_.Set("Rivets", 2);
    int value = 0;
    EXPECT_EQ(QORSettingStore::Of("TestSettings").Get("Welds", value), QOR_OK);
    EXPECT_LT(QORSettingStore::Of("OtherSettings").Get("Welds", value), 0);
    store_.Reset("Welds");
    EXPECT_LT(store_.Get("Welds", value), 0);
    EXPECT_EQ(store_.Get("Rivets", value), QOR_OK);
}

} // namespace
