// Classes and bindings by name: late types, extensions, components, and what leaves again.

#include "framework/QORComponents.h"
#include "framework/QORDictionary.h"
#include "framework/QORExtensionAdapter.h"
#include "framework/QORTie.h"
#include "framework/QORVar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace {

class Speaker : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("TestSpeaker"); }
    virtual std::string speak() = 0;
};
template <class Impl>
class SpeakerTie : public QORTie<Speaker, Impl> {
public:
    using QORTie<Speaker, Impl>::QORTie;
    std::string speak() override { return this->Target()->speak(); }
};
template <class Impl>
QORBaseUnknown* makeSpeaker(QORBaseUnknown* implementation) {
    return new SpeakerTie<Impl>(static_cast<Impl*>(implementation));
}

/// An object of whatever class a test gives it.
class Thing : public QORBaseUnknown {
public:
    explicit Thing(std::string type) : type_(std::move(type)) {}
    QORMetaClass* GetMetaObject() const override { return fct_FindMetaObject(type_.c_str()); }
    std::string speak() { return "I am " + type_; }

private:
    std::string type_;
};

class Voice : public QORExtensionAdapter {
public:
    Voice() { ++made; }
    std::string speak() { return std::string("voice of ") + GetImpl(0)->IsA(); }
    static QORBaseUnknown* create() { return new Voice(); }
    inline static int made = 0;
};

std::string spoken(QORBaseUnknown& object) {
    const QORVar<Speaker> speaker(&object);
    return speaker ? speaker->speak() : "silence";
}

TEST(Dictionary, BindsAClassAndAllThatDeriveFromIt) {
    QORMetaClass base("TestBase", Implementation, QORMetaClass::OfBaseUnknown(), "QORNull", "Tests", nullptr);
    const QORMetaClass derived("TestDerived", Implementation, &base, "QORNull", "Tests", nullptr);
    Thing thing("TestDerived");
    EXPECT_EQ(spoken(thing), "silence");
    {
        const QORFillDictionary entry("TestBase", Speaker::InterfaceID(), &makeSpeaker<Thing>);
        Thing bound("TestDerived");
        EXPECT_EQ(spoken(bound), "I am TestDerived");
        EXPECT_EQ(QORVar<Speaker>(&bound).Get(), QORVar<Speaker>(&bound).Get()) << "made once, found again";
        EXPECT_EQ(bound.GetReferenceCount(), 1);
        EXPECT_EQ(bound.IsAKindOf("TestBase"), 1);
        EXPECT_EQ(bound.IsAKindOf("TestOther"), 0);
    }
    Thing later("TestDerived");
    EXPECT_EQ(spoken(later), "silence") << "the entry has gone";
}

TEST(Dictionary, ExtendsEveryTypeThatAnExtensionNames) {
    QORMetaClass voice("TestVoice", Extension, QORMetaClass::OfBaseUnknown(), "TestFirst_node", "Tests",
                       &Voice::create);
    voice.SetExtensionOf(fct_FindMetaObject("TestSecond_node"));
    const QORFillDictionary entry("TestVoice", Speaker::InterfaceID(), &makeSpeaker<Voice>);
    EXPECT_EQ(voice.GetExtendedTypes(), (std::vector<std::string>{"TestFirst_node", "TestSecond_node"}));

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

    const QORVar<Speaker> speaker(&first);
    EXPECT_EQ(speaker.Impl(), &first);
    EXPECT_EQ(first.GetReferenceCount(), 2) << "counting is the extended object's";
}

TEST(Dictionary, IsAsBeforeWhenALibraryHasLeft) {
    const auto before = QORDictionary::Get().Report();
    {
        QORMetaClass voice("TestVoice", Extension, QORMetaClass::OfBaseUnknown(), "TestLate_node", "Tests", nullptr);
        const QORFillDictionary entry("TestVoice", Speaker::InterfaceID(), &makeSpeaker<Voice>);
        const auto during = QORDictionary::Get().Report();
        for (const char* line : {"class TestVoice", "class TestLate_node", "bound TestVoice TestSpeaker",
                                 "extended TestLate_node TestVoice"}) {
            EXPECT_EQ(std::count(during.begin(), during.end(), line), 1) << line;
        }
    }
    EXPECT_EQ(QORDictionary::Get().Report(), before);
}

TEST(Dictionary, TakesADefinitionInPlaceOfAPlaceholder) {
    EXPECT_EQ(fct_FindMetaObject("TestLater")->GetKind(), Placeholder);
    const QORMetaClass later("TestLater", Implementation, QORMetaClass::OfBaseUnknown(), "QORNull", "Tests", nullptr);
    EXPECT_EQ(fct_FindMetaObject("TestLater"), &later);
    EXPECT_STREQ(later.GetModule(), "Tests");
    EXPECT_EQ(later.CreateItself(), nullptr);
}

TEST(Component, IsMadeByNameAndAnswersOrIsNegative) {
    const QORMetaClass meta("TestThing", Implementation, QORMetaClass::OfBaseUnknown(), "QORNull", "Tests",
                            []() -> QORBaseUnknown* { return new Thing("TestThing"); });
    const QORMetaClass closed("TestClosed", Implementation, QORMetaClass::OfBaseUnknown(), "QORNull", "Tests", nullptr);
    const QORFillDictionary entry("TestThing", Speaker::InterfaceID(), &makeSpeaker<Thing>);
    void* out = nullptr;
    ASSERT_EQ(QORInstantiateComponent("TestThing", Speaker::InterfaceID(), &out), QOR_OK);
    const auto speaker = QORVar<Speaker>::Adopt(static_cast<Speaker*>(out));
    EXPECT_EQ(speaker->speak(), "I am TestThing");
    EXPECT_EQ(speaker.Impl()->GetReferenceCount(), 1);

    const std::pair<const char*, QORInterfaceID> refused[] = {{"TestThing", QORInterfaceID("TestMissing")},
                                                              {"TestClosed", Speaker::InterfaceID()},
                                                              {"TestUnknown", Speaker::InterfaceID()}};
    for (const auto& [name, interface] : refused) {
        out = speaker.Get();
        EXPECT_LT(QORInstantiateComponent(name, interface, &out), 0) << name;
        EXPECT_EQ(out, nullptr) << name;
    }
}

} // namespace
