#include "planner/file/PlanReader.h"

#include "planner/file/FaultlessJson.h"
#include "planner/file/PlanHandler.h"
#include "planner/file/SourceText.h"

#include <filesystem>

namespace planner {

ReadResult readPlan(const std::string& path, std::string* kept) {
    const std::string name = sourceName(path);
    std::string text;
    if (const auto error = readSource(path, text)) {
        return {nullptr, {name + ": " + *error}};
    }
    const std::filesystem::path file = path == kStandardInput ? name : path;
    ReadResult result = parsePlan(text, name, file.filename().string());
    if (result.plan) {
        result.plan->folder = file.parent_path().string();
    }
    if (kept) {
        *kept = std::move(text);
    }
    return result;
}

namespace {

/// A plan from a text without any fault; null for any other text.
std::unique_ptr<Plan> parseFaultless(std::string_view text, const std::string& title) {
    Faults faults;
    auto plan = std::make_unique<Plan>();
    plan->fallbackTitle = title;
    PlanBuilder builder(*plan, faults);
    const std::size_t begin = signatureLength(text);
    TokenPlaces places(text, begin);
    PlanHandler handler(places, builder, faults);
    if (!readFaultlessJson(text, begin, places, handler)) {
        return nullptr;
    }
    builder.finish(text);
    return faults.empty() ? std::move(plan) : nullptr;
}

} // namespace

ReadResult parsePlan(std::string_view text, const std::string& name, const std::string& title) {
    if (text.empty()) {
        return {nullptr, {name + ": is empty; expected a JSON object with the plan"}};
    }
    Faults faults;
    auto plan = std::make_unique<Plan>();
    plan->fallbackTitle = title;
    if (const auto fault = findEncodingFault(text)) {
        faults.addSyntax(fault->offset, fault->message);
    } else if (auto faultless = parseFaultless(text, title)) {
        return {std::move(faultless), {}};
    } else {
        PlanBuilder builder(*plan, faults);
        TokenPlaces places(text, signatureLength(text));
        PlanHandler handler(places, builder, faults);
        if (nlohmann::json::sax_parse(places.begin(), places.end(), &handler)) {
            builder.finish(text);
        }
    }
    if (!faults.empty()) {
        return {nullptr, faults.lines(name, text)};
    }
    return {std::move(plan), {}};
}

std::optional<std::string> orderNotes(std::string& json) {
    Faults faults;
    if (const auto fault = findEncodingFault(json)) {
        faults.addSyntax(fault->offset, fault->message);
    } else {
        Plan none;
        PlanBuilder builder(none, faults);
        TokenPlaces places(json, 0);
        PlanHandler handler(places, builder, faults);
        handler.expectNotes();
        if (nlohmann::json::sax_parse(places.begin(), places.end(), &handler) && faults.empty()) {
            json = handler.takeNotes();
        }
    }
    return faults.empty() ? std::nullopt : std::optional(faults.lines("notes", json).front());
}

} // namespace planner
