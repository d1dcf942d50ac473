// Objects, counts, casts and handles without the dictionary.

#include "framework/QORModelIdentificator.h"
#include "framework/QORObjectCounts.h"
#include "framework/QORProcessServices.h"
#include "framework/QORTie.h"
#include "framework/QORVar.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

class Named : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("TestNamed"); }
    virtual std::string getName() = 0;
};
class Called : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("TestCalled"); }
    virtual std::string getName() = 0;
};
class Missing : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("TestMissing"); }
};

template <class Impl>
class NamedTie : public QORTie<Named, Impl> {
public:
    using QORTie<Named, Impl>::QORTie;
    std::string getName() override { return this->Target()->getName(); }
};
template <class Impl>
class CalledTie : public QORTie<Called, Impl> {
public:
    using QORTie<Called, Impl>::QORTie;
    std::string getName() override { return this->Target()->getCall(); }
};

/// Answers two interfaces whose operations have the same name.
class Dog : public QORBaseUnknown, private QORCounted<Dog> {
public:
    static constexpr std::string_view kCountName = "TestDog";

    explicit Dog(int number = 0) { SetIdentity(number); }
    QORStatus QueryInterface(const QORInterfaceID& interface, void** out) override {
        const QORStatus own = QORAnswer(interface, out, named_, called_);
        return own < 0 ? QORBaseUnknown::QueryInterface(interface, out) : own;
    }
    static std::string getName() { return "Rex"; }
    static std::string getCall() { return "come here"; }

private:
    NamedTie<Dog> named_{this};
    CalledTie<Dog> called_{this};
};

TEST(Handle, CastsByAskingTheObject) {
    Dog dog;
    const QORVar<Named> named(&dog);
    const QORVar<Called> called(named);
    const QORVar<Missing> missing(called);
    EXPECT_EQ(named->getName(), "Rex");
    EXPECT_EQ(called->getName(), "come here");
    EXPECT_FALSE(missing);
    EXPECT_EQ(dog.GetReferenceCount(), 3);
}

TEST(Handle, EqualsAnyOtherOnTheSameObject) {
    Dog dog;
    Dog stranger;
    const QORVar<Named> named(&dog);
    EXPECT_EQ(named, QORVar<Called>(&dog));
    EXPECT_EQ(named.Impl(), &dog);
    EXPECT_FALSE(named == QORVar<Called>(&stranger));
    EXPECT_EQ(QORVar<Missing>(&dog), nullptr);
}

TEST(Handle, RaisesOnACallThroughNullAndNamesTheInterface) {
    const QORVar<Named> nothing;
    try {
        nothing->getName();
        ADD_FAILURE() << "nothing was raised";
    } catch (const QORNullVarError& error) {
        EXPECT_STREQ(error.what(), "call through a null handle on TestNamed");
    }
    EXPECT_THROW(QORBaseUnknown_var()->IsA(), QORNullVarError);
}

TEST(Handle, EndsTheObjectWithTheLastReference) {
    const auto living = [] {
        return QORLivingObjects()["TestDog"];
    };
    auto first = QORVar<Dog>::Adopt(new Dog());
    {
        const QORVar<Called> second(first);
        first = nullptr;
        EXPECT_EQ(living(), 1);
        QORVar<Called> third(second);
        third = second;
        EXPECT_EQ(second->getName(), "come here");
    }
    EXPECT_EQ(living(), 0);
}

TEST(Object, AnswersACastWithAReferenceOrWithNull) {
    Dog dog;
    void* out = &dog;
    EXPECT_LT(dog.QueryInterface(Missing::InterfaceID(), &out), 0);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(dog.QueryInterface(Named::InterfaceID(), &out), QOR_OK);
    auto* const named = static_cast<Named*>(out);
    EXPECT_EQ(dog.GetReferenceCount(), 2);
    EXPECT_EQ(named->GetImpl(0), &dog);
    EXPECT_EQ(named->Release(), 1);
    EXPECT_STREQ(dog.IsA(), "QORBaseUnknown");
}

TEST(Object, KeepsItsNumberForLife) {
    Dog numbered(17);
    Dog plain;
    const QORVar<Named> named(&numbered);
    EXPECT_EQ(QORModelIdentificator(named.Impl()).GetIntId(), 17);
    const int handedOut = QORModelIdentificator(&plain).GetIntId();
    EXPECT_GE(handedOut, 1 << 30);
    EXPECT_EQ(QORModelIdentificator(&plain).GetIntId(), handedOut);
    Dog next;
    EXPECT_NE(QORModelIdentificator(&next).GetIntId(), handedOut);
}

TEST(InterfaceId, IsComparedByName) {
    const std::string name = "TestNamed";
    EXPECT_EQ(QORInterfaceID(name), Named::InterfaceID());
    EXPECT_FALSE(Named::InterfaceID() == Called::InterfaceID());
}

TEST(ProcessServices, ReadTheEnvironment) {
    setenv("QOR_TEST_VALUE", "TRUE", 1);
    EXPECT_STREQ(QORGetEnv("QOR_TEST_VALUE"), "TRUE");
    unsetenv("QOR_TEST_VALUE");
    EXPECT_EQ(QORGetEnv("QOR_TEST_VALUE"), nullptr);
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
