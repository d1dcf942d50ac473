// Nulls given to the platform: an operation ends early with the null result, and a null text is the empty one.

#include "QORPlatform/collections/QORHashDico.h"
#include "QORPlatform/dom/DOMString.h"
#include "QORPlatform/dom/XMLString.h"
#include "QORPlatform/framework/QORComponents.h"
#include "QORPlatform/framework/QORDictionary.h"
#include "QORPlatform/framework/QORModelIdentificator.h"
#include "QORPlatform/framework/QORProcessServices.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/notification/QOREventSubscriber.h"
#include "QORPlatform/settings/QORSettingStore.h"
#include "QORPlatform/text/QORString.h"
#include "QORPlatform/trace/QORTrace.h"

#include "Speaker.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>
#include <utility>

namespace {

const char* const kNoText = nullptr;

struct Mute : QORBaseUnknown {
    static std::string speak(const char*) { return {}; }
};

QORStatus instantiate(const char* name, void** out) {
    return QORInstantiateComponent(name, Loud::InterfaceID(), out);
}

bool traces() {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::tmpfile(), &std::fclose);
    QORTrace trace(nullptr, nullptr, 1, nullptr, 0);
    trace.TraPut("nowhere");
    trace.SetOutput(file.get());
    trace.TraPut(nullptr);
    trace.TraPutX(nullptr, 7);
    trace.TraPutLN(nullptr);
    trace.SetOutput(nullptr);
    std::rewind(file.get());
    char text[8] = {};
    return std::string(text, std::fread(text, 1, sizeof text, file.get())) == "7\n" &&
           std::string(trace.GetName()).empty();
}

bool registers() {
    const auto before = QORDictionary::Get().Report();
    {
        QORMetaClass meta(nullptr, ENUMTypeOfClass::Implementation, nullptr, nullptr, nullptr, nullptr);
        meta.SetExtensionOf(nullptr);
        const QORFillDictionary noClass(nullptr, Loud::InterfaceID(), [](QORBaseUnknown* object) { return object; });
        const QORFillDictionary noFactory("TestNull", Loud::InterfaceID(), nullptr);
        if (meta.CreateItself() || QORDictionary::Get().KnowsBindingsOf("TestNull")) {
            return false;
        }
    }
    return QORDictionary::Get().Report() == before;
}

TEST(Nulls, EndEarlyAndAreEmptyTexts) {
    Mute object;
    QOREventSubscriber subscriber;
    SpeakerTie<kTestLoud, Mute> tie(&object);
    void* out = &object;
    char* text = nullptr;
    QORUnicodeString number("before");
    number.BuildFromNum(7, nullptr);
    const std::pair<const char*, bool> cases[] = {
        {"environment", !QORGetEnv(nullptr)},
        {"trace by name", !QORTrace::Find(nullptr)},
        {"active trace", traces()},
        {"kind of object", object.IsAKindOf(nullptr) == 0},
        {"kind of class", !QORMetaClass::OfBaseUnknown()->IsAKindOf(nullptr)},
        {"meta class by name", !fct_FindMetaObject(nullptr)},
        {"registration", registers()},
        {"component without name", instantiate(nullptr, &out) < 0 && !out},
        {"component without place", instantiate("QORNavigBox", nullptr) < 0},
        {"cast without place", object.QueryInterface(Loud::InterfaceID(), nullptr) < 0},
        {"answer without place", QORAnswer(Loud::InterfaceID(), nullptr, tie) < 0},
        {"interface name", QORInterfaceID(kNoText).GetName().empty()},
        {"identity", QORModelIdentificator(nullptr).GetIntId() == 0},
        {"number format", number == ""},
        {"compared text", QORUnicodeString() == kNoText && !(QORUnicodeString("a") == kNoText)},
        {"compared narrow text", QORString() == kNoText && !(QORString("a") == kNoText)},
        {"wide text", DOMString(nullptr).length() == 0 && !XMLString::transcode(nullptr)},
        {"release", (XMLString::release(nullptr), XMLString::release(&text), !text)},
        {"dictionary key", !QORHashDico(0).Locate(nullptr)},
        {"settings", QORSettingStore::Of(nullptr).Get(nullptr, *std::make_unique<int>()) < 0},
        {"subscription", subscriber.Subscribe(nullptr, nullptr, nullptr) == kQORNoCallback},
        {"publishing", (subscriber.Publish(nullptr, nullptr), true)},
    };
    for (const auto& [what, holds] : cases) {
        EXPECT_TRUE(holds) << what;
    }
}

} // namespace
