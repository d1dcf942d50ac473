// What subscribers may do while they are told, and what they find.

#include "planner/edit/EditSession.h"

#include <gtest/gtest.h>

#include <stdexcept>

using editing::kWorld;
using editing::Listener;
using editing::Session;

namespace {

TEST(Publishing, ComesWhenAllIsChanged) {
    Session s(kWorld);
    std::string seen;
    s.listener().react = [&](int) {
        seen += std::to_string(s.plan().links().size()) + (s.plan().find("hold") ? " there " : " gone ");
    };
    s.editor().removeActivity(s.activity("join"));
    s.editor().undo();
    EXPECT_EQ(seen, "3 gone 3 gone 7 there 7 there ");
}

TEST(Publishing, TellsEverybodyOfEachKindThoughOneRaises) {
    Session s(kWorld);
    const std::string first = s.text();
    const auto other = QORVar<Listener>::Adopt(new Listener(*s.plan().process()->GetEventPublisher()));
    s.listener().react = [](int kind) {
        throw std::runtime_error(std::to_string(kind));
    };
    const auto messageOf = [](auto act) -> std::string {
        try {
            act();
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "none";
    };
    EXPECT_EQ(messageOf([&] { s.editor().removeActivity(s.activity("join")); }), "17");
    EXPECT_EQ(other->take(), "17 27");
    EXPECT_EQ(s.editor().undoText(), "Remove \"Join\"") << "the step was made all the same";
    EXPECT_EQ(messageOf([&] { s.editor().undo(); }), "3");
    EXPECT_EQ(other->take(), "3 18");
    EXPECT_EQ(s.text(), first);
    EXPECT_EQ(messageOf([&] { s.editor().redo(); }), "17");
    s.listener().react = nullptr;
    EXPECT_TRUE(s.editor().undo());
    EXPECT_EQ(s.text(), first);
}

TEST(Publishing, MayBeAnsweredWithEditsUndoAndTheEndOfTheEditor) {
    const struct {
        void (*react)(Session& s, int kind);
        const char* told;
        std::size_t links;
    } cases[] = {
        {[](Session& s, int kind) { kind == 17 ? s.editor().rename(s.activity("load"), "L") : void(); }, "17 1 27", 3},
        {[](Session& s, int kind) { kind == 17 && s.editor().undo(); }, "17 3 18 27", 7},
        {[](Session& s, int) { s.endEditor(); }, "17 27", 3},
    };
    for (const auto& each : cases) {
        Session s(kWorld);
        s.listener().react = [&](int kind) {
            each.react(s, kind);
        };
        s.editor().removeActivity(s.activity("join"));
        EXPECT_EQ(s.listener().take(), each.told) << "the rest of the first step is told behind";
        EXPECT_EQ(s.plan().links().size(), each.links) << each.told;
    }
}

} // namespace
