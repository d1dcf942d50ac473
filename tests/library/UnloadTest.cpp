// The library comes into a process and leaves it again, as a host does that loads it on demand. This program isn't
// linked with it; a small module is, which computes a bill.

#include "QORPlatform/framework/QORDictionary.h"
#include "QORPlatform/framework/QORObjectCounts.h"
#include "QORPlatform/trace/QORTrace.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr const char* kTrace = "VXMBomViewerTrace";

TEST(Unload, LeavesNothingBehind) {
    const auto before = QORDictionary::Get().Report();
    for (int turn = 1; turn <= 3; ++turn) {
        ASSERT_EQ(QORTrace::Find(kTrace), nullptr);
        void* const library = dlopen(VXM_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(library, nullptr) << dlerror();
        ASSERT_NE(QORTrace::Find(kTrace), nullptr);
        EXPECT_STREQ(QORTrace::Find(kTrace)->GetDescription(), "Traces for module VXMBomViewerTrace");
        EXPECT_FALSE(QORTrace::Find(kTrace)->IsActive());
        const auto loaded = QORDictionary::Get().Report();
        EXPECT_TRUE(std::includes(loaded.begin(), loaded.end(), before.begin(), before.end()));
        EXPECT_EQ(dlclose(library), 0);
        EXPECT_EQ(QORTrace::Find(kTrace), nullptr) << "still loaded after turn " << turn;
        EXPECT_EQ(QORDictionary::Get().Report(), before);
    }
}

TEST(Unload, AfterABillWasComputedAndShown) {
    const auto before = QORDictionary::Get().Report();
    const auto living = QORLivingObjects();
    for (int turn = 1; turn <= 3; ++turn) {
        void* const module = dlopen(VXM_BILL_MODULE, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(module, nullptr) << dlerror();
        const auto compute = reinterpret_cast<const char* (*)()>(dlsym(module, "computeBill"));
        ASSERT_NE(compute, nullptr);
        EXPECT_STREQ(compute(), "Bom A Q w");
        EXPECT_EQ(dlclose(module), 0);
        EXPECT_EQ(QORTrace::Find(kTrace), nullptr) << "still loaded after turn " << turn;
        EXPECT_EQ(QORDictionary::Get().Report(), before);
        EXPECT_EQ(QORLivingObjects(), living);
    }
}

} // namespace
