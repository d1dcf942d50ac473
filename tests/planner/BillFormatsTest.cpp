// A bill in each of its formats.

#include "PlanText.h"

#include "planner/bill/BillFormats.h"

#include <gtest/gtest.h>

using namespace plantext;
using planner::Bill;
using planner::Format;

namespace {

class BillFormats : public testing::Test {
protected:
    std::string print(const Bill& bill, Format format, const std::string& title = "Title") {
        return printed([&](planner::TextSink& sink) { writeBill(bill, format, title, sink); });
    }

    /// An element of a bill; the object is the one of that id.
    planner::BillElement element(int level, const std::string& name, const char* object) {
        const std::string tag = std::string(object) == "f" ? "BOMFastener" : "BOMNode";
        return {level, tag, name, plan_->find(object)};
    }

    std::unique_ptr<planner::Plan> plan_ = read(R"({"version": 1, "items": [
        {"id": "a", "kind": "assembly"}, {"id": "p", "kind": "product"}, {"id": "i", "kind": "item"},
        {"id": "=p", "kind": "product"}, {"id": "f", "kind": "fastener", "type": "Rivet"},
        {"id": "g", "kind": "fastener", "type": "1\n2\t3"}]})");
};

TEST_F(BillFormats, SayTheSame) {
    const Bill bill{element(1, "A", "a"), element(2, "P", "p"), element(3, "Q", "p"), element(1, "F", "f")};
    EXPECT_EQ(print(bill, Format::Tree), "Title\n"
                                         "  A (assembly)\n"
                                         "    P (product)\n"
                                         "      Q (product)\n"
                                         "  F (fastener, Rivet)\n"
                                         "Total: 4 elements: 2 products, 1 assembly, 1 fastener\n");
    EXPECT_EQ(print(bill, Format::Xml), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                        "<BOM>\n"
                                        "  <BOMNode DisplayName=\"A\">\n"
                                        "    <BOMNode DisplayName=\"P\">\n"
                                        "      <BOMNode DisplayName=\"Q\"/>\n"
                                        "    </BOMNode>\n"
                                        "  </BOMNode>\n"
                                        "  <BOMFastener DisplayName=\"F\"/>\n"
                                        "</BOM>\n");
    EXPECT_EQ(print(bill, Format::Json), R"({"bom": [
  {"tag": "BOMNode", "name": "A", "object": "a", "children": [
    {"tag": "BOMNode", "name": "P", "object": "p", "children": [
      {"tag": "BOMNode", "name": "Q", "object": "p", "children": []}
    ]}
  ]},
  {"tag": "BOMFastener", "name": "F", "object": "f", "children": []}
]}
)");
    EXPECT_EQ(print(bill, Format::Csv), "\xEF\xBB\xBFlevel,tag,name,object\r\n"
                                        "1,BOMNode,A,a\r\n"
                                        "2,BOMNode,P,p\r\n"
                                        "3,BOMNode,Q,p\r\n"
                                        "1,BOMFastener,F,f\r\n");
}

TEST_F(BillFormats, TakeAnEmptyBill) {
    EXPECT_EQ(print({}, Format::Tree), "Title\nTotal: 0 elements\n");
    EXPECT_EQ(print({}, Format::Xml), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<BOM/>\n");
    EXPECT_EQ(print({}, Format::Json), "{\"bom\": []}\n");
    EXPECT_EQ(print({}, Format::Csv), "\xEF\xBB\xBFlevel,tag,name,object\r\n");
}

TEST_F(BillFormats, EscapeWhatTheyMust) {
    const struct {
        const char* name;
        const char* xml;
        const char* json;
        const char* csv;
    } cases[] = {{"a<b>&\"c'", "a&lt;b&gt;&amp;&quot;c'", "a<b>&\\\"c'", "\"a<b>&\"\"c'\""},
                 {"1\t2\n3\r", "1&#9;2&#10;3&#13;", "1\\t2\\n3\\r", "\"1\t2\n3\r\""},
                 {"\xEF\xBF\xBE|\xEF\xBF\xBF|\xEF\xBF\xBC", "\xEF\xBF\xBD|\xEF\xBF\xBD|\xEF\xBF\xBC",
                  "\xEF\xBF\xBE|\xEF\xBF\xBF|\xEF\xBF\xBC", "\xEF\xBF\xBE|\xEF\xBF\xBF|\xEF\xBF\xBC"},
                 {"Träger ∆ 𝛑", "Träger ∆ 𝛑", "Träger ∆ 𝛑", "Träger ∆ 𝛑"},
                 {"=1+1", "=1+1", "=1+1", "'=1+1"},
                 {"-a,b", "-a,b", "-a,b", "\"'-a,b\""},
                 {"@x", "@x", "@x", "'@x"},
                 {"+x", "+x", "+x", "'+x"},
                 {"x=1", "x=1", "x=1", "x=1"},
                 {"", "", "", ""}};
    for (const auto& each : cases) {
        const Bill bill{element(1, each.name, "=p")};
        EXPECT_EQ(print(bill, Format::Xml),
                  "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<BOM>\n  <BOMNode DisplayName=\"" +
                      std::string(each.xml) + "\"/>\n</BOM>\n");
        EXPECT_EQ(print(bill, Format::Json), "{\"bom\": [\n  {\"tag\": \"BOMNode\", \"name\": \"" +
                                                 std::string(each.json) +
                                                 "\", \"object\": \"=p\", \"children\": []}\n]}\n");
        EXPECT_EQ(print(bill, Format::Csv),
                  "\xEF\xBB\xBFlevel,tag,name,object\r\n1,BOMNode," + std::string(each.csv) + ",'=p\r\n");
    }
    EXPECT_EQ(print({element(1, "a\nb\tc", "g")}, Format::Tree, "x\ry\n"),
              "x\\ry\\n\n  a\\nb\\tc (fastener, 1\\n2\\t3)\nTotal: 1 element: 1 fastener\n");
}

TEST_F(BillFormats, IndentTwoHundredLevelsAndNoMore) {
    constexpr int kDepth = 100000;
    Bill bill;
    for (int level = 1; level <= kDepth; ++level) {
        bill.push_back(element(level, "P", "p"));
    }
    const std::string line = '\n' + std::string(400, ' ') + "P (product)";
    EXPECT_NE(print(bill, Format::Tree).find(repeated(line, 1000) + line + line), std::string::npos);
    for (const Format format : {Format::Xml, Format::Json, Format::Csv}) {
        EXPECT_LT(print(bill, format).size(), std::size_t{kDepth} * 1000);
    }
}

} // namespace
