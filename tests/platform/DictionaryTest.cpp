// Classes and bindings by name: late types, extensions, components, and what leaves again.

#include "QORPlatform/framework/QORComponents.h"
#include "QORPlatform/framework/QORDictionary.h"
#include "QORPlatform/framework/QORExtensionAdapter.h"
#include "QORPlatform/framework/QORVar.h"

#include "Speaker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>

namespace {

template <class Impl>
QORBaseUnknown* makeSpeaker(QORBaseUnknown* implementation) {
    return new SpeakerTie<kTestLoud, Impl>(static_cast<Impl*>(implementation));
}

/// A class of the tests: an extension when it names a type that it extends.
struct Meta : QORMetaClass {
    explicit Meta(const char* name, Creator create = nullptr, const char* extended = "QORNull",
                  QORMetaClass* base = OfBaseUnknown())
        : QORMetaClass(name, *extended == 'Q' ? ENUMTypeOfClass::Implementation : ENUMTypeOfClass::Extension, base,
                       extended, "Tests", create) {}
};

/// An object of whatever class a test gives it.
class Thing : public QORBaseUnknown {
public:
    explicit Thing(std::string type) : type_(std::move(type)) {}
    QORMetaClass* GetMetaObject() const override { return fct_FindMetaObject(type_.c_str()); }
    std::string speak(const char*) { return "I am " + type_; }
    static QORBaseUnknown* create() { return new Thing("TestThing"); }

private:
    std::string type_;
};

class Voice : public QORExtensionAdapter {
public:
    Voice() { ++made; }
    std::string speak(const char*) { return std::string("voice of ") + GetImpl(0)->IsA(); }
    static QORBaseUnknown* create() { return new Voice(); }
    inline static int made = 0;
};

std::string spoken(QORBaseUnknown& object) {
    const QORVar<Loud> speaker(&object);
    return speaker ? speaker->speak() : "silence";
}

TEST(Dictionary, BindsAClassAndAllThatDeriveFromIt) {
    Meta base("TestBase");
    const Meta derived("TestDerived", nullptr, "QORNull", &base);
    Thing thing("TestDerived");
    EXPECT_EQ(spoken(thing), "silence");
    {
        const QORFillDictionary entry("TestBase", Loud::InterfaceID(), &makeSpeaker<Thing>);
        Thing bound("TestDerived");
        EXPECT_EQ(spoken(bound), "I am TestDerived");
        EXPECT_EQ(QORVar<Loud>(&bound).Get(), QORVar<Loud>(&bound).Get()) << "made once, found again";
        EXPECT_EQ(bound.GetReferenceCount(), 1);
        EXPECT_EQ(bound.IsAKindOf("TestBase"), 1);
        { const QORFillDictionary again("TestBase", Loud::InterfaceID(), &makeSpeaker<Thing>); }
        Thing still("TestDerived");
        EXPECT_EQ(spoken(still), "I am TestDerived") << "one entry has gone, the other stands";
        EXPECT_EQ(bound.IsAKindOf("TestOther"), 0);
    }
    Thing later("TestDerived");
    EXPECT_EQ(spoken(later), "silence") << "the entry has gone";
}

TEST(Dictionary, ExtendsEveryTypeThatAnExtensionNames) {
    Meta voice("TestVoice", &Voice::create, "TestFirst_node");
    voice.SetExtensionOf(fct_FindMetaObject("TestSecond_node"));
    const QORFillDictionary entry("TestVoice", Loud::InterfaceID(), &makeSpeaker<Voice>);
    const int before = Voice::made;
    Thing first("TestFirst_node");
    Thing second("TestSecond_node");
    Thing third("TestThird_node");
    EXPECT_EQ(Voice::made, before) << "nothing is made before it is asked for";
    EXPECT_EQ(spoken(first), "voice of TestFirst_node");
    EXPECT_EQ(spoken(second), "voice of TestSecond_node");
    EXPECT_EQ(spoken(third), "silence");
    EXPECT_EQ(spoken(first), "voice of TestFirst_node");
    EXPECT_EQ(Voice::made, before + 2);

    const QORVar<Loud> speaker(&first);
    EXPECT_EQ(speaker.Impl(), &first);
    EXPECT_EQ(first.GetReferenceCount(), 2) << "counting is the extended object's";
}

TEST(Dictionary, PassesOverWhatIsNoExtensionAndLeavesNothingOfIt) {
    const Meta wrong("TestWrong", &Thing::create, "TestWrong_node");
    const Meta uncreated("TestUncreated", nullptr, "TestWrong_node");
    const QORFillDictionary entry("TestWrong", Loud::InterfaceID(), &makeSpeaker<Thing>);
    const QORFillDictionary other("TestUncreated", Loud::InterfaceID(), &makeSpeaker<Thing>);
    Thing thing("TestWrong_node");
    EXPECT_EQ(spoken(thing), "silence");
}

TEST(Dictionary, TakesADefinitionInPlaceOfAPlaceholder) {
    const Meta derived("TestDerived", nullptr, "QORNull", fct_FindMetaObject("TestLater"));
    const Meta voice("TestVoice", &Voice::create, "TestLater");
    const QORFillDictionary entry("TestVoice", Loud::InterfaceID(), &makeSpeaker<Voice>);
    QORDictionary::Get().DropUnusedPlaceholders();
    EXPECT_EQ(derived.GetBase()->GetKind(), ENUMTypeOfClass::Placeholder) << "kept, since it is a base";
    const Meta later("TestLater");
    EXPECT_EQ(fct_FindMetaObject("TestLater"), &later);
    EXPECT_EQ(derived.GetBase(), &later);
    const auto lines = QORDictionary::Get().Report();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "class TestLater"), 1) << "the placeholder has gone";
    Thing thing("TestDerived");
    EXPECT_EQ(spoken(thing), "voice of TestDerived");
}

TEST(Component, IsMadeByNameAndAnswersOrIsNegative) {
    const Meta meta("TestThing", &Thing::create);
    const Meta closed("TestClosed");
    const QORFillDictionary entry("TestThing", Loud::InterfaceID(), &makeSpeaker<Thing>);
    void* out = nullptr;
    ASSERT_EQ(QORInstantiateComponent("TestThing", Loud::InterfaceID(), &out), QOR_OK);
    const auto speaker = QORVar<Loud>::Adopt(static_cast<Loud*>(out));
    EXPECT_EQ(speaker->speak(), "I am TestThing");
    EXPECT_EQ(speaker.Impl()->GetReferenceCount(), 1);

    const std::pair<const char*, QORInterfaceID> refused[] = {{"TestThing", Missing::InterfaceID()},
                                                              {"TestClosed", Loud::InterfaceID()},
                                                              {"TestUnknown", Loud::InterfaceID()}};
    for (const auto& [name, interface] : refused) {
        out = speaker.Get();
        EXPECT_LT(QORInstantiateComponent(name, interface, &out), 0) << name;
        EXPECT_EQ(out, nullptr) << name;
    }
}

} // namespace
