#include "QORPlatform/settings/QORSettingStore.h"

#include <gtest/gtest.h>

namespace {

TEST(Settings, AreSharedByNameAndForgottenOneByOne) {
    QORSettingStore& store = QORSettingStore::Of("TestSettings");
    store.Set("Welds", 1);
    store.Set("Rivets", 2);
    int value = 0;
    EXPECT_EQ(QORSettingStore::Of("TestSettings").Get("Welds", value), QOR_OK);
    EXPECT_LT(QORSettingStore::Of("OtherSettings").Get("Welds", value), 0);
    store.Reset("Welds");
    EXPECT_LT(store.Get("Welds", value), 0);
    EXPECT_EQ(store.Get("Rivets", value), QOR_OK);
    store.ResetAll();
}

} // namespace
