#include "planner/flow/FlowDot.h"

#include "planner/text/Words.h"

namespace planner {

namespace {

constexpr std::size_t kLine = 22; // columns of a name in a box

/// A text within quotes that is shown as it is: Graphviz takes backslashes and ampersands for its own signs.
std::string escaped(std::string_view text) {
    std::string result;
    for (const char letter : text) {
        if (letter == '\\' || letter == '"') {
            result += '\\';
        }
        result += letter;
        result += letter == '&' ? "amp;" : "";
    }
    return result;
}

/// A name in lines that fit into a box, broken between words.
std::string label(const std::string& name) {
    const std::string text = inLine(name);
    std::string result;
    std::size_t width = 0;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t blank = std::min(text.find(' ', start), text.size());
        const std::string word = text.substr(start, blank - start);
        const std::size_t wordWidth = displayWidth(word);
        if (start > 0) {
            const bool fits = width + 1 + wordWidth <= kLine;
            result += fits ? " " : "\\n";
            width = fits ? width + 1 : 0;
        }
        result += escaped(word);
        width += wordWidth;
        start = blank + 1;
    }
    return result;
}

std::string node(int place) {
    return "n" + std::to_string(place);
}

void putBox(const FlowBox& box, int place, TextSink& sink) {
    sink.put(node(place) + " [label=\"" + label(box.object->name()) + "\", tooltip=\"" +
             escaped(inLine(box.object->id())) + '"');
    const std::string sort = box.hasInside ? "holder" : "step";
    sink.put(box.hasInside ? ", shape=tab" : "");
    sink.put(box.onWay ? ", class=\"" + sort + '"'
                       : ", class=\"" + sort +
                             " pale\", style=\"rounded,filled,dashed\", color=\"#a8b0bc\", fillcolor=\"#ffffff\", "
                             "fontcolor=\"#7d8694\"");
    sink.put("];");
}

void putArrow(const FlowArrow& arrow, TextSink& sink) {
    sink.newLine(1);
    sink.put(node(arrow.from) + " -> " + node(arrow.to));
    if (arrow.inLoop) {
        sink.put(" [class=\"loop\", color=\"#c81e1e\", penwidth=2]");
    } else if (!arrow.onWay) {
        sink.put(" [class=\"pale\", style=dashed, color=\"#a8b0bc\"]");
    }
    sink.put(';');
}

/// Boxes come before those in them, so the open frames follow from where the next one stands.
void putBoxes(const FlowGraph& graph, TextSink& sink) {
    std::vector<int> open;
    const auto closeUpTo = [&](int within) {
        while (!open.empty() && open.back() != within) {
            open.pop_back();
            sink.newLine(open.size() + 1);
            sink.put('}');
        }
    };
    for (int place = 0; place < static_cast<int>(graph.boxes.size()); ++place) {
        const FlowBox& box = graph.boxes[place];
        closeUpTo(box.within);
        if (box.hasInside) {
            sink.newLine(open.size() + 1);
            sink.put("subgraph cluster_" + std::to_string(place) + " {");
            open.push_back(place);
        }
        sink.newLine(open.size() + 1);
        putBox(box, place, sink);
    }
    closeUpTo(-1);
}

} // namespace

void writeDot(const FlowGraph& graph, const FlowObject& owner, TextSink& sink) {
    sink.put("digraph \"" + escaped(inLine(owner.name())) + "\" {\n");
    sink.put("  graph [rankdir=LR, nodesep=0.3, ranksep=0.5, fontname=\"sans-serif\", style=\"rounded,filled\", "
             "color=\"#c3cad4\", fillcolor=\"#8090a014\"];\n");
    sink.put("  node [shape=box, style=\"rounded,filled\", fontname=\"sans-serif\", fontsize=11, color=\"#40506a\", "
             "fillcolor=\"#eef2f8\", penwidth=1.4];\n");
    sink.put("  edge [color=\"#40506a\", penwidth=1.4, arrowsize=0.7];");
    putBoxes(graph, sink);
    for (const FlowArrow& arrow : graph.arrows) {
        putArrow(arrow, sink);
    }
    if (!graph.lastBoxes.empty()) {
        sink.newLine(1);
        sink.put("end [class=\"end\", label=\"\", tooltip=\"The end of the flow\", shape=doublecircle, width=0.18, "
                 "fillcolor=\"#40506a\"];");
    }
    for (const int last : graph.lastBoxes) {
        sink.newLine(1);
        sink.put(node(last) + " -> end;");
    }
    sink.put("\n}\n");
}

} // namespace planner
