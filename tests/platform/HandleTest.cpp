// Objects, counts, casts and handles without the dictionary.

#include "QORPlatform/framework/QORModelIdentificator.h"
#include "QORPlatform/framework/QORObjectCounts.h"
#include "QORPlatform/framework/QORProcessServices.h"
#include "QORPlatform/framework/QORVar.h"

#include "Speaker.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

/// Answers two interfaces whose operations have the same name.
class Dog : public QORBaseUnknown, private QORCounted<Dog> {
public:
    static constexpr std::string_view kCountName = "TestDog";

    explicit Dog(int number = 0) { SetIdentity(number); }
    QORStatus QueryInterface(const QORInterfaceID& interface, void** out) override {
        const QORStatus own = QORAnswer(interface, out, loud_, soft_);
        return own < 0 ? QORBaseUnknown::QueryInterface(interface, out) : own;
    }
    static std::string speak(const std::string& through) { return through; }

private:
    SpeakerTie<kTestLoud, Dog> loud_{this};
    SpeakerTie<kTestSoft, Dog> soft_{this};
};

TEST(Handle, CastsByAskingTheObjectAndEqualsAnyOtherOnIt) {
    Dog dog;
    Dog stranger;
    const QORVar<Loud> loud(&dog);
    const QORVar<Soft> soft(loud);
    const QORVar<Missing> missing(soft);
    EXPECT_EQ(loud->speak(), "TestLoud");
    EXPECT_EQ(soft->speak(), "TestSoft");
    EXPECT_EQ(missing, nullptr);
    EXPECT_EQ(dog.GetReferenceCount(), 3);
    EXPECT_EQ(loud, soft);
    EXPECT_EQ(loud.Impl(), &dog);
    EXPECT_FALSE(loud == QORVar<Soft>(&stranger));
}

TEST(Handle, RaisesOnACallThroughNullAndNamesTheInterface) {
    try {
        QORVar<Loud>()->speak();
        ADD_FAILURE() << "nothing was raised";
    } catch (const QORNullVarError& error) {
        EXPECT_STREQ(error.what(), "call through a null handle on TestLoud");
    }
    EXPECT_THROW(QORBaseUnknown_var()->IsA(), QORNullVarError);
}

TEST(Handle, EndsTheObjectWithTheLastReference) {
    auto first = QORVar<Dog>::Adopt(new Dog());
    {
        const QORVar<Soft> second(first);
        first = nullptr;
        QORVar<Soft> third(second);
        third = second;
        EXPECT_EQ(QORLivingObjects()["TestDog"], 1);
    }
    EXPECT_EQ(QORLivingObjects()["TestDog"], 0);
}

TEST(Object, AnswersACastWithAReferenceOrWithNull) {
    Dog dog;
    void* out = &dog;
    EXPECT_LT(dog.QueryInterface(Missing::InterfaceID(), &out), 0);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(dog.QueryInterface(QORInterfaceID(std::string("TestLoud")), &out), QOR_OK) << "goes by the name";
    EXPECT_EQ(dog.GetReferenceCount(), 2);
    EXPECT_EQ(static_cast<Loud*>(out)->Release(), 1);
}

TEST(Object, KeepsItsNumberForLife) {
    Dog numbered(17);
    Dog plain;
    Dog next;
    EXPECT_EQ(QORModelIdentificator(QORVar<Loud>(&numbered).Impl()).GetIntId(), 17);
    const int handedOut = QORModelIdentificator(&plain).GetIntId();
    EXPECT_GE(handedOut, 1 << 30);
    EXPECT_NE(QORModelIdentificator(&next).GetIntId(), handedOut);
    EXPECT_EQ(QORModelIdentificator(&plain).GetIntId(), handedOut);
}

TEST(ProcessServicesDeathTest, EndTheRunWithTextSourceAndLastFunction) {
    EXPECT_DEATH(QORFatalError("AssertionFailed:1 == 2", "some/source"), "AssertionFailed:1 == 2 some/source");
    EXPECT_DEATH(
        {
            QORSetLastFunction([] { std::fputs("saved", stderr); });
            QORFatalError("text", "source");
        },
        "text source\nsaved");
}

} // namespace
