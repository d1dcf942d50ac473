#include "QORPlatform/dom/DOM_Document.h"
#include "QORPlatform/dom/QORXMLParser.h"
#include "QORPlatform/dom/XMLString.h"
#include "QORPlatform/framework/QORObjectCounts.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>

namespace {

/// Made before the XML library's run-time, and so destroyed after everything else.
DOM_Element outlivesEverything;

std::string narrow(const DOMString& text) {
    char* made = XMLString::transcode(text.rawBuffer());
    std::string copy(made);
    XMLString::release(&made);
    EXPECT_EQ(made, nullptr);
    return copy;
}

long livingDocuments() {
    return QORLivingObjects()["DOM_Document"];
}

/// A document with the element "top" and those children below it.
DOM_Element topWith(std::initializer_list<const char*> children) {
    DOM_Document document = DOM_Document::createDocument();
    DOM_Element top = document.createElement("top");
    document.appendChild(top);
    for (const char* child : children) {
        top.appendChild(document.createElement(child));
    }
    return top;
}

TEST(DomText, ComesBackAsItWentInBeyondOneBlockOfTheTranscoder) {
    for (std::string text : {"", "plain", "Größe", "€ and 𝄞", "<&>\"'"}) {
        EXPECT_EQ(narrow(DOMString(text.c_str())), text);
        while (!text.empty() && text.size() < 60000) {
            text += text;
        }
        EXPECT_EQ(narrow(DOMString(text.c_str())), text);
        EXPECT_EQ(narrow(DOMString((text + "\xFF").c_str())), text + "\uFFFD");
    }
    EXPECT_EQ(DOMString("𝄞").length(), 2) << "in 16-bit units";
    EXPECT_EQ(DOMString(nullptr).length(), 0);
    EXPECT_EQ(XMLString::transcode(nullptr), nullptr);
}

TEST(DomText, TakesBrokenUtf8AsReplacementCharacters) {
    const std::pair<const char*, const char*> cases[] = {
        {"g\xFFh", "g\uFFFDh"},
        {"\x80", "\uFFFD"},
        {"cut \xE2\x82", "cut \uFFFD\uFFFD"},
        {"long \xC0\xAF.", "long \uFFFD\uFFFD."},
        {"half \xED\xA0\x80.", "half \uFFFD\uFFFD\uFFFD."},
        {"far \xF4\x90\x80\x80.", "far \uFFFD\uFFFD\uFFFD\uFFFD."},
        {"ü\xFFü", "ü\uFFFDü"},
    };
    for (const auto& [broken, repaired] : cases) {
        EXPECT_EQ(narrow(DOMString(broken)), repaired);
    }
}

TEST(DomText, TakesHalvesOfSurrogatePairsAsReplacementCharacters) {
    const std::pair<std::u16string, const char*> cases[] = {
        {{u'a', 0xD834, u'b'}, "a\uFFFDb"},
        {{0xDD1E, u'b'}, "\uFFFDb"},
        {{u'a', 0xD834}, "a\uFFFD"},
        {{0xDD1E, 0xD834}, "\uFFFD\uFFFD"},
        {{0xD834, 0xD834, 0xDD1E, u'.'}, "\uFFFD𝄞."},
    };
    for (const auto& [broken, repaired] : cases) {
        EXPECT_EQ(narrow(DOMString(broken)), repaired);
    }
}

TEST(DomDocument, IsATreeOfElementsWithAttributes) {
    DOM_Element top = topWith({"a", "b", "c"});
    top.setAttribute("name", "one");
    top.setAttribute("name", "two");
    EXPECT_EQ(narrow(top.getAttribute("name")), "two");
    EXPECT_EQ(top.getAttribute("other").length(), 0);
    const DOM_NodeList children = top.getChildNodes();
    EXPECT_EQ(narrow(children.item(2).getNodeName()), "c");
    EXPECT_EQ(narrow(children.item(1).getNodeName()), "b") << "backwards too";
    EXPECT_EQ(children.getLength(), 3);
    EXPECT_TRUE(children.item(3).isNull());
    EXPECT_TRUE(children.item(-1).isNull());
    EXPECT_EQ(top.getNodeType(), DOM_Node::ELEMENT_NODE);
    EXPECT_EQ(children.item(1).getParentNode(), top);
    EXPECT_TRUE(DOM_Element(top.getParentNode()).isNull()) << "the document itself is no element";
}

TEST(DomDocument, LivesAsLongAsAnyHandleOnIt) {
    const long before = livingDocuments();
    DOM_Node last = topWith({"a"}).getFirstChild();
    EXPECT_EQ(livingDocuments(), before + 1);
    EXPECT_EQ(narrow(last.getParentNode().getNodeName()), "top");
    DOM_Node moved = std::move(last);
    DOM_Node copy = moved;
    moved = DOM_Node();
    EXPECT_EQ(narrow(copy.getNodeName()), "a");
    copy = DOM_Node();
    EXPECT_EQ(livingDocuments(), before);
}

TEST(DomHandle, OfNothingGivesNothing) {
    DOM_Document none;
    DOM_Element element;
    element.setAttribute("a", "b");
    EXPECT_TRUE(none.createElement("a").isNull());
    EXPECT_TRUE(none.getDocumentElement().isNull());
    EXPECT_TRUE(DOM_Document::createDocument().getDocumentElement().isNull());
    EXPECT_TRUE(element.appendChild(element).isNull());
    EXPECT_EQ(element.getAttribute("a").length(), 0);
    EXPECT_EQ(element.getChildNodes().getLength(), 0);
    EXPECT_EQ(element.getNodeType(), 0);
}

TEST(DomDocument, RefusesWhatItCantHoldAndStaysAsItIs) {
    DOM_Element top = topWith({"a"});
    DOM_Document document = DOM_Document::createDocument();
    document.appendChild(document.createElement("own"));
    const std::function<void()> cases[] = {
        [&] { document.createElement("no name"); },
        [&] { document.createElement(""); },
        [&] { top.setAttribute("<", "value"); },
        [&] { top.getFirstChild().appendChild(top); },
        [&] { top.appendChild(top); },
        [&] { top.appendChild(document.getDocumentElement()); },
        [&] { document.appendChild(document.createElement("second")); },
    };
    for (const auto& refused : cases) {
        try {
            refused();
            ADD_FAILURE() << "case " << &refused - cases << " was taken";
        } catch (const QORDomError& error) {
            EXPECT_STRNE(error.what(), "") << "case " << &refused - cases;
        }
    }
    EXPECT_EQ(top.getChildNodes().getLength(), 1);
    EXPECT_EQ(document.getChildNodes().getLength(), 1);
}

TEST(DomHandleDeathTest, MayOutliveEverything) {
    EXPECT_EXIT(
        {
            QORXMLParser::Initialize();
            QORXMLParser::Initialize();
            outlivesEverything = topWith({"a"});
            std::exit(0);
        },
        testing::ExitedWithCode(0), "^$");
}

} // namespace
