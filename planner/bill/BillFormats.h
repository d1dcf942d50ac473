#pragma once

#include "planner/bill/Bill.h"
#include "planner/file/TextSink.h"

#include <array>
#include <string>

namespace planner {

/// The format in which a bill is written.
enum class Format { Tree, Xml, Json, Csv };

/// Name of a format, as a person chooses it.
struct NamedFormat {
    const char* name;
    Format format;
};
inline constexpr std::array<NamedFormat, 4> kFormats{
    {{"tree", Format::Tree}, {"xml", Format::Xml}, {"json", Format::Json}, {"csv", Format::Csv}}};

/// The format of that name, one of those above.
Format formatNamed(std::string_view name);

/// Writes a bill in a format. The title heads the format for people.
void writeBill(const Bill& bill, Format format, const std::string& title, TextSink& sink);

} // namespace planner
