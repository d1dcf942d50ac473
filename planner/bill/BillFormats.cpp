// The elements of a bill come one behind the other with their levels; what a format has to close between two of them
// follows from the levels alone, so no depth costs more than another.

#include "planner/bill/BillFormats.h"

#include "planner/file/JsonText.h"
#include "planner/file/SourceText.h"
#include "planner/model/Item.h"

#include <algorithm>
#include <array>

namespace planner {

namespace {

/// Level of an element, 0 behind the last one.
int levelAt(const Bill& bill, std::size_t position) {
    return position < bill.size() ? bill[position].level : 0;
}

/// Writes a text with some characters replaced. What replacement gives is written in place of a byte, null keeps it.
template <class Replacement>
void putReplaced(TextSink& sink, std::string_view text, Replacement replacement) {
    std::size_t plain = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (const char* const other = replacement(text[i])) {
            sink.put(text.substr(plain, i - plain));
            sink.put(other);
            plain = i + 1;
        }
    }
    sink.put(text.substr(plain));
}

// For people

constexpr std::array<const char*, 5> kKinds{"product", "assembly", "fastener", "item", "resource"};
constexpr std::array<const char*, 5> kManyKinds{"products", "assemblies", "fasteners", "items", "resources"};

std::size_t kindOf(const ModelObject& object) {
    return object.sort() == Sort::Item ? static_cast<std::size_t>(static_cast<const Item&>(object).kind())
                                       : kKinds.size() - 1;
}

/// A text as a part of a line: what would end the line or break its indentation is written out.
void putInLine(TextSink& sink, std::string_view text) {
    putReplaced(sink, text, [](char letter) -> const char* {
        return letter == '\n' ? "\\n" : letter == '\t' ? "\\t" : letter == '\r' ? "\\r" : nullptr;
    });
}

void treeLine(const BillElement& element, TextSink& sink) {
    putInLine(sink, element.name);
    sink.put(" (");
    sink.put(kKinds[kindOf(*element.object)]);
    if (const auto* const fastener = dynamic_cast<const Fastener*>(element.object); fastener && fastener->type) {
        sink.put(", ");
        putInLine(sink, *fastener->type);
    }
    sink.put(')');
}

void writeTree(const Bill& bill, const std::string& title, TextSink& sink) {
    std::array<std::size_t, kKinds.size()> counts{};
    putInLine(sink, title);
    for (const BillElement& element : bill) {
        sink.newLine(static_cast<std::size_t>(element.level));
        treeLine(element, sink);
        ++counts[kindOf(*element.object)];
    }
    sink.newLine(0);
    sink.put("Total: " + std::to_string(bill.size()) + (bill.size() == 1 ? " element" : " elements"));
    const char* separator = ": ";
    for (std::size_t kind = 0; kind < counts.size(); ++kind) {
        if (counts[kind] > 0) {
            sink.put(separator + std::to_string(counts[kind]) + ' ' +
                     (counts[kind] == 1 ? kKinds[kind] : kManyKinds[kind]));
            separator = ", ";
        }
    }
    sink.put('\n');
}

// XML

/// A text as an attribute's value. U+FFFE and U+FFFF, which XML can't carry, become U+FFFD.
void putXml(TextSink& sink, std::string_view text) {
    constexpr std::string_view kNoCharacters = "\xEF\xBF"; // their first two bytes; the last is BE or BF
    std::string carried(text);
    for (std::size_t at = carried.find(kNoCharacters); at != std::string::npos;
         at = carried.find(kNoCharacters, at + 1)) {
        const auto last = static_cast<unsigned char>(carried[at + 2]);
        carried[at + 2] = last >= 0xBE ? '\xBD' : carried[at + 2];
    }
    putReplaced(sink, carried, [](char letter) -> const char* {
        switch (letter) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '"':
            return "&quot;";
        case '\t':
            return "&#9;";
        case '\n':
            return "&#10;";
        case '\r':
            return "&#13;";
        default:
            return isControlCharacter(letter) ? "\xEF\xBF\xBD" : nullptr;
        }
    });
}

void writeXml(const Bill& bill, TextSink& sink) {
    sink.put("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    sink.put(bill.empty() ? "<BOM/>" : "<BOM>");
    std::vector<const BillElement*> open;
    for (std::size_t i = 0; i < bill.size(); ++i) {
        const BillElement& element = bill[i];
        sink.newLine(open.size() + 1);
        sink.put('<');
        sink.put(element.tag);
        sink.put(" DisplayName=\"");
        putXml(sink, element.name);
        if (levelAt(bill, i + 1) > element.level) {
            sink.put("\">");
            open.push_back(&element);
            continue;
        }
        sink.put("\"/>");
        while (!open.empty() && open.back()->level >= levelAt(bill, i + 1)) {
            sink.newLine(open.size());
            sink.put("</" + open.back()->tag + ">");
            open.pop_back();
        }
    }
    if (!bill.empty()) {
        sink.newLine(0);
        sink.put("</BOM>");
    }
    sink.put('\n');
}

// JSON

void writeJson(const Bill& bill, TextSink& sink) {
    sink.put("{\"bom\": [");
    for (std::size_t i = 0; i < bill.size(); ++i) {
        const BillElement& element = bill[i];
        const int next = levelAt(bill, i + 1);
        sink.newLine(static_cast<std::size_t>(element.level));
        sink.put("{\"tag\": ");
        putJson(sink, element.tag);
        sink.put(", \"name\": ");
        putJson(sink, element.name);
        sink.put(", \"object\": ");
        putJson(sink, element.object->id());
        sink.put(", \"children\": [");
        if (next <= element.level) {
            sink.put("]}");
        }
        for (int level = element.level - 1; level >= std::max(next, 1); --level) {
            sink.newLine(static_cast<std::size_t>(level));
            sink.put("]}");
        }
        sink.put(next > 0 && next <= element.level ? "," : "");
    }
    if (!bill.empty()) {
        sink.newLine(0);
    }
    sink.put("]}\n");
}

// CSV

/// A text as a field: guarded where a spreadsheet would take it for a formula, in quotes where it has to be.
void putCsv(TextSink& sink, const std::string& text) {
    const bool formula = !text.empty() && std::string_view("=+-@").find(text.front()) != std::string_view::npos;
    const bool quotes = text.find_first_of(",;\"\r\n\t") != std::string::npos;
    sink.put(quotes ? "\"" : "");
    sink.put(formula ? "'" : "");
    putReplaced(sink, text, [](char letter) { return letter == '"' ? "\"\"" : nullptr; });
    sink.put(quotes ? "\"" : "");
}

void writeCsv(const Bill& bill, TextSink& sink) {
    sink.put("\xEF\xBB\xBFlevel,tag,name,object\r\n");
    for (const BillElement& element : bill) {
        sink.put(std::to_string(element.level) + ',' + element.tag + ',');
        putCsv(sink, element.name);
        sink.put(',');
        putCsv(sink, element.object->id());
        sink.put("\r\n");
    }
}

} // namespace

Format formatNamed(std::string_view name) {
    return std::find_if(kFormats.begin(), kFormats.end(), [&](const NamedFormat& each) { return name == each.name; })
        ->format;
}

void writeBill(const Bill& bill, Format format, const std::string& title, TextSink& sink) {
    switch (format) {
    case Format::Tree:
        return writeTree(bill, title, sink);
    case Format::Xml:
        return writeXml(bill, sink);
    case Format::Json:
        return writeJson(bill, sink);
    case Format::Csv:
        return writeCsv(bill, sink);
    }
}

} // namespace planner
