#include "planner/report/Report.h"

#include "planner/report/PageParts.h"
#include "planner/text/Words.h"

namespace planner {

namespace {

std::string escaped(std::string_view text) {
    std::string result;
    for (const char letter : inLine(text)) {
        switch (letter) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        default:
            result += letter;
        }
    }
    return result;
}

/// The page asks the browser to load nothing, whatever might stand in it.
constexpr std::string_view kPolicy =
    "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src 'unsafe-inline'; script-src "
    "'unsafe-inline'\">\n";

void putHead(const Report& report, TextSink& sink) {
    const std::string name = escaped(report.root.name());
    sink.put("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n");
    sink.put("<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n");
    sink.put(kPolicy);
    sink.put("<title>" + name + "</title>\n<style>\n");
    sink.put(kPageStyle);
    sink.put("</style>\n</head>\n<body>\n<header>\n<h1>" + name + "</h1>\n<p class=\"soft\">" + escaped(report.file) +
             "</p>\n");
    sink.put("<nav><a href=\"#bill\">Bill of materials</a><a href=\"#kits\">Kits</a><a href=\"#checks\">Checks</a>"
             "<a href=\"#flow\">Flow</a></nav>\n</header>\n<main>\n");
}

void putBill(const Report& report, TextSink& sink) {
    sink.put("<section id=\"bill\">\n<h2>Bill of materials</h2>\n<p id=\"sums\"></p>\n");
    if (report.remark) {
        sink.put("<p class=\"warning\">" + escaped(*report.remark) + "</p>\n");
    }
    sink.put("<div class=\"tools\"><input id=\"search\" type=\"search\" placeholder=\"Search name, kind, type or id\" "
             "aria-label=\"Search the bill\"><button id=\"open\">Open all</button><button id=\"close\">Close all"
             "</button></div>\n<p id=\"found\" class=\"soft\" role=\"status\"></p>\n<div id=\"tree\"></div>\n"
             "</section>\n");
}

std::string kitSums(const Kits& kits) {
    return counted(kits.kits.size(), "kit") + ": " + std::to_string(kits.broughtIn) + " brought in with " +
           counted(kits.parts, "part") + ", " + counted(kits.fasteners, "fastener") + ", " +
           std::to_string(kits.putOut) + " put out.";
}

void putRest(const Report& report, TextSink& sink) {
    sink.put("<section id=\"kits\">\n<h2>Kits</h2>\n<p>" +
             escaped(report.kits ? kitSums(*report.kits) : report.kitsNote) +
             "</p>\n<div id=\"kit-list\"></div>\n</section>\n");
    sink.put("<section id=\"checks\">\n<h2>Checks</h2>\n<p>" +
             (report.findings.empty() ? "Nothing was found." : counted(report.findings.size(), "finding") + '.') +
             "</p>\n<div id=\"check-list\"></div>\n</section>\n");
    sink.put("<section id=\"flow\">\n<h2>Flow</h2>\n");
    sink.put(report.flowNote.empty() ? std::string() : "<p class=\"soft\">" + escaped(report.flowNote) + "</p>\n");
    if (!report.flow.svg.empty()) {
        sink.put("<div class=\"flow\">\n");
        sink.put(report.flow.svg);
        sink.put("</div>\n");
    }
    sink.put("</section>\n</main>\n");
}

} // namespace

void writeReport(const Report& report, TextSink& sink) {
    putHead(report, sink);
    putBill(report, sink);
    putRest(report, sink);
    sink.put("<script id=\"data\" type=\"application/json\">");
    writeReportData(report, sink);
    sink.put("</script>\n<script>\n");
    sink.put(kPageScript);
    sink.put("</script>\n</body>\n</html>\n");
}

} // namespace planner
